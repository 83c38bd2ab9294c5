#include "engine/Script.h"

#include <utility>

#include "text/Text.h"

namespace {
constexpr std::string_view kLineEnd = "\r\n";
}

Script::Script(std::string text, std::string file) : text_(std::move(text)), file_(std::move(file)) {
    const std::vector<std::string> lines = Split(text_, kLineEnd);
    lines_.reserve(lines.size());
    for (const std::string& line : lines) lines_.emplace_back(line);
    // The header is taken as it stands, for the lines are trimmed, and a blank before or behind it spoils it.
    isValid_ = lines.size() >= 2 && UpperCase(lines.front()) == UpperCase(kScriptHeader);
    if (isValid_) triggers_ = TriggerIndex(lines_);
}

std::string ScriptTextFromFile(std::string_view bytes) { return Join(FileLines(bytes), kLineEnd); }

std::string ScriptTextToFile(std::string_view text) { return JoinFileLines(Split(text, kLineEnd)); }
