#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/Source.h"
#include "text/Text.h"

/// The names of the files with this ending in a folder among the sources, without the ending.
inline std::vector<std::string> NamesIn(const std::string& folder, const std::string& ending) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(TVOREL_SOURCE_DIR "/") + folder)) {
        if (entry.path().extension() == ending) names.push_back(entry.path().stem());
    }
    std::sort(names.begin(), names.end());
    return names;
}

using Block = std::vector<std::string>;

/// The written cases of a file: lines with a blank line between one case and the next; remarks begin with "# ".
inline std::vector<Block> BlocksOf(const std::string& path) {
    std::vector<Block> blocks;
    for (const std::string& piece : Split(ReadSource(path), "\n\n")) {
        Block block = FileLines(piece);
        std::erase_if(block, [](const std::string& line) { return line.starts_with("# "); });
        if (!block.empty()) blocks.push_back(block);
    }
    return blocks;
}
