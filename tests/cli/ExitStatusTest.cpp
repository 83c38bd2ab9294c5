#include "cli/Vorel.h"
#include "support/Written.h"

namespace {

TEST(ExitStatus, TellsWhatWentWrongInOneLine) {
    const BotFiles files;
    files.WriteBot("bot");
    files.Write("marked.ini", "\xEF\xBB\xBFName=marked\n");
    files.Write("kept.txt", "an evening\n");
    const GameServer taken;
    const QString free = QString::number(FreePort()), inUse = QString::number(taken.listener.serverPort());
    for (const Block& called : BlocksOf("tests/cli/exit-statuses.txt")) {
        QString written = QString::fromStdString(Join(called, "\n"));
        const QStringList lines = written.replace("FREE", free).replace("TAKEN", inUse).split('\n');
        if (lines.first().startsWith("file ")) {
            files.Write(lines.first().mid(5), lines.mid(1).join('\n').toUtf8() + '\n');
            continue;
        }
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
