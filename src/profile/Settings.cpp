#include "profile/Settings.h"

#include "bot/Files.h"
#include "text/Numbers.h"
#include "text/Text.h"

Settings LoadSettings(const Files& disk, const std::string& folder) {
    Settings settings;
    const auto path = disk.Find(JoinPath(folder, kSettingsFile));
    if (!path) return settings;
    for (const std::string& line : FileLines(ValueOrFault(disk.Read(*path)))) {
        const std::size_t keyEnd = line.find('=', 1) + 1;  // 0 when there is no "="; a "=" in front is no key's end
        const std::string key = LowerCase(line.substr(0, keyEnd)), value = line.substr(keyEnd);
        if (key == "recent=") {
            settings.recent = ToUtf8(value);
        } else if (key == "top=") {
            settings.top = LeadingNumber(value);
            settings.hasPlace = true;
        } else if (key == "left=") {
            settings.left = LeadingNumber(value);
            settings.hasPlace = true;
        }
    }
    return settings;
}

Outcome<Done> SaveSettings(Files& disk, const std::string& folder, const Settings& settings) {
    const std::string recent = FitsCodePage(settings.recent) ? FromUtf8(settings.recent) : std::string();
    return disk.Write(JoinPath(folder, kSettingsFile), JoinFileLines({
                                                           "[General]",
                                                           "Recent=" + recent,
                                                           "Top=" + FormatNumber(settings.top),
                                                           "Left=" + FormatNumber(settings.left),
                                                       }));
}
