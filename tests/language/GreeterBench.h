#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bot/Variables.h"
#include "language/Commands.h"
#include "rehearsal/WrittenSession.h"
#include "support/RehearsalBot.h"

/// The bot that the examples of the language are written for: a character, a profile, a data file, not connected yet.
class GreeterBench : public RehearsalBot {
  public:
    GreeterBench() {
        host.SetServerConnected(false);
        host.FreezeClock({2026, 11, 22, 9, 30, 15});
        host.SeedRandom(1);
        files.contents["greeter.ini"] =
            "Name=Greeter\r\nPassword=x\r\nDesc=A bot.\r\nColors=w#3#3#3#3#\r\nSpec=121\r\n";
        files.contents["folder/diner.ini"] = "[guests]\r\nAnn\r\n";
        bot.profile.characterPath = "greeter.ini";
        bot.profile.owners = "Ann, Bob";
        bot.profile.maps = "Practice Dream, Acropolis";
    }

    void Play(const std::string& instructions) {
        const WrittenSession written = ParseSession(instructions);
        EXPECT_EQ(written.error.value_or(""), "");
        ValueOrFault(rehearsal.Play(written));
    }

    /// Plays instructions.
    /// @return what the last of them made the bot do
    std::vector<std::string> PlayAndListen(const std::string& instructions) {
        const std::size_t last = instructions.rfind('\n') + 1;
        Play(instructions.substr(0, last));
        TakeTold();
        Play(instructions.substr(last));
        return TakeTold();
    }
};

inline std::string CauseLine(GameEvent event) { return ExampleLine(*FindCommand(kCauseLine, CauseOf(event))); }
