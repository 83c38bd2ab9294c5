#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

/// A connection to the display, with windows that it owns and the messages that reach them.
class Display {
  public:
    Display() = default;
    ~Display() { xcb_disconnect(connection_); }
    Display(const Display&) = delete;

    bool IsOpen() const { return xcb_connection_has_error(connection_) == 0; }
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
    void Set(xcb_window_t window, std::string_view property, xcb_atom_t type, const Value* values, std::size_t count) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 8 * sizeof(Value),
                            static_cast<std::uint32_t>(count), values);
    }

    /// How many messages of this type, or with this as their first word, have come since the last call, by all that
    /// the display did until now.
    int TakeMessages(std::string_view name) {
        const xcb_atom_t wanted = Atom(name);
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
