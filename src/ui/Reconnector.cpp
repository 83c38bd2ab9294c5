#include "ui/Reconnector.h"

#include <algorithm>

Reconnector::Reconnector(std::function<double()> draw, QObject* parent) : QObject(parent), draw_(std::move(draw)) {
    timer_.setObjectName("tmrReconnect");
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Reconnector::TryNow);
}

int Reconnector::Schedule(std::chrono::milliseconds stood) {
    if (stood >= std::chrono::minutes(1)) attempt_ = 0;
    const int pause = PauseMs(attempt_++, draw_());
    timer_.start(pause);
    return pause;
}

void Reconnector::Stop() {
    timer_.stop();
    attempt_ = 0;
}

int Reconnector::PauseMs(int attempt, double draw) {
    constexpr int kFirstMs = 5000, kLongestMs = 300000, kDoublings = 6;
    const int pause = std::min(kFirstMs << std::min(attempt, kDoublings), kLongestMs);
    return pause + static_cast<int>(pause * draw / 4);
}
