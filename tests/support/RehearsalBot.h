#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/Script.h"
#include "rehearsal/Rehearsal.h"
#include "support/MemoryFiles.h"
#include "text/Text.h"

/// A bot on a rehearsal's stand-in world, its files in memory, the server connected, and no login behind it.
/// `told` collects what it does, one line each: "sent …", "client …", "console …", "box …".
class RehearsalBot {
  public:
    RehearsalBot() { rehearsal.host.SetServerConnected(true); }

    MemoryFiles files;
    std::vector<std::string> told;
    Rehearsal rehearsal{files, "folder", [this](const std::string& line) { told.push_back(line); }};
    Bot& bot = rehearsal.bot;
    RehearsalHost& host = rehearsal.host;
    Session& session = rehearsal.session;

    /// Gives the bot a script: header, the lines, terminator.
    void SetScript(const std::vector<std::string>& lines) {
        bot.script = std::make_shared<Script>("VSPK 01.00 Vorel\r\n" + Join(lines, "\r\n") +
                                              "\r\n*Endtriggers* 9999 *Endtriggers*\r\n");
    }

    /// What was told since the last call.
    std::vector<std::string> TakeTold() { return std::exchange(told, {}); }
};
