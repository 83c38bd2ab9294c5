#include "net/PacketLines.h"

#include "text/Text.h"

std::vector<std::string> WrittenLines(std::string_view bytes) {
    std::vector<std::string> lines = Split(bytes, "\n");
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

std::vector<std::string_view> PacketLines::Take(std::string_view packet, bool goesOn, std::string& room) {
    if (skips_) {
        const std::size_t end = packet.find('\n');
        if (end == packet.npos) return {};
        skips_ = false;
        packet.remove_prefix(end + 1);
    }
    if (!kept_.empty()) {
        room = TakeRest();
        packet = room.append(packet);
    }
    std::vector<std::string_view> lines;
    for (std::size_t end = packet.find('\n'); end != packet.npos; end = packet.find('\n')) {
        if (end > kLongestLine) {
            ++dropped_;
        } else {
            lines.push_back(packet.substr(0, end));
        }
        packet.remove_prefix(end + 1);
    }
    skips_ = packet.size() > kLongestLine;
    if (skips_) {
        ++dropped_;
    } else if (keep_ || goesOn) {
        kept_ = packet;
    }
    return lines;
}

void PacketLines::Clear() {
    kept_.clear();
    skips_ = false;
    dropped_ = 0;
}
