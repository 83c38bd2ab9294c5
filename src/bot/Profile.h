#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "game/Lists.h"

/// The port the game has always used.
inline constexpr std::int16_t kDefaultPort = 6000;

/// What is saved in a ".tvm" file, Windows-1252 as it stands there.
struct Profile {
    std::string path;                       ///< of the ".tvm" file, absolute, UTF-8; empty while it has no name yet
    std::string clientPath, characterPath;  ///< as written in the file
    SplitList owners, maps;                 ///< names; the bot may speak on these maps
    std::int16_t connectClient = 0;         ///< 1: client mode
    std::int16_t closeClient = 0;           ///< 1: close the client's window when the session ends
    bool signatureFirst = false;            ///< where the product signature goes in the description
    std::int16_t port = kDefaultPort;
    std::string scriptPath;
    std::vector<std::string> ignores;
    bool dirty = false;  ///< changed since it was last saved; not stored

    bool IsClientMode() const { return connectClient == 1; }

    /// Where a file that the profile names may lie, in the order in which it is looked for: as the path says, from the
    /// current folder, and from the profile's own. Paths are UTF-8.
    /// @param pathText  as written in the profile; an empty one is nowhere
    std::vector<std::string> PlacesOf(std::string_view pathText) const;

    friend bool operator==(const Profile&, const Profile&) = default;
};

/// True when the name, "|" read as a blank and letter case apart, stands on the ignore list.
bool IsIgnored(const Profile& profile, std::string_view name);
