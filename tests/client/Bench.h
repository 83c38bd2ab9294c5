#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QProcess>
#include <csignal>

#include "support/GameServer.h"

// What stands around a bot in client mode: a display, and the client's end of the test.

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
    /// From now on there is none; under its number another test's may come up.
    void End() {
        qunsetenv("DISPLAY");
        server_.kill();
        server_.waitForFinished();
    }

  private:
    QProcess server_;
};

/// A stand-in client as the test leads it.
class Leash : public GameServer {
  public:
    /// The character file for it.
    /// @param more  further settings of the stand-in
    QByteArray Character(const QByteArray& more) const {
        return "name=Bot|One\npassword=made-up\nleash=" + QByteArray::number(listener.serverPort()) + "\n" + more +
               "\n";
    }
    bool Does(const QByteArray& order) {
        Say(order + '\n');
        return Hears("done " + order + '\n');
    }
    bool IsLeftAlone() { return Does("look around") && !heard[0].contains("asked to close"); }
};
