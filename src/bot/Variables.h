#pragma once

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

/// The variables that every bot has, in the order of their replacement, as written; a capital N stands for a number
/// from 1 up.
std::vector<std::string_view> VariableNames();
