#pragma once

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
    /// Where the search for the "=" of an entry begins; positions count from 1.
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

/// The path of the data file that a script calls by this name: in the program's folder, the name made safe, ".ini".
std::string DataFilePath(const Bot& bot, std::string_view name);

/// The data file's contents, its name found without regard to letter case; nothing when there is no such file.
/// @throws RuntimeFault when it exists and can't be read
std::optional<std::string> ReadDataFile(const Bot& bot, std::string_view name);

/// Writes over the file of that name, in whatever letter case it exists, or makes it.
/// @throws RuntimeFault PathOrFileAccess
void WriteDataFile(Bot& bot, std::string_view name, const DataFile& file);

/// True when a line of the section loosely equals the entry. Unlike in DataFile, a line that begins with "[" and does
/// not end with "]" is passed over.
bool DataFileHolds(std::string_view bytes, std::string_view section, std::string_view entry);
