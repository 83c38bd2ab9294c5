#pragma once

#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "net/Link.h"
#include "platform/SocketStream.h"

/// One connection of a bot: to the game server, or from the local client. It keeps its bounds whatever the other side
/// does: that one is slowed down when it sends faster than it is read, and let go when it does not read, does not
/// answer, or is no longer there.
class Wire final : public QObject {
  public:
    /// How much is read from a peer in advance, and how much of what it was sent may wait for it to read.
    static constexpr qint64 kBufferLimit = qint64{1024} * 1024;

    /// How long a host may leave a connection unanswered, its name being looked up included, and when to say so first.
    static constexpr std::chrono::seconds kAnswerWithin{20}, kSilenceToldAfter{1};

    /// Called from the event loop.
    struct Listener {
        std::function<void()> onConnected, onSilence;
        /// @param goesOn  more has arrived, and comes with the next call
        std::function<void(std::string_view bytes, bool goesOn)> onData;
        /// Once. @param error  nothing when the other side has closed in order
        std::function<void(const std::optional<SocketError>& error)> onEnd;
        std::function<void()> onWritten = [] {};
        std::function<bool()> mayRead = [] { return true; };  ///< otherwise what arrives waits for Resume
    };

    /// @param socket  a connected one, or a new one for Connect
    Wire(QTcpSocket* socket, Listener listener, QObject* parent);

    /// @param host  UTF-8
    /// @param port  a number that is none ends the connection with that reason
    void Connect(const std::string& host, int port);

    bool IsConnected() const;

    /// Sends in the background; does nothing when not connected.
    void Write(std::string_view bytes);

    /// Has what was written gathered no longer, but sent.
    void Send() {
        if (stream_) stream_->Send();
    }

    /// What was written and still waits to go out.
    qint64 UnsentBytes() const { return stream_ ? static_cast<qint64>(stream_->UnsentBytes()) : 0; }

    /// Goes on reading, when it may.
    void Resume() { Read(); }

    /// Ends the connection without a word to the listener and, soon after, itself. What was written before still goes
    /// out, for as long as the other side takes it within a few seconds.
    void Close();

  private:
    QTcpSocket* socket_;  ///< until it is connected; then the stream has taken over
    std::unique_ptr<SocketStream> stream_;
    Listener listener_;
    std::string host_;
    std::string ahead_;  ///< what has arrived while it might not be read
    QTimer tmrSilence_{this}, tmrAnswer_{this};
    std::size_t slice_;    ///< how much is read at a time
    bool reads_ = false;   ///< a packet is at its reader
    bool waits_ = false;   ///< the rest of what was read ahead, for its turn
    bool ending_ = false;  ///< why it ends is settled
    bool full_ = false;    ///< too much is unread: it is about to be let go
    bool over_ = false;    ///< nothing more is told

    void BeConnected();
    void OnReadable();
    void OnSent();
    void Read();
    bool ReadPacket();
    std::size_t ReadSlice(char* bytes);
    void ReadAhead();
    void ReadLater();
    void EndWithStream();
    void EndLater(const SocketError& error);
    void End(const std::optional<SocketError>& error);
    void Drain(const std::optional<SocketError>& error);
    SocketError Failure(int number, std::string_view what, int systemCode = 0) const;
    std::optional<SocketError> AsError(int end) const;
};

/// One of the two sockets of a bot, over all its connections: for each it has a Wire, and none when it is closed.
class LineSocket {
  public:
    /// @param owner  of the wires; it outlives the socket
    explicit LineSocket(QObject* owner) : owner_(owner) {}

    /// Connects anew, or takes over what a listener has accepted; what it was connected to is let go.
    /// @param host  UTF-8
    void Connect(const std::string& host, int port, Wire::Listener listener);
    void TakeOver(QTcpSocket* accepted, Wire::Listener listener);

    /// Ends the connection without a word to its listener; what was written before still goes out.
    void Close();

    bool IsOpen() const { return wire_ != nullptr; }  ///< connected, or about to be
    bool IsConnected() const { return wire_ && wire_->IsConnected(); }

    /// Do nothing when the socket is closed.
    void Write(std::string_view bytes);
    void Send() {
        if (wire_) wire_->Send();
    }
    void Resume();

    /// What was written and still waits to go out.
    qint64 UnsentBytes() const { return wire_ ? wire_->UnsentBytes() : 0; }

  private:
    QObject* owner_;
    Wire* wire_ = nullptr;

    void Use(QTcpSocket* socket, Wire::Listener listener);
};
