#include "profile/ProfilePaths.h"

#include "engine/Bot.h"
#include "engine/Files.h"
#include "engine/Host.h"

std::optional<std::string> FindProfileFile(const Bot& bot, std::string_view pathText) {
    for (const std::string& place : bot.profile.PlacesOf(pathText)) {
        if (std::optional<std::string> found = bot.host.Disk().Find(place)) return found;
    }
    return std::nullopt;
}
