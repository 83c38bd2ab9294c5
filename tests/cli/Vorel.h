#pragma once

#include <QProcess>
#include <csignal>
#include <memory>

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

inline constexpr char kGone[] = "(0:2) when disconnected,\r\n (5:2) note {gone}.\r\n";

/// A folder of bots and the server that `vorel run` leads them to.
class RunBench : public testing::Test {
  protected:
    /// The program, once a new bot has logged in at the server.
    std::unique_ptr<Vorel> Run(const QStringList& arguments, const QString& outputFile = {}) {
        number = server.heard.size();
        const QString port = QString::number(server.listener.serverPort());
        const QStringList all = QStringList{"run", "--server", "127.0.0.1", "--port", port} + arguments;
        auto vorel = std::make_unique<Vorel>(files, all, outputFile);
        EXPECT_TRUE(server.Hears("desc ", number));
        return vorel;
    }

    BotFiles files;
    GameServer server;
    std::size_t number = 0;  ///< of the newest bot at the server
};
