#pragma once

#include <string>
#include <string_view>

#include "platform/ConsoleLog.h"

/// Where the console lines of running bots go: standard output, and a log with times.
class ConsoleOutput {
  public:
    explicit ConsoleOutput(bool quiet) : quiet_(quiet) {}

    /// Appends everything from now on to a log.
    /// @return why that file can't be one, in words; empty when it can
    std::string LogTo(const std::string& path);

    /// Whether anything becomes of what is shown: standard output has it, or the log.
    bool IsRead() const { return !quiet_ || log_.IsOpen(); }

    /// @param label  of the bot, UTF-8; empty when there is only one
    /// @param line   Windows-1252, without a line end
    void Show(const std::string& label, std::string_view line);

    /// Writes a line into the log only, if there is one; UTF-8.
    void Log(const std::string& line);

  private:
    bool quiet_;
    ConsoleLog log_;
};
