#include "ui/Recovery.h"

#include <QLockFile>
#include <QString>
#include <new>

#include "text/Fault.h"

namespace {

constexpr int kMostPrograms = 16;  // one more is told that its work can't be put aside

// A copy is two lines, the paths of the file it belongs to and of the profile, and the bytes. An empty file is no copy.
std::string Packed(const Recovery::Copy& copy) { return copy.path + "\n" + copy.profile + "\n" + copy.bytes; }

std::optional<Recovery::Copy> Unpacked(const std::string& packed) {
    const std::size_t first = packed.find('\n'), second = packed.find('\n', first + 1);
    if (first == packed.npos || second == packed.npos) return std::nullopt;
    return Recovery::Copy{packed.substr(0, first), packed.substr(first + 1, second - first - 1),
                          packed.substr(second + 1)};
}

}  // namespace

Recovery::Recovery(Files& disk, const std::string& folder) : disk_(disk) {
    for (int number = 1; number <= kMostPrograms; ++number) {
        const auto file = [&](const std::string& name) {
            return JoinPath(folder, name + (number == 1 ? "" : "-" + std::to_string(number)));
        };
        auto lock = std::make_unique<QLockFile>(QString::fromStdString(file("unsaved") + ".lock"));
        lock->setStaleLockTime(0);  // old it may be, as long as its program runs
        // Where no lock can be had at all, as in a folder that can't be written, the first number does.
        if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) continue;
        const Slot script{file("unsaved-script") + ".bak"}, profile{file("unsaved-profile") + ".bak"};
        const bool holdsWork = Found(script) || Found(profile);
        if (lock_ && !holdsWork) continue;
        lock_ = std::move(lock);
        script_ = script;
        profile_ = profile;
        if (holdsWork) break;
    }
}

Recovery::~Recovery() = default;

std::string Recovery::Keep(Slot& slot, const std::optional<Copy>& unsaved) {
    const std::string packed = unsaved ? Packed(*unsaved) : std::string();
    try {
        const bool nothingThere = packed.empty() && !disk_.Find(slot.file);
        if (slot.written != packed && !nothingThere) {
            // The work itself is still in the window; the next try may do better.
            if (const auto written = disk_.Write(slot.file, packed); !written) return written.Fault().Detail();
        }
        slot.written = packed;
    } catch (const std::bad_alloc& refused) {  // the program may be ending for want of memory
        return std::string(AsFault(refused).Name());
    }
    return {};
}

std::optional<Recovery::Copy> Recovery::Found(const Slot& slot) const {
    try {
        const auto packed = disk_.Find(slot.file) ? disk_.Read(slot.file) : std::string();
        return packed ? Unpacked(*packed) : std::nullopt;  // a copy that can't be read helps nobody
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}
