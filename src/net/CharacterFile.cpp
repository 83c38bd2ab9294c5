#include "net/CharacterFile.h"

#include "net/ServerLine.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr int kZeroShape = ' ';

/// A digit of a "spec=" line stands for the character that the protocol writes: 0 for a blank, 1 for "!" and so on.
std::string ShapeAt(const ServerLine& line, std::size_t position) {
    const std::int16_t digit = NumberOrFault(line.Text(position, 1));
    return std::string(1, static_cast<char>(kZeroShape + digit));
}

/// A line of the file, cut behind its first "="; the key is lower-cased and keeps it.
struct Entry {
    explicit Entry(const std::string& line)
        : key(LowerCase(line.substr(0, line.find('=') + 1))), value(line.substr(key.size())) {}
    std::string key, value;
};

}  // namespace

Character ReadCharacter(std::string_view bytes, PlaceMark& place) {
    Character character;
    for (const std::string& line : FileLines(bytes)) {
        place.NextLine();
        const auto [key, value] = Entry(line);
        if (key == "name=") {
            character.name = value;
        } else if (key == "password=") {
            character.password = value;
        } else if (key == "desc=") {
            character.desc = value;
        } else if (key == "colors=") {
            character.looks.colors = value.substr(0, kColorsLength);
        } else if (key == "spec=") {
            constexpr std::size_t kGenderAt = 6, kSpeciesAt = 7, kMarkingsAt = 8;
            const ServerLine shapes(line);
            character.looks.gender = ShapeAt(shapes, kGenderAt);
            character.looks.species = ShapeAt(shapes, kSpeciesAt);
            character.looks.markings = ShapeAt(shapes, kMarkingsAt);
        }
    }
    return character;
}

std::string PasswordIn(std::string_view bytes) {
    std::string password;
    for (const std::string& line : FileLines(bytes)) {
        if (const Entry entry(line); entry.key == "password=") password = entry.value;
    }
    return password;
}
