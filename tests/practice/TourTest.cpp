#include "practice/DreamBench.h"
#include "practice/Tour.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(Tour, NamesTheLineThatIsWrong) {
    const struct {
        const char *text, *fault;
    } cases[] = {
        {"# nothing\n\n", ""},
        {"after 2 Ann arrives\r\nAnn says hi\r\n  after 3 pause", ""},
        {"Ann arrives\nAnn dances", "t.txt, line 2: nobody knows how to do this: Ann dances"},
        {"\nafter two Ann arrives", "t.txt, line 2: after \"after\" comes a number of seconds, 0 to 3600"},
        {"after 5", "t.txt, line 1: something has to happen then, if only \"pause\""},
        {"Ann says hi", "t.txt, line 1: Ann is not there: \"Ann arrives\" or \"wait for Ann\" comes first"},
        {"Ann arrives\nann leaves\nAnn sits",
         "t.txt, line 3: Ann is not there: \"Ann arrives\" or \"wait for Ann\" comes first"},
        {"A:n arrives", "t.txt, line 1: this is no name of a furre: A:n"},
        {"wait for", "t.txt, line 1: a name has to follow, \"|\" in it for a blank"},
        {"Ann arrives\nAnn says", "t.txt, line 2: something has to follow these words"},
        {"Ann arrives\nAnn sits down", "t.txt, line 2: nothing can follow these words"},
        {"Ann arrives\nAnn joins Small Fox", "t.txt, line 2: one name has to follow, \"|\" in it for a blank"},
        {"Ann arrives\nAnn rolls 99d6", "t.txt, line 2: dice are written like 2d6, up to 30 dice of up to 1000 sides"},
        {"Ann arrives\nAnn moves 5",
         "t.txt, line 2: directions are 7 (up left), 9 (up right), 1 (down left) and 3 (down right), such as 993"},
        {"Ann arrives\nAnn goes to bed", "t.txt, line 2: there is no way to a map of this name"},
        {"Ann arrives late", "t.txt, line 1: after \"arrives\" can come \"with badge\" and up to 3 characters"},
        {"open dream Pond at 21 10",
         "t.txt, line 1: this is written like: open dream Small|Pond at 20 10 (the first number even, up to 58; the "
         "second up to 40)"},
    };
    for (const auto& c : cases) EXPECT_EQ(ReadTour(c.text, "t.txt").fault, c.fault) << c.text;
}

TEST(Tour, PlaysItsStepsWhenTheirTimeHasCome) {
    DreamBench bench;
    TourPlayer player(ReadTour("wait for Bot\nAnn arrives\nafter 2 Ann whispers to Bot hi\nBot says well\n"
                               "Bot moves 99\nafter 1 Ann leaves\nboot Bot\nafter 1 pause",
                               "t")
                          .tour,
                      bench.dream);
    player.PassSecond();
    player.PassSecond();
    EXPECT_THAT(bench.Listen(), IsEmpty()) << "waits for the bot";
    const FurreId bot = bench.Client("Rex", "rrrrrrrrrr!!!");
    player.PassSecond();
    EXPECT_THAT(bench.Listen()[bot], testing::SizeIs(1)) << "Ann appears";
    player.PassSecond();
    EXPECT_THAT(bench.Listen(), IsEmpty());
    player.PassSecond();
    EXPECT_THAT(bench.Listen()[bot],
                ElementsAre(testing::StartsWith("]-#A"), "]-#B", "([ Ann whispers, \"hi\" to you. ]",
                            "(You say, \"well\"", "/rrrrrrrrrr * .   * /", "/rrrrrrrrrr + -   * ."));
    player.PassSecond();
    EXPECT_THAT(bench.Listen()[bot], ElementsAre("(You have been booted."));
    EXPECT_FALSE(player.IsOver());
    player.PassSecond();
    EXPECT_TRUE(player.IsOver());
    EXPECT_TRUE(TourPlayer(Tour(), bench.dream).IsOver());
}

}  // namespace
