#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "bot/Bot.h"

/// Puts a value in a place for as long as it lives, and back what was there. When a fault unwinds, the value stays, so
/// that the program can tell where the fault came from.
template <typename Value>
class Mark {
  public:
    Mark(Value& where, Value value) : where_(where), before_(std::exchange(where, std::move(value))) {}
    ~Mark() {
        if (std::uncaught_exceptions() == unwinding_) where_ = std::move(before_);
    }
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;

  protected:
    Value& where_;

  private:
    Value before_;
    int unwinding_ = std::uncaught_exceptions();
};

/// Marks where the bot is reading or running.
class PlaceMark : public Mark<Place> {
  public:
    PlaceMark(Bot& bot, std::string file) : Mark(bot.place, Place{std::move(file), 0}) {}

    void AtLine(std::size_t line) { where_.line = line; }
    void NextLine() { ++where_.line; }
};

/// Marks which line the bot is at work on, one after the other, and whose they are.
class HeardMark : public Mark<Heard> {
  public:
    HeardMark(Bot& bot, Heard::From from) : Mark(bot.heard, Heard{from, {}}) {}
    HeardMark(Bot& bot, Heard::From from, std::string_view line) : HeardMark(bot, from) { AtLine(line); }

    /// In the memory of the line before, so that a line of the game costs no new one.
    void AtLine(std::string_view line) {
        where_.line.assign(line);
        where_.isWhisper = false;
    }
};
