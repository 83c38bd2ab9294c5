#include "cli/EndSignals.h"

#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace {

/// A signal handler may do next to nothing, so it writes a byte that the event loop wakes up from.
std::array<int, 2> wakeUp{-1, -1};

int OpenWakeUp() {
    if (::pipe(wakeUp.data()) != 0) wakeUp = {-1, -1};
    return wakeUp[0];
}

void WakeUp(int) {
    const char byte = 0;
    if (::write(wakeUp[1], &byte, 1) < 0) return;  // nothing that could be done here
}

}  // namespace

EndSignals::EndSignals(std::function<void()> onEnd)
    : onEnd_(std::move(onEnd)), notifier_(OpenWakeUp(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        char byte = 0;
        if (::read(wakeUp[0], &byte, 1) > 0) onEnd_();
    });
    std::signal(SIGINT, WakeUp);
    std::signal(SIGTERM, WakeUp);
}

EndSignals::~EndSignals() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    for (int& end : wakeUp) ::close(std::exchange(end, -1));
}
