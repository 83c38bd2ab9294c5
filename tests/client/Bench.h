#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <xcb/xcb.h>

#include <QProcess>
#include <csignal>
#include <cstdlib>

// The desktop around a bot in client mode.

/// An X11 display that nobody sees, and that programs started from here use.
class HiddenDisplay {
  public:
    HiddenDisplay() {
        server_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "320x240x24", "-nolisten", "tcp", "-noreset"});
        QByteArray number;
        while (!number.endsWith('\n') && server_.waitForReadyRead()) number += server_.readAll();
        EXPECT_FALSE(number.isEmpty()) << "Xvfb: " << server_.errorString().toStdString();
        qputenv("DISPLAY", ":" + number.trimmed());
    }
    ~HiddenDisplay() { End(); }
    /// From now on there is none; under its number another test's may come up.
    void End() {
        qunsetenv("DISPLAY");
        server_.kill();
        server_.waitForFinished();
    }

  private:
    QProcess server_;
};

/// Someone with windows on the display.
class DesktopProgram {
  public:
    DesktopProgram() = default;
    ~DesktopProgram() { xcb_disconnect(connection_); }
    DesktopProgram(const DesktopProgram&) = delete;

    bool HasDisplay() const { return xcb_connection_has_error(connection_) == 0; }
    int Descriptor() const { return xcb_get_file_descriptor(connection_); }

  protected:
    xcb_connection_t* const connection_ = xcb_connect(nullptr, nullptr);

    xcb_window_t Root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root; }
    xcb_window_t NewWindow() {
        const xcb_window_t window = xcb_generate_id(connection_);
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, Root(), 0, 0, 20, 20, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    }
    xcb_atom_t Atom(std::string_view name) {
        const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(connection_, asked, nullptr);
        const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
        std::free(reply);
        return atom;
    }
    template <typename Value>
    void Set(xcb_window_t window, std::string_view property, xcb_atom_t type, const Value* values, qsizetype count) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 8 * sizeof(Value),
                            static_cast<std::uint32_t>(count), values);
    }
    /// How many messages of this type, or with this as their first word, have come since the last call.
    int TakeMessages(std::string_view name) {
        const xcb_atom_t wanted = Atom(name);  // the answer comes after all that was sent before
        int count = 0;
        while (xcb_generic_event_t* const event = xcb_poll_for_event(connection_)) {
            const auto* const message = reinterpret_cast<const xcb_client_message_event_t*>(event);
            const bool isMessage = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE;
            if (isMessage && (message->type == wanted || message->data.data32[0] == wanted)) ++count;
            std::free(event);
        }
        return count;
    }
};

/// A program's window, and another one of it that is never shown, as toolkits have them.
class Window : public DesktopProgram {
  public:
    /// @param process  the one it says it belongs to; 0 when it does not say
    Window(const QByteArray& className, std::uint32_t process) {
        if (!HasDisplay()) return;
        const QByteArray names = className + '\0' + className + '\0';
        const xcb_atom_t close = Atom("WM_DELETE_WINDOW");
        xcb_window_t window = 0;
        for (int i = 0; i < 2; ++i) {
            window = NewWindow();
            Set(window, "WM_CLASS", XCB_ATOM_STRING, names.constData(), names.size());
            if (process > 0) Set(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, &process, 1);
        }
        Set(window, "WM_PROTOCOLS", XCB_ATOM_ATOM, &close, 1);
        xcb_map_window(connection_, window);
        IsAskedToClose();
    }
    bool IsAskedToClose() { return TakeMessages("WM_DELETE_WINDOW") > 0; }
};

/// Takes the place of a window manager that closes windows on request, and counts the requests.
class Manager : public DesktopProgram {
  public:
    Manager() {
        const xcb_window_t root = Root(), window = NewWindow();
        const xcb_atom_t offer = Atom("_NET_CLOSE_WINDOW");
        const std::uint32_t requests = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
        xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &requests);
        Set(window, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, &window, 1);
        Set(root, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, &window, 1);
        Set(root, "_NET_SUPPORTED", XCB_ATOM_ATOM, &offer, 1);
        CloseRequests();
    }
    int CloseRequests() { return TakeMessages("_NET_CLOSE_WINDOW"); }
};
