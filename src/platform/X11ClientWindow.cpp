#include "platform/X11ClientWindow.h"

#include <algorithm>
#include <string_view>

#include "platform/X11Desktop.h"
#include "text/Text.h"

namespace {

constexpr std::string_view kClientClass = "Furcadia";

/// Compatibility layers name the class after the program's file, in whatever case.
bool LooksLikeClient(const X11Window& window) {
    const auto resembles = [](const std::string& name) {
        const std::string lower = LowerCase(name);
        return lower == "furcadia" || lower == "furcadia.exe";
    };
    return resembles(window.className) || resembles(window.instance);
}

bool HasId(const std::vector<std::int64_t>& windows, xcb_window_t window) {
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

/// The windows that may be the client's, the likeliest first: those of the program that was started, then those that
/// have come since with exactly its class, for not every program says whose window it is.
std::vector<xcb_window_t> Candidates(const X11Desktop& desktop, const StartedProgram& client,
                                     const std::vector<std::int64_t>& others) {
    std::vector<xcb_window_t> own, alike;
    for (const X11Window& window : desktop.Windows(LooksLikeClient)) {
        if (client.Includes(window.process)) {
            own.push_back(window.window);
        } else if (window.className == kClientClass && !HasId(others, window.window)) {
            alike.push_back(window.window);
        }
    }
    own.insert(own.end(), alike.begin(), alike.end());
    return own;
}

}  // namespace

void X11ClientWindow::BeforeStart() {
    client_ = StartedProgram();
    others_.clear();
    const X11Desktop desktop;
    for (const X11Window& window : desktop.Windows(LooksLikeClient)) others_.push_back(window.window);
}

std::optional<std::int64_t> X11ClientWindow::Find() {
    const X11Desktop desktop;
    if (!desktop.IsOpen()) return std::nullopt;
    const std::vector<xcb_window_t> candidates = Candidates(desktop, client_, others_);
    return candidates.empty() ? 0 : std::int64_t{candidates.front()};
}

void X11ClientWindow::Close(std::int64_t window) {
    const X11Desktop desktop;
    for (const xcb_window_t candidate : Candidates(desktop, client_, others_)) {
        if (candidate == window) desktop.AskToClose(candidate);
    }
}
