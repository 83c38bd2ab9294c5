#pragma once

#include <cstdint>
#include <memory>
#include <optional>

/// The window of the game's client on the user's desktop. A window's handle is a number above 0, which the desktop may
/// give to another window once this one is gone.
class ClientWindow {
  public:
    virtual ~ClientWindow() = default;

    /// A client is about to be started. Windows that are there already can't be its own.
    virtual void BeforeStart() = 0;

    /// @param process  the client's program; it may hand over to programs that it starts
    virtual void AfterStart(std::int64_t process) = 0;

    /// Looks for the window of the client that was started last.
    /// @return its handle; 0 when it has none (yet); nothing when this desktop lets no program look for windows
    virtual std::optional<std::int64_t> Find() = 0;

    /// Asks the window to close, as its user would. A window that isn't the client's any more is left alone.
    virtual void Close(std::int64_t window) = 0;
};

/// The one of this computer's desktop; it takes no window system to make it.
std::unique_ptr<ClientWindow> MachineClientWindow();
