#include "platform/Dialer.h"

#include <utility>

Dialer::Dialer(Session& session, std::function<void(const std::function<void()>&)> run, std::function<double()> draw,
               QObject* parent)
    : session_(session),
      run_(std::move(run)),
      reconnector_(
          std::move(draw), [this] { Dial(); }, parent) {}

void Dialer::ConnectNow() {
    reconnector_.Forget();
    session_.ForgetRefusals();
    Dial();
}

void Dialer::ConnectForScript() {
    const SessionStatus& status = session_.status();
    if (leaving_ || !status.IsIdle() || status.IsLoginRefused()) return;
    TryAgain(Reconnector::First::AtOnce);
}

void Dialer::StayConnected(bool stays) {
    stays_ = stays;
    if (!stays) StopTrying();
}

void Dialer::StopTrying() {
    reconnector_.Forget();
    session_.CallOffNextTry();
}

void Dialer::Disconnect() {
    reconnector_.EndPause();
    session_.Disconnect();
}

void Dialer::Leave() {
    leaving_ = true;
    run_([this] { Disconnect(); });
}

void Dialer::OnClosed() {
    // Told of connections, too, that never came about, and must not make a steady session of them.
    if (online_.isValid()) reconnector_.SessionEnded(std::chrono::milliseconds(online_.elapsed()));
    online_.invalidate();
}

void Dialer::TryAgainIfLost() {
    const SessionStatus& status = session_.status();
    if (!stays_ || leaving_ || !status.IsIdle() || !status.IsLost() || status.IsLoginRefused()) return;
    run_([this] { TryAgain(Reconnector::First::AfterAPause); });
}

void Dialer::Dial() {
    if (leaving_) return;
    run_([this] { session_.Connect(); });
    TryAgainIfLost();
}

void Dialer::TryAgain(Reconnector::First first) {
    constexpr int kSecondMs = 1000;
    const int pause = reconnector_.Schedule(first);
    if (pause == 0) return session_.Connect();
    session_.AwaitNextTry((pause + kSecondMs / 2) / kSecondMs);
}
