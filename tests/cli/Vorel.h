#pragma once

#include <QProcess>
#include <csignal>

#include "support/BotFiles.h"
#include "support/GameServer.h"

/// The program itself, started with arguments in a folder. `out` is what it prints, unless that goes into a file.
class Vorel : public QProcess {
  public:
    Vorel(const BotFiles& files, const QStringList& arguments, const QString& outputFile = {}) {
        setWorkingDirectory(files.Path());
        if (!outputFile.isEmpty()) setStandardOutputFile(outputFile);
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
