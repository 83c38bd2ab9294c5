// What the local client says and, in lines behind ">", what is typed on the console.
#include "fuzz/EverythingScript.h"
#include "fuzz/FuzzBot.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto script = std::make_shared<const Script>(EverythingScript());
    FuzzBot bot;
    bot.bot.script = script;
    bot.bot.profile.connectClient = 1;
    bot.host.SetClientConnected(true);
    bot.Handle([&] { bot.LogIn(); });
    for (const std::string& line : Split(InputText(data, size), "\n")) {
        const auto handler = [&] {
            if (line.starts_with('>')) return bot.session.TypeLine(std::string_view(line).substr(1));
            bot.session.OnClientData(line + "\n");
        };
        if (!bot.Handle(handler)) return 0;
    }
    bot.Handle([&] { bot.session.OnClientClosed(); });
    return 0;
}
