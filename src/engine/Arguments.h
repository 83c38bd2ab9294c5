#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

/// How the arguments of a command are found on its line: in braces, by position and not by parsing. Positions count
/// from 1. The first "{" is looked for from position 7 on, which is behind "(5:n) ", or from where the name says.
///
/// Kept on purpose: where the search begins differs without need, and shows on lines only that have a brace in front of
/// their ")". The dispatcher takes those for commands, too.
///
/// Kept on purpose: in some forms the closing brace belongs to the argument. Numbers don't mind, for they are read from
/// their beginning; conditions compare texts with it.
enum class Form {
    NoArguments,
    WholeText,  ///< one: from the first "{" to the last "}"
    WholeTextFrom6,
    WholeTextOrFault,   ///< the same; a last "}" that stands before the first "{" is a fault, not a missing brace
    FirstKept,          ///< one: the first braced group, which keeps its "}"
    FirstAndLastKept,   ///< two: the first braced group and the last one, which keep their "}"; one may serve for both
    FirstAndLast,       ///< two: the same without the "}"
    FirstAndLastApart,  ///< two: the same, but no group serves for both
    ToPhrase,           ///< two, joined by "} to {", the last one up to the last "}"
    ToPhraseKept,       ///< two: the same, the first one keeping the "}" of the phrase
    StorePhrase,        ///< two, joined by "} and store {", likewise
    TwoInTurnFrom1,     ///< braced groups, one after the other
    ThreeInTurnFrom1,
    ThreeInTurnFrom6,
    ThreeInTurnFrom7,
    FourInTurnFrom6,
};

/// The arguments from left to right, as many as the form has; the others are empty.
using Arguments = std::array<std::string_view, 4>;

/// @return nothing when a brace or a phrase is missing
/// @throws RuntimeFault InvalidProcedureCall, for Form::WholeTextOrFault
std::optional<Arguments> FindArguments(std::string_view line, Form form);
