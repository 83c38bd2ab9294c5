// A stand-in for the game's client: it has a window, links to the bot that "proxy.ini" names, logs in and talks. It
// leaves when the server says so or its window is asked to close, and tells its test over a connection of its own, the
// leash.
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <cstdlib>

#include "client/Bench.h"

int main(int count, char* arguments[]) {
    const QCoreApplication application(count, arguments);
    const QSettings character(arguments[1], QSettings::IniFormat);
    QFile proxy("proxy.ini");
    if (count != 2 || !proxy.open(QIODevice::ReadOnly)) return 2;
    const QList<QByteArray> server = proxy.readAll().simplified().split(' ');

    Window window(character.value("class").toByteArray(), character.value("tells").toBool() ? getpid() : 0);
    QTcpSocket leash, link;
    const auto tell = [&](const QByteArray& what) {
        leash.write(what + '\n');
        leash.flush();
    };
    QSocketNotifier display(window.Descriptor(), QSocketNotifier::Read);
    const auto look = [&] {
        display.setEnabled(window.HasDisplay());
        if (!window.IsAskedToClose()) return;
        tell("closed");
        std::_Exit(0);
    };
    QObject::connect(&display, &QSocketNotifier::activated, look);
    leash.connectToHost("127.0.0.1", character.value("leash").value<quint16>());
    if (!leash.waitForConnected()) return 1;
    QObject::connect(&leash, &QTcpSocket::disconnected, [] { std::_Exit(0); });
    QObject::connect(&leash, &QTcpSocket::readyRead, [&] {  // the test asks how the window is
        leash.readAll();
        look();
        tell("open");
    });
    QObject::connect(&link, &QTcpSocket::connected, [&] { link.write("connect Bot|One made-up\n\"Hello!\n"); });
    QObject::connect(&link, &QTcpSocket::disconnected, [&] { tell("unlinked"); });
    QObject::connect(&link, &QTcpSocket::readyRead, [&] {
        const QByteArray heard = link.readAll();
        if (heard.contains("(crash\n")) std::_Exit(1);
        if (heard.contains("(unlink\n")) link.disconnectFromHost();
    });
    link.connectToHost(server[0], server[1].toUShort());
    return QCoreApplication::exec();
}
