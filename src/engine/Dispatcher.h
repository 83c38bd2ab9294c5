#pragma once

#include <cstdint>
#include <string_view>

#include "bot/Events.h"

struct Bot;

/// Runs the bot's script against one event: every trigger whose cause answers the event and whose conditions all hold
/// carries out its effects, in the order of the file. What the event carries has been stored in the bot's state
/// before. A script without a valid header is passed over in silence.
/// @throws RuntimeFault TypeMismatch or Overflow, for a line whose category or number can't be read; Overflow, for
///         more than 32767 lines; what conditions and effects raise
void RunScript(Bot& bot, GameEvent event);

/// Does the cause answer the event? Sets the bot's current event. On a timer tick the cause's number is not looked
/// at: the first number in its text is the interval in seconds.
/// @param line    the cause's line as written
/// @param number  n of (0:n)
/// @throws RuntimeFault Overflow, when number + 1 leaves the 16-bit range
bool TestCause(Bot& bot, std::string_view line, std::int16_t number, GameEvent event);

/// The script timer's interval.
inline constexpr int kScriptTimerMs = 1000;

/// One tick of the script timer: advances the elapsed clock by a second and raises EventTimerTick.
void ScriptTimerTick(Bot& bot);
