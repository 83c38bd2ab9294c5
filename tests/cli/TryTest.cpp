#include <QDir>

#include "cli/Vorel.h"
#include "support/Written.h"

namespace {

const QString kSession = TVOREL_SOURCE_DIR "/tests/sessions/instructions";

TEST(Try, PrintsWhatIsToldInAPlayedSession) {
    const BotFiles files;
    Vorel vorel(files, {"try", kSession + ".tvm", kSession + ".txt", "--now", "2003-02-01 13:05:09"});
    EXPECT_EQ(vorel.Ends(), 1) << "some of its expectations are not met";
    EXPECT_EQ(vorel.out.toStdString(), ReadSource("tests/sessions/instructions.out"));
}

TEST(Try, TakesASessionFromItsInputAndKeepsDataInAFolder) {
    const BotFiles files;
    QDir(files.Path()).mkdir("data");
    files.WriteBot("bot", "(0:46) told,\r\n (5:76) add {[message]} to {words} in {book}.\r\n (5:2) note {[message]}.");
    Vorel vorel(files, {"try", "bot.tvm", "-", "--folder", "data", "--seed", "7"});
    vorel.write("type \"&caf\xE9\r\n");
    vorel.closeWriteChannel();
    EXPECT_EQ(vorel.Ends(), 0);
    EXPECT_EQ(vorel.out, "console caf\xE9\n");
    EXPECT_EQ(files.Read("data/book.ini"), "[words]\r\ncaf\xE9\r\n");
}

}  // namespace
