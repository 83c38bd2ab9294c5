#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Outcome.h"

struct Bot;
struct Profile;

inline constexpr char kProfileExtension[] = ".tvm";
inline constexpr char kScriptExtension[] = ".vs";

/// What came of reading a profile, for the program to tell the user.
struct ProfileLoad {
    bool found = false;                  ///< is there a profile of that name; if not, nothing was loaded
    std::string missingScript{};         ///< the script the profile names, when there is no such file (Windows-1252)
    std::vector<std::string> remarks{};  ///< what is the matter with the files that were read (UTF-8); see FileRemark
};

/// Reads a profile in place of the current one, as at start-up: with its ignore list and its script. The script's
/// EventScriptLoaded is raised where the "Script=" line stands, before the ignores are read.
/// @param path  UTF-8
/// @throws RuntimeFault Overflow, for a number beyond 16 bits (Bot::place names the line); what the script raises
ProfileLoad LoadProfile(Bot& bot, const std::string& path);

/// Reads a profile over the current one, as the Open menu does. Kept on purpose: this reader knows no sections, loads
/// no ignore list, and takes the signature for first unless "Logo=" says "end".
ProfileLoad OpenProfile(Bot& bot, const std::string& path);

/// Writes the current profile to a path, over an existing file, and keeps that path as its own; ".tvm" is added to a
/// name without it. Clears the dirty flag.
/// @return PathOrFileAccess, when it can't be written; then nothing else is done either
Outcome<Done> SaveProfile(Bot& bot, const std::string& path);

/// What SaveProfile writes.
std::string ProfileBytes(const Profile& profile);

/// Takes back an unsaved profile from its bytes, without loading its script; the profile is dirty then.
/// @param path  of the file that it is an unsaved change of, UTF-8; may be empty
/// @return Overflow, for a number beyond 16 bits; the bot keeps its profile then
Outcome<Done> RestoreProfile(Bot& bot, const std::string& path, std::string_view bytes);

/// Empties the profile and the user variables, and puts the new-script template in place of the script.
void NewProfile(Bot& bot);

/// The name with an extension added when it does not end in it, letter case apart.
std::string WithExtension(const std::string& path, const char* extension);

/// The main window's title: product, version, and the profile's file name when it has one.
std::string WindowTitle(const Bot& bot);
