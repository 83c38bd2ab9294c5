#include <gmock/gmock.h>

#include "support/HostBench.h"

using testing::ElementsAre;

namespace {

class QtHostTest : public HostBench {
  protected:
    void LogIn() {
        host.Connect();
        ASSERT_TRUE(server.Hears("connect bot s3cr3t-w0rd\ncolor cccccccccc!\"!\n\ndesc A bot"));
    }
};

TEST_F(QtHostTest, WhateverIsThrownIsAFaultThatEndsTheBot) {
    host.RunHandler([] { std::string().reserve(std::string().max_size() + 1); });
    host.RunHandler([this] { screen.lines.emplace_back("nothing runs after it"); });
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
    EXPECT_LT(mostInATurn, expected.size() / 10);

    turn.stop();
    server.Say(flood);
    server.Close();
    ASSERT_TRUE(Eventually([&] { return host.bot().status.canConnect; }));
    host.Disconnect();
    expected.emplace_back("gone");
    EXPECT_EQ(screen.lines, expected) << "what was said before the end still counts";
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
    for (const auto& [port, why] : {std::pair<int, const char*>{FreePort(), "Connection refused"},
                                    {70000, "there is no port 70000"},
                                    {-1, "there is no port -1"}}) {
        screen.lines.clear();
        host.session().SetServer("127.0.0.1", port);
        host.Connect();
        EXPECT_FALSE(host.bot().status.canConnect);
        EXPECT_TRUE(Eventually([&] { return host.bot().status.canConnect; }));
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
    host.bot().profile.connectClient = 1;
    host.bot().profile.clientPath = files.Write("client", "#!/bin/sh\n").toStdString();
    EXPECT_FALSE(host.ListenForClient(static_cast<std::int16_t>(server.listener.serverPort()))) << "it is taken";
    host.Connect();
    const quint16 port = files.Read("proxy.ini").mid(10).trimmed().toUShort();
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
    EXPECT_TRUE(Eventually([&] { return !host.bot().status.canStandAlone; }));
    EXPECT_TRUE(host.IsServerConnected());
}

}  // namespace
