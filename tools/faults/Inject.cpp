// Loaded before the C library (LD_PRELOAD), this lets system calls on the files of one folder fail, or kills the
// process at them. Everything else passes. The environment says what is to happen:
//
//   TVOREL_FAULT_FOLDER   the folder, absolute; calls on it and on what lies directly in it count, from 0
//   TVOREL_FAULT_PLAN     "N:HOW N:HOW ...": what happens at call N. HOW is
//                           a number   the call fails with that errno
//                           before     the process is killed before the call, as by SIGKILL
//                           after      the process is killed after the call
//                           short      a write takes half of what it was given
//   TVOREL_FAULT_LIST     a file to which the name of each call that counts is appended, one a line
//   TVOREL_FAULT_ARMED    when set, calls count from the start; otherwise while TvorelArmFaults(true) holds

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

namespace {

enum class Opened : char { Elsewhere, Folder, ForReading, ForWriting };

std::string Setting(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

/// What the environment says. It is read at the first call, which may come before anything else in the process, and is
/// never torn down, for the last call comes behind everything else.
struct Plan {
    std::string folder = Setting("TVOREL_FAULT_FOLDER"), list = Setting("TVOREL_FAULT_LIST");
    std::map<int, std::string> steps;
    bool armed = !Setting("TVOREL_FAULT_ARMED").empty();
    int calls = 0;
    std::array<Opened, 1024> opened{};

    Plan() {
        const std::string plan = Setting("TVOREL_FAULT_PLAN");
        for (std::size_t at = 0; at < plan.size();) {
            const std::size_t colon = plan.find(':', at), end = std::min(plan.find(' ', at), plan.size());
            steps[std::atoi(plan.c_str() + at)] = plan.substr(colon + 1, end - colon - 1);
            at = end + 1;
        }
    }
};

Plan& ThePlan() {
    static auto* const plan = new Plan;
    return *plan;
}

Opened& KindOf(int file) {
    static Opened elsewhere;  // for descriptors beyond the table: set back, since callers write to it
    elsewhere = Opened::Elsewhere;
    auto& opened = ThePlan().opened;
    return file >= 0 && static_cast<std::size_t>(file) < opened.size() ? opened[static_cast<std::size_t>(file)]
                                                                       : elsewhere;
}

/// What opening this path would open, for reading as far as the path tells.
Opened KindOfPath(int folder, const char* path) {
    const std::string& watched = ThePlan().folder;
    if (watched.empty()) return Opened::Elsewhere;
    const std::string_view name(path);
    if (!name.starts_with('/')) return KindOf(folder) == Opened::Folder ? Opened::ForReading : Opened::Elsewhere;
    if (name == watched) return Opened::Folder;
    const std::size_t end = name.rfind('/');
    return name.substr(0, end) == watched ? Opened::ForReading : Opened::Elsewhere;
}

void List(const char* name) {
    const std::string& path = ThePlan().list;
    if (path.empty()) return;
    // Past the functions below, which would count what is done here.
    const std::string line = std::string(name) + "\n";
    const long file = syscall(SYS_openat, AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    syscall(SYS_write, file, line.data(), line.size());
    syscall(SYS_close, file);
}

/// What is to happen at this call; empty for nothing.
std::string NextStep(const char* name) {
    Plan& plan = ThePlan();
    if (!plan.armed) return {};
    List(name);
    const auto step = plan.steps.find(plan.calls++);
    return step == plan.steps.end() ? std::string() : step->second;
}

template <typename Call>
auto Watched(bool counts, const char* name, Call call) -> decltype(call()) {
    const std::string how = counts ? NextStep(name) : std::string();
    if (how == "before") raise(SIGKILL);
    if (const int error = std::atoi(how.c_str())) {
        errno = error;
        return -1;
    }
    const auto result = call();
    if (how == "after") raise(SIGKILL);
    return result;
}

template <typename Function>
Function Real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int Open(int folder, const char* path, int flags, mode_t mode) {
    Opened kind = KindOfPath(folder, path);
    if (kind == Opened::ForReading && (flags & O_ACCMODE) != O_RDONLY) kind = Opened::ForWriting;
    constexpr std::array<const char*, 4> kNames = {"", "open folder", "open to read", "create"};
    const int file = Watched(kind != Opened::Elsewhere, kNames[static_cast<std::size_t>(kind)],
                             [&] { return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode)); });
    KindOf(file) = kind;
    return file;
}

bool IsOurs(int file) { return KindOf(file) != Opened::Elsewhere; }

}  // namespace

extern "C" {

void TvorelArmFaults(bool armed) { ThePlan().armed = armed; }

#define OPENS(name, parameters, folder)                                        \
    int name parameters {                                                      \
        va_list rest;                                                          \
        va_start(rest, flags);                                                 \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0; \
        va_end(rest);                                                          \
        return Open(folder, path, flags, mode);                                \
    }
OPENS(open, (const char* path, int flags, ...), AT_FDCWD)
OPENS(open64, (const char* path, int flags, ...), AT_FDCWD)
OPENS(openat, (int folder, const char* path, int flags, ...), folder)
OPENS(openat64, (int folder, const char* path, int flags, ...), folder)
#undef OPENS

int close(int file) {
    static const auto real = Real<int (*)(int)>("close");
    const Opened kind = KindOf(file);
    KindOf(file) = Opened::Elsewhere;
    const int closed = real(file);  // a close that fails leaves nothing open either
    const char* const name = kind == Opened::ForWriting ? "close" : "close what was read";
    return Watched(kind != Opened::Elsewhere, name, [&] { return closed; });
}

ssize_t write(int file, const void* bytes, size_t size) {
    static const auto real = Real<ssize_t (*)(int, const void*, size_t)>("write");
    Plan& plan = ThePlan();
    const auto step = plan.steps.find(plan.calls);
    const bool isShort = IsOurs(file) && plan.armed && step != plan.steps.end() && step->second == "short";
    return Watched(IsOurs(file), "write", [&] { return real(file, bytes, isShort ? (size + 1) / 2 : size); });
}

int fsync(int file) {
    static const auto real = Real<int (*)(int)>("fsync");
    const char* const name = KindOf(file) == Opened::Folder ? "sync folder" : "sync";
    return Watched(IsOurs(file), name, [&] { return real(file); });
}

int fchmod(int file, mode_t mode) {
    static const auto real = Real<int (*)(int, mode_t)>("fchmod");
    return Watched(IsOurs(file), "fchmod", [&] { return real(file, mode); });
}

#pragma GCC diagnostic ignored "-Wshadow"  // of the struct that is called like it
int flock(int file, int operation) {
    static const auto real = Real<int (*)(int, int)>("flock");
    return Watched(IsOurs(file), "lock", [&] { return real(file, operation); });
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
    static const auto real = Real<int (*)(int, const char*, struct stat*, int)>("fstatat");
    return Watched(KindOf(folder) == Opened::Folder, "look", [&] { return real(folder, path, status, flags); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    static const auto real = Real<int (*)(int, const char*, int, int)>("faccessat");
    return Watched(KindOf(folder) == Opened::Folder, "look", [&] { return real(folder, path, mode, flags); });
}

int rename(const char* from, const char* to) noexcept {
    static const auto real = Real<int (*)(const char*, const char*)>("rename");
    return Watched(KindOfPath(AT_FDCWD, to) != Opened::Elsewhere, "rename", [&] { return real(from, to); });
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    static const auto real = Real<int (*)(int, const char*, int, const char*)>("renameat");
    return Watched(KindOfPath(toFolder, to) != Opened::Elsewhere, "rename",
                   [&] { return real(fromFolder, from, toFolder, to); });
}

int unlink(const char* path) noexcept {
    static const auto real = Real<int (*)(const char*)>("unlink");
    return Watched(KindOfPath(AT_FDCWD, path) != Opened::Elsewhere, "unlink", [&] { return real(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept {
    static const auto real = Real<int (*)(int, const char*, int)>("unlinkat");
    return Watched(KindOfPath(folder, path) != Opened::Elsewhere, "unlink", [&] { return real(folder, path, flags); });
}
}
