#pragma once

#include <QtGlobal>

/// While it lives, an application that is made waits for its sockets by itself. In glib's loop, which it would use
/// otherwise, each packet that is answered costs three more calls of the system: that loop wakes itself up whenever
/// somebody has something to send.
class PlainEventLoop {
  public:
    PlainEventLoop() { qputenv(kSwitch, "1"); }
    ~PlainEventLoop() { qunsetenv(kSwitch); }  // programs that the bot starts are not to inherit it
    PlainEventLoop(const PlainEventLoop&) = delete;
    PlainEventLoop& operator=(const PlainEventLoop&) = delete;

  private:
    static constexpr char kSwitch[] = "QT_NO_GLIB";
};
