#pragma once

#include <QSocketNotifier>
#include <functional>

/// Calls back, from the event loop, when the program is asked to end (SIGINT, SIGTERM, and SIGHUP unless it was ignored
/// when the program began, as nohup does). Who asks by SIGINT or SIGTERM while the program is ending already, ends it
/// at once. One at a time may exist.
class EndSignals {
  public:
    explicit EndSignals(std::function<void()> onEnd);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

  private:
    std::function<void()> onEnd_;
    QSocketNotifier notifier_;
};
