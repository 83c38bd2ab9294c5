#include "net/CharacterFile.h"

#include "net/ServerLine.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr int kZeroShape = ' ';
constexpr std::size_t kColorCodeLength = 10;

/// A digit of a "spec=" line stands for the character that the protocol writes.
std::string ShapeAt(const ServerLine& line, std::size_t position) {
    const std::int16_t digit = NumberOrFault(line.Text(position, 1));
    return std::string(1, static_cast<char>(kZeroShape + digit));
}

}  // namespace

Character ReadCharacter(std::string_view bytes, PlaceMark& place) {
    Character character;
    for (const std::string& line : FileLines(bytes)) {
        place.NextLine();
        const std::size_t keyEnd = line.find('=') + 1;
        const std::string key = LowerCase(std::string_view(line).substr(0, keyEnd));
        const std::string value = line.substr(keyEnd);
        if (key == "name=") {
            character.name = value;
        } else if (key == "password=") {
            character.password = value;
        } else if (key == "desc=") {
            character.desc = value;
        } else if (key == "colors=") {
            character.looks.colors = value.substr(0, kColorCodeLength);
        } else if (key == "spec=") {
            const ServerLine shapes(line);
            character.looks.gender = ShapeAt(shapes, 6);
            character.looks.species = ShapeAt(shapes, 7);
            character.looks.markings = ShapeAt(shapes, 8);
        }
    }
    return character;
}
