#include "ui/UpdateCheck.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <algorithm>
#include <memory>

#include "Version.h"
#include "platform/WholeFile.h"
#include "ui/ShownText.h"

namespace {

constexpr qint64 kBufferBytes = qint64{1024} * 1024;  // more than a notice may have
constexpr int kShownLines = 20;
constexpr int kShownCharacters = 2000;

/// As much of a text as a message box can show on a small screen.
QString Shortened(const QString& text) {
    const QString shown = text.section('\n', 0, kShownLines - 1).left(kShownCharacters);
    return shown.size() < text.size() ? shown + QChar(0x2026) : shown;
}

/// The archive as it arrives. After something has gone wrong nothing more is taken, and its place stays as it was.
class ArchiveFile {
  public:
    ArchiveFile(const QString& path, qint64 mostBytes) : room_(mostBytes) {
        file_.emplace(TypedPath(path));
        LookForTrouble();
    }
    void Append(const QByteArray& piece) {
        room_ -= piece.size();
        if (room_ < 0 && why_.isEmpty()) why_ = UpdateCheck::tr("It is too large.");
        if (!why_.isEmpty()) return;
        file_->Append({piece.data(), static_cast<std::size_t>(piece.size())});
        LookForTrouble();
    }
    void Commit() {
        if (!why_.isEmpty()) return;
        if (const auto done = file_->Commit(); !done) GiveUp(done.Fault());
    }
    const QString& Why() const { return why_; }

  private:
    std::optional<WholeFile> file_;
    qint64 room_;
    QString why_;

    void LookForTrouble() {
        if (const auto trouble = file_->Trouble()) GiveUp(*trouble);
    }
    void GiveUp(const RuntimeFault& fault) {
        why_ = ShownPath(fault.Detail());
        file_.reset();
    }
};

}  // namespace

std::optional<UpdateNotice> UpdateNotice::Read(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    const QString first = text.section('\n', 0, 0).trimmed();
    qsizetype end = 0;
    const QVersionNumber version = QVersionNumber::fromString(first, &end);
    const bool rubbish = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c == QChar::ReplacementCharacter || (c < u' ' && c != u'\n' && c != u'\r' && c != u'\t');
    });
    if (version.isNull() || end != first.size() || rubbish) return std::nullopt;
    return UpdateNotice{version, Shortened(text.section('\n', 1).trimmed())};
}

UpdateCheck::UpdateCheck(const QUrl& base, UpdateLimits limits, QObject* parent)
    : QObject(parent), base_(base.adjusted(QUrl::StripTrailingSlash)), limits_(limits) {}

QNetworkReply* UpdateCheck::Get(const QString& path) {
    QUrl url = base_;
    url.setPath(base_.path(QUrl::FullyDecoded) + path);
    QNetworkRequest request(url);
    // Only within the same server: an update comes from where it is expected, or not at all.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setMaximumRedirectsAllowed(3);  // a server that leads in a circle is left soon
    // Compressed, a few bytes could unfold to any number.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setTransferTimeout(static_cast<int>(limits_.silence.count()));
    QNetworkReply* const reply = network_.get(request);
    reply->setReadBufferSize(kBufferBytes);
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    return reply;
}

void UpdateCheck::Look() {
    if (base_.isEmpty()) return;
    QNetworkReply* const reply = Get("/tandryvorel.txt");
    const auto tooLong = [this, reply] { return reply->bytesAvailable() > limits_.noticeBytes; };
    connect(reply, &QNetworkReply::readyRead, this, [reply, tooLong] {
        if (tooLong()) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, tooLong] {
        const bool whole = reply->error() == QNetworkReply::NoError && !tooLong();
        const auto notice = whole ? UpdateNotice::Read(reply->readAll()) : std::nullopt;
        if (notice && notice->version > QVersionNumber::fromString(QLatin1String(kProductVersion)))
            emit NewerFound(notice->version.toString(), notice->text);
        emit Looked();
    });
}

void UpdateCheck::FetchArchive(const QString& path) {
    if (base_.isEmpty()) return;
    const auto file = std::make_shared<ArchiveFile>(path, limits_.archiveBytes);
    if (!file->Why().isEmpty()) {
        emit ArchiveDone(file->Why());
        return;
    }
    QNetworkReply* const reply = Get("/software/tvupdate.zip");
    connect(reply, &QNetworkReply::readyRead, this, [reply, file] {
        file->Append(reply->readAll());
        if (!file->Why().isEmpty()) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, file] {
        const bool arrived = reply->error() == QNetworkReply::NoError;
        if (arrived) file->Commit();
        emit ArchiveDone(arrived || !file->Why().isEmpty() ? file->Why() : reply->errorString());
    });
}
