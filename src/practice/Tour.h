#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "practice/Dream.h"

struct TourStep;

/// What a step does to the dream; false while it has to wait (see "wait for" in docs/practice.md).
using TourAction = bool (*)(Dream& dream, const TourStep& step);

/// One line of a tour.
struct TourStep {
    std::size_t line = 0;      ///< in the file, counted from 1
    int after = 0;             ///< seconds since the step before it
    std::string name;          ///< the furre that acts or is acted upon; may be empty
    std::string text;          ///< what the action needs besides
    bool namesFurre = false;   ///< text begins with the name of another furre
    std::string_view command;  ///< of the protocol, for the steps of a furre; a step of each character of "m "
    Square at;
    TourAction act = nullptr;
};

/// What scripted visitors do, in order.
struct Tour {
    std::vector<TourStep> steps;
};

struct TourReading {
    Tour tour;
    std::string fault;  ///< empty, or "FILE, line N: what is wrong there"
};

/// Reads a tour, whose language docs/practice.md explains. The first fault ends the reading.
/// @param text  Windows-1252; lines end at CR LF or LF
/// @param file  how the fault is to name it
TourReading ReadTour(std::string_view text, std::string_view file);

/// Plays a tour to a dream as seconds pass.
class TourPlayer {
  public:
    TourPlayer(Tour tour, Dream& dream) : tour_(std::move(tour)), dream_(dream) {}

    /// Every step whose time has come.
    void PassSecond();

    bool IsOver() const { return next_ == tour_.steps.size(); }

  private:
    Tour tour_;
    Dream& dream_;
    std::size_t next_ = 0;
    int waited_ = 0;
};
