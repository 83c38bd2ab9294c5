#pragma once

#include <cstdint>

#include "game/Square.h"

/// The seven numbers of a DragonSpeak trigger notice.
struct DragonSpeakNotice {
    Square from, into;
    std::int16_t trigger = 0;
    Square triggerAt;
};
