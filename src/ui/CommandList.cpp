#include "ui/CommandList.h"

#include "engine/Script.h"
#include "language/Commands.h"
#include "text/Numbers.h"

CommandRoot RootOf(std::string_view line) {
    if (!line.starts_with('(') || line.find(':', 2) == line.npos || line.find(") ", 4) == line.npos) {
        return CommandRoot::None;
    }
    switch (line[1]) {
        case '0':
            return CommandRoot::Causes;
        case '1':
            return CommandRoot::AdditionalConditions;
        case '5':
            return CommandRoot::Effects;
        default:
            return CommandRoot::None;
    }
}

// Kept on purpose: the category's number serves as the indentation, and scripts in use look so.
std::string CommandInsertion(std::string_view command) {
    const auto blanks = static_cast<std::size_t>(LeadingNumber(command.substr(1, 1)));
    return std::string(blanks, ' ').append(command).append("\r\n");
}

std::string CommandPreview(std::string_view line) {
    const LineReading reading = ScriptLine(line).asCause;
    const Command* const command = FindCommand(reading.category, reading.number);
    if (!command || ListLine(*command) != line) return std::string(line);
    std::string preview(line);
    preview.append("\n\n").append(command->explanation);
    const std::string example = ExampleLine(*command);
    return example == line ? preview : preview.append("\n\n").append(example);
}
