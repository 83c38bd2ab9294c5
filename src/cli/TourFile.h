#pragma once

#include <string>

#include "practice/Tour.h"

/// Reads the tour in a file.
/// @param path  UTF-8; empty for no tour
/// @return no steps for no file; otherwise what stands in it, or why it can't be played
TourReading ReadTourFile(const std::string& path);
