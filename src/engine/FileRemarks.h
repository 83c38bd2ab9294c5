#pragma once

#include <optional>
#include <string>
#include <string_view>

enum class FileKind { Script, Profile, Character };

/// What keeps a file from being read as its maker means it, with the cure: the reason why a script never runs, or a
/// file written in another encoding. The bot passes over such a file in silence; the programs tell.
/// @param path   UTF-8
/// @param bytes  the file as it stands
/// @return one sentence or two, UTF-8; nothing when all is well
std::optional<std::string> FileRemark(FileKind kind, const std::string& path, std::string_view bytes);
