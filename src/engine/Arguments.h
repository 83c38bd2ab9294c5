#pragma once

#include <optional>
#include <string_view>
#include <vector>

/// Arguments stand on a script line in braces and are found by position, not by parsing; positions count from 1.
/// Each of these gives nothing when a brace is missing.

inline constexpr std::size_t kArgumentsFrom = 7;  ///< behind "(5:n) ", where most commands begin to look

/// Strictly between the first "{" at or after a position and the last "}" of the line.
std::optional<std::string_view> WholeArgument(std::string_view line, std::size_t from = kArgumentsFrom);

/// From behind the first "{" through the next "}". Kept on purpose: the brace belongs to the argument. Numbers don't
/// mind, for they are read from their beginning; conditions compare texts with it.
std::optional<std::string_view> FirstArgument(std::string_view line);

/// From behind the last "{" through the last "}", which is kept.
std::optional<std::string_view> LastArgument(std::string_view line);

/// The texts of count braced groups, one after the other, the first "{" at or after a position.
std::optional<std::vector<std::string_view>> ArgumentsInTurn(std::string_view line, std::size_t count,
                                                             std::size_t from = kArgumentsFrom);

/// Two arguments joined by a phrase such as "} to {": the text from behind the first "{" up to the phrase, and the
/// text from behind the phrase's own "{" up to the last "}" of the line.
struct JoinedArguments {
    std::string_view first, second;
};
std::optional<JoinedArguments> ArgumentsJoinedBy(std::string_view line, std::string_view phrase);
