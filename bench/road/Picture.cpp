#include "road/Picture.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

namespace {

constexpr double kWidth = 760, kHeight = 420, kLeft = 70, kRight = 100, kTop = 20, kBottom = 60;
constexpr double kRowOfText = 17;

// The colours of the curves are neither light nor dark, so that they read on any page; only the text changes with it.
constexpr const char* kColors[] = {"#888888", "#0b84d9", "#d9690b", "#0b9e73", "#c05299", "#a38700"};

constexpr char kHead[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="760" height="420" viewBox="0 0 760 420" font-family="sans-serif" font-size="14">
<style>
text { fill: #777 }
@media (prefers-color-scheme: light) { text { fill: #333 } }
@media (prefers-color-scheme: dark) { text { fill: #ccc } }
</style>
)";

/// A scale between two powers of ten, and where a value lies on it.
class Scale {
  public:
    Scale(double lowPower, double highPower, double from, double to)
        : low_(lowPower), high_(highPower > lowPower ? highPower : lowPower + 1), from_(from), to_(to) {}
    double Place(double value) const { return from_ + (std::log10(value) - low_) / (high_ - low_) * (to_ - from_); }

    /// The whole powers on it.
    std::vector<double> Steps() const {
        std::vector<double> steps;
        for (double power = std::ceil(low_); power <= high_; ++power) steps.push_back(std::pow(10, power));
        return steps;
    }

  private:
    double low_, high_, from_, to_;
};

std::string Number(double value) {
    std::ostringstream text;
    text << std::round(value * 100) / 100;
    return text.str();
}

std::string Text(double x, double y, const std::string& anchor, const std::string& text,
                 const std::string& style = "") {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" text-anchor=\"" + anchor + "\" style=\"" + style +
           "\">" + text + "</text>\n";
}

std::string GridLine(double x1, double y1, double x2, double y2) {
    return "<path stroke=\"#888888\" stroke-opacity=\"0.3\" d=\"M" + Number(x1) + " " + Number(y1) + "L" + Number(x2) +
           " " + Number(y2) + "\"/>\n";
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

std::string Line(const Curve& curve, const std::string& color, const Scale& x, const Scale& y) {
    std::string line = "<polyline fill=\"none\" stroke-width=\"2.5\" stroke=\"" + color + "\" points=\"", dots;
    for (const auto& [across, up] : curve.points) {
        const std::string left = Number(x.Place(across)), top = Number(y.Place(up));
        line += left + "," + top + " ";
        dots += "<circle r=\"3.5\" fill=\"" + color + "\" cx=\"" + left + "\" cy=\"" + top + "\"/>";
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
    const Scale x(std::log10(left), std::log10(right), kLeft, kWidth - kRight);
    const Scale y(std::floor(std::log10(low)), std::ceil(std::log10(high)), kHeight - kBottom, kTop);
    const std::vector<double> names = PlacesOfNames(curves, y);
    std::string svg = kHead + Axes(across, up, x, y);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const std::string color = kColors[i % std::size(kColors)];
        const double end = x.Place(curves[i].points.back().first) + 12;
        svg += Line(curves[i], color, x, y) + Text(end, names[i], "start", curves[i].name, "fill: " + color);
    }
    return svg + "</svg>\n";
}
