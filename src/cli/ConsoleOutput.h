#pragma once

#include <QFile>
#include <string>

/// Where the console lines of running bots go: standard output, and a log with times.
class ConsoleOutput {
  public:
    explicit ConsoleOutput(bool quiet) : quiet_(quiet) {}

    /// Appends everything from now on to a log.
    /// @return false when the file can't be opened
    bool LogTo(const std::string& path);

    /// @param label  of the bot, UTF-8; empty when there is only one
    /// @param line   Windows-1252, without a line end
    void Show(const std::string& label, std::string_view line);

  private:
    bool quiet_;
    bool logBroken_ = false;
    QFile log_;

    void Log(const std::string& line);
};
