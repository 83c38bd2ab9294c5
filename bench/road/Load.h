#pragma once

#include <functional>
#include <string>
#include <vector>

#include "road/Talk.h"

/// Gives the command of a program that connects to that port of 127.0.0.1.
using CommandFor = std::function<std::vector<std::string>(int port)>;

/// What a program has made of a load.
struct Figures {
    double linesPerSecond = 0;
    double cpuMicroseconds = 0;        ///< of its processor time, for a line
    double roundTripMicroseconds = 0;  ///< from a question, after a pause, to its answer: the median of many
    double anonymousMib = 0;           ///< after the load
    double startMs = 0;                ///< from its start to the first thing it sends
};

/// How hard a program is worked.
struct Effort {
    double seconds = 0.3;
    int batchesAtOnce = 8;  ///< as many are sent before the answer to the first of them has come
};

/// Plays the game server for a program: sends it batches, and checks every answer.
/// @param question  what is asked for the round trips
/// @throws std::runtime_error when the program can't be started, or an answer is wrong or missing
Figures MeasureLoad(const CommandFor& command, const std::vector<Batch>& batches, const Batch& question, Effort effort);

/// How often a program wakes up in a second in which nothing happens, and its anonymous memory in MiB then.
struct Idleness {
    double wakeUpsPerSecond = 0, anonymousMib = 0;
};
Idleness MeasureIdleness(const CommandFor& command, const Batch& question, int seconds);
