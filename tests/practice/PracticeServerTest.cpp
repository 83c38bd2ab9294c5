#include <gmock/gmock.h>

#include <QSignalSpy>

#include "practice/PracticeServer.h"
#include "support/GameServer.h"

namespace {

class PracticeServerTest : public testing::Test {
  protected:
    PracticeServer server{{ReadTour("wait for Ann\nboot Ann", "tour").tour, MachinePorts(), 0}};
    quint16 port = server.Listen(0).port;
};

class Player {
  public:
    explicit Player(quint16 port) {
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
        QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] { heard += socket.readAll(); });
    }
    void LogIn(const QByteArray& name) {
        socket.write("connect " + name + " secret\ncolor cccccccccc!!!\n\nvascodagama\n");
        EXPECT_TRUE(Hears("Nobody outside can see it.\n"));
        heard.clear();
    }
    bool Hears(const QByteArray& text) {
        return Eventually([&] { return heard.contains(text); });
    }
    bool IsLetGo() {
        return Eventually([&] { return socket.state() == QTcpSocket::UnconnectedState; });
    }
    QTcpSocket socket;
    QByteArray heard;
};

TEST_F(PracticeServerTest, KeepsBeginningsOfLinesAndOutlivesGarbage) {
    Player ann(port), bob(port);
    ann.LogIn("Ann");
    bob.LogIn("Bob");
    ann.socket.write("\"two pie");
    ann.socket.flush();
    bob.socket.write("who\n");
    EXPECT_TRUE(bob.Hears("2 players")) << "by now the first piece has been read";
    ann.socket.write("ces\n" + QByteArray(40000, 'x') + "\n" + QByteArray(5000, '\n') + QByteArray(300, '\xff') +
                     "\nl \xff\xff\xff\xff\n\"still here\n");
    EXPECT_TRUE(bob.Hears("(Ann: two pieces\n"));
    EXPECT_TRUE(bob.Hears("(Ann: still here\n"));
}

TEST_F(PracticeServerTest, KeepsWhatIsSaidForOneWhoReadsLate) {
    constexpr int kLines = 6000, kLength = 1900;  // more than the system takes
    Player ann(port);
    ann.LogIn("Ann");
    ann.socket.blockSignals(true);
    ann.socket.setReadBufferSize(1);
    ASSERT_TRUE(server.AddPerson("Bob"));
    for (int n = 0; n < kLines; ++n) server.TypeAsPerson(std::string(kLength, 'x'));
    ann.socket.blockSignals(false);
    ann.socket.setReadBufferSize(0);
    ann.heard = ann.socket.readAll();
    EXPECT_TRUE(Eventually([&] { return ann.heard.size() > kLines * kLength; }));
    EXPECT_EQ(ann.heard.count("\n(Bob: xxx"), kLines);
}

TEST_F(PracticeServerTest, LetsClientsGo) {
    QSignalSpy ended(&server, &PracticeServer::TourEnded);
    auto ann = std::make_unique<Player>(port);
    ann->LogIn("Ann");
    Player again(port);
    again.socket.write("connect ann x\n");
    EXPECT_TRUE(again.IsLetGo());
    EXPECT_TRUE(again.heard.contains("A furre of this name is in the dream already."));
    server.PassSecond();
    server.PassSecond();
    EXPECT_TRUE(ann->IsLetGo());
    EXPECT_TRUE(ann->heard.endsWith("(You have been booted.\n"));
    EXPECT_EQ(ended.count(), 1);
    ann = std::make_unique<Player>(port);
    ann->LogIn("Ann");
}

}  // namespace
