#include "practice/Tour.h"

#include <charconv>
#include <set>

#include "practice/TourPhrases.h"
#include "text/Text.h"

namespace {

constexpr int kLongestPause = 3600;

/// Cuts the first word off the rest of a line.
std::string_view TakeWord(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest = Trim(rest.substr(word.size()));
    return word;
}

/// Reads "after N" off the rest of the line; false when N is no number of seconds.
bool TakePause(std::string_view& rest, int& seconds) {
    if (!rest.starts_with("after ")) return true;
    TakeWord(rest);
    const std::string_view number = TakeWord(rest);
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), seconds);
    return error == std::errc() && end == number.data() + number.size() && seconds >= 0 && seconds <= kLongestPause;
}

/// Who is there at which point of the tour.
class Cast {
  public:
    /// @return what is wrong with the step; empty when nothing is
    std::string Follow(Presence presence, const std::string& name) {
        if (presence == Presence::Nothing) return {};
        const std::string key = LowerCase(BarsToBlanks(name));
        if (presence == Presence::Begins) {
            present_.insert(key);
            return {};
        }
        if (!present_.contains(key)) return NotThere(ToUtf8(name));
        if (presence == Presence::Ends) present_.erase(key);
        return {};
    }

  private:
    static std::string NotThere(const std::string& name) {
        return name + " is not there: \"" + name + " arrives\" or \"wait for " + name + "\" comes first";
    }
    std::set<std::string> present_;
};

/// @return what is wrong with the line; empty when nothing is
std::string ReadStep(std::string_view rest, TourStep& step, Cast& cast) {
    if (!TakePause(rest, step.after)) return "after \"after\" comes a number of seconds, 0 to 3600";
    if (rest.empty()) return "something has to happen then, if only \"pause\"";
    const TourPhrase* const phrase = FindTourPhrase(rest, step);
    if (!phrase) return "nobody knows how to do this: " + ToUtf8(rest);
    if (!step.name.empty() && !IsFurreName(step.name)) return "this is no name of a furre: " + ToUtf8(step.name);
    const std::string fault = phrase->read(step);
    return fault.empty() ? cast.Follow(phrase->presence, step.name) : fault;
}

}  // namespace

TourReading ReadTour(std::string_view text, std::string_view file) {
    TourReading reading;
    Cast cast;
    std::size_t number = 0;
    for (const std::string& line : FileLines(text)) {
        ++number;
        const std::string_view rest = Trim(line);
        if (rest.empty() || rest.front() == '#') continue;
        TourStep step;
        step.line = number;
        const std::string fault = ReadStep(rest, step, cast);
        if (!fault.empty()) {
            reading.fault = std::string(file) + ", line " + std::to_string(number) + ": " + fault;
            return reading;
        }
        reading.tour.steps.push_back(std::move(step));
    }
    return reading;
}

void TourPlayer::PassSecond() {
    ++waited_;
    while (!IsOver() && waited_ >= tour_.steps[next_].after) {
        const TourStep& step = tour_.steps[next_];
        if (!step.act(dream_, step)) return;  // tried again with each second, as "wait for" wants it
        ++next_;
        waited_ = 0;
    }
}
