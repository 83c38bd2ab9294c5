#include "ui/Options.h"

void Options::AddRecentProfile(const QString& path) {
    constexpr int kRecentCount = 8;
    QStringList profiles = RecentProfiles();
    profiles.removeAll(path);
    profiles.prepend(path);
    Set("recent/profiles", profiles.mid(0, kRecentCount));
}
