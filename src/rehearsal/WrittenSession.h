#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One instruction of a written session.
struct SessionStep {
    enum class Kind {
        Connect,
        Close,
        Link,
        Unlink,
        Server,
        Client,
        Type,
        Event,
        Tick,
        Step,
        Show,
        Expect,
        ExpectNothing,
    };
    Kind kind;
    std::size_t line;  ///< counted from 1
    std::string text;  ///< what follows the instruction and its one blank
    int count = 1;     ///< of Event, Tick and Step
};

/// A written session: what happens around the bot, instruction by instruction, and what the bot is expected to send.
struct WrittenSession {
    std::vector<SessionStep> steps;
    std::optional<std::string> error;  ///< names the line and what is wrong with it; then there are no steps
};

/// @param bytes  8-bit text, lines ended by LF, a CR before it dropped; empty lines and "#" lines are passed over
WrittenSession ParseSession(std::string_view bytes);
