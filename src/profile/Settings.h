#pragma once

#include <string>

#include "text/Outcome.h"

class Files;

inline constexpr char kSettingsFile[] = "tvorel.cfg";

/// What the program remembers from one run to the next, in "tvorel.cfg" in its own folder.
struct Settings {
    std::string recent;        ///< path of the last profile, UTF-8; empty when none, or none that the file can hold
    double top = 0, left = 0;  ///< the main window's place, in the window system's units
    bool hasPlace = false;     ///< whether the file tells the place
};

/// Reads the settings; a missing file leaves the defaults, other lines in it are passed over.
/// @param folder  the program's, UTF-8
/// @throws RuntimeFault PathOrFileAccess, when they can't be read
Settings LoadSettings(const Files& disk, const std::string& folder);

/// Writes the settings over the old ones.
/// @return PathOrFileAccess, when they can't be written
Outcome<Done> SaveSettings(Files& disk, const std::string& folder, const Settings& settings);
