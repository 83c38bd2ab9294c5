#pragma once

#include <cstdint>
#include <string>

struct Bot;
class Link;

/// The game's client on this computer, as a program that a session starts, and its window, which may be closed with the
/// session.
class ClientProgram {
  public:
    ClientProgram(Bot& bot, Link& link) : bot_(bot), link_(link) {}

    /// Listens for the client, tells it where by the proxy file, and starts it with the profile's character.
    /// @return why that can't be done, in words; empty when it was started
    /// @throws RuntimeFault PathOrFileAccess, when the proxy file can't be written
    std::string Start();

    /// Looks for the window as long as it was not found. A program takes its time to open one.
    void LookForWindow();

    /// Close the window if the profile says so; after ForgetWindow there is none.
    void CloseWindow();
    void ForgetWindow();

  private:
    Bot& bot_;
    Link& link_;
    std::int64_t window_ = 0;
    bool awaitsWindow_ = false;  ///< the client was started, and its window had not opened yet
    bool toldNoWindows_ = false;
};
