#include "practice/DreamBench.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::ValuesIn;

namespace {

const std::string kAnnLooks = "aaaaaaaaaa\"!#", kBobLooks = "bbbbbbbbbb!!!";
const std::string kAboutAnn = "]-#A" + kAnnLooks, kAboutBob = "]-#A" + kBobLooks, kNoBadge = "]-#B";
const std::string kAsksToJoin =
    "([*] Ann|Fur requests permission to join your company. To accept the request, type `summon and press <enter>. To "
    "decline, type `decline and press <enter>";
const std::string kInvites =
    "([*] Ann|Fur asks you to join his / her company. To accept the request, type `join and press <enter>. To decline, "
    "type `decline and press <enter>";

struct Case {
    const char* name;
    Lines said;  ///< by Ann; by Bob where the line begins with "Bob> "
    Lines annHears, bobHears;
};

// Ann and Bob stand at (20,15), which the protocol writes as " *" and " /".
// clang-format off
const Case kCases[] = {
    {"Speech", {"\"hi: there"}, {"(You say, \"hi: there\""}, {kAboutAnn, kNoBadge, "(Ann|Fur: hi: there"}},
    {"SpeechLikeACommand", {"\"looking"}, {"(You say, \"looking\""}, {kAboutAnn, kNoBadge, "(Ann|Fur: looking"}},
    {"EmptySpeech", {"\"", ":", "-"}, {}, {}},
    {"Shout", {"-hey"}, {"(You shout, \"hey\""}, {kAboutAnn, kNoBadge, "({S} Ann|Fur shouts: hey"}},
    {"Emote", {":waves"}, {kAboutAnn, kNoBadge, "(Ann|Fur waves"}, {kAboutAnn, kNoBadge, "(Ann|Fur waves"}},
    {"Whisper", {"wh bob a b"}, {kAboutBob, kNoBadge, "([ You whisper \"a b\" to Bob. ]"},
      {kAboutAnn, kNoBadge, "([ Ann|Fur whispers, \"a b\" to you. ]"}},
    {"WhisperToNobody", {"wh Some|One hi"}, {"(* Player Some|One is not currently here."}, {}},
    {"Emit", {"\"emit boo"}, {"([#] boo"}, {"([#] boo"}},
    {"LookByName", {"\"look ann fur"}, {"]f" + kAnnLooks + "Ann|Fur", "(> I am Ann|Fur"}, {}},
    {"LookAtSquare", {"l  * /"}, {"]f" + kBobLooks + "Bob", "(> I am Bob"}, {}},
    {"LookAtEmptySquare", {"l  * 0"}, {"(* There is nobody to look at."}, {}},
    {"LookAtNoSquare", {"l", "l \xff\xff\xff\xff", "l  * "}, {}, {}},
    {"Who", {"who"}, {"(* Current players: Ann|Fur, Bob", "(* 2 players in the dream of Practice|Dream."}, {}},
    {"Online", {"onln BOB", "onln Some One"}, {"]%1Bob", "]%0Some|One"}, {}},
    {"Time", {"\"time"}, {"(* Furcadia Standard Time: 7:05:09PM"}, {}},
    {"EachDie", {"\"roll 3d6"}, {"([*] Ann|Fur rolls 3d6 and throws: ((1) (2) (3)) = 6."},
      {"([*] Ann|Fur rolls 3d6 and throws: ((1) (2) (3)) = 6."}},
    {"SumOfDice", {"\"ROLL 2d6"}, {"([*] Ann|Fur rolls 2d6 & gets 3."}, {"([*] Ann|Fur rolls 2d6 & gets 3."}},
    {"NoDice", {"\"roll 31d6", "\"roll 0d6", "\"roll -1d6", "\"ROLL 2x6", "\"roll 2d6x"},
      Lines(5, "(* Dice are written like 2d6: up to 30 dice of up to 1000 sides."), {}},
    {"Cookies", {"\"make-cookie Bob be well", "Bob> \"give-cookie Ann Fur", "Bob> \"eat-cookie", "\"eat-cookie"},
      {"([%] Ann|Fur has given Bob a cookie.", "([%] Bob has given Ann|Fur a cookie.",
      "([%] Your cookie tastes of honey."}, {"([%] Ann|Fur has given Bob a cookie.", "([%] Your cookie says: be well",
      "([%] Bob has given Ann|Fur a cookie.", "([%] Your cookie jar is empty."}},
    {"JoinAccepted", {"join Bob", "Bob> summon"}, {"([*] Your request has been sent to Bob",
      "([*] Bob has accepted your request.", "([*] Bob summons you.", "/aaaaaaaaaa * 0   * /"}, {kAsksToJoin,
      "([*] Ann|Fur joins you.", "/aaaaaaaaaa * 0   * /"}},
    {"InvitationAccepted", {"summon Bob", "Bob> join Ann|Fur"}, {"([*] Your request has been sent to Bob",
      "([*] Bob has accepted your request.", "([*] Bob joins you.", "/bbbbbbbbbb * 0   * /"}, {kInvites,
      "([*] Ann|Fur summons you.", "/bbbbbbbbbb * 0   * /"}},
    {"Declined", {"summon Bob", "Bob> decline", "Bob> decline"}, {"([*] Your request has been sent to Bob",
      "([*] Bob has declined your request."}, {kInvites, "(* You have declined the request of Ann|Fur",
      "(* Nobody has asked you."}},
    {"OneselfAskedOrNobody", {"summon ann|fur", "join Ann|Fur", "join Zed", "summon"},
      {"(* You cannot summon yourself.", "(* There is no joining oneself.", "(* Player Zed is not currently here.",
      "(* Nobody has asked you."}, {}},
    {"BreathAndFlame", {"breath", "flame"}, {"]va * /", "]vb * /"}, {"]va * /", "]vb * /"}},
    {"Postures", {"sit", ">", "stand", "<", "<"}, {"/aaaaaaaaaa * / $    ", "/aaaaaaaaaa * / %    ",
      "/aaaaaaaaaa * / !    ", "/aaaaaaaaaa * /      ", "/aaaaaaaaaa * / #    "}, {"/aaaaaaaaaa * / $    ",
      "/aaaaaaaaaa * / %    ", "/aaaaaaaaaa * / !    ", "/aaaaaaaaaa * /      ", "/aaaaaaaaaa * / #    "}},
    {"StepsOntoTrigger", {"m 7", "use"}, {"/aaaaaaaaaa ) .   * /", "6 * / ) . ! ) .", "6 ) . ) . ! ) ."},
      {"/aaaaaaaaaa ) .   * /", "7 * / ) . ! ) .", "7 ) . ) . ! ) ."}},
    {"NoDirections", {"m 0", "m 5", "m", "m 77", "m x"}, {}, {}},
    {"UnknownLines", {"xyzzy", "shield", " ", "unload all", "\"desctags", "connect Ann x"}, {}, {}},
    {"ControlCharacters", {"\"a\x1b[2Jb\r"}, {"(You say, \"a[2Jb\""}, {kAboutAnn, kNoBadge, "(Ann|Fur: a[2Jb"}},
};
// clang-format on

class DreamCommand : public testing::TestWithParam<Case> {};

TEST_P(DreamCommand, IsHeardExactly) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann|Fur", kAnnLooks), bob = bench.Client("Bob", kBobLooks);
    bench.Listen();
    for (const std::string& line : GetParam().said) {
        const bool byBob = line.starts_with("Bob> ");
        bench.dream.Hear(byBob ? bob : ann, byBob ? line.substr(5) : line);
    }
    auto heard = bench.Listen();
    EXPECT_EQ(heard[ann], GetParam().annHears);
    EXPECT_EQ(heard[bob], GetParam().bobHears);
}
INSTANTIATE_TEST_SUITE_P(Dream, DreamCommand, ValuesIn(kCases), [](const auto& c) { return c.param.name; });

TEST(Dream, ShowsItselfToAClientOnceItHasLoaded) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann", kAnnLooks);
    const FurreId bob = bench.dream.Connect().value();
    EXPECT_THAT(bench.Hear(bob, "\"hello"), IsEmpty()) << "not logged in";
    EXPECT_THAT(bench.Hear(bob, "connect Bob x y")[bob],
                ElementsAre("(* Welcome to the practice dream, Bob.", ";practice.map",
                            "((You enter the dream of Practice|Dream)", "]qpractice.map"));
    EXPECT_THAT(bench.Hear(bob, "color bbb"), IsEmpty());
    EXPECT_THAT(bench.Hear(ann, "m 9")[bob], IsEmpty()) << "still loading";
    auto heard = bench.Hear(bob, "vascodagama");
    EXPECT_THAT(heard[bob], ElementsAre("<aaaaaaaaaa * .  ", "<bbb        * /  ", "]s / *Quiet|Glade",
                                        "((Lines of DragonSpeak: 12)",
                                        "([#] Everything here is practice. Nobody outside can see it."));
    EXPECT_THAT(heard[ann], ElementsAre("<bbb        * /  "));
    EXPECT_THAT(bench.Hear(bob, "vascodagama"), IsEmpty()) << "loaded once";
}

TEST(Dream, TurnsAwayNamesThatAreTakenOrUnfit) {
    DreamBench bench;
    bench.Client("Ann|Fur", kAnnLooks);
    for (const char* const name : {"ann|FUR", "You", "yOUR", "a:b", "", "(x", "a,", "{S}"}) {
        const FurreId id = bench.dream.Connect().value();
        bench.dream.Hear(id, std::string("connect ") + name + " x");
        const auto deliveries = bench.dream.TakeDeliveries();
        ASSERT_EQ(deliveries.size(), 1U) << name;
        EXPECT_TRUE(deliveries[0].last) << name;
        EXPECT_FALSE(bench.dream.Arrive(name)) << name;
        bench.dream.Leave(id);
    }
}

TEST(Dream, GoesFromMapToMapAndBack) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann", kAnnLooks);
    EXPECT_THAT(bench.Hear(ann, "gomap ("), Contains(std::pair(ann, Lines{"]t / *", ";imagine.map", "]qimagine.map"})));
    EXPECT_THAT(bench.Hear(ann, "vascodagama")[ann], ElementsAre("<aaaaaaaaaa * /  "));
    EXPECT_THAT(bench.Hear(ann, "who")[ann],
                ElementsAre("(* Current players: Ann", "(* One player in the dream of Imaginarium."));
    EXPECT_THAT(bench.Hear(ann, "gomap ?")[ann], ElementsAre("(* There is no way to that map."));
    EXPECT_THAT(bench.Hear(ann, "goback")[ann], Contains(";practice.map"));
    EXPECT_THAT(bench.Hear(ann, "goalleg")[ann], ElementsAre(";allegria.map", "]qallegria.map")) << "wasn't loaded yet";
    const FurreId bob = bench.dream.Arrive("Bob", "65").value();
    bench.Listen();
    EXPECT_THAT(bench.Hear(ann, "join Bob").size(), 2U);
    EXPECT_THAT(bench.Hear(bob, "summon")[ann], Contains(";practice.map"));
    EXPECT_EQ(bench.dream.Find("Ann")->at, (Square{20, 16}));
    EXPECT_THAT(bench.Hear(ann, "\"look Bob")[ann], Contains("(#BA A visitor of the practice dream."));
    EXPECT_THAT(bench.Hear(bob, "\"eject Ann")[ann], Contains(";allegria.map"));
}

struct Walk {
    const char* directions;
    Square at, from;
};

// The rows are shifted against each other: from an even row 3 and 9 lead to x + 2, from an odd one 1 and 7 to x - 2.
TEST(Dream, WalksOnTheShiftedRows) {
    const Walk walks[] = {
        {"9", {20, 14}, {20, 15}},  {"7", {18, 14}, {20, 15}},  {"3", {20, 16}, {20, 15}},
        {"1", {18, 16}, {20, 15}},  {"99", {22, 13}, {20, 14}}, {"77", {18, 13}, {18, 14}},
        {"33", {22, 17}, {20, 16}}, {"11", {18, 17}, {18, 16}}, {"333", {22, 17}, {22, 17}},  // a wall at (22,18)
    };
    for (const Walk& walk : walks) {
        DreamBench bench;
        const FurreId ann = bench.Client("Ann", kAnnLooks);
        for (const char* d = walk.directions; *d; ++d) bench.dream.Hear(ann, std::string("m ") + *d);
        EXPECT_EQ(bench.dream.Find("Ann")->at, walk.at) << walk.directions;
        EXPECT_EQ(bench.dream.Find("Ann")->from, walk.from) << walk.directions;
    }
}

TEST(Dream, StaysInsideAndEntersDreamsThroughTheirSquares) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann", kAnnLooks);
    for (int i = 0; i < 100; ++i) bench.dream.Hear(ann, i % 2 == 0 ? "m 1" : "m 7");
    EXPECT_EQ(bench.dream.Find("Ann")->at.x, 0);
    EXPECT_TRUE(bench.dream.OpenDream("Small|Pond", {20, 14}));
    EXPECT_FALSE(bench.dream.OpenDream("Other", {20, 14})) << "the square is taken";
    EXPECT_FALSE(bench.dream.OpenDream("Other", {20, 18})) << "a wall";
    EXPECT_THAT(bench.Listen()[ann], Contains("]s * .Small|Pond"));
    bench.Hear(ann, "gostart");
    bench.Hear(ann, "vascodagama");
    EXPECT_THAT(bench.Hear(ann, "m 9")[ann], Contains("((You enter the dream of Small|Pond)"));
    const FurreId bob = bench.Client("Bob", kBobLooks);
    EXPECT_TRUE(bench.dream.CloseDream("small pond"));
    EXPECT_FALSE(bench.dream.CloseDream("small pond"));
    EXPECT_THAT(bench.Listen(), ElementsAre(std::pair(bob, Lines{"]t * ."})));
}

TEST(Dream, OutlivesGarbageAndFloods) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann", kAnnLooks), bob = bench.Client("Bob", kBobLooks);
    const Lines starts = {"",      "connect ", "color ",  "desc ",   "m ",         "l ",
                          "wh ",   "wh Bob ",  "join ",   "summon ", "decline ",   "gomap ",
                          "onln ", "\"look ",  "\"roll ", "goback",  "vascodagama"};
    unsigned seed = 1;
    const auto next = [&seed] { return seed = seed * 1664525U + 1013904223U, seed >> 16U; };
    for (int i = 0; i < 20000; ++i) {
        std::string line = starts[next() % starts.size()];
        for (unsigned n = next() % 20; n > 0; --n) line += static_cast<char>(next() % 256);
        for (const auto& [furre, lines] : bench.Hear(i % 2 == 0 ? ann : bob, line)) ASSERT_LT(lines.size(), 20U);
    }
    for (auto& [furre, lines] : bench.Hear(ann, "\"" + std::string(1000000, 'x'))) {
        for (const std::string& line : lines) EXPECT_LT(line.size(), kLongestLine + 100);
    }
    while (bench.dream.Connect()) continue;
    EXPECT_FALSE(bench.dream.Arrive("Late")) << "the dream is full";
    bench.dream.Leave(ann);
    bench.dream.Leave(ann);
    EXPECT_TRUE(bench.dream.Arrive("Late"));
}

}  // namespace
