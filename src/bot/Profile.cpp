#include "bot/Profile.h"

#include <algorithm>

#include "bot/Files.h"
#include "game/Compare.h"
#include "text/Text.h"

std::vector<std::string> Profile::PlacesOf(std::string_view pathText) const {
    if (pathText.empty()) return {};
    const std::string file = ToUtf8(pathText);
    return {file, JoinPath(FolderOf(path), file)};
}

bool IsIgnored(const Profile& profile, std::string_view name) {
    return std::any_of(profile.ignores.begin(), profile.ignores.end(),
                       [name](const std::string& entry) { return LooseEquals(entry, name); });
}
