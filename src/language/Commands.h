#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Arguments.h"
#include "engine/Script.h"
#include "language/EventSet.h"

/// What an argument of a command stands for.
enum class ArgumentType {
    Text,
    Pattern,  ///< "*", "?", "#" and "[a-z]" stand for other characters
    Number,
    Column,  ///< x of a square
    Row,     ///< y of a square
    FurreName,
    Colors,  ///< the ten characters of a colour code
    Map,
    Variable,  ///< a variable's name, without its brackets
    File,      ///< a data file's name, without folder and ending
    Section,
    Key,
    Moves,    ///< one character a move
    Ignored,  ///< braces must stand there; what they hold does not matter
};

/// What the commands write between the braces of an argument. A name means the same in every command.
struct ArgumentName {
    std::string_view name;
    ArgumentType type;
    std::string_view meaning;
};

/// The events in which a command is of use.
struct Scope {
    EventSet events = EventSet::All();
    bool neverElsewhere = false;  ///< in all other events a condition never holds, and an effect does nothing
};

/// A command of the language, as the people who write scripts see it: its words. What it does, how it finds its
/// arguments and whether it is gated is the engine's.
struct Command {
    std::int16_t category = -1;                   ///< kCauseLine, kConditionLine or kEffectLine
    std::int16_t number = -1;                     ///< n of (c:n)
    std::string_view text = {};                   ///< behind "(c:n) ", with the arguments' names in braces
    std::array<std::string_view, 4> filled = {};  ///< what the example has in the braces, from left to right
    Scope scope = {};                             ///< every event, unless the row says otherwise
    std::string_view reads = {}, changes = {};    ///< variables in brackets, other things in words; often empty
    std::string_view explanation = {};            ///< one paragraph
    std::string_view trigger = {};  ///< a whole trigger that shows it at work, lines parted by LF; may be empty
};

/// All commands of a category, by number; none for a category that means nothing.
std::span<const Command> CommandsOf(std::int16_t category);

/// @return nullptr when no command has this category and number
const Command* FindCommand(std::int16_t category, std::int16_t number);

/// Is it an effect that does nothing on maps which the bot's profile doesn't list?
bool Speaks(const Command& command);

/// How the engine finds its arguments; no cause has any that the engine looks for.
Form FormOf(const Command& command);

/// The command as a script line, as the editor inserts it: "(1:2) and they said {text},".
std::string ListLine(const Command& command);

/// The same with the example's arguments: "(1:2) and they said {hello},".
std::string ExampleLine(const Command& command);

/// The command's arguments, from left to right.
std::vector<const ArgumentName*> ArgumentsOf(const Command& command);

/// All names of arguments.
std::span<const ArgumentName> ArgumentNames();

/// The bytes of the command list that the script editor reads: a line for each command, causes before conditions
/// before effects, by number; lines end with CR LF.
std::string CommandListFile();
