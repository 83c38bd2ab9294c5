#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "support/RehearsalBot.h"
#include "support/Source.h"
#include "text/Fault.h"

/// What libFuzzer calls with each input. A fault of the rules is no finding; any other exception leaves this function
/// and ends the process, as the sanitizers do.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline std::string InputText(const std::uint8_t* data, std::size_t size) { return {data, data + size}; }

/// A bot called Greeter with a profile, a character and a data file, all in memory, whose clock stands still and whose
/// dice fall alike in every run. Not connected yet.
class FuzzBot : public RehearsalBot {
  public:
    FuzzBot() {
        host.SetServerConnected(false);
        host.FreezeClock({2026, 11, 22, 9, 30, 15});
        host.SeedRandom(1);
        files.contents["greeter.ini"] = "Name=Greeter\r\nPassword=" + std::string(kPassword) +
                                        "\r\nDesc=A bot.\r\nColors=w#3#3#3#3#\r\nSpec=121\r\n";
        files.contents["folder/scores.ini"] = "[points]\r\nAnn=7\r\nBob=3\r\n[words]\r\ntea\r\nmilk\r\n";
        bot.profile.characterPath = "greeter.ini";
        bot.profile.owners = "Ann, Bob";
        bot.profile.maps = "Practice Dream, Acropolis";
        bot.profile.ignores = {"Eve"};
    }

    static constexpr std::string_view kPassword = "s3cr3t-w0rd";

    void LogIn() {
        host.SetServerConnected(true);
        session.OnServerConnected();
    }

    /// Lets something happen to the bot, as one handler of the program.
    /// @return false once a fault has ended the program
    template <typename Handler>
    bool Handle(Handler handler) {
        if (ended_) return false;
        try {
            handler();
        } catch (const RuntimeFault&) {
            ended_ = true;
        }
        return !ended_;
    }

  private:
    bool ended_ = false;
};
