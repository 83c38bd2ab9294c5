#include <gmock/gmock.h>

#include "support/HostBench.h"

using testing::ElementsAre;

namespace {

/// A server that takes no calls.
struct DeafServer {
    DeafServer() {
        listener.setListenBacklogSize(0);
        listener.listen(QHostAddress::LocalHost);
        listener.pauseAccepting();
        first.connectToHost(listener.serverAddress(), listener.serverPort());
        EXPECT_TRUE(first.waitForConnected());
    }
    QTcpServer listener;
    QTcpSocket first;
};

class QtHostTest : public HostBench {
  protected:
    /// Waits for a client.
    /// @return the port at which
    quint16 AwaitClient() {
        host.bot().profile.connectClient = 1;
        host.bot().profile.clientPath = files.Write("client", "#!/bin/sh\n").toStdString();
        host.ConnectNow();
        return files.Read("proxy.ini").mid(10).trimmed().toUShort();
    }

    void LogIn() {
        const std::size_t session = server.bots.size();
        host.ConnectNow();
        ASSERT_TRUE(server.Hears("connect bot s3cr3t-w0rd\ncolor cccccccccc!\"!\n\ndesc A bot", session));
    }
};

TEST_F(QtHostTest, WhateverIsThrownIsAFaultThatEndsTheBot) {
    host.RunHandler([] { std::string().reserve(std::string().max_size() + 1); });
    host.EndWith(std::runtime_error("nor is there a second one"));
    EXPECT_THAT(screen.lines, ElementsAre("Out of memory"));
}

TEST_F(QtHostTest, AFloodLosesNoLineAndLeavesOthersTheirTurn) {
    host.session().KeepSplitLines(true);
    LogIn();
    std::vector<std::string> expected;
    QByteArray flood;
    for (int i = 0; i < 30000; ++i) {
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
    EXPECT_EQ(std::exchange(screen.lines, {}), expected);

    shown = 0;
    server.Say(flood);
    server.Close();
    ASSERT_TRUE(Eventually([&] { return host.session().status().canConnect; }));
    host.Disconnect();
    expected.emplace_back("gone");
    EXPECT_EQ(screen.lines, expected) << "what was said before the end still counts";
    EXPECT_LT(mostInATurn, expected.size() / 10);
}

TEST_F(QtHostTest, DisconnectingSendsWhatWasSaidBefore) {
    LogIn();
    const std::string line = "\"" + std::string(100000, 'x') + "\n";
    QByteArray much;
    while (host.UnsentBytes() < 500000) {
        host.RunHandler([&] { host.WriteToServer(line); });  // more than the system takes at once
        much += line.c_str();
    }
    host.Disconnect();
    EXPECT_FALSE(host.IsServerConnected());
    EXPECT_TRUE(server.Hears(much + "<end>"));
    EXPECT_THAT(screen.lines, ElementsAre("gone"));
}

TEST_F(QtHostTest, LetsAServerGoThatDoesNotRead) {
    LogIn();
    server.bots[0]->setReadBufferSize(1);
    for (int i = 0; i < 200; ++i) host.WriteToServer(std::string(100000, 'x') + "\n");
    EXPECT_TRUE(host.IsServerConnected()) << "whoever writes is not interrupted";
    EXPECT_TRUE(Eventually([&] { return host.session().status().canConnect; }));
    EXPECT_THAT(screen.lines, ElementsAre("Server Socket Error 0: more than 1 MiB of what was sent has not been read "
                                          "(0: 127.0.0.1)"));
}

TEST_F(QtHostTest, AResetIsNoOrderlyEndButWhatCameBeforeStillCounts) {
    LogIn();
    server.Say("(" + QByteArray(1500000, 'x') + "\n(still heard\n");
    ASSERT_TRUE(Eventually([&] { return screen.Count("still heard") == 1; }));
    server.Say("(the last words\n");
    server.Reset();
    EXPECT_TRUE(Eventually([&] { return host.session().status().canConnect; }));
    EXPECT_THAT(screen.lines,
                ElementsAre("A line of the server was left out: it was longer than 1 MiB.", "still heard",
                            "the last words", "Server Socket Error 1: the connection was broken off (104: 127.0.0.1)"));
}

TEST_F(QtHostTest, GivesUpAHostThatDoesNotAnswer) {
    const DeafServer deaf;
    host.session().SetServer("127.0.0.1", deaf.listener.serverPort());
    host.ConnectNow();
    for (const auto& [timer, word] : {std::pair{"tmrSilence", "has not answered yet"},
                                      {"tmrAnswer", "Server Socket Error 5: there was no answer within 20 seconds"}}) {
        EXPECT_FALSE(host.session().status().canConnect);
        Timer(timer)->start(0);
        EXPECT_TRUE(Eventually([&] { return screen.Count(word) == 1; })) << word;
    }
    EXPECT_TRUE(host.session().status().canConnect);
}

TEST_F(QtHostTest, AScriptsTriesToConnectAgainComeAfterGrowingPauses) {
    const QString script = files.Write("bot.vs", ScriptText("(0:2) gone,\r\n (5:0) reconnect.\r\n (5:0) reconnect."));
    LoadProfile(host.bot(), files.Path("bot.tvm").toStdString());
    const SessionStatus& status = host.session().status();
    LogIn();
    server.Close();
    ASSERT_TRUE(server.Hears("desc ", 1)) << "the first try comes at once";
    for (std::size_t session = 1; session < 3; ++session) {
        server.Close(session);
        ASSERT_TRUE(Eventually([&] { return IsPausing(); }));
        EXPECT_EQ(status.nextTry, static_cast<int>(session));
        EXPECT_TRUE(status.canConnect && status.canDisconnect);
        Timer("tmrReconnect")->start(0);
        ASSERT_TRUE(server.Hears("desc ", session + 1));
    }
    server.Close(3);
    ASSERT_TRUE(Eventually([&] { return IsPausing(); }));
    host.Disconnect();
    EXPECT_FALSE(IsPausing() || status.canDisconnect);
    EXPECT_TRUE(status.IsIdle());
    LogIn();
    server.Close(4);
    EXPECT_TRUE(server.Hears("desc ", 5)) << "what the user does begins afresh";
}

TEST_F(QtHostTest, BrakesTheScriptAndNobodyElse) {
    files.Write("bot.vs",
                ScriptText("(0:7) heard myself,\r\n (5:21) who.\r\n(0:46) told,\r\n (5:22) move {llllssss}."));
    LoadProfile(host.bot(), files.Path("bot.tvm").toStdString());
    host.SetBrake(1);
    LogIn();
    server.heard[0].clear();
    server.Say(QByteArray("(You say, \"x\"\n").repeated(12));
    ASSERT_TRUE(Eventually([&] { return screen.lines.size() == 13; })) << testing::PrintToString(screen.lines);
    EXPECT_EQ(screen.lines[10], "The script sends more than the brake lets through, most of it by line 3 of " +
                                    files.Path("bot.vs").toStdString() + ". What is too much waits.");
    host.session().TypeLine("typed");
    ASSERT_TRUE(server.Hears("typed\n"));
    EXPECT_EQ(server.heard[0], QByteArray("who\n").repeated(10) + "\"typed\n");
    ASSERT_TRUE(Timer("tmrBrake")->isActive());
    for (int i = 0; i < 130; ++i) host.session().TypeLine("\"&go");
    EXPECT_EQ(screen.Count("were waiting to be sent, most of them by line 5 of "), 1);
    host.Disconnect();
    LogIn();
    EXPECT_FALSE(server.heard[1].contains("lie\n")) << "what waited is dropped with its connection";
}

TEST_F(QtHostTest, StaysConnectedUntilItsLoginIsRefused) {
    host.StayConnected(true);
    LogIn();
    server.Reset();
    for (std::size_t session = 1; session <= 5; ++session) {
        ASSERT_TRUE(Eventually([&] { return IsPausing(); })) << session;
        Timer("tmrReconnect")->start(0);
        ASSERT_TRUE(server.Hears("desc ", session));
        server.Close(session);
    }
    ASSERT_TRUE(Eventually([&] { return host.session().status().canConnect; }));
    EXPECT_TRUE(host.session().status().IsLoginRefused());
    EXPECT_FALSE(IsPausing());

    LogIn();
    server.Say(";in.map\n", 6);
    ASSERT_TRUE(Eventually([&] { return !host.bot().state.mapFile.empty(); }));
    server.Close(6);
    ASSERT_TRUE(Eventually([&] { return IsPausing(); })) << "and the user may try again";
    EXPECT_EQ(host.session().status().refusals, 0);
    files.Write("bot.ini", "");
    QFile::remove(files.Path("bot.ini"));
    Timer("tmrReconnect")->start(0);
    ASSERT_TRUE(Eventually([&] { return host.session().status().IsIdle(); }));
    EXPECT_FALSE(host.session().status().canDisconnect);
}

TEST(Reconnector, PausesGrowToFiveMinutesAndVaryByAQuarter) {
    EXPECT_EQ(Reconnector::PauseMs(1, 0.5), 1125);
    EXPECT_EQ(Reconnector::PauseMs(9, 0), 256000);
    EXPECT_EQ(Reconnector::PauseMs(1000, 0.8), 360000);
    Reconnector reconnector([] { return 0; }, [] {}, nullptr);
    std::vector<int> pauses;
    constexpr auto kAtOnce = Reconnector::First::AtOnce, kAfterAPause = Reconnector::First::AfterAPause;
    for (const auto& [stood, first] :
         {std::pair{0, kAtOnce}, {59, kAtOnce}, {0, kAfterAPause}, {60, kAfterAPause}, {60, kAtOnce}}) {
        reconnector.SessionEnded(std::chrono::seconds(stood));
        pauses.push_back(reconnector.Schedule(first));
    }
    EXPECT_EQ(pauses, (std::vector<int>{0, 1000, 2000, 1000, 0})) << "short again after a steady session";
}

TEST_F(QtHostTest, TellsOfAConnectionThatCantBeMade) {
    for (const auto& [port, why] : {std::pair<int, const char*>{FreePort(), "Connection refused"},
                                    {70000, "there is no port 70000"},
                                    {-1, "there is no port -1"}}) {
        screen.lines.clear();
        host.session().SetServer("127.0.0.1", port);
        host.ConnectNow();
        EXPECT_FALSE(host.session().status().canConnect);
        EXPECT_TRUE(Eventually([&] { return host.session().status().canConnect; }));
        EXPECT_THAT(screen.lines, ElementsAre(std::string("Server Socket Error 0: ") + why + " (0: 127.0.0.1)"))
            << "and nothing is gone that never was";
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
    EXPECT_FALSE(host.ListenForClient(static_cast<std::int16_t>(server.listener.serverPort()))) << "it is taken";
    const quint16 port = AwaitClient();
    EXPECT_EQ(files.Read("proxy.ini"), "localhost " + QByteArray::number(port) + "\r\n");
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
    EXPECT_TRUE(Eventually([&] { return !host.session().status().canStandAlone; }));
    EXPECT_TRUE(host.IsServerConnected());
}

TEST_F(QtHostTest, NoticesThatAClientLeavesWhichWaitsForTheServer) {
    const DeafServer deaf;
    host.session().SetServer("127.0.0.1", deaf.listener.serverPort());
    QTcpSocket client;
    client.connectToHost(QHostAddress(QHostAddress::LocalHost), AwaitClient());
    ASSERT_TRUE(client.waitForConnected());
    client.write("connect Cat x\n");
    ASSERT_TRUE(Eventually([&] { return host.IsClientConnected(); }));
    EXPECT_EQ(host.bot().state.vorel.name, "");
    client.disconnectFromHost();
    EXPECT_TRUE(Eventually([&] { return !host.IsClientConnected(); }));
    EXPECT_EQ(host.bot().state.vorel.name, "Cat") << "what it said before still counts";
    EXPECT_FALSE(host.session().status().canConnect) << "the server may still answer";
}

}  // namespace
