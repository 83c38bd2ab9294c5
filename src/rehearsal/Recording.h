#pragma once

#include <functional>
#include <set>
#include <string>

#include "bot/Bot.h"
#include "net/SessionObserver.h"

/// Writes what happens around a bot as a written session that can be played again: what arrived as instructions, what
/// was sent as expectations, and never a password.
class Recording final : public SessionObserver {
  public:
    /// @param bot    whose passwords are kept out of it
    /// @param write  takes each piece of the file, whole lines
    Recording(const Bot& bot, std::function<void(const std::string&)> write) : bot_(bot), write_(std::move(write)) {}

    /// Writes what is still held back.
    ~Recording() override { WriteRepeated(); }

    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    void Note(Happening happening, std::string_view text) override;

    /// Writes a line that a rehearsal passes over, such as the fault that has ended the bot.
    void Remark(std::string_view text);

  private:
    const Bot& bot_;
    std::function<void(const std::string&)> write_;
    std::string repeated_;  ///< the timer instruction held back until something else happens
    int times_ = 0;
    bool awaitsLogin_ = false;      ///< a client is linked and has not logged in yet
    std::set<std::string> hidden_;  ///< what it has said until then

    std::string Recorded(Happening happening, std::string_view text);

    void Repeat(std::string_view word);
    void WriteRepeated();
    void WriteLine(const std::string& line);
};
