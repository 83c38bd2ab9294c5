#include "platform/WholeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#include <set>
#include <system_error>
#include <utility>

#include "bot/Files.h"

namespace {

constexpr std::string_view kTemporaryPrefix = ".tvorel-unfinished-";
constexpr std::size_t kTemporaryDigits = 16;
constexpr int kNameDraws = 100;  // one is taken by chance as good as never: then somebody is at it
constexpr int kMostLinks = 40;   // as many as the system follows
constexpr mode_t kOwnerOnly = 0600, kAllModes = 0777;

std::string ReasonOf(int error) { return std::generic_category().message(error); }

/// A call again for as long as a signal has come in between.
template <typename Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

std::string DrawName() {
    std::random_device random;
    std::array<char, kTemporaryDigits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x%08x", random(), random());
    return std::string(kTemporaryPrefix) + digits.data();
}

bool IsTemporaryName(std::string_view name) {
    if (!name.starts_with(kTemporaryPrefix)) return false;
    name.remove_prefix(kTemporaryPrefix.size());
    return name.size() == kTemporaryDigits && name.find_first_not_of("0123456789abcdef") == name.npos;
}

/// The end of a chain of symbolic links, whether or not something is there. A ring of links ends on one of its own.
std::string WhereLinksLead(std::string path) {
    std::error_code error;
    for (int links = 0; links < kMostLinks; ++links) {
        const std::string target = std::filesystem::read_symlink(path, error).string();
        if (error) break;
        path = JoinPath(FolderOf(path), target);
    }
    return path;
}

/// Whether this process has not written into a folder before. To look through a full one at each save would be slow.
bool IsFirstVisit(const std::string& folder) {
    static std::set<std::string> visited;
    return visited.insert(folder).second;
}

void RemoveIfLeftBehind(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) return;
    if (::flock(file.Number(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
}

/// Locks a temporary against being cleared by others.
/// @return false when one of them was quicker; true also where the file system knows no locks, for nothing is cleared
///         there
bool LockedInTime(int file) {
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
    struct stat status {};
    return ::fstat(file, &status) != 0 || status.st_nlink > 0;
}

}  // namespace

WholeFile::WholeFile(std::string path) : path_(std::move(path)) { Begin(); }

WholeFile::~WholeFile() {
    if (!temporary_.empty()) ::unlinkat(folder_.Number(), temporary_.c_str(), 0);
}

bool WholeFile::Begin() {
    // The system would take the name to end there, and write another file.
    if (path_.find('\0') != path_.npos) return Fail(ReasonOf(EINVAL));
    const std::string target = WhereLinksLead(path_);
    name_ = FileNameOf(target);
    return OpenFolder(FolderOf(target)) && ReadModeInPlace() && MakeTemporary();
}

/// Opened before anything is written: a folder that can't be synced in the end is known before the old file is gone.
bool WholeFile::OpenFolder(const std::string& folder) {
    const char* const path = folder.empty() ? "." : folder.c_str();
    folder_ = Descriptor(Uninterrupted([&] { return ::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!Check(folder_.Number())) return false;
    if (IsFirstVisit(folder)) ClearUnfinished(folder);
    return true;
}

bool WholeFile::ReadModeInPlace() {
    if (name_.empty()) return Fail(ReasonOf(EISDIR));
    struct stat status {};
    if (::fstatat(folder_.Number(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT || Fail(ReasonOf(errno));
    if (S_ISLNK(status.st_mode)) return Fail(ReasonOf(ELOOP));
    if (S_ISDIR(status.st_mode)) return Fail(ReasonOf(EISDIR));
    if (!S_ISREG(status.st_mode)) return Fail("It is no ordinary file");
    mode_ = status.st_mode & kAllModes;
    return Check(::faccessat(folder_.Number(), name_.c_str(), W_OK, AT_EACCESS));
}

bool WholeFile::MakeTemporary() {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    for (int draw = 0; draw < kNameDraws; ++draw) {
        const std::string name = DrawName();
        file_ = Descriptor(Uninterrupted([&] { return ::openat(folder_.Number(), name.c_str(), kFlags, kOwnerOnly); }));
        if (file_.IsOpen() && LockedInTime(file_.Number())) {
            temporary_ = name;
            return true;
        }
        if (!file_.IsOpen() && errno != EEXIST) return Fail(ReasonOf(errno));
    }
    return Fail(ReasonOf(EEXIST));
}

void WholeFile::Append(std::string_view bytes) {
    while (!trouble_ && !bytes.empty()) {
        const auto written = Uninterrupted([&] { return ::write(file_.Number(), bytes.data(), bytes.size()); });
        if (written < 0) {
            Fail(ReasonOf(errno));
        } else {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
}

/// Asks only for what is not so already: some file systems have one mode for all files, and refuse any change.
bool WholeFile::KeepMode() {
    struct stat status {};
    if (!Check(::fstat(file_.Number(), &status))) return false;
    return !mode_ || (status.st_mode & kAllModes) == *mode_ || Check(::fchmod(file_.Number(), *mode_));
}

Outcome<Done> WholeFile::Commit() {
    if (trouble_ || !Finish()) return *trouble_;
    return Done{};
}

/// The close is asked, too: file systems of the network may tell only then that there was no room.
bool WholeFile::Finish() {
    return KeepMode() && Check(Uninterrupted([&] { return ::fsync(file_.Number()); })) && PutIntoPlace() &&
           Check(::close(file_.Release()));
}

bool WholeFile::PutIntoPlace() {
    if (!Check(::renameat(folder_.Number(), temporary_.c_str(), folder_.Number(), name_.c_str()))) return false;
    temporary_.clear();
    const int synced = Uninterrupted([&] { return ::fsync(folder_.Number()); });
    // Some file systems have nothing to sync in a folder.
    return errno == EINVAL || Check(synced);
}

bool WholeFile::Check(int result) { return result >= 0 || Fail(ReasonOf(errno)); }

bool WholeFile::Fail(const std::string& reason) {
    trouble_ = RuntimeFault(FaultKind::PathOrFileAccess, path_ + ": " + reason);
    return false;
}

void ClearUnfinished(const std::string& folder) {
    const QDir place(QString::fromStdString(folder.empty() ? "." : folder));
    for (const QString& name : place.entryList(QDir::Files | QDir::Hidden)) {
        if (IsTemporaryName(name.toStdString())) RemoveIfLeftBehind(place.filePath(name).toStdString());
    }
}
