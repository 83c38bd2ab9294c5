#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QRegularExpression>

#include "cli/Vorel.h"

namespace {

class RunTest : public RunBench {
  protected:
    void ExpectNoPassword(const Vorel& vorel, const QString& recording) const {
        for (const QByteArray& text : {vorel.out, vorel.err, files.Read("log.txt"), files.Read(recording)}) {
            EXPECT_FALSE(text.contains("3t-w0rd")) << text.toStdString();
        }
        EXPECT_TRUE(files.Read(recording).contains("connect bot ********"));
    }
    /// What `vorel try` makes of a recording: its exit status, unless an expectation has failed.
    int Rehearse(const QString& recording) const {
        Vorel rehearsal(files, {"try", "bot.tvm", recording});
        const int status = rehearsal.Ends();
        EXPECT_FALSE(rehearsal.out.contains("failed")) << rehearsal.out.toStdString();
        return status;
    }
};

TEST_F(RunTest, SignalsDisconnectInOrderAndAreRecorded) {
    files.WriteBot("bot", kGone);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const auto vorel = Run({"bot.tvm", "--record", "rec.txt"});
        server.Say("(hello there\n", number);
        ASSERT_TRUE(vorel->Shows("hello there\n"));
        vorel->Signal(signal);
        EXPECT_EQ(vorel->Ends(), 0);
        EXPECT_EQ(vorel->out, "hello there\ngone\n");
    }
    for (const char* recording : {"rec.txt", "rec-2.txt"}) {
        EXPECT_TRUE(files.Read(recording).endsWith("server (hello there\r\nclose\r\n"));
        EXPECT_EQ(Rehearse(recording), 0);
    }
}

TEST_F(RunTest, LeavesNoImageOfItsMemory) {
    rlimit core{};
    getrlimit(RLIMIT_CORE, &core);
    const QRegularExpression none(core.rlim_max == 0 ? "Max core file size +0 +0 " : "Max core file size +1 +1 ");
    files.WriteBot("bot");
    const auto vorel = Run({"bot.tvm"});
    QFile limits("/proc/" + QString::number(vorel->processId()) + "/limits");
    EXPECT_TRUE(limits.open(QIODevice::ReadOnly) && none.match(limits.readAll()).hasMatch());
}

TEST_F(RunTest, TheScriptMayConnectAgainAndTheLastAttemptCounts) {
    files.WriteBot("bot", QByteArray(kGone) + " (5:0) reconnect.");
    const auto vorel = Run({"bot.tvm", "--record", "/dev/full"});
    server.Close();
    ASSERT_TRUE(server.Hears("desc ", 1));
    server.Reset(1);
    EXPECT_EQ(vorel->Ends(), 69);
    EXPECT_EQ(vorel->out.count("gone\n"), 1) << "a broken connection is no event";
    EXPECT_EQ(vorel->err,
              "vorel run: the recording can't be written any more\n"
              "vorel run: bot.tvm: no connection: the connection was broken off\n");
}

TEST_F(RunTest, StaysUntilItIsToldToGo) {
    files.WriteBot("bot", kGone);
    const auto vorel = Run({"bot.tvm", "--stay"});
    server.Say(";in.map\n");
    server.Close();
    ASSERT_TRUE(vorel->Shows("gone\nTrying again in 1 second.\n"));
    vorel->Signal(SIGTERM);
    EXPECT_EQ(vorel->Ends(), 0);
    EXPECT_EQ(vorel->err, "vorel run: bot.tvm: the server has ended the connection\n");
    for (const char* const line : {"([ Ann whispers, \"shut down\" to you. ]\n", "(You have been booted.\n"}) {
        const auto sent = Run({"bot.tvm", "--stay"});
        server.Say(QByteArray("]-#B65\n") + line, number);
        EXPECT_EQ(sent->Ends(), 0) << line;
    }
    const auto down = Run({"bot.tvm", "--stay", "--log", "log.txt"});
    server.Say("]f\n", number);
    EXPECT_TRUE(Eventually([&] { return down->err.contains("bot.tvm: beginning again in 1 second\n"); }));
    down->Signal(SIGTERM);
    EXPECT_EQ(down->Ends(), 0);
    EXPECT_TRUE(files.Read("log.txt").contains("bot.tvm: beginning again in 1 second\n"));
}

TEST_F(RunTest, LogsWithTimesAndWithoutThePassword) {
    const QByteArray password = kPassword,
                     trigger = "(0:46) told,\r\n (5:15) of {" + password + "}\r\n (5:2) {no " + password + "}";
    files.WriteBot("bot", trigger);
    for (const char* recording : {"rec.txt", "rec-2.txt"}) {
        const auto vorel = Run({"bot.tvm", "--quiet", "--log", "log.txt", "--record", "rec.txt"});
        for (const char* typed : {"`connect bot ", "connect bot ", "\"connect bot ", ":connect bot ", "/Ann it is "}) {
            vorel->write(typed + password + "\n");
        }
        vorel->write("\"&now\n");
        ASSERT_TRUE(server.Hears("desc " + password, number));
        server.Say("(caf\xE9 \x1B[2J " + password + "\n]f\n", number);
        EXPECT_EQ(vorel->Ends(), 70);
        EXPECT_EQ(vorel->out, "");
        EXPECT_EQ(vorel->err.contains("rec.txt holds something; recording to rec-2.txt\n"),
                  recording != QString("rec.txt"));
        ExpectNoPassword(*vorel, recording);
        for (const QString name : {recording, "log.txt"}) {
            EXPECT_FALSE(QFile::permissions(files.Path(name)) & QFile::Permissions(0x77)) << "others may do nothing";
        }
        EXPECT_TRUE(files.Read(recording).contains("]f\r\n# Invalid procedure call")) << "the fault";
        EXPECT_EQ(Rehearse(recording), 3);
    }
    const QString log = QString::fromUtf8(files.Read("log.txt")), time = "\\d{4}(-\\d\\d){2} \\d\\d(:\\d\\d){2} ";
    const QString fault = "Invalid procedure call: the game's line \"\\]f\" is shorter .* --keep-split-lines .*\n";
    const QString run = time + "no \\*{8}\n" + time + "café  \\[2J \\*{8}\n" + time + fault;
    EXPECT_TRUE(QRegularExpression("^(" + run + "){2}$").match(log).hasMatch()) << log.toStdString();
}

TEST_F(RunTest, ClientModeRelaysAndKeepsThePasswordToo) {
    files.Write("client.sh", R"(#!/bin/bash
read -r host port < proxy.ini
exec 3<> "/dev/tcp/127.0.0.1/${port%$'\r'}"
printf 'nodesc 1\nconnect bot s3cr' >&3
read -r line <&3
printf '3t-w0rd\nconnect bot s3cr3t-w0rd\ndesc of %s\n' "${1##*/}" >&3
while read -r line <&3; do [ "$line" = '(any news?' ] && printf '"none\n' >&3; done
)");
    files.WriteBot("bot", kGone, "ConnectClient=1\nFurcadiaClient=client.sh");
    const auto vorel = Run({"bot.tvm", "--log", "log.txt", "--record", "rec.txt"});
    server.Say("(by now the first half of a login is read, and lost with its packet\n");
    EXPECT_TRUE(server.Hears("connect bot s3cr3t-w0rd\n") && server.Hears("desc of bot.ini [Tandry Vorel]\n"));
    server.Say("(any news?\n");
    EXPECT_TRUE(server.Hears("\"none\n"));
    server.Close();
    EXPECT_EQ(vorel->Ends(), 69);
    EXPECT_TRUE(vorel->out.endsWith("any news?\ngone\n")) << vorel->out.toStdString();
    ExpectNoPassword(*vorel, "rec.txt");
    EXPECT_EQ(Rehearse("rec.txt"), 0) << "lines of one packet, some passed on, some answered";
}

TEST_F(RunTest, SeveralBotsShareTheTerminal) {
    files.WriteBot("First");
    files.WriteBot("Second|Cat");
    const auto vorel = Run({"First.tvm", "Second|Cat.tvm", "--keep-split-lines"});
    ASSERT_TRUE(server.Hears("desc ", 1));
    const std::size_t second = server.heard[1].contains("connect Second|Cat ") ? 1 : 0, first = 1 - second;
    vorel->write("@second|cat /Ann meow\n@nobody is here\n:waves\n`who\nlast");
    vorel->closeWriteChannel();
    EXPECT_TRUE(server.Hears("\nwh Ann meow\n", second));
    EXPECT_TRUE(server.Hears("]\n\"@nobody is here\n:waves\nwho\n\"last\n", first));
    server.Say("(for first\n(cut", first);
    ASSERT_TRUE(vorel->Shows("[First] for first\n")) << "by now the packet has been read";
    server.Say(" in two\n", first);
    EXPECT_TRUE(vorel->Shows("[First] cut in two\n"));
    server.Close(first);
    server.Say("(for second\n", second);
    EXPECT_TRUE(vorel->Shows("[Second Cat] for second\n"));
    server.Close(second);
    EXPECT_EQ(vorel->Ends(), 69);
}

TEST_F(RunTest, AFaultEndsItsBotAloneWhichBeginsAgainWhenItIsToStay) {
    files.WriteBot("Keeper");
    files.WriteBot("First", {}, "FurcadiaCharacter=Keeper.ini\n");
    files.WriteBot("Second");
    const quint16 port = server.listener.serverPort();
    const QByteArray fault = "[Keeper] Invalid procedure call: the game's line \"]f\" is shorter than";
    for (const bool stays : {false, true}) {
        QStringList arguments{"Second.tvm", "First.tvm"};
        const auto vorel = Run(stays ? arguments << "--stay" : arguments);
        ASSERT_TRUE(server.Hears("desc ", number + 1));
        const std::size_t first = number + (server.heard[number].contains("connect Keeper ") ? 0 : 1);
        const std::size_t second = 2 * number + 1 - first;
        server.listener.close();
        server.Say("]f\n", first);
        EXPECT_TRUE(server.Hears("<end>", first));
        EXPECT_TRUE(Eventually([&] { return !stays || vorel->err.contains("First.tvm: no connection"); }));
        vorel->write("@Keeper a secret\n@Second heard\n");
        EXPECT_TRUE(server.Hears("\"heard\n", second));
        EXPECT_FALSE(server.heard[second].contains("secret")) << "down, or begun again and not yet logged in";
        EXPECT_NE(vorel->err.contains("Keeper is down by a fault; nobody has heard what you typed for it\n"), stays);
        server.listener.listen(QHostAddress::LocalHost, port);
        EXPECT_TRUE(!stays || server.Hears("connect Keeper ", number + 2));
        stays ? vorel->Signal(SIGTERM) : server.Close(second);
        EXPECT_EQ(vorel->Ends(), stays ? 0 : 70);
        EXPECT_TRUE(vorel->err.startsWith("vorel run: " + fault)) << vorel->err.toStdString();
        EXPECT_EQ(vorel->err.contains("vorel run: First.tvm: beginning again in 1 second\n"), stays);
    }
}

TEST_F(RunTest, RefusesMoreBotsThanItMayHaveConnections) {
    const QString refusal =
        "vorel run: 5 bots take 42 open files and connections, 2 each and some for the program, but a program may have "
        "41 here. Raise that limit (\"ulimit -n 42\" in the shell, LimitNOFILE=42 in a unit of systemd), or run fewer "
        "bots at a time.\n";
    for (const auto& [limit, status, said] :
         {std::tuple{"-n 41", 64, refusal}, {"-Sn 41", 66, "vorel run: there is no profile nobody.tvm\n"}}) {
        QProcess shell;
        shell.setWorkingDirectory(files.Path());
        shell.start("sh", {"-c", QString("ulimit %1; exec \"$0\" run%2").arg(limit, QString(" nobody.tvm").repeated(5)),
                           VOREL_PROGRAM});
        EXPECT_TRUE(shell.waitForFinished());
        EXPECT_EQ(shell.exitCode(), status);
        EXPECT_EQ(shell.readAllStandardError(), said);
    }
}

TEST_F(RunTest, WalksThePracticeDreamAndRehearsesTheRecording) {
    const QString greeter = QStringLiteral(TVOREL_SOURCE_DIR "/examples/greeter/greeter.tvm");
    files.Write("tour.txt",
                "wait for Greeter\nAnn arrives\nAnn whispers to Greeter hello\nAnn whispers to Greeter roll\n"
                "Ann whispers to Greeter remember tea\nafter 1 Ann leaves\n");
    Vorel run(files, {"run", greeter, "--practice", "--tour", "tour.txt", "--record", "rec.txt"});
    EXPECT_EQ(run.Ends(), 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.contains("Ann whispers, \"hello\"")) << run.out.toStdString();
    EXPECT_TRUE(files.Read("memories.ini").contains("tea"));

    Vorel rehearsal(files, {"try", greeter, "rec.txt"});
    EXPECT_EQ(rehearsal.Ends(), 0) << rehearsal.out.toStdString();
    EXPECT_TRUE(rehearsal.out.contains("sent wh Ann Hello, Ann!"));
}

TEST_F(RunTest, ManyBotsAnswerInOneDream) {
    constexpr int kBots = 60;
    QStringList arguments{"run", "--practice", "--tour", "tour.txt", "--keep-split-lines"};
    QByteArray awaited, whispers;
    for (int n = 1; n <= kBots; ++n) {
        const QByteArray name = "Bot" + QByteArray::number(n);
        files.WriteBot(name, "(0:6) whispered,\r\n (5:12) whisper {hello}", "Maps=Practice Dream");
        arguments << name + ".tvm";
        awaited += "wait for " + name + "\n";
        whispers += "Ann whispers to " + name + " hello\n";
    }
    files.Write("tour.txt", awaited + "Ann arrives\n" + whispers + "wait for Nobody\n");
    Vorel run(files, arguments);
    EXPECT_TRUE(Eventually([&] { return run.out.count("] [ You whisper \"hello\" to Ann. ]\n") == kBots; }));
    run.Signal(SIGTERM);
    EXPECT_EQ(run.Ends(), 0) << run.err.toStdString();
}

}  // namespace
