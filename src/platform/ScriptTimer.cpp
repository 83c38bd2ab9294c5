#include "platform/ScriptTimer.h"

#include "engine/Dispatcher.h"

namespace {

std::shared_ptr<QTimer> StartedTimer() {
    auto timer = std::make_shared<QTimer>();
    // By itself Qt may be off by a twentieth, and the elapsed clock counts these ticks.
    timer->setTimerType(Qt::PreciseTimer);
    timer->start(kScriptTimerMs);
    return timer;
}

}  // namespace

std::shared_ptr<QTimer> SharedScriptTimer() {
    static std::weak_ptr<QTimer> shared;
    std::shared_ptr<QTimer> timer = shared.lock();
    if (!timer) shared = timer = StartedTimer();
    return timer;
}
