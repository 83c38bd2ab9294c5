#pragma once

#include "platform/QtHost.h"
#include "profile/ProfileFile.h"
#include "support/BotFiles.h"
#include "support/GameServer.h"
#include "support/Notebook.h"

/// A bot in the real world, its files in a folder of its own, and the server it is led to. Its script notes when it is
/// disconnected.
class HostBench : public testing::Test {
  public:
    HostBench() {
        files.WriteBot("bot", "(0:2) gone,\r\n (5:2) note {gone}");
        LoadProfile(host.bot(), files.Path("bot.tvm").toStdString());
        host.session().SetServer("127.0.0.1", server.listener.serverPort());
    }

    QTimer* Timer(const char* name) { return host.findChild<QTimer*>(name); }
    bool IsPausing() { return Timer("tmrReconnect")->isActive(); }

    BotFiles files;
    GameServer server;
    Notebook screen;
    QtHost host{screen, files.Path().toStdString()};
};
