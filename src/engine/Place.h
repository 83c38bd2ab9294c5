#pragma once

#include <exception>
#include <utility>

#include "engine/Bot.h"

/// Marks, for as long as it lives, where the bot is reading or running. When a fault unwinds, the mark stays, so that
/// the program can name the place where it came from.
class PlaceMark {
  public:
    PlaceMark(Bot& bot, std::string file) : bot_(bot), before_(std::exchange(bot.place, Place{std::move(file), 0})) {}
    ~PlaceMark() {
        if (std::uncaught_exceptions() == unwinding_) bot_.place = std::move(before_);
    }
    PlaceMark(const PlaceMark&) = delete;
    PlaceMark& operator=(const PlaceMark&) = delete;

    void AtLine(std::size_t line) { bot_.place.line = line; }
    void NextLine() { ++bot_.place.line; }

  private:
    Bot& bot_;
    Place before_;
    int unwinding_ = std::uncaught_exceptions();
};
