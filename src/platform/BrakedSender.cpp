#include "platform/BrakedSender.h"

#include <utility>

BrakedSender::BrakedSender(Owner owner, QObject* parent) : owner_(std::move(owner)), timer_(parent) {
    clock_.start();
    timer_.setObjectName("tmrBrake");
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { owner_.run([this] { Release(); }); });
}

void BrakedSender::Send(std::string_view lines, const Place& from) {
    owner_.write(brake_.Take(lines, from, clock_.elapsed()));
    owner_.tell(brake_.TakeReport());
    if (!timer_.isActive()) Release();
}

void BrakedSender::Release() {
    owner_.write(brake_.Release(clock_.elapsed()));
    if (const auto wait = brake_.WaitMs(clock_.elapsed())) timer_.start(static_cast<int>(*wait));
}
