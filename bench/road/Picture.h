#pragma once

#include <string>
#include <utility>
#include <vector>

/// One line of a picture: its name, and its points.
struct Curve {
    std::string name;
    std::vector<std::pair<double, double>> points;
};

/// Draws curves over scales on which each step is ten times the last one, for light and dark pages.
/// @param across, up  what the scales mean
/// @param curves      six at most; all of their values greater than 0
/// @return a picture in SVG
std::string DrawCurves(const std::string& across, const std::string& up, const std::vector<Curve>& curves);
