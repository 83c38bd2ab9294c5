#include <gmock/gmock.h>

#include "cli/Vorel.h"

namespace {

struct StatusCase {
    const char* arguments;  ///< FREE stands for a port on which nobody listens, TAKEN for one that is in use
    int status;
    const char* error;  ///< what the one line on standard error begins with; empty for no line
};

constexpr StatusCase kCases[] = {
    {"", 64, "vorel: A subcommand is required"},
    {"dance", 64, "vorel: there is no verb \"dance\""},
    {"run", 64, "vorel run: PROFILE is required"},
    {"run bot.tvm --server 127.0.0.1 --port 70000", 64, "vorel run: --port"},
    {"run bot.tvm --practice --port 4", 64, "vorel run: --practice excludes --port"},
    {"run bot.tvm bot.tvm --record kept.txt", 64, "vorel run: --record records one bot, not 2\n"},
    {"run bot.tvm --practice --tour bad.txt", 64, "vorel run: bad.txt"},
    {"run nobody.tvm --record kept.txt", 66, "vorel run: there is no profile nobody.tvm\n"},
    {"run bot.tvm --server 127.0.0.1 --port FREE", 69, ""},
    {"run large.tvm --record kept.txt", 70, "vorel run: Overflow, at large.tvm line 5\n"},
    {"run faulty.tvm", 70, "vorel run: Division by zero, at faulty.vs line 4\n"},
    {"run bot.tvm --log no/such/folder", 73, "vorel run: the log no/such/folder can't be written\n"},
    {"run homeless.tvm", 78, "vorel run: homeless.tvm: Invalid Selection: Select a valid Furcadia character"},
    {"try bot.tvm", 2, "vorel try: SESSION is required"},
    {"try nobody.tvm bad.txt", 2, "vorel try: there is no profile nobody.tvm\n"},
    {"try bot.tvm nothing.txt", 2, "vorel try: the session nothing.txt can't be read\n"},
    {"try bot.tvm bad.txt", 2, "vorel try: bad.txt, line 2: there is no instruction \"nonsense\"\n"},
    {"try bot.tvm /dev/null --now 2024-02-30_00:00:00", 2, "vorel try: --now wants"},
    {"try faulty.tvm /dev/null", 3, "vorel try: Division by zero, at faulty.vs line 4\n"},
    {"practice --port 70000", 64, "vorel practice: Could not convert: --port = 70000"},
    {"practice --port TAKEN", 69, "vorel practice: port TAKEN: The bound address is already in use\n"},
};

TEST(ExitStatus, TellsWhatWentWrongInOneLine) {
    const BotFiles files;
    files.WriteBot("bot");
    files.WriteBot("large", "", "Port=32768\n");
    files.WriteBot("faulty", "(0:0) loaded,\r\n (5:68) {n} and store {5}\r\n (5:72) {n} by {0}");
    files.Write("homeless.tvm", "[General]\nOwners=Ann\n");
    files.Write("bad.txt", "connect\nnonsense\n");
    files.Write("kept.txt", "an evening\n");
    const GameServer taken;
    const QString free = QString::number(FreePort()), inUse = QString::number(taken.listener.serverPort());
    for (const StatusCase& c : kCases) {
        QStringList arguments =
            QString(c.arguments).replace("FREE", free).replace("TAKEN", inUse).split(' ', Qt::SkipEmptyParts);
        Vorel vorel(files, arguments.replaceInStrings("_", " "));
        EXPECT_EQ(vorel.Ends(), c.status) << c.arguments;
        const QByteArray wanted = QString(c.error).replace("TAKEN", inUse).toUtf8();
        EXPECT_TRUE(vorel.err.startsWith(wanted)) << c.arguments << " said: " << vorel.err.toStdString();
        EXPECT_EQ(vorel.err.count('\n'), wanted.isEmpty() ? 0 : 1) << vorel.err.toStdString();
    }
    EXPECT_EQ(files.Read("kept.txt"), "an evening\n") << "no recording is given up for a run that can't begin";
}

}  // namespace
