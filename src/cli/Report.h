#pragma once

#include <string>
#include <string_view>

#include "engine/Bot.h"
#include "profile/ProfileFile.h"
#include "text/Fault.h"

/// A fault in words for standard error: its name, what it happened to, and the file and line it came from. UTF-8.
std::string DescribeFault(const RuntimeFault& fault, const Bot& bot);

/// Tells which script a profile names in vain. UTF-8.
std::string MissingScript(const std::string& profilePath, const ProfileLoad& load);

/// A line of the game for a terminal: UTF-8, control characters put out of action.
std::string Printable(std::string_view text);
