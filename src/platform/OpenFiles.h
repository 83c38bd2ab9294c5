#pragma once

#include <cstddef>

/// Lets this process have so many files and connections open, or as many as its user may have.
/// @return how many that are; more, when it could have more before
std::size_t AllowOpenFiles(std::size_t needed);
