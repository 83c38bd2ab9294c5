#include "ui/UpdateCheck.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <algorithm>
#include <memory>

#include "Version.h"

std::optional<UpdateNotice> UpdateNotice::Read(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    const QString first = text.section('\n', 0, 0).trimmed();
    qsizetype end = 0;
    const QVersionNumber version = QVersionNumber::fromString(first, &end);
    const bool rubbish = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c == QChar::ReplacementCharacter || (c < u' ' && c != u'\n' && c != u'\r' && c != u'\t');
    });
    if (version.isNull() || end != first.size() || rubbish) return std::nullopt;
    return UpdateNotice{version, text.section('\n', 1).trimmed()};
}

UpdateCheck::UpdateCheck(QUrl base, QObject* parent) : QObject(parent), base_(std::move(base)) {}

QNetworkReply* UpdateCheck::Get(const QString& path, qint64 limit) {
    QUrl url = base_;
    url.setPath(base_.path() + path);
    QNetworkRequest request(url);
    // Only within the same server: an update comes from where it is expected, or not at all.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setTransferTimeout(kStallMs);
    QNetworkReply* const reply = network_.get(request);
    reply->setReadBufferSize(limit + 1);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply, limit](qint64 received, qint64 total) {
        if (received > limit || total > limit) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    return reply;
}

void UpdateCheck::Look() {
    if (base_.isEmpty()) return;
    QNetworkReply* const reply = Get("/tandryvorel.txt", kNoticeLimit);
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        if (reply->error() != QNetworkReply::NoError) return;
        const auto notice = UpdateNotice::Read(reply->read(kNoticeLimit));
        if (!notice || notice->version <= QVersionNumber::fromString(QLatin1String(kProductVersion))) return;
        emit NewerFound(notice->version.toString(), notice->text);
    });
}

void UpdateCheck::FetchArchive(const QString& path) {
    if (base_.isEmpty()) return;
    const auto file = std::make_shared<QSaveFile>(path);
    if (!file->open(QIODevice::WriteOnly)) {
        emit ArchiveDone(file->errorString());
        return;
    }
    QNetworkReply* const reply = Get("/software/tvupdate.zip", kArchiveLimit);
    connect(reply, &QNetworkReply::readyRead, file.get(), [reply, file] {
        const QByteArray piece = reply->readAll();
        if (file->write(piece) != piece.size()) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, file] {
        const bool whole = reply->error() == QNetworkReply::NoError && file->error() == QFileDevice::NoError;
        if (!whole) file->cancelWriting();
        const bool stored = whole && file->commit();
        const QString why = file->error() != QFileDevice::NoError ? file->errorString() : reply->errorString();
        emit ArchiveDone(stored ? QString() : why);
    });
}
