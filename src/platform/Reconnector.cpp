#include "platform/Reconnector.h"

#include <algorithm>

Reconnector::Reconnector(std::function<double()> draw, std::function<void()> tryNow, QObject* parent)
    : QObject(parent), draw_(std::move(draw)) {
    timer_.setObjectName("tmrReconnect");
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, std::move(tryNow));
}

int Reconnector::Schedule(First first) {
    if (first == First::AfterAPause) attempt_ = std::max(attempt_, 1);
    const int pause = PauseMs(attempt_++, draw_());
    if (pause > 0) timer_.start(pause);
    return pause;
}

void Reconnector::SessionEnded(std::chrono::milliseconds stood) {
    if (stood >= std::chrono::minutes(1)) attempt_ = 0;
}

void Reconnector::Forget() {
    EndPause();
    attempt_ = 0;
}

int Reconnector::PauseMs(int attempt, double draw) {
    constexpr int kFirstMs = 1000, kLongestMs = 300'000, kDoublings = 9;  // as many as lead beyond the longest
    if (attempt == 0) return 0;
    const int pause = std::min(kFirstMs << std::min(attempt - 1, kDoublings), kLongestMs);
    return pause + static_cast<int>(pause * draw / 4);
}
