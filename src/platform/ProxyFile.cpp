#include "platform/ProxyFile.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/PosixDataFolder.h"
#include "text/Fault.h"

namespace fs = std::filesystem;

namespace {

/// Several bots may begin and end at the same moment.
constexpr std::chrono::milliseconds kLockWait{2000};

bool Exists(const std::string& path) {
    std::error_code none;
    return fs::exists(fs::symlink_status(path, none));
}

/// Keeps a file under another name, if there is one: it is the user's, and nothing may take its place before.
void MustMove(const std::string& from, const std::string& to) {
    if (!Exists(from)) return;
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw RuntimeFault(FaultKind::PathOrFileAccess, from + ": it can't be kept: " + error.message());
}

// At the end nobody waits for an answer: what can't be done, such as in a folder that is gone, is left for the next
// session.

void Move(const std::string& from, const std::string& to) {
    std::error_code none;
    fs::rename(from, to, none);
}

void Remove(const std::string& path) {
    std::error_code none;
    fs::remove(path, none);
}

std::string BytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Holds(const std::string& path, std::string_view bytes) { return Exists(path) && BytesOf(path) == bytes; }

/// The right to change what lies in the file's folder, for as long as it lives; who can't have it goes on without.
std::unique_ptr<Files::Lock> LockFolderOf(const std::string& path) {
    return modDataFolder::TryLockFolder(FolderOf(path), kLockWait);
}

}  // namespace

void ProxyFile::Write(const std::string& path, std::string_view text) {
    TakeAway();
    const auto lock = LockFolderOf(path);
    path_ = path;
    text_ = text;
    const bool isBots = Exists(Marker()) && Holds(path, BytesOf(Marker()));  // here still, or left by a crash
    ValueOrFault(disk_.Write(Marker(), text));  // first: where this fails, on a full disk, nothing has been moved yet
    isBots ? Remove(path) : KeepUsersFile();
    ValueOrFault(disk_.Write(path, text));
}

void ProxyFile::KeepUsersFile() {
    if (!Exists(path_)) return;
    // A kept one that is still here is from before a crash; the user has made a new one since.
    MustMove(Kept(), Kept() + ".older");
    MustMove(path_, Kept());
}

void ProxyFile::TakeAway() {
    if (path_.empty()) return;
    const auto lock = LockFolderOf(path_);
    const bool wasLast = Holds(Marker(), text_);
    if (Holds(path_, text_)) Exists(Kept()) ? Move(Kept(), path_) : Remove(path_);
    if (wasLast && !Exists(path_)) Move(Kept(), path_);
    // As long as the user's file could not be put back, the marker tells whose the one in its place is.
    if (wasLast && !Holds(path_, text_)) Remove(Marker());
    path_.clear();
}
