#include "engine/DataFile.h"

#include <algorithm>

#include "engine/Bot.h"
#include "engine/Compare.h"
#include "engine/Files.h"
#include "engine/Host.h"
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

std::string DataFilePath(const Bot& bot, std::string_view name) {
    return JoinPath(bot.host.ProgramFolder(), ToUtf8(SafeFileName(name) + ".ini"));
}

std::optional<std::string> ReadDataFile(const Bot& bot, std::string_view name) {
    const std::optional<std::string> path = bot.host.Disk().Find(DataFilePath(bot, name));
    if (!path) return std::nullopt;
    return bot.host.Disk().Read(*path);
}

void WriteDataFile(Bot& bot, std::string_view name, const DataFile& file) {
    const std::string path = DataFilePath(bot, name);
    bot.host.Disk().Write(bot.host.Disk().Find(path).value_or(path), file.Bytes());
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
