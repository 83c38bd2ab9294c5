#pragma once

#include <QSocketNotifier>
#include <functional>

/// Calls back, from the event loop, when the program is asked to end (SIGINT, SIGTERM). One at a time may exist.
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
