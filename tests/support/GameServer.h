#pragma once

#include <sys/socket.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <deque>
#include <vector>

/// Lets the event loop run until something holds, for a time that is long even on a busy computer.
template <typename Condition>
bool Eventually(Condition holds) {
    return QTest::qWaitFor(holds, 60000);
}

/// A game server on this computer: it hears what bots send, "<end>" when one is gone, and says what the test wants.
class GameServer {
  public:
    GameServer() {
        listener.listen(QHostAddress::LocalHost);
        QObject::connect(&listener, &QTcpServer::newConnection, &listener, [this] {
            QByteArray& bytes = heard.emplace_back();
            QTcpSocket* const bot = bots.emplace_back(listener.nextPendingConnection());
            QObject::connect(bot, &QTcpSocket::readyRead, bot, [bot, &bytes] { bytes += bot->readAll(); });
            QObject::connect(bot, &QTcpSocket::disconnected, bot, [&bytes] { bytes += "<end>"; });
        });
    }
    bool Hears(const QByteArray& text, std::size_t bot = 0) {
        return Eventually([&] { return bot < heard.size() && heard[bot].contains(text); });
    }
    /// Says it in one packet, when it is short.
    void Say(const QByteArray& text, std::size_t bot = 0) {
        bots[bot]->write(text);
        bots[bot]->flush();
    }
    void Close(std::size_t bot = 0) { bots[bot]->disconnectFromHost(); }
    /// Breaks the connection off.
    void Reset(std::size_t bot = 0) {
        const linger atOnce{1, 0};
        ::setsockopt(static_cast<int>(bots[bot]->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        bots[bot]->abort();
    }

    std::deque<QByteArray> heard;  ///< from each bot, in the order in which they came
    std::vector<QTcpSocket*> bots;
    QTcpServer listener;
};

/// A port of this computer on which nobody listens.
inline quint16 FreePort() { return GameServer().listener.serverPort(); }
