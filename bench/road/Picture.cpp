#include "road/Picture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace {

constexpr double kWidth = 760, kHeight = 420, kLeft = 70, kRight = 150, kTop = 20, kBottom = 60;
constexpr double kRowOfText = 17;

constexpr char kHead[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 760 420" font-family="sans-serif">
<style>
text { fill: #333; font-size: 14px } .grid { stroke: #8884; fill: none }
polyline { fill: none; stroke-width: 2.5 } .end { font-weight: bold }
.c0 { color: #666 } .c1 { color: #0072b2 } .c2 { color: #b85000 } .c3 { color: #007a5e } .c4 { color: #a8457f } .c5 { color: #8a6d00 }
polyline, circle { stroke: currentColor } circle, .end { fill: currentColor }
@media (prefers-color-scheme: dark) {
text { fill: #ccc }
.c0 { color: #aaa } .c1 { color: #56b4e9 } .c2 { color: #ff9a3c } .c3 { color: #2fc79a } .c4 { color: #e495c0 } .c5 { color: #f0e442 }
.end { fill: currentColor }
}
</style>
)";

/// Whole powers of ten around some values, and where a value lies between them.
class Scale {
  public:
    Scale(double least, double most, double from, double to)
        : low_(std::floor(std::log10(least))), high_(std::ceil(std::log10(most))), from_(from), to_(to) {
        if (high_ <= low_) high_ = low_ + 1;
    }
    double Place(double value) const { return from_ + (std::log10(value) - low_) / (high_ - low_) * (to_ - from_); }
    std::vector<double> Steps() const {
        std::vector<double> steps;
        for (double power = low_; power <= high_; ++power) steps.push_back(std::pow(10, power));
        return steps;
    }

  private:
    double low_, high_, from_, to_;
};

std::string Number(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string Text(double x, double y, const std::string& anchor, const std::string& text) {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" text-anchor=\"" + anchor + "\">" + text + "</text>\n";
}

std::string GridLine(double x1, double y1, double x2, double y2) {
    return "<path class=\"grid\" d=\"M" + Number(x1) + " " + Number(y1) + "L" + Number(x2) + " " + Number(y2) +
           "\"/>\n";
}

std::string Axes(const std::string& across, const std::string& up, const Scale& x, const Scale& y) {
    std::string svg;
    for (const double step : x.Steps()) {
        svg += GridLine(x.Place(step), kTop, x.Place(step), kHeight - kBottom);
        svg += Text(x.Place(step), kHeight - kBottom + 20, "middle", Number(step));
    }
    for (const double step : y.Steps()) {
        svg += GridLine(kLeft, y.Place(step), kWidth - kRight, y.Place(step));
        svg += Text(kLeft - 8, y.Place(step) + 5, "end", Number(step));
    }
    svg += Text((kLeft + kWidth - kRight) / 2, kHeight - 12, "middle", across);
    return svg + "<g transform=\"rotate(-90)\">" + Text(-(kTop + kHeight - kBottom) / 2, 18, "middle", up) + "</g>\n";
}

std::string Line(const Curve& curve, const Scale& x, const Scale& y) {
    std::string line = "<polyline points=\"", dots;
    for (const auto& [across, up] : curve.points) {
        const std::string left = Number(x.Place(across)), top = Number(y.Place(up));
        line += left + "," + top + " ";
        dots += "<circle r=\"3\" cx=\"" + left + "\" cy=\"" + top + "\"/>";
    }
    return line + "\"/>" + dots + "\n";
}

/// Where the names stand behind the ends of their curves: none over another.
std::vector<double> PlacesOfNames(const std::vector<Curve>& curves, const Scale& y) {
    std::vector<std::pair<double, std::size_t>> ends;
    for (std::size_t i = 0; i < curves.size(); ++i) ends.emplace_back(y.Place(curves[i].points.back().second), i);
    std::sort(ends.begin(), ends.end());
    std::vector<double> places(curves.size());
    double free = kTop;
    for (const auto& [end, curve] : ends) {
        places[curve] = std::max(end + 5, free);
        free = places[curve] + kRowOfText;
    }
    return places;
}

}  // namespace

std::string DrawCurves(const std::string& across, const std::string& up, const std::vector<Curve>& curves) {
    double left = INFINITY, right = 0, low = INFINITY, high = 0;
    for (const Curve& curve : curves) {
        for (const auto& [x, y] : curve.points) {
            left = std::min(left, x), right = std::max(right, x);
            low = std::min(low, y), high = std::max(high, y);
        }
    }
    const Scale x(left, right, kLeft, kWidth - kRight), y(low, high, kHeight - kBottom, kTop);
    const std::vector<double> names = PlacesOfNames(curves, y);
    std::string svg = kHead + Axes(across, up, x, y);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const double end = x.Place(curves[i].points.back().first) + 10;
        svg += "<g class=\"c" + std::to_string(i) + "\">" + Line(curves[i], x, y) + "<text class=\"end\" x=\"" +
               Number(end) + "\" y=\"" + Number(names[i]) + "\">" + curves[i].name + "</text></g>\n";
    }
    return svg + "</svg>\n";
}
