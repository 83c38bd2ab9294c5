#include "ui/CommandList.h"

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

std::string CommandInsertion(std::string_view command) {
    const auto blanks = static_cast<std::size_t>(LeadingNumber(command.substr(1, 1)));
    return std::string(blanks, ' ').append(command).append("\r\n");
}
