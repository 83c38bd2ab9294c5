#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <string>

#include "net/SendBrake.h"

/// Lets the script's lines go when SendBrake says so, by the machine's clock.
class BrakedSender {
  public:
    struct Owner {
        std::function<void(std::string_view bytes)> write;
        std::function<void(const SendBrake::Report& report)> tell;
        std::function<void(const std::function<void()>&)> run;  ///< a handler of the bot; see QtHost::RunHandler
    };

    BrakedSender(Owner owner, QObject* parent);

    /// @param linesPerSecond  0 for as many as the script likes
    void SetRate(int linesPerSecond) { brake_.SetRate(linesPerSecond); }

    /// @param from  the script's line that sends them
    void Send(std::string_view lines, const Place& from);

    /// Drops what waits.
    void Clear() { brake_.Clear(); }

  private:
    Owner owner_;
    SendBrake brake_;
    QTimer timer_;
    QElapsedTimer clock_;

    void Release();
};
