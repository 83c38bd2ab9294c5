#include "engine/DataFile.h"

#include <algorithm>

#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "engine/Script.h"
#include "game/Compare.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

bool IsSectionLine(std::string_view line) { return line.size() >= 2 && line.starts_with('[') && line.ends_with(']'); }

std::string_view SectionName(std::string_view line) { return line.substr(1, line.size() - 2); }

bool SameName(std::string_view a, std::string_view b) { return LowerCase(a) == LowerCase(b); }

/// The index of the "=" that ends an entry's key, or npos when the line is no entry.
std::size_t KeyEnd(std::string_view line, DataFile::KeyFrom from) {
    return line.find('=', static_cast<std::size_t>(from) - 1);
}

auto IsEntry(std::string_view key, DataFile::KeyFrom from) {
    return [key, from](const std::string& line) {
        const std::size_t end = KeyEnd(line, from);
        return end != std::string::npos && SameName(std::string_view(line).substr(0, end), key);
    };
}

// --- what scripts are kept from ----------------------------------------------------------------------------------

/// The key of a line as the reader of character files sees it, and as anybody else might: without blanks, control
/// characters and byte-order marks.
std::string BareKey(std::string_view line) {
    std::string key = LowerCase(line.substr(0, line.find('=') + 1));
    std::erase_if(key, [](char c) {
        return static_cast<unsigned char>(c) <= ' ' ||
               std::string_view("\x7F\xA0\xEF\xBB\xBF\xFE\xFF").find(c) != std::string_view::npos;
    });
    return key;
}

/// Is it a character's file, or made like one? Behind the first section an entry of that name is a script's own affair.
/// A lone CR ends a line here, as it does for who has written such a file.
bool HoldsPassword(std::string_view bytes) {
    for (const std::string& line : FileLines(ReplaceAll(bytes, "\r", "\n"))) {
        if (IsSectionLine(line)) return false;
        if (BareKey(line) == "password=") return true;
    }
    return false;
}

bool LeadsToOneOf(const Bot& bot, const std::string& path, const std::vector<std::string>& others) {
    const Files& disk = bot.host.Disk();
    return std::any_of(others.begin(), others.end(), [&](const std::string& other) {
        return disk.LeadToSameFile(path, disk.Find(other).value_or(other));  // as the bot finds it, letter case apart
    });
}

/// True when the path is that of a character file of the profile, or of one that would be taken for it.
bool IsCharacterFile(const Bot& bot, const std::string& path) {
    std::vector<std::string> named = bot.characterPaths;
    named.push_back(bot.profile.characterPath);  // may be none of the file's: the dialog has set it since
    return std::any_of(named.begin(), named.end(), [&](const std::string& character) {
        return LeadsToOneOf(bot, path, bot.profile.PlacesOf(character));
    });
}

/// True for the file that tells the game's client where to connect, and with that whom to send the password.
bool IsProxyFile(const Bot& bot, const std::string& path) {
    std::vector<std::string> places = bot.profile.PlacesOf(bot.profile.clientPath);
    for (std::string& place : places) place = JoinPath(FolderOf(place), kProxyFile);
    return LeadsToOneOf(bot, path, places);
}

/// True for what the bot is made of: a profile and a script may be called anything, and the one names a program to
/// start.
bool IsProfileOrScript(const Bot& bot, const std::string& path) {
    std::vector<std::string> own = bot.profile.PlacesOf(bot.profile.scriptPath);
    own.push_back(bot.profile.path);
    if (bot.script) own.push_back(bot.script->File());
    std::erase(own, "");
    return LeadsToOneOf(bot, path, own);
}

/// Why a script can't have a file, whatever is in it; empty when it can.
std::string_view WhyWithheld(const Bot& bot, const std::string& path) {
    if (IsCharacterFile(bot, path)) return "it is the bot's character";
    if (IsProfileOrScript(bot, path)) return "the bot is made of it";
    return IsProxyFile(bot, path) ? "it tells the game's client where to connect" : "";
}

void TellWithheld(const Bot& bot, const std::string& path, std::string_view why) {
    const std::string script = bot.place.file.empty() ? "The script" : FromUtf8(FileNameOf(bot.place.file));
    bot.host.ShowConsoleLine(script + ", line " + std::to_string(bot.place.line) + ": scripts can't open " +
                             FromUtf8(FileNameOf(path)) + ", because " + std::string(why) +
                             ". For them there is no such file, and nothing is written. Use another name.");
}

/// What a script finds under a name.
struct Opened {
    std::string path;
    std::optional<std::string> bytes;  ///< nothing when there is no such file
    bool withheld = false;             ///< the file is kept from scripts, and the console has told so
};

Opened Open(const Bot& bot, std::string_view name) {
    const Files& disk = bot.host.Disk();
    Opened opened{disk.DataPath(bot.host.ProgramFolder(), ToUtf8(SafeFileName(name) + ".ini")), std::nullopt};
    std::string_view why = WhyWithheld(bot, opened.path);  // first: what is withheld by its place is not even opened
    if (why.empty()) opened.bytes = ValueOrFault(disk.ReadData(opened.path));
    if (opened.bytes && HoldsPassword(*opened.bytes)) why = "it holds a password";
    opened.withheld = !why.empty();
    if (opened.withheld) TellWithheld(bot, opened.path, why);
    return opened;
}

}  // namespace

DataFile DataFile::Parse(std::string_view bytes) {
    DataFile file;
    for (std::string& line : FileLines(bytes)) {
        if (IsSectionLine(line)) {
            file.sections_.push_back({std::string(SectionName(line)), line, true, {}});
        } else {
            if (file.sections_.empty()) file.sections_.emplace_back();
            file.sections_.back().lines.push_back(std::move(line));
        }
    }
    return file;
}

std::string DataFile::Bytes() const {
    std::string bytes;
    for (const Section& section : sections_) {
        if (section.hasHeader) bytes += section.header + "\r\n";
        bytes += JoinFileLines(section.lines);
    }
    return bytes;
}

std::vector<std::string> DataFile::Lines(std::string_view section) const {
    std::vector<std::string> lines;
    for (const Section& candidate : sections_) {
        if (SameName(candidate.name, section))
            lines.insert(lines.end(), candidate.lines.begin(), candidate.lines.end());
    }
    return lines;
}

std::optional<std::string> DataFile::Value(std::string_view section, std::string_view key) const {
    const std::vector<std::string> lines = Lines(section);
    const auto entry = std::find_if(lines.begin(), lines.end(), IsEntry(key, KeyFrom::SecondCharacter));
    if (entry == lines.end()) return std::nullopt;
    return entry->substr(KeyEnd(*entry, KeyFrom::SecondCharacter) + 1);
}

template <typename Matches>
std::string* DataFile::FindLine(std::string_view section, Matches matches) {
    for (Section& candidate : sections_) {
        if (!SameName(candidate.name, section)) continue;
        const auto line = std::find_if(candidate.lines.begin(), candidate.lines.end(), matches);
        if (line != candidate.lines.end()) return &*line;
    }
    return nullptr;
}

void DataFile::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    const std::string entry = std::string(key) + "=" + std::string(value);
    if (std::string* const line = FindLine(section, IsEntry(key, KeyFrom::SecondCharacter))) {
        *line = entry;
    } else {
        AddLine(section, entry);
    }
}

void DataFile::AddLine(std::string_view section, std::string_view line) {
    const auto found = std::find_if(sections_.begin(), sections_.end(),
                                    [&](const Section& candidate) { return SameName(candidate.name, section); });
    if (found != sections_.end()) {
        found->lines.emplace_back(line);
    } else {
        const std::string name(section);
        sections_.push_back({name, "[" + name + "]", true, {std::string(line)}});
    }
}

bool DataFile::RemoveEntry(std::string_view section, std::string_view key) {
    const auto isEntry = IsEntry(key, KeyFrom::FirstCharacter);
    for (Section& candidate : sections_) {
        if (!SameName(candidate.name, section)) continue;
        const auto line = std::find_if(candidate.lines.begin(), candidate.lines.end(), isEntry);
        if (line == candidate.lines.end()) continue;
        candidate.lines.erase(line);
        return true;
    }
    return false;
}

bool DataFile::RemoveLines(std::string_view section, std::string_view looseText) {
    std::size_t removed = 0;
    for (Section& candidate : sections_) {
        if (!SameName(candidate.name, section)) continue;
        removed +=
            std::erase_if(candidate.lines, [&](const std::string& line) { return LooseEquals(line, looseText); });
    }
    return removed > 0;
}

bool DataFile::RemoveSection(std::string_view section) {
    return std::erase_if(sections_, [&](const Section& candidate) { return SameName(candidate.name, section); }) > 0;
}

std::optional<std::string> ReadDataFile(const Bot& bot, std::string_view name) {
    const Opened opened = Open(bot, name);
    return opened.withheld ? std::nullopt : opened.bytes;
}

void ChangeDataFile(Bot& bot, std::string_view name, const std::function<bool(DataFile&)>& change) {
    // Before the file is read: of two bots that read the same lines, the second one to write would undo the first.
    const auto lock = ValueOrFault(bot.host.Disk().LockFolder(bot.host.ProgramFolder()));
    const Opened opened = Open(bot, name);
    if (opened.withheld) return;
    DataFile file = DataFile::Parse(opened.bytes.value_or(""));
    if (!change(file)) return;
    const std::string bytes = file.Bytes();
    if (bytes.size() > kDataFileLimit) {
        throw RuntimeFault(FaultKind::PathOrFileAccess, opened.path + ": it would be larger than 16 MiB");
    }
    ValueOrFault(bot.host.Disk().Write(opened.path, bytes));
}

bool DataFileHolds(std::string_view bytes, std::string_view section, std::string_view entry) {
    std::string current;
    for (const std::string& line : FileLines(bytes)) {
        if (line.starts_with('[')) {
            if (IsSectionLine(line)) current = SectionName(line);
        } else if (SameName(current, section) && LooseEquals(line, entry)) {
            return true;
        }
    }
    return false;
}
