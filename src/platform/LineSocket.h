#pragma once

#include <string>
#include <string_view>

#include "platform/Wire.h"

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
    void Resume();

    /// What was written and still waits to go out.
    qint64 UnsentBytes() const { return wire_ ? wire_->UnsentBytes() : 0; }

  private:
    QObject* owner_;
    Wire* wire_ = nullptr;

    void Use(QTcpSocket* socket, Wire::Listener listener);
};
