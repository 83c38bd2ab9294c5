#pragma once

#include <string_view>

#include "practice/World.h"

/// Carries out one command line of a furre that is in. Lines that are no command of the game are passed over.
void CarryOut(World& world, Guest& guest, std::string_view line);
