#include "cli/Vorel.h"
#include "support/Written.h"

namespace {

TEST(ExitStatus, TellsWhatWentWrongInOneLine) {
    const BotFiles files;
    files.WriteBot("bot");
    files.WriteBot("large", "", "Port=32768\n");
    files.WriteBot("faulty", "(0:0) loaded,\r\n (5:68) {n} and store {5}\r\n (5:72) {n} by {0}");
    files.Write("homeless.tvm", "[General]\nOwners=Ann\n");
    files.WriteBot("told", "(0:46) told,\r\n (5:2) note }{");
    files.WriteBot("marked");
    files.Write("marked.ini", "\xEF\xBB\xBFName=marked\n");
    files.Write("told.txt", "type \"&go\n");
    files.Write("cut.txt", "connect\nserver ([ hello to you. ]\n");
    files.Write("bad.txt", "connect\nnonsense\n");
    files.Write("kept.txt", "an evening\n");
    const GameServer taken;
    const QString free = QString::number(FreePort()), inUse = QString::number(taken.listener.serverPort());
    for (const Block& called : BlocksOf("tests/cli/exit-statuses.txt")) {
        QString written = QString::fromStdString(Join(called, "\n"));
        const QStringList lines = written.replace("FREE", free).replace("TAKEN", inUse).split('\n');
        QStringList arguments = lines.first().split(' ').mid(1);
        Vorel vorel(files, arguments.replaceInStrings("_", " "));
        EXPECT_EQ(vorel.Ends(), lines.last().toInt()) << called[0];
        QString said = lines.size() > 2 ? lines[1] + '\n' : "";
        EXPECT_TRUE(vorel.err.startsWith(said.remove("...\n").toUtf8()))
            << called[0] << ": " << vorel.err.toStdString();
        EXPECT_EQ(vorel.err.count('\n'), lines.size() - 2) << vorel.err.toStdString();
    }
    EXPECT_EQ(files.Read("kept.txt"), "an evening\n") << "no recording, and nothing else, is given up for a run";
    EXPECT_FALSE(QFile::exists(files.Path("new.txt")) || QFile::exists(files.Path("kept-2.txt"))) << "that can't begin";
}

}  // namespace
