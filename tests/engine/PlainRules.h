#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct Bot;

// What scripts may read and ask of a bot, in the plainest way there is: all names tried one after the other, all texts
// folded and cut anew at each comparison. The engine, however it is made fast, must come to the same.

/// One of a bot's fields, or a text made of several.
struct NamedField {
    std::string_view name;  ///< the text variable that reads it; without brackets when none does, or not always
    std::variant<std::string*, std::int16_t*, std::string> value;
};

/// All fields, those with brackets in the order in which the variables are replaced.
std::vector<NamedField> FieldsOf(Bot& bot);

/// What ExpandVariables must give.
std::string ExpandPlainly(Bot& bot, std::string text);

/// What EvaluateCondition must do.
bool HoldsPlainly(Bot& bot, std::string& line, std::int16_t number);
