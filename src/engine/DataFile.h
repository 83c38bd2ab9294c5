#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Bot;

/// A script's data file: sections made of "[name]" lines and what follows them, kept as it stands. Lines before the
/// first section belong to the section with the empty name; blank lines are lines. Section names and keys are compared
/// without regard to letter case. Where a section stands twice, reading takes all of them, and additions go to the end
/// of the first.
class DataFile {
  public:
    /// Where the search for the "=" of an entry begins; positions count from 1. Kept on purpose: a removal looks from
    /// the first character, reading and writing from the second.
    enum class KeyFrom : std::size_t { FirstCharacter = 1, SecondCharacter = 2 };

    static DataFile Parse(std::string_view bytes);

    /// The file's lines, each ended by CR LF.
    std::string Bytes() const;

    /// The lines of every section of that name.
    std::vector<std::string> Lines(std::string_view section) const;

    /// The value of the section's first entry with that key.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;

    /// Replaces the value of the section's first entry with that key, or adds the entry.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);

    /// Adds a line at the end of the section; a missing section is made at the end of the file.
    void AddLine(std::string_view section, std::string_view line);

    /// Each of these returns whether there was anything to remove.
    bool RemoveEntry(std::string_view section, std::string_view key);
    bool RemoveLines(std::string_view section, std::string_view looseText);
    bool RemoveSection(std::string_view section);

  private:
    struct Section {
        std::string name;
        std::string header;  ///< the line as it stands; the first section may have none
        bool hasHeader = false;
        std::vector<std::string> lines;
    };
    std::vector<Section> sections_;

    template <typename Matches>
    std::string* FindLine(std::string_view section, Matches matches);
};

// The data files of a bot lie in the program's folder: the name that a script calls one by, made safe, and ".ini". The
// bot's character file, and any that holds a password, does not exist for a script, by whatever name or link: then the
// console tells which line has asked for it.

/// The contents, the name found without regard to letter case; nothing when there is no such file.
/// @throws RuntimeFault PathOrFileAccess, when it can't be opened (see Files::ReadData)
std::optional<std::string> ReadDataFile(const Bot& bot, std::string_view name);

/// Changes the file of that name, in whatever letter case it exists, or makes it; no other program gets in between.
/// @param change  is given the file as it is, empty when there is none; returns whether it is to be written
/// @throws RuntimeFault PathOrFileAccess, when it can't be opened or written, or would be larger than kDataFileLimit
void ChangeDataFile(Bot& bot, std::string_view name, const std::function<bool(DataFile&)>& change);

/// True when a line of the section loosely equals the entry. Unlike in DataFile, a line that begins with "[" and does
/// not end with "]" is passed over.
bool DataFileHolds(std::string_view bytes, std::string_view section, std::string_view entry);
