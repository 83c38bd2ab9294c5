#pragma once

#include <QTimer>
#include <memory>

/// The script timer of all bots in this process: it ticks once a second, and all of them with it, so that the process
/// wakes up once a second, however many it runs. It is there for as long as somebody keeps it.
std::shared_ptr<QTimer> SharedScriptTimer();
