#include "platform/ProxyFile.h"

#include <QLockFile>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

/// Several bots may begin and end at the same moment.
constexpr int kLockWaitMs = 2000;

// What can't be done here, such as in a folder that is gone, is left undone: nobody waits for an answer at the end.

bool Exists(const std::string& path) {
    std::error_code none;
    return fs::exists(fs::symlink_status(path, none));
}

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

/// The right to change what lies in a folder, for as long as this lives.
class FolderLock {
  public:
    explicit FolderLock(const std::string& path) : lock_(QString::fromStdString(path + ".lock")) {
        lock_.tryLock(kLockWaitMs);
    }

  private:
    QLockFile lock_;
};

}  // namespace

void ProxyFile::Write(const std::string& path, std::string_view text) {
    TakeAway();
    const FolderLock lock(path);
    path_ = path;
    text_ = text;
    KeepUsersFile();
    disk_.Write(Marker(), text);
    disk_.Write(path, text);
}

void ProxyFile::KeepUsersFile() {
    if (!Exists(path_)) return;
    if (Exists(Marker()) && Holds(path_, BytesOf(Marker()))) return Remove(path_);  // a bot's, here still or crashed
    // A kept one that is still here is from before a crash; the user has made a new one since.
    Move(Kept(), Kept() + ".older");
    Move(path_, Kept());
}

void ProxyFile::TakeAway() {
    if (path_.empty()) return;
    const FolderLock lock(path_);
    const bool wasLast = Holds(Marker(), text_);
    if (Holds(path_, text_)) Exists(Kept()) ? Move(Kept(), path_) : Remove(path_);
    if (wasLast && !Exists(path_)) Move(Kept(), path_);
    if (wasLast) Remove(Marker());
    path_.clear();
}
