#pragma once

#include <string>

#include "FaultBench.h"
#include "FaultCases.h"

/// What the file holds before and after a save.
struct Contents {
    std::string laid, before, after;
};

/// Finds out by saving without any fault.
/// @return what it holds after is empty when nothing can be saved
Contents Learn(const Bench& bench);

/// What is wrong after a save: neither the old nor the new file is there, what was told is not the truth, or the next
/// start leaves something behind. Empty when nothing is.
std::string WrongAfter(const Bench& bench, const Contents& contents, const Outcome& outcome, const Fault& fault);
