#include "ui/Recovery.h"

#include <QLockFile>
#include <QString>
#include <exception>

#include "text/Fault.h"

namespace {

constexpr int kMostPrograms = 16;

// A copy is two lines, the paths of the file it belongs to and of the profile, and the bytes. An empty file is no copy.
std::string Packed(const Recovery::Copy& copy) { return copy.path + "\n" + copy.profile + "\n" + copy.bytes; }

}  // namespace

Recovery::Recovery(Files& disk, const std::string& folder) : disk_(disk) {
    for (int number = 1; number <= kMostPrograms; ++number) {
        const auto file = [&](const std::string& name) {
            return JoinPath(folder, name + (number == 1 ? "" : "-" + std::to_string(number)));
        };
        auto lock = std::make_unique<QLockFile>(QString::fromStdString(file("unsaved") + ".lock"));
        lock->setStaleLockTime(0);  // old it may be, as long as its program runs
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
        if (slot.written != packed && !nothingThere) ValueOrFault(disk_.Write(slot.file, packed));
        slot.written = packed;
    } catch (const std::exception& exception) {
        const RuntimeFault fault =
            AsFault(exception);  // the work itself is still in the window; the next try may do better
        return fault.Detail().empty() ? std::string(fault.Name()) : fault.Detail();
    }
    return {};
}

std::optional<Recovery::Copy> Recovery::Found(const Slot& slot) const {
    try {
        if (!disk_.Find(slot.file)) return std::nullopt;
        const std::string packed = ValueOrFault(disk_.Read(slot.file));
        const std::size_t first = packed.find('\n'), second = packed.find('\n', first + 1);
        if (first == packed.npos || second == packed.npos) return std::nullopt;
        return Copy{packed.substr(0, first), packed.substr(first + 1, second - first - 1), packed.substr(second + 1)};
    } catch (const std::exception&) {
        return std::nullopt;  // a copy that can't be read helps nobody
    }
}
