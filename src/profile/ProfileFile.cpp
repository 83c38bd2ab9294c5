#include "profile/ProfileFile.h"

#include <algorithm>
#include <iterator>

#include "Version.h"
#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "bot/Place.h"
#include "bot/ProfilePaths.h"
#include "engine/FileRemarks.h"
#include "engine/LoadScript.h"
#include "engine/Script.h"
#include "text/Fault.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

/// A line "key=value" of a profile, the key lower-cased and with its "=".
struct Entry {
    std::string key, value;
};

Entry ReadEntry(const std::string& line) {
    const std::size_t keyEnd = line.find('=') + 1;  // 0 when there is no "="
    return {LowerCase(line.substr(0, keyEnd)), line.substr(keyEnd)};
}

template <std::int16_t Profile::*Field>
Outcome<Done> SetNumber(Profile& profile, const std::string& value) {
    const Outcome<std::int16_t> number = ReadLeadingNumber(value);
    if (!number) return number.Fault();
    profile.*Field = *number;
    return Done{};
}

template <auto Profile::*Field>
Outcome<Done> SetText(Profile& profile, const std::string& value) {
    profile.*Field = value;
    return Done{};
}

struct Key {
    std::string_view name;
    Outcome<Done> (*set)(Profile&, const std::string& value);
};

/// The keys that both readers take alike; "logo=" and "script=" are read by each in its own way.
constexpr Key kKeys[] = {
    {"furcadiaclient=", SetText<&Profile::clientPath>},
    {"furcadiacharacter=", SetText<&Profile::characterPath>},
    {"owners=", SetText<&Profile::owners>},
    {"maps=", SetText<&Profile::maps>},
    {"connectclient=", SetNumber<&Profile::connectClient>},
    {"closeclient=", SetNumber<&Profile::closeClient>},
    {"port=", SetNumber<&Profile::port>},
};

/// @return Overflow, for a number beyond 16 bits
Outcome<Done> TakeValue(Profile& profile, const Entry& entry, bool signatureFirst) {
    if (entry.key == "logo=") {
        profile.signatureFirst = signatureFirst;
    } else if (entry.key == "script=") {
        profile.scriptPath = entry.value;
    } else {
        const auto* const key =
            std::find_if(std::begin(kKeys), std::end(kKeys), [&](const Key& row) { return row.name == entry.key; });
        if (key != std::end(kKeys)) return key->set(profile, entry.value);
    }
    return Done{};
}

void AddRemark(ProfileLoad& load, const std::optional<std::string>& remark) {
    if (remark) load.remarks.push_back(*remark);
}

/// The character file is read only when the bot logs in; what is the matter with it is told before. One that can't be
/// read the login will name.
void RemarkOnCharacter(const Bot& bot, ProfileLoad& load) {
    const auto path = FindProfileFile(bot, bot.profile.characterPath);
    if (!path) return;
    if (const auto bytes = bot.host.Disk().Read(*path)) AddRemark(load, FileRemark(FileKind::Character, *path, *bytes));
}

void TakeEntry(Bot& bot, const Entry& entry, bool signatureFirst, ProfileLoad& load) {
    ValueOrFault(TakeValue(bot.profile, entry, signatureFirst));
    if (entry.key != "script=") return;
    if (const auto path = FindProfileFile(bot, entry.value)) {
        AddRemark(load, LoadScript(bot, *path));
    } else {
        load.missingScript = entry.value;
    }
}

/// The lines of a profile's file. Which character files they name is known before a script among them is loaded.
std::vector<std::string> ReadProfileLines(Bot& bot, const std::string& path, ProfileLoad& load) {
    const std::string bytes = ValueOrFault(bot.host.Disk().Read(path));
    AddRemark(load, FileRemark(FileKind::Profile, path, bytes));
    std::vector<std::string> lines = FileLines(bytes);
    bot.characterPaths.clear();
    for (const std::string& line : lines) {
        if (const Entry entry = ReadEntry(line); entry.key == "furcadiacharacter=")
            bot.characterPaths.push_back(entry.value);
    }
    return lines;
}

bool IsSectionLine(const std::string& line) { return line.starts_with('[') && line.ends_with(']'); }

std::string SectionName(const std::string& line) { return LowerCase(line.substr(1, line.size() - 2)); }

bool SaysTrue(const Entry& entry) { return LowerCase(entry.value) == "true"; }

}  // namespace

ProfileLoad LoadProfile(Bot& bot, const std::string& path) {
    const std::optional<std::string> found = bot.host.Disk().Find(path);
    if (!found) return {};
    bot.profile = Profile();
    bot.profile.path = bot.host.Disk().Absolute(*found);
    bot.script.reset();  // a profile without a script is not to run another one's

    ProfileLoad load{true};
    std::string section;
    PlaceMark place(bot, *found);
    for (const std::string& line : ReadProfileLines(bot, *found, load)) {
        place.NextLine();
        if (IsSectionLine(line)) {
            section = SectionName(line);
        } else if (section == "general") {
            const Entry entry = ReadEntry(line);
            TakeEntry(bot, entry, SaysTrue(entry), load);
        } else if (section == "ignores") {
            bot.profile.ignores.push_back(line);
        }
    }
    RemarkOnCharacter(bot, load);
    return load;
}

ProfileLoad OpenProfile(Bot& bot, const std::string& path) {
    const std::optional<std::string> found = bot.host.Disk().Find(path);
    if (!found) return {};
    bot.profile.path = bot.host.Disk().Absolute(*found);

    ProfileLoad load{true};
    PlaceMark place(bot, *found);
    for (const std::string& line : ReadProfileLines(bot, *found, load)) {
        place.NextLine();
        const Entry entry = ReadEntry(line);
        TakeEntry(bot, entry, LowerCase(entry.value) != "end", load);
    }
    RemarkOnCharacter(bot, load);
    return load;
}

std::string ProfileBytes(const Profile& profile) {
    std::vector<std::string> lines = {
        "[General]",
        "FurcadiaClient=" + profile.clientPath,
        "FurcadiaCharacter=" + profile.characterPath,
        "Owners=" + profile.owners.Text(),
        "Maps=" + profile.maps.Text(),
        "ConnectClient=" + std::to_string(profile.connectClient),
        "CloseClient=" + std::to_string(profile.closeClient),
        profile.signatureFirst ? "Logo=True" : "Logo=False",
        "Port=" + std::to_string(profile.port),
        "Script=" + profile.scriptPath,
        "",
        "[Ignores]",
    };
    lines.insert(lines.end(), profile.ignores.begin(), profile.ignores.end());
    return JoinFileLines(lines);
}

Outcome<Done> SaveProfile(Bot& bot, const std::string& path) {
    const std::string file = WithExtension(path, kProfileExtension);
    Outcome<Done> written = bot.host.Disk().Write(file, ProfileBytes(bot.profile));
    if (!written) return written;
    bot.profile.path = bot.host.Disk().Absolute(file);
    bot.profile.dirty = false;
    return written;
}

Outcome<Done> RestoreProfile(Bot& bot, const std::string& path, std::string_view bytes) {
    Profile profile;
    profile.path = path;
    profile.dirty = true;
    bool inIgnores = false;
    // Written by ProfileBytes: what stands behind "[Ignores]" is a name, even where it looks like a section or a key.
    for (const std::string& line : FileLines(bytes)) {
        const Entry entry = ReadEntry(line);
        if (inIgnores) profile.ignores.push_back(line);
        inIgnores = inIgnores || (IsSectionLine(line) && SectionName(line) == "ignores");
        if (inIgnores) continue;
        if (auto taken = TakeValue(profile, entry, SaysTrue(entry)); !taken) return taken;
    }
    bot.profile = profile;
    return Done{};
}

void NewProfile(Bot& bot) {
    bot.profile = Profile();
    bot.variables.Clear();
    bot.script = std::make_shared<Script>(kNewScript);
}

std::string WithExtension(const std::string& path, const char* extension) {
    return LowerCase(path).ends_with(extension) ? path : path + extension;
}

std::string WindowTitle(const Bot& bot) {
    const std::string title = std::string(kProductName) + " " + kProductVersion;
    return bot.profile.path.empty() ? title : title + " - [" + FileNameOf(bot.profile.path) + "]";
}
