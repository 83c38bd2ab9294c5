#include "bot/Files.h"

namespace {
constexpr char kSeparator = '/';
}

std::string JoinPath(std::string_view folder, std::string_view path) {
    if (folder.empty() || path.starts_with(kSeparator)) return std::string(path);
    std::string joined(folder);
    if (!joined.ends_with(kSeparator)) joined += kSeparator;
    return joined.append(path);
}

std::string FileNameOf(std::string_view path) { return std::string(path.substr(path.rfind(kSeparator) + 1)); }

std::string FolderOf(std::string_view path) {
    const std::size_t separator = path.rfind(kSeparator);
    if (separator == 0) return std::string(1, kSeparator);
    return separator == path.npos ? std::string() : std::string(path.substr(0, separator));
}
