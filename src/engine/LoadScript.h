#pragma once

#include <optional>
#include <string>

struct Bot;

/// Reads a script file in place of the current script and raises EventScriptLoaded.
/// @param path  of an existing file, UTF-8
/// @return what is the matter with it; see FileRemark
/// @throws RuntimeFault when it can't be read; what the script raises
std::optional<std::string> LoadScript(Bot& bot, const std::string& path);
