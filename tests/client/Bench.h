#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QFile>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/FrontEnd.h"
#include "platform/QtHost.h"
#include "support/GameServer.h"
#include "text/Fault.h"

// What stands around a bot in client mode: a display, a game server, the client's end of the test, and the user's eyes.

/// An X11 display that nobody sees, and that programs started from here use.
class HiddenDisplay {
  public:
    HiddenDisplay() {
        server_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "320x240x24", "-nolisten", "tcp", "-noreset"});
        QByteArray number;
        while (!number.endsWith('\n') && server_.waitForReadyRead()) number += server_.readAll();
        EXPECT_FALSE(number.isEmpty()) << "Xvfb: " << server_.errorString().toStdString();
        qputenv("DISPLAY", ":" + number.trimmed());
    }
    ~HiddenDisplay() { End(); }
    void End() {
        server_.kill();
        server_.waitForFinished();
    }

  private:
    QProcess server_;
};

/// One end of a connection on this computer, with what came in line by line.
class Line {
  public:
    Line() { listener_.listen(QHostAddress::LocalHost); }

    /// Forgets the connection, for another one to take its place.
    void Restart() {
        delete std::exchange(socket_, nullptr);
        lines_.clear();
    }
    quint16 Port() const { return listener_.serverPort(); }
    bool IsUp() { return Socket() && Socket()->state() == QAbstractSocket::ConnectedState; }
    void Write(const QByteArray& text) { Socket()->write(text); }
    void Close() { Socket()->disconnectFromHost(); }
    bool Holds(const char* line) {
        if (Socket()) {
            while (socket_->canReadLine()) lines_.push_back(socket_->readLine().chopped(1));
        }
        return lines_.contains(line);
    }
    bool Hears(const char* line) {
        return Eventually([&] { return Holds(line); });
    }
    bool Ends() {
        return Eventually([&] { return socket_ && !IsUp(); });
    }

  private:
    QTcpServer listener_;
    QTcpSocket* socket_ = nullptr;
    QByteArrayList lines_;

    QTcpSocket* Socket() {
        if (!socket_) socket_ = listener_.nextPendingConnection();
        return socket_;
    }
};

/// A stand-in client as the test leads it.
class Leash : public Line {
  public:
    /// The character file for it.
    /// @param more  further settings of the stand-in
    QByteArray Character(const QByteArray& more) const {
        return "name=Bot|One\npassword=made-up\nleash=" + QByteArray::number(Port()) + "\n" + more + "\n";
    }
    bool Does(const QByteArray& order) {
        Write(order + '\n');
        return Hears(("done " + order).constData());
    }
    bool IsLeftAlone() { return Does("look around") && !Holds("asked to close"); }
};

class Notebook final : public FrontEnd {
  public:
    std::vector<std::string> lines;

    void ShowConsoleLine(std::string_view line) override { lines.emplace_back(line); }
    void ClearConsole() override { lines.clear(); }
    void ShowMessage(std::string_view, std::string_view text) override { ADD_FAILURE() << text; }
    void StatusChanged() override {}
    void EndWithFault(const RuntimeFault& fault) override { ADD_FAILURE() << fault.Name(); }

    std::ptrdiff_t Count(std::string_view part) const {
        const auto holds = [&](const std::string& line) { return line.find(part) != std::string::npos; };
        return std::count_if(lines.begin(), lines.end(), holds);
    }
};
