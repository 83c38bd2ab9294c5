#pragma once

#include <QtGlobal>

// What Linux knows of a TCP connection beyond what Qt tells of it.

/// Lets the system ask whether the other side is still there when it has been silent for a minute, and give it up when
/// it has not answered for two: a computer that was switched off never says so.
/// @param descriptor  of a connected socket
void KeepAlive(qintptr descriptor);

/// The bytes that have arrived and are not read from the system yet.
/// @param descriptor  of a socket; 0 for none that is open
qint64 WaitingBytes(qintptr descriptor);

/// Keeps a connection in sight after its socket was closed at the other side's end, to tell how that came.
class EndWatch {
  public:
    /// @param descriptor  of a connected socket
    explicit EndWatch(qintptr descriptor);
    ~EndWatch();
    EndWatch(const EndWatch&) = delete;
    EndWatch& operator=(const EndWatch&) = delete;

    /// Whether the other side has broken the connection off instead of closing it in order. To be asked once, after
    /// reading has come to its end.
    bool WasReset() const;

  private:
    int descriptor_;
};
