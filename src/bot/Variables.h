#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Bot;

/// Replaces every text variable in text by its current value: user variables first, then the furre of the current
/// event, the words of the message, and the rest of the bot's state, each a plain replacement whose result the next
/// one sees. Variables are told apart by case; an unknown one stays as written.
/// @param text  any text, not only a script line
/// @throws RuntimeFault OutOfMemory, before a text longer than kLongestText comes about
std::string ExpandVariables(const Bot& bot, std::string_view text);

/// The same without a copy of what needs none.
/// @param room  for a text that changes; not the text itself
/// @return the text or the room
std::string_view ExpandVariables(const Bot& bot, std::string_view text, std::string& room);

/// A "[" in a text, up to the next bracket.
struct Mention {
    std::size_t at;
    std::string_view name;  ///< from the "[" to that bracket
    bool standsApart;       ///< it is the "]"; otherwise what comes about within may become part of a name
};

/// The first mention in a text; nothing when no "[" has a bracket behind it.
std::optional<Mention> NextMention(std::string_view text);

/// Puts the value of a variable behind what the text holds, the user's own before that which every bot has.
/// @return false when none is called so just now
bool AppendValueOf(const Bot& bot, std::string_view name, std::string& text);

/// The variables that every bot has, in the order of their replacement, as written; a capital N stands for a number
/// from 1 up.
std::vector<std::string_view> VariableNames();
