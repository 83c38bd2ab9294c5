#include "bot/ProfilePaths.h"

#include <algorithm>

#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "text/Text.h"

namespace {

/// The way from a folder to a path, both absolute.
std::string WayFrom(const std::string& folder, const std::string& path) {
    const std::vector<std::string> from = Split(folder, "/"), to = Split(path, "/");
    const auto [left, entered] = std::mismatch(from.begin(), from.end(), to.begin(), to.end());
    std::vector<std::string> way(static_cast<std::size_t>(from.end() - left), "..");
    way.insert(way.end(), entered, to.end());
    return Join(way, "/");
}

}  // namespace

std::optional<std::string> FindProfileFile(const Bot& bot, std::string_view pathText) {
    for (const std::string& place : bot.profile.PlacesOf(pathText)) {
        if (std::optional<std::string> found = bot.host.Disk().Find(place)) return found;
    }
    return std::nullopt;
}

std::optional<std::string> NameInProfile(const std::string& profile, const std::string& path) {
    if (FitsCodePage(path)) return FromUtf8(path);
    if (profile.empty() || !path.starts_with('/')) return std::nullopt;
    const std::string way = WayFrom(FolderOf(profile), path);
    return FitsCodePage(way) ? std::optional(FromUtf8(way)) : std::nullopt;
}

std::optional<std::string> NameFilesFrom(Bot& bot, const std::string& path) {
    if (FolderOf(path) == FolderOf(bot.profile.path)) return std::nullopt;
    Profile named = bot.profile;
    for (std::string Profile::*const file : {&Profile::clientPath, &Profile::characterPath, &Profile::scriptPath}) {
        const auto found = FindProfileFile(bot, named.*file);
        const std::string absolute = found ? bot.host.Disk().Absolute(*found) : std::string();
        if (FitsCodePage(absolute)) continue;  // also when not found: there is nothing to name anew
        const auto name = NameInProfile(path, absolute);
        if (!name) return absolute;
        named.*file = *name;
    }
    bot.profile = named;
    return std::nullopt;
}
