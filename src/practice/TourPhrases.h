#pragma once

#include <string>
#include <string_view>

#include "practice/Tour.h"

/// What a phrase says about whether its furre is there.
enum class Presence { Needed, Begins, Ends, Nothing };

/// One thing that a line of a tour can say.
struct TourPhrase {
    std::string_view words;  ///< as written; with the furre's name in front when it is a deed of a furre
    /// Makes sense of what follows the words, which is in the step's text.
    /// @return what is wrong with it; empty when nothing is
    std::string (*read)(TourStep& step);
    TourAction act;
    std::string_view command;  ///< the line of the protocol that does it, if there is one
    Presence presence = Presence::Needed;
};

/// Finds the phrase that a line is, and puts the furre's name and what follows the words into the step.
/// @return nullptr when it is none
const TourPhrase* FindTourPhrase(std::string_view line, TourStep& step);
