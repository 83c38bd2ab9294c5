#pragma once

#include "bot/Events.h"

struct Bot;

/// What RunScript does, in the plainest way there is: splits the script's text anew, keeps every line in an array of
/// its own, reads each line again whenever it comes over it, and asks PlainRules for what it means. Slow, and short
/// enough to be seen right; the dispatcher must do the same, event by event and fault by fault.
void WalkSlowly(Bot& bot, GameEvent event);
