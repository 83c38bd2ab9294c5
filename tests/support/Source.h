#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

/// A file among the sources.
inline std::string ReadSource(const std::string& path) {
    std::ifstream file(std::string(TVOREL_SOURCE_DIR "/") + path, std::ios::binary);
    if (!file) throw std::runtime_error("no " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}
