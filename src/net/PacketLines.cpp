#include "net/PacketLines.h"

#include "text/Text.h"

std::vector<std::string> WrittenLines(std::string_view bytes) {
    std::vector<std::string> lines = Split(bytes, "\n");
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

std::vector<std::string> PacketLines::Take(std::string_view packet, bool goesOn) {
    if (skips_) {
        const std::size_t end = packet.find('\n');
        if (end == packet.npos) return {};
        skips_ = false;
        packet.remove_prefix(end + 1);
    }
    std::vector<std::string> lines = Split(TakeRest().append(packet), "\n");
    skips_ = lines.back().size() > kLongestLine;
    dropped_ += std::erase_if(lines, [](const std::string& line) { return line.size() > kLongestLine; });
    if (skips_) return lines;
    if (keep_ || goesOn) kept_ = std::move(lines.back());
    lines.pop_back();
    return lines;
}

void PacketLines::Clear() {
    kept_.clear();
    skips_ = false;
    dropped_ = 0;
}
