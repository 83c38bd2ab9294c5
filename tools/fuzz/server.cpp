// What the game server sends. NUL parts one packet from the next; inputs of odd length keep split lines.
#include "fuzz/EverythingScript.h"
#include "fuzz/FuzzBot.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto script = std::make_shared<const Script>(EverythingScript());
    FuzzBot bot;
    bot.bot.script = script;
    bot.session.KeepSplitLines(size % 2 == 1);
    bot.Handle([&] { bot.LogIn(); });
    for (const std::string& packet : Split(InputText(data, size), std::string(1, '\0'))) {
        if (!bot.Handle([&] { bot.session.OnServerData(packet); })) return 0;
    }
    bot.Handle([&] { bot.session.OnServerClosed(); });
    return 0;
}
