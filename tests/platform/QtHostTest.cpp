#include <gmock/gmock.h>

#include "engine/Script.h"
#include "platform/QtHost.h"
#include "support/BotFiles.h"
#include "support/GameServer.h"
#include "support/Notebook.h"

using testing::ElementsAre;

namespace {

class QtHostTest : public testing::Test {
  protected:
    QtHostTest() {
        files.WriteBot("Bot");
        host.bot().profile.characterPath = files.Path("Bot.ini").toStdString();
        host.bot().profile.owners = "Ann";
        host.bot().script = std::make_shared<Script>(ScriptText("(0:2) gone,\r\n (5:2) note {gone}").toStdString());
        host.session().SetServer("127.0.0.1", server.listener.serverPort());
    }
    void LogIn() {
        host.Connect();
        ASSERT_TRUE(server.Hears("connect Bot s3cr3t-w0rd\ncolor cccccccccc!\"!\n\ndesc A bot"));
    }

    BotFiles files;
    GameServer server;
    Notebook screen;
    QtHost host{screen, files.Path().toStdString()};
};

TEST_F(QtHostTest, AFloodLosesNoLineAndLeavesOthersTheirTurn) {
    host.session().KeepSplitLines(true);
    LogIn();
    std::vector<std::string> expected;
    QByteArray flood;
    for (int i = 0; i < 20000; ++i) {
        expected.push_back(std::to_string(i) + " " + std::string(100, '.'));
        flood += "(" + QByteArray::fromStdString(expected.back()) + "\n";
    }
    std::size_t shown = 0, mostInATurn = 0;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
        mostInATurn = std::max(mostInATurn, screen.lines.size() - std::exchange(shown, screen.lines.size()));
    });
    turn.start(0);
    server.Say(flood);
    EXPECT_TRUE(Eventually([&] { return screen.lines.size() >= expected.size(); }));
    EXPECT_EQ(screen.lines, expected);
    EXPECT_LT(mostInATurn, 2000u);
}

TEST_F(QtHostTest, WhatWasSaidBeforeTheEndStillCounts) {
    host.session().KeepSplitLines(true);
    LogIn();
    server.Say(("(" + QByteArray(100, '.') + " \n").repeated(30000));
    server.Close();
    ASSERT_TRUE(Eventually([&] { return host.bot().status.canConnect; }));
    host.Disconnect();
    EXPECT_EQ(screen.lines.size(), 30001u);
    EXPECT_EQ(screen.lines.back(), "gone");
}

TEST_F(QtHostTest, DisconnectingSendsWhatWasSaidBefore) {
    LogIn();
    const QByteArray much = "\"" + QByteArray(8000000, 'x') + "\n";
    host.WriteToServer(much.toStdString());
    host.Disconnect();
    EXPECT_FALSE(host.IsServerConnected());
    EXPECT_TRUE(server.Hears(much + "<end>"));
    EXPECT_THAT(screen.lines, ElementsAre("gone"));
}

TEST_F(QtHostTest, TellsOfAConnectionThatCantBeMade) {
    const struct {
        int port;
        const char* line;
    } cases[] = {{FreePort(), "Server Socket Error 0: Connection refused (0: 127.0.0.1)"},
                 {70000, "Server Socket Error 0: there is no port 70000 (0: 127.0.0.1)"},
                 {-1, "Server Socket Error 0: there is no port -1 (0: 127.0.0.1)"}};
    for (const auto& c : cases) {
        screen.lines.clear();
        host.session().SetServer("127.0.0.1", c.port);
        host.Connect();
        EXPECT_FALSE(host.bot().status.canConnect);
        EXPECT_TRUE(Eventually([&] { return host.bot().status.canConnect; }));
        EXPECT_THAT(screen.lines, ElementsAre(c.line)) << "and nothing is gone that never was";
    }
}

TEST_F(QtHostTest, NothingRunsAfterAFault) {
    LogIn();
    server.Say("(before it\n]f\n(after it\n");
    server.Close();
    ASSERT_TRUE(Eventually([&] { return !host.IsServerConnected(); }));
    host.RunHandler([&] { screen.lines.emplace_back("ran"); });
    EXPECT_THAT(screen.lines, ElementsAre("before it", "Invalid procedure call"));
}

TEST_F(QtHostTest, LeadsOneClientToTheServer) {
    host.bot().profile.connectClient = 1;
    host.bot().profile.clientPath = files.Write("client", "#!/bin/sh\n").toStdString();
    EXPECT_FALSE(host.ListenForClient(static_cast<std::int16_t>(server.listener.serverPort()))) << "it is taken";
    host.Connect();
    const QByteArray file = files.Read("proxy.ini");
    const quint16 port = file.mid(10).trimmed().toUShort();
    EXPECT_EQ(file, "localhost " + QByteArray::number(port) + "\r\n");
    EXPECT_TRUE(port >= 1000 && port <= 9999) << port;
    QTcpServer elsewhere;
    EXPECT_TRUE(elsewhere.listen(QHostAddress("127.0.0.2"), port)) << "the link listens on one address only";

    // Both call, and talk, before the bot has looked; the server has not answered by then either.
    QTcpSocket client, second;
    for (QTcpSocket* const socket : {&client, &second}) {
        socket->connectToHost(QHostAddress(QHostAddress::LocalHost), port);
        ASSERT_TRUE(socket->waitForConnected());
        socket->write(socket == &client ? "connect Cat x\nwh Ann hi\n" : "connect Dog x\n");
        ASSERT_TRUE(socket->waitForBytesWritten());
    }
    ASSERT_TRUE(server.Hears("connect Cat x\nwh Ann hi\n"));
    EXPECT_TRUE(Eventually([&] { return second.state() == QTcpSocket::UnconnectedState; }));
    EXPECT_EQ(host.bot().state.vorel.name, "Cat");

    server.Say("(hello there\n");
    QByteArray heard;
    EXPECT_TRUE(Eventually([&] { return (heard += client.readAll()) == "(hello there\n"; }));
    client.write("wh Ann bye\n");
    client.disconnectFromHost();
    EXPECT_TRUE(server.Hears("hi\nwh Ann bye\n"));
    EXPECT_TRUE(Eventually([&] { return !host.bot().status.canStandAlone; }));
    EXPECT_TRUE(host.IsServerConnected());
}

}  // namespace
