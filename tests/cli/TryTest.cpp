#include <unistd.h>

#include <QDir>
#include <memory>

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

TEST(Try, KeepsScriptsFromTheCharacterByWhateverName) {
    const BotFiles files;
    // Behind a section, where other files may hold such an entry; and named only after the script is loaded.
    const QByteArray character = "[x]\nName=bot\nPassword=s3cr3t-w0rd\n";
    files.Write("bot.ini", character);
    files.Write("Client", "");
    files.Write("bot.vs", ScriptText("(0:0) loaded,\r\n(5:74) from {x} of {Bot} read {password} {a}\r\n"
                                     "(5:77) from {x} of {soft} into {a}\r\n(5:91) from {x} of {hard} into {a}\r\n"
                                     "(5:73) in {x} of {hard} under {name} write {mine}\r\n"
                                     "(5:76) add {localhost 6000} to {} of {proxy}\r\n(5:2) note {got [a]}"));
    files.Write("bot.tvm", "[General]\nFurcadiaClient=Client\nScript=bot.vs\nFurcadiaCharacter=BOT.INI\n");
    ASSERT_TRUE(QFile::link("bot.ini", files.Path("soft.ini")));
    ASSERT_EQ(::link(qPrintable(files.Path("bot.ini")), qPrintable(files.Path("hard.ini"))), 0);
    Vorel vorel(files, {"try", "bot.tvm", "/dev/null"});
    EXPECT_EQ(vorel.Ends(), 0);
    EXPECT_EQ(vorel.out.count("scripts can't open"), 5) << vorel.out.toStdString();
    EXPECT_TRUE(vorel.out.contains("bot.vs, line 3: scripts can't open bot.ini") && vorel.out.contains("got [a]"));
    EXPECT_EQ(files.Read("bot.ini"), character);
    EXPECT_FALSE(QFile::exists(files.Path("proxy.ini")));
}

TEST(Try, SeveralProgramsLoseNoEntryOfASharedFolder) {
    const BotFiles files;
    constexpr int kPrograms = 3, kEntries = 60;
    files.WriteBot("bot", "(0:46) told,\r\n (5:76) add {[message]} to {all} in {shared}.");
    std::vector<std::unique_ptr<Vorel>> programs;
    for (int i = 0; i < kPrograms; ++i) {
        auto& program = *programs.emplace_back(new Vorel(files, {"try", "bot.tvm", "-"}));
        for (int n = 0; n < kEntries; ++n) program.write(QByteArray("type \"&") + QByteArray::number(i) + "\n");
    }
    for (const auto& program : programs) program->closeWriteChannel();
    for (const auto& program : programs) EXPECT_EQ(program->Ends(), 0) << program->err.toStdString();
    EXPECT_EQ(files.Read("shared.ini").count("\r\n"), 1 + kPrograms * kEntries);
}

}  // namespace
