#include "net/PacketLines.h"

#include <utility>

#include "text/Text.h"

std::vector<std::string> PacketLines::Take(std::string_view packet) {
    std::vector<std::string> lines = Split(std::exchange(kept_, {}).append(packet), "\n");
    if (keep_ && lines.back().size() <= kLongestLine) kept_ = std::move(lines.back());
    lines.pop_back();
    return lines;
}
