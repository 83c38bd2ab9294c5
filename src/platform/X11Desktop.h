#pragma once

#include <xcb/xcb.h>

#include <csignal>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A window that programs show themselves with.
struct X11Window {
    xcb_window_t window = XCB_NONE;
    std::string instance, className;  ///< the two halves of its class
    std::int64_t process = 0;         ///< of the program it belongs to; 0 when it doesn't say
};

/// A connection to the X11 display that the environment names. When the display can't be opened, or goes away, there
/// are no windows, and asking for something does nothing.
class X11Desktop {
  public:
    X11Desktop();
    ~X11Desktop();
    X11Desktop(const X11Desktop&) = delete;
    X11Desktop& operator=(const X11Desktop&) = delete;

    bool IsOpen() const { return xcb_connection_has_error(connection_) == 0; }

    /// The windows in sight or minimized whose class passes.
    std::vector<X11Window> Windows(bool (*classPasses)(const X11Window&)) const;

    /// Asks a window to close by the protocol of window managers, or leaves that to the window manager when it offers
    /// to. A window that doesn't follow the protocol stays.
    void AskToClose(xcb_window_t window) const;

  private:
    sigset_t signalsBefore_{};
    xcb_connection_t* connection_;

    xcb_atom_t Atom(std::string_view name) const;
    std::vector<xcb_window_t> Roots() const;
    std::vector<xcb_window_t> ChildrenOf(const std::vector<xcb_window_t>& parents) const;
    std::vector<std::string> PropertyOf(const std::vector<xcb_window_t>& windows, xcb_atom_t property) const;
    std::vector<std::uint32_t> NumbersOf(xcb_window_t window, std::string_view property) const;
    bool IsShown(xcb_window_t window) const;
    bool ManagerCloses(xcb_window_t root) const;
    void Send(xcb_window_t to, std::uint32_t mask, xcb_window_t window, std::string_view type, std::uint32_t first,
              std::uint32_t second) const;
};
