#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

struct Bot;

/// The variables that every bot has: what each is called, and what it stands for just now.

struct Variable {
    std::string_view name;

    /// Puts its value behind what the text holds.
    /// @return false when the name means nothing just now, as "[player]" does in an event that is nobody's
    bool (*append)(const Bot& bot, std::string& text);
};

/// In the order of their replacement. Between the first and the second come the words of the message, between the
/// second and the third the single dice.
std::span<const Variable> EventVariables();
std::span<const Variable> StateVariables();
std::span<const Variable> DiceVariables();

/// Variables with a number in the place of the N, from 1 up.
inline constexpr std::string_view kWord = "[wordN]", kStartingWord = "[startingwordN]", kDie = "[dieN]";

constexpr std::string_view StemOf(std::string_view numbered) { return numbered.substr(0, numbered.size() - 2); }

/// The number that stands behind a stem, up to its "]", written as numbers are; 0 when there is none.
std::size_t NumberAt(std::string_view text, std::size_t at);

/// The words of the message: what stands between its blanks, so that some may be empty. No message has none.
std::size_t CountOfWords(const Bot& bot);

/// @param number  from 1 to CountOfWords
std::string_view Word(const Bot& bot, std::size_t number);

/// The words from one on. Kept on purpose: empty words at its beginning vanish.
std::string_view WordsFrom(const Bot& bot, std::size_t number);

/// How many single dice have a variable. The count of a roll outlives a login, its single dice don't; and a roll may
/// list fewer than were thrown.
std::size_t CountOfDice(const Bot& bot);

/// Puts the value of the variable that is called so behind what the text holds.
/// @return false when no variable that every bot has is called so just now
bool AppendValue(const Bot& bot, std::string_view name, std::string& text);
