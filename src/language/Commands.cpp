#include "language/Commands.h"

#include <algorithm>
#include <iterator>

#include "engine/CommandNumbers.h"
#include "engine/Conditions.h"
#include "engine/modScript.h"
#include "language/CommandRows.h"
#include "text/Text.h"

namespace {

// clang-format off
constexpr ArgumentName kArgumentNames[] = {
    {"colors",   ArgumentType::Colors,    "the ten characters of a furre's colour code"},
    {"die",      ArgumentType::Number,    "which of the dice, counted from 1"},
    {"dream",    ArgumentType::Text,      "the name of a dream"},
    {"ending",   ArgumentType::Text,      "a text to be found at the end of another"},
    {"file",     ArgumentType::File,      "the name of a data file, without folder and without \".ini\""},
    {"hour",     ArgumentType::Number,    "an hour of the game's time"},
    {"key",      ArgumentType::Key,       "what stands before the \"=\" of an entry in a data file"},
    {"limit",    ArgumentType::Number,    "a number to compare with"},
    {"line",     ArgumentType::Text,      "a whole line of a data file"},
    {"map",      ArgumentType::Map,       "the name of a map or dream"},
    {"minute",   ArgumentType::Number,    "a minute of the game's time"},
    {"moves",    ArgumentType::Moves,     "one character for each move"},
    {"name",     ArgumentType::FurreName, "the name of a furre"},
    {"number",   ArgumentType::Number,    "a number"},
    {"other",    ArgumentType::Text,      "a second text"},
    {"pattern",  ArgumentType::Pattern,   "a text with wildcards"},
    {"second",   ArgumentType::Number,    "a second of the game's time"},
    {"seconds",  ArgumentType::Number,    "how many seconds, a whole number from 1 to 3599"},
    {"section",  ArgumentType::Section,   "the name of a section of a data file"},
    {"sides",    ArgumentType::Number,    "how many sides each die has"},
    {"text",     ArgumentType::Text,      "any text"},
    {"them",     ArgumentType::Ignored,   "must be there; what it says does not matter"},
    {"value",    ArgumentType::Text,      "what is to be stored"},
    {"variable", ArgumentType::Variable,  "the name of a variable of yours, without brackets"},
    {"x",        ArgumentType::Column,    "a column of the map; columns are counted by twos"},
    {"y",        ArgumentType::Row,       "a row of the map"},
};
// clang-format on

const ArgumentName* FindArgumentName(std::string_view name) {
    const auto* const row = std::find_if(std::begin(kArgumentNames), std::end(kArgumentNames),
                                         [name](const ArgumentName& candidate) { return candidate.name == name; });
    return row == std::end(kArgumentNames) ? nullptr : row;
}

/// The text cut at its braces: words, argument, words, argument, …, words.
std::vector<std::string> CutAtBraces(std::string_view text) { return Split(ReplaceAll(text, "}", "{"), "{"); }

std::string Line(const Command& command, std::string_view text) {
    return "(" + std::to_string(command.category) + ":" + std::to_string(command.number) + ") " + std::string(text);
}

}  // namespace

std::span<const Command> CommandsOf(std::int16_t category) {
    switch (category) {
        case kCauseLine:
            return CauseRows();
        case kConditionLine:
            return ConditionRows();
        case kEffectLine:
            return EffectRows();
        default:
            return {};
    }
}

const Command* FindCommand(std::int16_t category, std::int16_t number) {
    switch (category) {
        case kCauseLine:
            return RowOf(CauseRows(), kCauseNumbers, number);
        case kConditionLine:
            return RowOf(ConditionRows(), kConditionNumbers, number);
        case kEffectLine:
            return RowOf(EffectRows(), kEffectNumbers, number);
        default:
            return nullptr;
    }
}

bool Speaks(const Command& command) { return command.category == kEffectLine && modScript::IsGated(command.number); }

Form FormOf(const Command& command) {
    switch (command.category) {
        case kConditionLine:
            return FormOfCondition(command.number);
        case kEffectLine:
            return modScript::FormOf(command.number);
        default:
            return Form::NoArguments;
    }
}

std::string ListLine(const Command& command) { return Line(command, command.text); }

std::string ExampleLine(const Command& command) {
    std::string text;
    const std::vector<std::string> pieces = CutAtBraces(command.text);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const bool isArgument = i % 2 == 1;
        text += isArgument ? "{" + std::string(command.filled[i / 2]) + "}" : pieces[i];
    }
    return Line(command, text);
}

std::vector<const ArgumentName*> ArgumentsOf(const Command& command) {
    std::vector<const ArgumentName*> arguments;
    const std::vector<std::string> pieces = CutAtBraces(command.text);
    for (std::size_t i = 1; i < pieces.size(); i += 2) arguments.push_back(FindArgumentName(pieces[i]));
    return arguments;
}

std::span<const ArgumentName> ArgumentNames() { return kArgumentNames; }

std::string CommandListFile() {
    std::vector<std::string> lines;
    for (const std::int16_t category : {kCauseLine, kConditionLine, kEffectLine}) {
        for (const Command& command : CommandsOf(category)) lines.push_back(ListLine(command));
    }
    return JoinFileLines(lines);
}
