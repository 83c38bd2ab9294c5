#pragma once

#include <string>
#include <string_view>

// What the script editor decides about commands, without showing it.

/// The tree of commands has three roots; a line of the command list belongs under one of them, or nowhere.
enum class CommandRoot { Causes, AdditionalConditions, Effects, None };

/// Where a line of "vslist.vs" belongs: it has "(" first, ":" from position 3 on, ") " from position 5 on, and the
/// character behind the "(" tells the root.
CommandRoot RootOf(std::string_view line);

/// What choosing a command puts in at the caret: as many blanks as its category's number (none for a cause, one for a
/// condition, five for an effect), the command, and CR LF.
std::string CommandInsertion(std::string_view command);

/// What the editor tells of a line of the command list: the command, what it does, and an example. Of a command that
/// is not the program's own, the line alone.
std::string CommandPreview(std::string_view line);

inline constexpr char kCommandList[] = "vslist.vs";
