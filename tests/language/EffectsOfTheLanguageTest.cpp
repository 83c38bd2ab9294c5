#include <map>

#include "engine/Bot.h"
#include "language/GreeterBench.h"

using testing::ElementsAreArray;

namespace {

using Lines = std::vector<std::string>;

/// Everything besides the game that an effect may change.
std::map<std::string, std::string> Belongings(const GreeterBench& greeter) {
    const Bot& bot = greeter.bot;
    std::map<std::string, std::string> all = {
        {"client", std::to_string(bot.profile.connectClient)},
        {"connected", greeter.host.IsServerConnected() ? "yes" : "no"},
        {"connecting", bot.status.canDisconnect && !greeter.host.IsServerConnected() ? "yes" : "no"},
        {"maps", bot.profile.maps},
        {"owners", bot.profile.owners},
        {"walk", greeter.host.IsMovementTimerEnabled()
                     ? std::to_string(bot.walk.target.x) + "," + std::to_string(bot.walk.target.y)
                     : "none"},
    };
    for (const UserVariable& variable : bot.variables.Rows()) all[variable.name] = variable.value;
    for (const auto& [path, bytes] : greeter.files.contents) all[path] = ReplaceAll(bytes, "\r\n", "/");
    return all;
}

Lines Changes(const std::map<std::string, std::string>& before, const std::map<std::string, std::string>& now) {
    Lines changes;
    for (const auto& [what, value] : before) {
        if (!now.contains(what)) changes.push_back(what + " gone");
    }
    for (const auto& [what, value] : now) {
        if (!before.contains(what) || before.at(what) != value) changes.push_back(what + "=" + value);
    }
    return changes;
}

/// What the example of an effect does when Ann whispers, or for a scope of one event, at that event.
Lines Outcome(const Command& effect, const std::string& mapFile) {
    GreeterBench greeter;
    greeter.files.contents["folder/scores.ini"] = "[points]\r\nAnn=7\r\nBob=3\r\n[words]\r\ntea\r\nmilk\r\n";
    greeter.bot.profile.connectClient = 2;  // neither on nor off, so that both are a change
    greeter.bot.variables.Set("[count]", "4");
    greeter.bot.variables.Set("[other]", "x");
    const bool atTheEnd = effect.scope.events == EventSet{EventDisconnected};
    greeter.SetScript({"(0:0) When this script is loaded,", "(5:86) walk to column {40} and row {30}.",
                       CauseLine(atTheEnd ? EventDisconnected : EventWhisper), "     " + ExampleLine(effect)});
    greeter.Play("connect\nevent 1\nserver ;" + mapFile);
    const auto before = Belongings(greeter);
    greeter.TakeTold();
    greeter.Play(atTheEnd ? "close" : "server ([ Ann whispers, \"go on\" to you. ]");
    Lines outcome = greeter.TakeTold();
    std::erase(outcome, "console [ Ann whispers, \"go on\" to you. ]");
    const Lines changes = Changes(before, Belongings(greeter));
    outcome.insert(outcome.end(), changes.begin(), changes.end());
    return outcome;
}

struct EffectCase {
    std::int16_t number;
    Lines outcome;
};

// clang-format off
const EffectCase kCases[] = {
    {0, {"connected=no", "connecting=yes"}}, {1, {"connected=no"}}, {2, {"console Ann was here."}},
    {3, {"sent sit"}}, {4, {"sent stand"}}, {5, {"sent lie"}}, {6, {"sent get"}}, {7, {"sent use"}},
    {8, {"sent \"Hello, Ann!"}}, {9, {"sent -Who wants cookies?"}}, {10, {"sent :waves at Ann."}},
    {11, {"sent wh Small|Fox Ann is here"}}, {12, {"sent wh Ann Hello, Ann!"}},
    {13, {"sent \"emit A bell rings."}}, {14, {"sent \"emitloud A big bell rings."}},
    {15, {"sent desc A bot that counts to 4. [Tandry Vorel]"}},
    {16, {"sent gomap *"}}, {17, {"sent gomap #"}}, {18, {"sent gomap %"}}, {19, {"sent gomap ("}},
    {20, {"sent goback"}}, {21, {"sent who"}}, {22, {"sent m 7", "sent m 7", "sent m 9", "sent use"}},
    {23, {"sent \"look Ann"}}, {24, {"sent l  , 4"}}, {25, {"sent shield"}},
    {26, {"sent \"uploads-owner"}}, {27, {"sent \"uploads-shared"}}, {28, {"sent \"uploads-all"}},
    {29, {"sent \"pads-owner"}}, {30, {"sent \"pads-shared"}}, {31, {"sent \"pads-all"}},
    {32, {"sent \"share Ann"}}, {33, {"sent \"share Ann"}}, {34, {"sent \"eject Ann"}}, {35, {"sent \"eject Ann"}},
    {36, {"sent \"entrytext Welcome to the pond."}}, {37, {"sent \"entrymusic 12"}},
    {38, {"sent unload"}}, {39, {"sent unload all"}}, {40, {"sent unload Small|Pond"}},
    {41, {"sent \"unshare Ann"}}, {42, {"sent \"unshare Ann"}}, {43, {"sent onln Ann"}},
    {44, {"sent join Ann"}}, {45, {"sent join Ann"}}, {46, {"sent summon Ann"}}, {47, {"sent summon Ann"}},
    {48, {"sent parental"}}, {49, {"sent \"desctags"}}, {50, {"sent \"time"}}, {51, {"sent \"=news"}},
    {52, {"sent \"=event"}}, {53, {"sent \"ROLL 2d6"}}, {54, {"sent \"roll 2d6"}},
    {55, {"sent dragon"}}, {56, {"sent phoenix"}}, {57, {"sent gryffe"}}, {58, {"sent eagle"}},
    {59, {"sent breath"}}, {60, {"sent flame"}},
    {61, {"sent \"make-cookie Ann"}}, {62, {"sent \"make-cookie Ann"}}, {63, {"sent \"make-cookie Ann Enjoy it!"}},
    {64, {"sent \"make-cookie Ann Enjoy it!}"}}, {66, {"sent \"give-cookie Ann"}}, {67, {"sent \"eat-cookie"}},
    {68, {"[guest]=Ann"}}, {69, {"[count]=5"}}, {70, {"[count]=3"}}, {71, {"[count]=12"}}, {72, {"[count]=0.5"}},
    {73, {"folder/scores.ini=[points]/Ann=8/Bob=3/[words]/tea/milk/"}}, {74, {"[points]=7"}},
    {75, {"folder/scores.ini=[points]/Bob=3/[words]/tea/milk/"}},
    {76, {"folder/scores.ini=[points]/Ann=7/Bob=3/[words]/tea/milk/honey/"}}, {77, {"[list]=tea, milk"}},
    {78, {"folder/scores.ini=[points]/Ann=7/Bob=3/[words]/milk/"}},
    {79, {"folder/scores.ini=[points]/Ann=7/Bob=3/"}},
    {80, {"client=0"}}, {81, {"client=1"}}, {82, {"owners=Ann, Bob, Zoe"}}, {83, {"owners=Ann"}},
    {84, {"maps=Practice Dream, Acropolis, Acropolis"}}, {85, {"maps=Practice Dream"}},
    {86, {"walk=14,20"}}, {87, {"walk=none"}},
    {88, {"[count]=0", "[other]=0"}}, {89, {"[count] gone", "[other] gone"}}, {90, {"[count] gone"}},
    {91, {"[word]=tea"}},
};
// clang-format on

TEST(EffectOfTheLanguage, DoesWhatItsTextSays) {
    std::vector<std::int16_t> tested, expected;
    for (const EffectCase& played : kCases) {
        const Command& effect = *FindCommand(kEffectLine, played.number);
        EXPECT_THAT(Outcome(effect, "acropoli.map"), ElementsAreArray(played.outcome)) << ExampleLine(effect);
        tested.push_back(played.number);
    }
    for (const Command& effect : CommandsOf(kEffectLine)) expected.push_back(effect.number);
    EXPECT_EQ(tested, expected) << "each has a case";
}

TEST(EffectOfTheLanguage, SpeaksOnlyOnMapsOfTheProfile) {
    for (const Command& effect : CommandsOf(kEffectLine)) {
        EXPECT_EQ(Outcome(effect, "chess.map").empty(), effect.speaks) << ExampleLine(effect);
    }
}

}  // namespace
