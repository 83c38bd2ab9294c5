#include "net/ClientProgram.h"

#include <optional>

#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "bot/ProfilePaths.h"
#include "net/Link.h"
#include "net/SessionTexts.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr int kPortDraws = 1000;

/// Listens on a random port from 1000 to 9999; a port that is taken is drawn again.
/// @return the port; nothing when none could be had
std::optional<std::int16_t> ListenOnRandomPort(Bot& bot, Link& link) {
    for (int draw = 0; draw < kPortDraws; ++draw) {
        const std::int16_t port = RoundTo16(bot.host.Random() * 8999 + 1000);
        if (link.ListenForClient(port)) return port;
    }
    return std::nullopt;
}

}  // namespace

std::string ClientProgram::Start() {
    awaitsWindow_ = false;
    // Looked up now: a path of the profile may start from the folder that is about to be left.
    const Files& disk = bot_.host.Disk();
    const std::string program = disk.Absolute(*FindProfileFile(bot_, bot_.profile.clientPath));
    const std::string character = disk.Absolute(*FindProfileFile(bot_, bot_.profile.characterPath));
    const std::string folder = FolderOf(program);
    link_.EnterFolder(folder);
    const std::optional<std::int16_t> port = ListenOnRandomPort(bot_, link_);
    if (!port) return std::string(kNoFreePort);
    link_.WriteProxyFile(JoinPath(folder, kProxyFile), "localhost " + std::to_string(*port) + "\r\n");
    if (const auto refusal = link_.StartClient(program, character)) return ClientRefusedLine(program, *refusal);
    window_ = 0;
    awaitsWindow_ = true;
    LookForWindow();
    return "";
}

void ClientProgram::LookForWindow() {
    if (!awaitsWindow_) return;
    const std::optional<std::int64_t> window = link_.FindClientWindow();
    window_ = window.value_or(0);
    awaitsWindow_ = window_ <= 0;
    // Told once the server is connected, for that is when the console is cleared.
    if (window || toldNoWindows_ || !bot_.host.IsServerConnected() || bot_.profile.closeClient != 1) return;
    toldNoWindows_ = true;
    bot_.host.ShowConsoleLine(kNoClientWindow);
}

void ClientProgram::CloseWindow() {
    if (bot_.profile.closeClient != 1) return;
    LookForWindow();
    if (window_ > 0) link_.CloseClientWindow(window_);
}

void ClientProgram::ForgetWindow() {
    if (bot_.profile.closeClient != 1) return;
    CloseWindow();
    window_ = 0;
    awaitsWindow_ = false;
}
