#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "engine/Variables.h"
#include "net/ServerLines.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

using Told = std::vector<std::string>;

/// The fields that each event carries, as told on the console.
std::string FieldsOf(int event) {
    // clang-format off
    static const std::map<int, std::string> fields = {
        {13, "[player] [look.colors][look.gender][look.species][look.markings]"}, {14, "[look.badge]/[look.desc]"},
        {15, "[move.colors] [move.from]-[move.into] [move.frame] own [vorel.from]-[vorel.into]"},
        {25, "[breath.x],[breath.y]"}, {26, "[flame.x],[flame.y]"}, {43, "[fst]"},
        {38, "[dsbot.from.x],[dsbot.from.y] [dsbot.into.x],[dsbot.into.y] [dsbot.trigger]@[dsbot.trigger.x],[dsbot.trigger.y]"},
        {39, "[ds.from.x],[ds.from.y] [ds.into.x],[ds.into.y] [ds.trigger]@[ds.trigger.x],[ds.trigger.y]"},
        {48, "[dream.name] [dream.x],[dream.y]"}, {49, "[dream.x],[dream.y]"}};
    // clang-format on
    if (event >= 4 && event <= 12) return "[player]: [message]";
    if (event >= 16 && event <= 20) return "[map]<[previousmap]";
    if (event == 21) return "[player] of [visitors]";
    if (event >= 40 && event <= 42) return "[player], [cookiename]";
    if (event == 44 || event == 45) return "[player] [dice.amount]d[dice.sides] [dice.total]: [die1] [die2]";
    const auto row = fields.find(event);
    return row == fields.end() ? "[player]" : row->second;
}

/// Tells every event: its code, and the fields it carries.
class Listener : public RehearsalBot {
  public:
    Listener() {
        std::vector<std::string> lines;
        for (int event = 4; event <= 49; ++event) {
            if (event == 46) continue;
            lines.push_back("(0:" + std::to_string(event - 1) + ") that,");
            lines.push_back("(5:2) tell {" + std::to_string(event) + " " + FieldsOf(event) + "}");
        }
        SetScript(lines);
        bot.state.vorel = {"Bot", "", "", {"0123456789", "a", "b", "c"}};
        bot.state.map = "Old";
        bot.profile.ignores = {"MEAN ONE"};
    }

    /// What the bot does about a line. "show" stands before a text to expand.
    Told Hear(const std::string& line) {
        if (line.starts_with("show ")) return {ExpandVariables(bot, line.substr(5))};
        ParseServerLine(bot, line);
        Told heard = TakeTold();
        for (std::string& entry : heard) entry = ReplaceAll(entry, "console ", "");
        return heard;
    }
};

struct LineCase {
    std::string name;
    std::vector<std::string> lines;
    std::string raised;  ///< the events with their fields, and what was sent, joined with "; "
};

// clang-format off
const LineCase kLines[] = {
    {"OwnNameSpeaking",          {"(Bot: hi"}, "4 Bot: hi"},
    {"EmoteWithALateColon",      {"(An|n says: hi"}, "6 An|n: says: hi"},
    {"OwnEmote",                 {"(Bot waves"}, "10 Bot: waves"},
    {"OwnSpeech",                {"(You say, \"hi\""}, "8 Bot: hi\""},
    {"YouAndSomethingElse",      {"(You see, nothing"}, ""},
    {"NoBlankIsOnlyShown",       {"(wh|at", "("}, ""},
    {"NoShout",                  {"({T} Ann shouts: hey"}, ""},
    {"HashNotice",               {"([#] note"}, "12 [player]: note"},
    {"OwnWhisperToTheLastQuote", {"([ You whisper \"say \" to me\" to Ann. ]"}, "11 Ann: say \" to me"},
    {"WhisperFromTheFirstQuote", {"([ An|n whispers, \"a whispers, \"b\" to you. ]"}, "7 An|n: a whispers, \"b"},
    {"DescriptionWithoutBadge",  {"(#BA She", "(> Smiles"}, "14 A/She; 14 /Smiles"},
    {"HashWithoutB",             {"(#C She"}, ""},
    {"DoubleParentheses",        {"((You enter the dream of Vale)"}, "20 Vale<Old"},
    {"AcceptCountsOnce",         {"([*] Ann has accepted your request.", "([*] Ann joins you.", "([*] Ann summons you."}, "29 Ann; 34 Ann; 30 Ann"},
    {"AcceptedSummon",           {"([*] Ann has accepted your request.", "([*] Ann summons you."}, "30 Ann; 33 Ann"},
    {"NoticeAndMore",            {"([*] Ann joins you. Now"}, ""},
    {"NoSummonOfOneself",        {"(* You cannot summon yourself."}, ""},
    {"NoStandardTime",           {"(* Furcadia opened"}, ""},
    {"OnePlayer",                {"(* One player in the dream of Vale.", "show [map]<[previousmap] [visitorcount]"}, "Vale<Old 1"},
    {"OtherStarNotice",          {"(* Some players in a dream", "show [map]"}, "Old"},
    {"CookieGiven",              {"([%] Bot has given Ann a cookie!"}, "41 Ann, Bot"},
    {"CookieFromYour",           {"([%] Your cookie"}, ""},
    {"DiceRoll",                 {"([*] Ann rolls 2d6 and it falls: ((4) (3)) = 7."}, "45 Ann 2d6 7: 4 3"},
    {"OneDieKeepsOne",           {"([*] Ann rolls 1d6 and it falls: ((4) (3)) = 4."}, "45 Ann 1d6 4: 4 [die2]"},
    {"NoDiceWord",               {"([*] Ann rolls over & gets 7."}, ""},
    {"OwnMove",                  {"/0123456789 * \" # ( $"}, "15 0123456789 (16,4)-(20,2) 3 own (16,4)-(20,2)"},
    {"AppearingIsNoMove",        {"<0123456789 * & #"}, "15 0123456789 (0,0)-(20,6) 3 own (0,0)-(20,6)"},
    {"MapBeforeAnyDream",        {";FURN.MAP"}, "18 Furrabian Nights<Old; 20 Furrabian Nights<Old"},
    {"DsBotEachEntry",           {"6 ! \" # $ % & ' ( ) "}, "38 2,2 6,4 5@12,7"},
    {"DsWithoutEntry",           {"7 ! \" # $ % "}, ""},
    {"DsTwoEntries",             {"7 ! \" # $ % & ' ( ) *"}, "39 2,2 6,4 5@12,7; 39 2,2 6,4 8@18,10"},
    {"LookResult",               {"]f9876543210xyzAnn Bee"}, "13 Ann Bee 9876543210xyz"},
    {"Online",                   {"]%1Ann", "]%0Zed", "]%2Bea"}, "36 Ann; 37 Zed"},
    {"BreathAndFlame",           {"]va * %", "]vb ! !", "]vc"}, "25 20,5; 26 2,1"},
    {"DreamRequest",             {"]q"}, "sent vascodagama"},
    {"DreamAppears",             {"]s * %Vale", "]t * &", "]s * &"}, "48 Vale 20,5; 49 20,6; 48 Vale 20,6"},
    {"Unknown",                  {"", "]", "]x", "x", "=hello"}, ""},
};
// clang-format on

class HeardLine : public testing::TestWithParam<LineCase> {};

TEST_P(HeardLine, RaisesAndShows) {
    Listener bot;
    Told raised;
    for (const std::string& line : GetParam().lines) {
        Told heard = bot.Hear(line);
        if (line.starts_with('(')) {  // these alone are shown, after all that they raise
            ASSERT_FALSE(heard.empty());
            EXPECT_EQ(heard.back(), BarsToBlanks(line.substr(1)));
            heard.pop_back();
        }
        raised.insert(raised.end(), heard.begin(), heard.end());
    }
    EXPECT_EQ(Join(raised, "; "), GetParam().raised);
}

INSTANTIATE_TEST_SUITE_P(net, HeardLine, testing::ValuesIn(kLines), kCaseName);

TEST(ServerLines, LinesAreReadAtTheirLeastLengthAndFaultBelow) {
    // clang-format off
    const std::string_view least[] = {
        "/0123456789 * \" # ( $", "<0123456789 * & #", "7 ! \" # $", "]-#A0123456789abc", "]f9876543210xyz", "]s * %",
        "]t * %", "]va * %", "]%0", "({S} Ann shouts: ", "([%] Ann has given  a cookie!", "(You say, \"",
        "(* Player  is not on-line at all.", "((You enter the dream of )"};
    // clang-format on
    Listener bot;
    for (const std::string_view line : least) {
        EXPECT_EQ(FaultOf([&] { bot.Hear(std::string(line)); }), std::nullopt) << line;
        const std::string shorter(line.substr(0, line.size() - 1));
        EXPECT_EQ(FaultOf([&] { bot.Hear(shorter); }), FaultKind::InvalidProcedureCall) << line;
    }
}

TEST(ServerLines, WhatCannotBeReadIsAFault) {
    Listener bot;
    for (const char* line :
         {"<0123456789\xff\xff & #", "([*] Ann rolls 32768d6 & gets 7.", "(* 32768 players in the dream of Vale."}) {
        EXPECT_EQ(FaultOf([&] { bot.Hear(line); }), FaultKind::Overflow) << line;
    }
    for (const char* line : {"([ Ann whispered, \"hi\" to you. ]", "([ Ann whispers, \" to you. ]",
                             "([ You whisper to Ann. ]", "(* Furcadia Standard Time: 7:05"}) {
        EXPECT_NE(FaultOf([&] { bot.Hear(line); }), std::nullopt) << line;
    }
}

TEST(ServerLines, IgnoredFurresAreNeitherHeardNorShown) {
    Listener bot;
    for (const char* name : {"(Mean|One: hi", "(mean|one waves"}) EXPECT_EQ(bot.Hear(name), Told{}) << name;
    EXPECT_EQ(bot.Hear("([ Mean|One whispers, \"botstat\" to you. ]"), Told{});
}

TEST(ServerLines, LooksAreKeptWithTheTag) {
    Listener bot;
    bot.Hear("]-#A9876543210xyz!");
    EXPECT_EQ(bot.bot.state.player.looks.Code(), "9876543210xyz");
    EXPECT_EQ(bot.bot.state.playerTag, "]-#A9876543210xyz!");
    bot.Hear("]-#B65");
    bot.Hear("]-#C66");
    EXPECT_EQ(bot.bot.state.playerTag, "65");
}

TEST(ServerLines, DreamsComeAndGoByTheirSquare) {
    Listener bot;
    // The last has no name and is no dream.
    for (const char* line : {"]s * %Vale", "]s ! !D", "]s * %Vale", "]s $ $"}) bot.Hear(line);
    EXPECT_EQ(bot.bot.state.dreams, (std::vector<Square>{{20, 5}, {2, 1}, {20, 5}}));
    bot.Hear("]t * %");
    EXPECT_EQ(bot.bot.state.dreams, std::vector<Square>(1, {2, 1}));
}

TEST(ServerLines, AnUnnamedDreamIsAskedForAndALinkedClientLoadsIt) {
    Listener bot;
    bot.bot.state.map = "";
    EXPECT_EQ(bot.Hear("((Lines of DragonSpeak: 12)").front(), "sent who");
    bot.host.SetClientConnected(true);
    EXPECT_EQ(bot.Hear("]q"), Told{});
}

TEST(ServerLines, VisitorsAreComparedWithTheListBefore) {
    Listener bot;
    const auto raised = [&](const std::string& list) {
        Told heard = bot.Hear("(* Current players: " + list);
        heard.pop_back();
        return Join(heard, "; ");
    };
    EXPECT_EQ(raised(""), "24 [player]");
    EXPECT_EQ(raised("Ann, Bea"), "21 Ann of Ann, Bea; 21 Bea of Ann, Bea; 24 [player]");
    EXPECT_EQ(raised("Zed, Bea, Bea"), "23 Ann; 22 Bea; 22 Bea; 21 Zed of Ann, Bea; 24 [player]");
    EXPECT_EQ(bot.bot.state.visitors, "Zed, Bea, Bea");
}

TEST(Whispers, StatusNamesProductAndVersionInAnyCase) {
    Listener bot;
    constexpr char kAnswer[] = "sent wh Ann .* \\[Press F8 now\\] \\[Tandry Vorel [0-9]+[.][0-9]+[.][0-9]+\\]";
    for (const std::string word : {"BOTSTAT", "Tandry Vorel"}) {
        EXPECT_THAT(bot.Hear("([ Ann whispers, \"" + word + "\" to you. ]").front(), testing::MatchesRegex(kAnswer));
    }
}

TEST(ServerLines, BootedMeansGoneAndSilent) {
    Listener bot;
    EXPECT_EQ(bot.Hear("(You have been booted. Bye"), Told{});
    EXPECT_FALSE(bot.host.IsServerConnected());
    EXPECT_EQ(bot.Hear("(Ann: hi"), Told{"4 Ann: hi"});
}

}  // namespace
