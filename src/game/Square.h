#pragma once

#include <cstdint>

/// A square of the map. y counts rows downward; only even x values name squares.
struct Square {
    std::int16_t x = 0, y = 0;
    friend bool operator==(const Square&, const Square&) = default;
};
