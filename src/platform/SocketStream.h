#pragma once

#include <QSocketNotifier>
#include <QtGlobal>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Descriptor.h"

/// A connected socket, both ways, with one call of the system for what comes at once and one for what goes at once:
/// what is written is gathered until Send, or until the event loop has its turn.
class SocketStream {
  public:
    /// Called from the event loop.
    struct Listener {
        std::function<void()> onReadable;  ///< something has arrived, or the end
        std::function<void()> onSent;      ///< of what the system did not take at once some has gone
    };

    /// @param descriptor  of a connected socket that does not wait; it is duplicated, and stays its owner's
    SocketStream(qintptr descriptor, Listener listener);
    ~SocketStream() { Close(); }
    SocketStream(const SocketStream&) = delete;
    SocketStream& operator=(const SocketStream&) = delete;

    /// Whether it could be duplicated, and has not been closed.
    bool IsOpen() const { return socket_.IsOpen(); }

    /// Reads what has arrived.
    /// @return how many bytes; 0 when nothing is there, or the end
    std::size_t Read(char* bytes, std::size_t most);

    /// Whether there is more to read.
    bool HoldsMore() const;

    /// How the other side has ended, as far as that was read: 0 in order, otherwise the system's code.
    std::optional<int> End() const { return end_; }

    /// Whether onReadable is called.
    void ListenForMore(bool listens);

    void Write(std::string_view bytes);

    /// Sends what was written, as far as the system takes it now.
    void Send();

    /// What was written and is not sent.
    std::size_t UnsentBytes() const { return unsent_.size(); }

    void Close();

  private:
    Descriptor socket_;
    Listener listener_;
    QSocketNotifier readable_, writable_;
    std::string unsent_;
    bool waits_ = false;         ///< the system has not taken all of it
    std::optional<int> broken_;  ///< by what sending has failed; whether that is the end, reading tells
    std::optional<int> end_;

    void OnWritable();
    void Push();
    int MannerOfEnd() const;
};
