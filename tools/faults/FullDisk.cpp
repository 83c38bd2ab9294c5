#include "FullDisk.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace {

void Put(const char* file, const std::string& text) { std::ofstream(file) << text; }

/// Mounts of its own: by right, or by being root in a world of its own.
bool LeaveForOwnMounts() {
    const std::string user = std::to_string(geteuid()), group = std::to_string(getegid());
    if (unshare(CLONE_NEWNS) == 0) return true;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    Put("/proc/self/uid_map", "0 " + user + " 1");
    Put("/proc/self/setgroups", "deny");  // or the next is not allowed
    Put("/proc/self/gid_map", "0 " + group + " 1");
    return true;
}

}  // namespace

bool MountSmallDisk(const std::filesystem::path& place) {
    if (!LeaveForOwnMounts()) return false;
    if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return false;
    return mount("tvorel_faults", place.c_str(), "tmpfs", 0, "size=1m") == 0;
}

void FillUp(const std::filesystem::path& ballast, std::uintmax_t room) {
    const std::string page(4096, 'b');
    const int file = open(ballast.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    std::uintmax_t size = 0;
    while (write(file, page.data(), page.size()) == static_cast<ssize_t>(page.size())) size += page.size();
    close(file);
    std::filesystem::resize_file(ballast, size > room ? size - room : 0);
}
