#include "platform/PosixDataFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <algorithm>
#include <cerrno>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/Descriptor.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLockPause{2};  // between two tries: waiting in the call would know no end

/// A lock that is let go when its folder is closed.
class FolderLock final : public Files::Lock {
  public:
    explicit FolderLock(Descriptor folder) : folder_(std::move(folder)) {}

  private:
    Descriptor folder_;
};

using Contents = std::optional<std::string>;

RuntimeFault CantBeOpened(const std::string& path, const std::string& why) {
    return RuntimeFault(FaultKind::PathOrFileAccess, path + ": " + why);
}

RuntimeFault CantBeRead(const std::string& path, int error) {
    return CantBeOpened(path, "it can't be read: " + std::generic_category().message(error));
}

/// The path without links; nothing when it leads nowhere, and the reason in errno.
std::optional<std::string> Canonical(const std::string& path) {
    const std::unique_ptr<char, decltype(&::free)> real(::realpath(path.c_str(), nullptr), &::free);
    return real ? std::optional<std::string>(real.get()) : std::nullopt;
}

std::optional<std::string> CanonicalFolderOf(const std::string& path) {
    const std::string folder = FolderOf(path);
    return Canonical(folder.empty() ? "." : folder);
}

bool Exists(const std::string& path) {
    struct stat what {};
    return ::lstat(path.c_str(), &what) == 0;
}

bool SameName(const std::string& a, const std::string& b) {
    return QString::fromStdString(a).compare(QString::fromStdString(b), Qt::CaseInsensitive) == 0;
}

/// Why a file that was opened is no data file; empty when it may be one.
std::string WhyNoDataFile(const struct stat& what) {
    if (S_ISDIR(what.st_mode)) return "it is a folder";
    if (!S_ISREG(what.st_mode)) return "it is a device or a pipe, not a file";
    return static_cast<std::size_t>(what.st_size) > kDataFileLimit ? "it is larger than 16 MiB" : "";
}

/// What the file holds; it may have grown since it was looked at.
Outcome<Contents> ReadAll(const Descriptor& file, const std::string& path, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = ::read(file.Number(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return CantBeRead(path, errno);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return Contents(std::move(bytes));
}

}  // namespace

std::string modDataFolder::PathOf(const std::string& folder, const std::string& name) {
    std::string safe = name;
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
    std::replace_if(safe.begin(), safe.end(), isControl, '_');
    std::string path = JoinPath(folder, safe);
    if (Exists(path)) return path;
    const QDir there(folder.empty() ? "." : QString::fromStdString(folder));
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System;
    // Files first: a folder that only happens to have the name comes after them.
    for (const QString& entry : there.entryList(everything, QDir::Name | QDir::DirsLast)) {
        if (SameName(entry.toStdString(), safe)) return JoinPath(folder, entry.toStdString());
    }
    return path;
}

Outcome<std::optional<std::string>> modDataFolder::Read(const std::string& path) {
    const std::optional<std::string> real = Canonical(path);
    if (!real && !Exists(path)) return Contents();
    if (!real) return CantBeOpened(path, "it is a link that leads nowhere");
    const std::optional<std::string> folder = CanonicalFolderOf(path);
    if (!folder || !real->starts_with(*folder + (*folder == "/" ? "" : "/")))
        return CantBeOpened(path, "it is a link that leads out of its folder");
    // A pipe would wait for somebody to write; a terminal would become the program's own.
    const Descriptor file(::open(real->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.IsOpen()) return CantBeRead(path, errno);
    struct stat what {};
    if (::fstat(file.Number(), &what) != 0) return CantBeRead(path, errno);
    if (const std::string why = WhyNoDataFile(what); !why.empty()) return CantBeOpened(path, why);
    return ReadAll(file, path, static_cast<std::size_t>(what.st_size));
}

bool modDataFolder::LeadToSameFile(const std::string& a, const std::string& b) {
    struct stat first = {};
    struct stat second = {};
    const bool firstIsThere = ::stat(a.c_str(), &first) == 0, secondIsThere = ::stat(b.c_str(), &second) == 0;
    if (firstIsThere && secondIsThere) return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
    const std::optional<std::string> folder = CanonicalFolderOf(a);
    return folder && folder == CanonicalFolderOf(b) && SameName(FileNameOf(a), FileNameOf(b));
}

Outcome<std::unique_ptr<Files::Lock>> modDataFolder::LockFolder(const std::string& folder,
                                                                std::chrono::milliseconds patience) {
    auto lock = TryLockFolder(folder, patience);
    if (!lock) return CantBeOpened(folder.empty() ? "." : folder, "another program keeps its data files locked");
    return lock;
}

std::unique_ptr<Files::Lock> modDataFolder::TryLockFolder(const std::string& folder,
                                                          std::chrono::milliseconds patience) {
    const char* const path = folder.empty() ? "." : folder.c_str();
    Descriptor lock(::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const Clock::time_point end = Clock::now() + patience;
    while (lock.IsOpen() && ::flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) break;
        if (Clock::now() >= end) return nullptr;
        std::this_thread::sleep_for(kLockPause);
    }
    return std::make_unique<FolderLock>(std::move(lock));
}
