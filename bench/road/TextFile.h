#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

/// @throws std::runtime_error when it can't be written
inline void WriteTextFile(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    if (!(file << text).flush()) throw std::runtime_error(path + " can't be written");
}

/// @return nothing of a file that is not there
inline std::string ReadTextFile(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}
