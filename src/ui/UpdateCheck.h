#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <QVersionNumber>
#include <chrono>
#include <functional>
#include <optional>

class QNetworkReply;

/// The notice of a newer version: the first line is the version, the rest the text shown.
struct UpdateNotice {
    QVersionNumber version;
    QString text;

    /// @param bytes  UTF-8
    /// @return nothing for what is no notice: an empty one, one without a version in its first line, or control
    ///         characters in it; a text too long for a message box is cut and ends with an ellipsis
    static std::optional<UpdateNotice> Read(const QByteArray& bytes);
};

/// What an update server may take of this computer.
struct UpdateLimits {
    qint64 noticeBytes = qint64{64} * 1024;
    qint64 archiveBytes = qint64{256} * 1024 * 1024;
    std::chrono::milliseconds silence{15000};  ///< how long it may stay silent
};

/// Fetches the notice of a newer version, and its archive to a place that the user chooses. What is fetched is never
/// run or unpacked. A server that stalls, leads elsewhere, sends rubbish or never ends costs nothing but the notice.
class UpdateCheck final : public QObject {
    Q_OBJECT

  public:
    /// @param base  where "/tandryvorel.txt" and "/software/tvupdate.zip" lie; when empty nothing is ever fetched
    explicit UpdateCheck(const QUrl& base, UpdateLimits limits = {}, QObject* parent = nullptr);

    /// Looks for a notice; NewerFound comes only for a version newer than ours, Looked in every case.
    void Look();

    /// Fetches the archive to a file. The file appears when it is complete, or not at all.
    void FetchArchive(const QString& file);

  signals:
    void NewerFound(const QString& version, const QString& text);
    void Looked();

    /// @param why  empty when the archive lies in its place
    void ArchiveDone(const QString& why);

  private:
    QUrl base_;
    UpdateLimits limits_;
    QNetworkAccessManager network_;

    QNetworkReply* Get(const QString& path);
};
