#pragma once

#include <string>

/// What the game tells of a furre's looks: a ten-character colour code, and one character each for the rest.
struct Appearance {
    std::string colors, gender, species, markings;

    /// The four as one text, the way the protocol writes them.
    std::string Code() const { return colors + gender + species + markings; }
};

struct Furre {
    std::string name, desc, badge;
    Appearance looks;
};
