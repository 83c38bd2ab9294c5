#include "cli/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace {

/// A signal handler may do next to nothing, so it writes a byte that the event loop wakes up from.
std::array<int, 2> wakeUp{-1, -1};

int OpenWakeUp() {
    if (::pipe2(wakeUp.data(), O_CLOEXEC) != 0) wakeUp = {-1, -1};
    return wakeUp[0];
}

void WakeUp(int) {
    // A second hangup is no impatience: a terminal that closes and its shell both send one.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    const char byte = 0;
    if (::write(wakeUp[1], &byte, 1) < 0) return;  // nothing that could be done here
}

void WakeUpOnHangup() {
    struct sigaction before {};
    ::sigaction(SIGHUP, nullptr, &before);
    if (before.sa_handler != SIG_IGN) std::signal(SIGHUP, WakeUp);
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
    WakeUpOnHangup();
}

EndSignals::~EndSignals() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    // A late hangup keeps its handler, which finds the pipe closed: the program is on its way out already.
    for (int& end : wakeUp) ::close(std::exchange(end, -1));
}
