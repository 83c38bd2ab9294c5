#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Fields.h"

/// What has to be so for a condition to hold, in a form in which it can be looked up, so that conditions on the same
/// field need not be tested one by one. It may be so and the condition not hold; never the other way round.
struct Requirement {
    enum class Kind {
        Never,   ///< the condition never holds
        Equal,   ///< the text field loosely equals the text
        Number,  ///< the number field is the number
        Square,  ///< the square field is the square
        Listed,  ///< an entry of the list, which is a text field, loosely equals the text
        Held,    ///< the text field holds the text, which is folded and not empty
        Tested,  ///< nothing of this kind: the condition is to be tested
    };
    Kind kind = Kind::Tested;
    field::TextField textField = nullptr;
    field::NumberField numberField = nullptr;
    field::SquareField squareField = nullptr;
    std::string text = {};    ///< of Tested, the condition's line
    std::int16_t number = 0;  ///< of Tested, the condition's own
    Square square = {};
};

/// @param line  of the condition (1:number), in which there is nothing to expand
Requirement RequirementOf(std::string_view line, std::int16_t number);
