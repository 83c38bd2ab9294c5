#pragma once

#include <QElapsedTimer>
#include <functional>

#include "net/Session.h"
#include "platform/Reconnector.h"

/// Connects a bot's session: at once when its user wants it; after the pauses of a Reconnector when the script does, or
/// when the bot is to stay connected and has lost its connection.
class Dialer {
  public:
    /// @param run   runs a handler of the bot; see QtHost::RunHandler
    /// @param draw  a uniform draw, at least 0 and below 1
    Dialer(Session& session, std::function<void(const std::function<void()>&)> run, std::function<double()> draw,
           QObject* parent);

    /// Connects at once, as the user wants it.
    void ConnectNow();

    /// Connects as the script wants it; does nothing while there is a connection, or one to come.
    void ConnectForScript();

    /// Whether a connection that is lost, or can't be had, is tried again, with growing pauses and for ever. A refused
    /// login is not.
    void StayConnected(bool stays);

    /// Calls off the try that was to come.
    void StopTrying();

    void Disconnect();

    /// Disconnects for good: the script hears of the end, but can't connect again.
    void Leave();

    // What happens to the connection.

    void OnConnected() { online_.start(); }
    void OnClosed();

    /// After a session's end, when the script has had its turn to connect by itself.
    void TryAgainIfLost();

  private:
    Session& session_;
    std::function<void(const std::function<void()>&)> run_;
    Reconnector reconnector_;
    QElapsedTimer online_;  ///< since the server was connected; invalid when it isn't
    bool stays_ = false, leaving_ = false;

    void Dial();
    void TryAgain(Reconnector::First first);
};
