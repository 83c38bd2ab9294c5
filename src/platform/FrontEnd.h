#pragma once

#include <string_view>

class RuntimeFault;

/// What a program shows of its bot: a window, or the terminal. Texts are Windows-1252.
class FrontEnd {
  public:
    virtual ~FrontEnd() = default;

    /// Whether ShowConsoleLine comes to anything.
    virtual bool IsConsoleRead() const { return true; }

    virtual void ShowConsoleLine(std::string_view line) = 0;
    virtual void ClearConsole() = 0;
    virtual void ShowMessage(std::string_view title, std::string_view text) = 0;
    virtual void StatusChanged() = 0;

    /// A run-time fault has ended the bot: names it to the user and ends the program. No handler runs after it.
    virtual void EndWithFault(const RuntimeFault& fault) = 0;
};
