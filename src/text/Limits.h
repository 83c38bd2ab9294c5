#pragma once

#include <cstddef>

#include "text/Fault.h"

/// The longest text a bot makes, in bytes. Nothing that the game or a client of it takes comes near it; it is there so
/// that a variable that holds itself can't fill the computer's memory.
inline constexpr std::size_t kLongestText = std::size_t{1024} * 1024;

/// To be asked before the memory for a text is taken.
/// @throws RuntimeFault OutOfMemory, when a text of that many bytes would be too long
inline void CheckTextLength(std::size_t length) {
    if (length > kLongestText) throw RuntimeFault(FaultKind::OutOfMemory);
}
