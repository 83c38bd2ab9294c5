#include <gmock/gmock.h>

#include <QDir>

#include "cli/Vorel.h"

namespace {

constexpr char kTriggers[] =
    "(0:0) loaded,\r\n (5:2) note {loaded}.\r\n"
    "(0:6) whisper,\r\n (5:47) let them come.\r\n (5:76) add the line {[message]} to {words} in {book}.\r\n"
    "(0:45) every {3} seconds,\r\n (5:91) of {words} in {book} take a line into {drawn}.\r\n";

constexpr char kSession[] =
    "# an evening\r\n\nconnect\nexpect connect bot s3cr3t-w0rd\nlink\nserver ([ Ann whispers, \"caf\xE9\" to you. ]\n"
    "client wh Ann bye\ntype /Ann typed\ntick 3\nshow [drawn] at [time] on [date]\nexpect-nothing\nevent 1\n";

constexpr char kTold[] =
    "console loaded\n"
    "sent connect bot s3cr3t-w0rd\nsent color cccccccccc!\"!\nsent \nsent desc A bot [Tandry Vorel]\n"
    "sent summon Ann\nconsole [ Ann whispers, \"caf\xE9\" to you. ]\nclient ([ Ann whispers, \"caf\xE9\" to you. ]\n"
    "sent wh Ann bye\nsent wh Ann typed\nshow caf\xE9 at 7:05:09 PM on 5/1/2024\n"
    "failed 11: expected nothing more, but \"color cccccccccc!\"!\" was sent\n"
    "console loaded\nclient ]-#Acccccccccc!\"!\nclient (Tandry Vorel: loaded\n";

TEST(Try, PrintsWhatTheBotDoes) {
    const BotFiles files;
    files.WriteBot("bot", kTriggers);
    QDir(files.Path()).mkdir("data");
    Vorel vorel(files, {"try", "bot.tvm", "-", "--now", "2024-05-01 19:05:09", "--seed", "7", "--folder", "data"});
    vorel.write(kSession);
    vorel.closeWriteChannel();
    EXPECT_EQ(vorel.Ends(), 1);
    EXPECT_EQ(vorel.out, kTold);
    EXPECT_EQ(files.Read("data/book.ini"), "[words]\r\ncaf\xE9\r\n");
}

}  // namespace
