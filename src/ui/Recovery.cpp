#include "ui/Recovery.h"

#include "text/Fault.h"

namespace {

// A copy is the path of the file it belongs to, a line end, and the bytes. An empty file is no copy.
std::string Packed(const Recovery::Copy& copy) { return copy.path + "\n" + copy.bytes; }

}  // namespace

Recovery::Recovery(Files& disk, const std::string& folder)
    : disk_(disk), script_{JoinPath(folder, "unsaved-script.bak")}, profile_{JoinPath(folder, "unsaved-profile.bak")} {}

std::string Recovery::Keep(Slot& slot, const std::optional<Copy>& unsaved) {
    const std::string packed = unsaved ? Packed(*unsaved) : std::string();
    try {
        const bool nothingThere = packed.empty() && !disk_.Find(slot.file);
        if (slot.written != packed && !nothingThere) disk_.Write(slot.file, packed);
        slot.written = packed;
    } catch (const RuntimeFault&) {
        return {};  // the work itself is still in the window; the next try may do better
    }
    return unsaved ? slot.file : std::string();
}

std::optional<Recovery::Copy> Recovery::Found(const Slot& slot) const {
    try {
        if (!disk_.Find(slot.file)) return std::nullopt;
        const std::string packed = disk_.Read(slot.file);
        const std::size_t end = packed.find('\n');
        if (end == packed.npos) return std::nullopt;
        return Copy{packed.substr(0, end), packed.substr(end + 1)};
    } catch (const RuntimeFault&) {
        return std::nullopt;  // a copy that can't be read helps nobody
    }
}
