#include "platform/ConsoleLog.h"

#include <QDateTime>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace {

constexpr QStringView kTimeFormat = u"yyyy-MM-dd HH:mm:ss ";

bool BeginsWithTime(QFile& file) {
    const QString begin = QString::fromLatin1(file.read(kTimeFormat.size()));
    return QDateTime::fromString(begin, kTimeFormat.toString()).isValid();
}

bool HoldsOther(const QString& path) {
    if (QFileInfo(path).size() == 0) return false;
    QFile file(path);
    return !file.open(QIODevice::ReadOnly) || !BeginsWithTime(file);
}

}  // namespace

ConsoleLog::Refusal ConsoleLog::Open(const std::string& path) {
    Close();
    broken_ = false;
    file_.setFileName(QString::fromStdString(path));
    const QFileInfo there(file_.fileName());
    if (there.exists() && !there.isFile()) return Refusal::NoOrdinaryFile;
    if (HoldsOther(file_.fileName())) return Refusal::HoldsOther;
    // Unbuffered: the last lines before a crash are the ones that are looked for.
    const auto appended = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    const bool opened = file_.open(appended, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return opened ? Refusal::None : Refusal::CantBeWritten;
}

/// Now, worked out once a second.
const QByteArray& ConsoleLog::Time() {
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (std::exchange(second_, now) != now) time_ = QDateTime::fromSecsSinceEpoch(now).toString(kTimeFormat).toUtf8();
    return time_;
}

bool ConsoleLog::Append(std::string_view line) {
    if (!IsOpen()) return true;
    QByteArray entry = Time();
    entry.append(line.data(), static_cast<qsizetype>(line.size()));
    const auto isControl = [](char c) { return (static_cast<unsigned char>(c) < ' ' && c != '\t') || c == '\x7F'; };
    std::replace_if(entry.begin(), entry.end(), isControl, ' ');
    entry += '\n';
    const bool written = file_.write(entry) == entry.size();
    return written || std::exchange(broken_, true);
}
