#include "platform/X11Desktop.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>

#include "text/Text.h"

namespace {

/// How deep below the screen a program's window may stand: window managers put it into frames.
constexpr int kFrameDepth = 4;
constexpr std::uint32_t kLongestProperty = 1024;  // in units of four bytes
constexpr std::uint32_t kOnBehalfOfTheUser = 2;   // the source of a request, as window managers know it

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
std::unique_ptr<T, Freed> Owned(T* reply) {
    return std::unique_ptr<T, Freed>(reply);
}

sigset_t PipeSignal() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    return signals;
}

bool Holds(const std::vector<std::uint32_t>& numbers, std::uint32_t number) {
    return number != 0 && std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

/// A class is written as its two halves, each with a zero behind it.
X11Window Named(xcb_window_t window, const std::string& windowClass) {
    const std::vector<std::string> halves = Split(windowClass, std::string_view("\0", 1));
    return {window, halves[0], halves.size() > 1 ? halves[1] : "", 0};
}

}  // namespace

X11Desktop::X11Desktop() {
    // Writing to a display that has gone away would end the program by this signal.
    const sigset_t pipeSignal = PipeSignal();
    pthread_sigmask(SIG_BLOCK, &pipeSignal, &signalsBefore_);
    connection_ = xcb_connect(nullptr, nullptr);
}

X11Desktop::~X11Desktop() {
    xcb_disconnect(connection_);
    if (sigismember(&signalsBefore_, SIGPIPE) == 1) return;
    const sigset_t pipeSignal = PipeSignal();
    const timespec noTime{};
    while (sigtimedwait(&pipeSignal, nullptr, &noTime) == SIGPIPE) continue;
    pthread_sigmask(SIG_SETMASK, &signalsBefore_, nullptr);
}

std::vector<X11Window> X11Desktop::Windows(bool (*classPasses)(const X11Window&)) const {
    std::vector<X11Window> found;
    std::vector<xcb_window_t> level = Roots();
    for (int depth = 0; depth < kFrameDepth && !level.empty(); ++depth) {
        level = ChildrenOf(level);
        const std::vector<std::string> classes = PropertyOf(level, XCB_ATOM_WM_CLASS);
        for (std::size_t i = 0; i < level.size(); ++i) {
            X11Window window = Named(level[i], classes[i]);
            if (!classPasses(window) || !IsShown(window.window)) continue;
            const std::vector<std::uint32_t> process = NumbersOf(window.window, "_NET_WM_PID");
            if (!process.empty()) window.process = process.front();
            found.push_back(std::move(window));
        }
    }
    return found;
}

void X11Desktop::AskToClose(xcb_window_t window) const {
    const auto place = Owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), nullptr));
    if (!place) return;
    if (ManagerCloses(place->root)) {
        Send(place->root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY, window,
             "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME, kOnBehalfOfTheUser);
    } else if (const xcb_atom_t close = Atom("WM_DELETE_WINDOW"); Holds(NumbersOf(window, "WM_PROTOCOLS"), close)) {
        Send(window, XCB_EVENT_MASK_NO_EVENT, window, "WM_PROTOCOLS", close, XCB_CURRENT_TIME);
    }
}

xcb_atom_t X11Desktop::Atom(std::string_view name) const {
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto asked = xcb_intern_atom(connection_, 0, length, name.data());
    const auto reply = Owned(xcb_intern_atom_reply(connection_, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<xcb_window_t> X11Desktop::Roots() const {
    std::vector<xcb_window_t> roots;
    if (!IsOpen()) return roots;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)); screen.rem > 0; xcb_screen_next(&screen)) {
        roots.push_back(screen.data->root);
    }
    return roots;
}

// All questions about a level of windows go out before the first answer is waited for: a desktop may hold hundreds.

std::vector<xcb_window_t> X11Desktop::ChildrenOf(const std::vector<xcb_window_t>& parents) const {
    std::vector<xcb_query_tree_cookie_t> asked;
    asked.reserve(parents.size());
    for (const xcb_window_t parent : parents) asked.push_back(xcb_query_tree(connection_, parent));
    std::vector<xcb_window_t> children;
    for (const xcb_query_tree_cookie_t cookie : asked) {
        const auto reply = Owned(xcb_query_tree_reply(connection_, cookie, nullptr));
        if (!reply) continue;
        const xcb_window_t* const first = xcb_query_tree_children(reply.get());
        children.insert(children.end(), first, first + xcb_query_tree_children_length(reply.get()));
    }
    return children;
}

std::vector<std::string> X11Desktop::PropertyOf(const std::vector<xcb_window_t>& windows, xcb_atom_t property) const {
    std::vector<xcb_get_property_cookie_t> asked;
    asked.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        asked.push_back(
            xcb_get_property(connection_, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestProperty));
    }
    std::vector<std::string> values;
    for (const xcb_get_property_cookie_t cookie : asked) {
        const auto reply = Owned(xcb_get_property_reply(connection_, cookie, nullptr));
        std::string& value = values.emplace_back();
        if (!reply) continue;
        value.assign(static_cast<const char*>(xcb_get_property_value(reply.get())),
                     static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
    }
    return values;
}

std::vector<std::uint32_t> X11Desktop::NumbersOf(xcb_window_t window, std::string_view property) const {
    const std::string value = PropertyOf({window}, Atom(property)).front();
    std::vector<std::uint32_t> numbers(value.size() / sizeof(std::uint32_t));
    if (!numbers.empty()) std::memcpy(numbers.data(), value.data(), numbers.size() * sizeof(std::uint32_t));
    return numbers;
}

/// Toolkits keep windows of the same class that are never shown. A minimized one is known by its window manager.
bool X11Desktop::IsShown(xcb_window_t window) const {
    const auto asked = xcb_get_window_attributes(connection_, window);
    const auto attributes = Owned(xcb_get_window_attributes_reply(connection_, asked, nullptr));
    if (!attributes || attributes->override_redirect != 0) return false;
    if (attributes->map_state == XCB_MAP_STATE_VIEWABLE) return true;
    const std::vector<std::uint32_t> state = NumbersOf(window, "WM_STATE");
    return !state.empty() && state.front() != 0;
}

/// Whether a window manager closes windows on request. One that has ended may have left its promises behind, but its
/// own window is gone.
bool X11Desktop::ManagerCloses(xcb_window_t root) const {
    const std::vector<std::uint32_t> manager = NumbersOf(root, "_NET_SUPPORTING_WM_CHECK");
    return !manager.empty() && NumbersOf(manager.front(), "_NET_SUPPORTING_WM_CHECK") == manager &&
           Holds(NumbersOf(root, "_NET_SUPPORTED"), Atom("_NET_CLOSE_WINDOW"));
}

void X11Desktop::Send(xcb_window_t to, std::uint32_t mask, xcb_window_t window, std::string_view type,
                      std::uint32_t first, std::uint32_t second) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = Atom(type);
    message.data.data32[0] = first;
    message.data.data32[1] = second;
    xcb_send_event(connection_, 0, to, mask, reinterpret_cast<const char*>(&message));
    // What is still on its way when the connection closes may be lost; an answer shows that it has arrived.
    Owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}
