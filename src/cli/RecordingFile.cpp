#include "cli/RecordingFile.h"

#include <QFileInfo>
#include <utility>

#include "bot/Files.h"

namespace {

constexpr int kMostNumbers = 100000;  // more than anybody has; the search is to end all the same

constexpr auto kAppended = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;

/// "evening.txt" and 2: "evening-2.txt".
std::string Numbered(const std::string& path, int number) {
    const std::string name = FileNameOf(path);
    const std::size_t dot = name.rfind('.');
    const std::size_t endLength = dot == name.npos || dot == 0 ? 0 : name.size() - dot;
    const std::size_t stem = path.size() - endLength;
    return path.substr(0, stem) + "-" + std::to_string(number) + path.substr(stem);
}

}  // namespace

RecordingFile::~RecordingFile() {
    if (isNew_ && file_.size() == 0) file_.remove();
}

std::optional<std::string> RecordingFile::Open(const std::string& path) {
    std::string tried = path;
    for (int number = 2; number < kMostNumbers; ++number) {
        file_.setFileName(QString::fromStdString(tried));
        isNew_ = OpenNew();
        if (isNew_ || OpenEmpty()) return tried;
        if (!QFileInfo(file_).isFile() || QFileInfo(file_).size() == 0) return std::nullopt;
        tried = Numbered(path, number);
    }
    return std::nullopt;
}

/// Fails on what is there, were it made at this very moment.
bool RecordingFile::OpenNew() {
    return file_.open(kAppended | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// What is there may hold nothing; a device, say, never does.
bool RecordingFile::OpenEmpty() {
    const QFileInfo there(file_);
    if (!there.exists() || (there.isFile() && there.size() > 0)) return false;
    return file_.open(there.isFile() ? kAppended : QIODevice::WriteOnly | QIODevice::Unbuffered);
}

bool RecordingFile::Write(const std::string& lines) {
    const auto size = static_cast<qint64>(lines.size());
    const bool written = file_.write(lines.data(), size) == size;
    return written || std::exchange(broken_, true);
}
