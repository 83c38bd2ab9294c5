#pragma once

#include <QProcess>
#include <csignal>

#include "support/BotFiles.h"
#include "support/GameServer.h"

/// The program itself, started with arguments in a folder.
class Vorel : public QProcess {
  public:
    Vorel(const BotFiles& files, const QStringList& arguments) {
        setWorkingDirectory(files.Path());
        connect(this, &QProcess::readyReadStandardOutput, [this] { out += readAllStandardOutput(); });
        connect(this, &QProcess::readyReadStandardError, [this] { err += readAllStandardError(); });
        start(VOREL_PROGRAM, arguments);
    }
    bool Shows(const QByteArray& text) {
        return Eventually([&] { return out.contains(text); });
    }
    void Signal(int signal) { ::kill(static_cast<pid_t>(processId()), signal); }

    /// The exit status; -1 when it crashed or never ended.
    int Ends() {
        return Eventually([this] { return state() == NotRunning; }) && exitStatus() == NormalExit ? exitCode() : -1;
    }

    QByteArray out, err;
};
