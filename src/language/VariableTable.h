#pragma once

#include <span>
#include <string_view>

#include "language/EventSet.h"

/// A text variable of the language: a name in brackets that the bot replaces by a value before it reads a line.
struct VariableDescription {
    std::string_view name;  ///< as it is written; a capital N stands for a number from 1 up
    std::string_view meaning;
    EventSet filledBy;                ///< the events that bring its value
    std::string_view otherwise = {};  ///< where else its value comes from, or stays away
};

/// All text variables of the language, those that belong together in a row.
std::span<const VariableDescription> AllVariables();

/// @return the row of a variable as it stands in a script, such as "[word3]"; nullptr when there is none
const VariableDescription* FindVariable(std::string_view name);
