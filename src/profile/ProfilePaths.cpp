#include "profile/ProfilePaths.h"

#include "engine/Bot.h"
#include "engine/Files.h"
#include "engine/Host.h"
#include "text/Text.h"

std::optional<std::string> FindProfileFile(const Bot& bot, std::string_view pathText) {
    if (pathText.empty()) return std::nullopt;
    const std::string path = ToUtf8(pathText);
    const Files& disk = bot.host.Disk();
    if (std::optional<std::string> found = disk.Find(path)) return found;
    return disk.Find(JoinPath(FolderOf(bot.profile.path), path));
}
