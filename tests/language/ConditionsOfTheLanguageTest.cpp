#include <algorithm>
#include <set>

#include "engine/Bot.h"
#include "engine/Conditions.h"
#include "language/GreeterBench.h"

namespace {

/// A condition, its opposite (or -1), and two sessions: after the first the condition holds, after the second the
/// opposite.
struct ConditionCase {
    std::int16_t number, opposite;
    GameEvent event;
    std::string holds, fails;
};

std::string Says(const std::string& text) { return "server (Ann: " + text; }
std::string Looks(const std::string& code) { return "server ]-#A1234567890" + code + "\nserver (Ann: hi"; }
std::string Gender(char code) { return Looks({code, '0', '0'}); }
std::string Species(char code) { return Looks({'0', code, '0'}); }
std::string Markings(char code) { return Looks({'0', '0', code}); }
std::string Badge(const std::string& badge) { return "server ]-#B" + badge + "\nserver (Ann: hi"; }
std::string Described(const std::string& text) { return "server (>  " + text; }
std::string Maps(const std::string& first, const std::string& second) {
    return "server ;" + first + ".map\nserver ;" + second + ".map\nserver (Ann: hi";
}
std::string Visitors(const std::string& names) { return "server (* Current players: " + names; }
std::string Time(const std::string& time) { return "server (* Furcadia Standard Time: " + time; }
std::string Moves(const std::string& squares) { return "server /x%4%4%4%4%" + squares; }
std::string Triggers(const std::string& squares) { return "server 7" + squares; }
std::string Rolls(int first, int second) {
    return "server ([*] Ann rolls 2d6 and throws: ((" + std::to_string(first) + ") (" + std::to_string(second) +
           ")) = " + std::to_string(first + second) + ".";
}
/// The script below keeps a typed number in [count].
std::string Counts(const std::string& number) { return "type \"&" + number + "\nserver (Ann: hi"; }

constexpr char kThere[] = " , 4 # + 3", kElsewhere[] = " , 5 # + 4";  // into (24,20) from (22,19); one row down
constexpr char kTrigger[] = " + 3 , 4 ' - 5", kOtherTrigger[] = " + 4 , 5 ( - 6";
const std::string kWolf = "A friendly wolf.", kFox = "A friendly fox.";
const std::string kHonest = "server (Ann: hi", kStranger = "server (Zoe: hi";

std::vector<ConditionCase> Cases() {
    // clang-format off
    std::vector<ConditionCase> cases = {
        {0, 1, EventSpeech, "server (ANN: hi", "server (Bob: hi"},
        {2, 3, EventSpeech, Says("Hello"), Says("hello there")},
        {4, 5, EventSpeech, Says("Remember tea"), Says("I remember tea")},
        {6, 7, EventSpeech, Says("well, HELLO"), Says("hell")},
        {8, 9, EventLookDescription, "server (> " + kWolf, "server (> " + kFox},
        {10, 11, EventLookDescription, Described("the WOLF"), Described(kFox)},
        {12, 13, EventLookDescription, Described("the WOLF"), Described(kFox)},
        {14, 15, EventSpeech, Species('#'), Markings('#')}, {16, 17, EventSpeech, Markings('5'), Species('5')},
        {18, 19, EventSpeech, Species('!'), Gender('!')}, {20, -1, EventSpeech, Species(']'), Markings(']')},
        {21, -1, EventSpeech, Species(']'), Markings(']')}, {22, 23, EventSpeech, Species('"'), Gender('"')},
        {24, 25, EventSpeech, Species('%'), Markings('%')}, {26, -1, EventSpeech, Species('$'), Markings('$')},
        {28, -1, EventSpeech, Species('?'), Markings('?')}, {29, -1, EventSpeech, Species('?'), Markings('?')},
        {30, 31, EventSpeech, Gender('!'), Species('!')}, {32, 33, EventSpeech, Gender(' '), Species(' ')},
        {34, 35, EventSpeech, Gender('"'), Species('"')}, {36, 37, EventSpeech, Badge("A"), Badge("")},
        {38, 39, EventSpeech, Badge("I"), Badge("j")},
        {70, 71, EventSpeech, Maps("chess", "acropoli"), Maps("acropoli", "chess")},
        {72, 73, EventSpeech, Maps("chess", "acropoli"), Maps("acropoli", "chess")},
        {74, 75, EventVisitorsUpdated, Visitors("Bob, Ann"), Visitors("Bob, Anna")},
        {76, 77, EventTimeOfDay, Time("7:06:10PM"), Time("5:7:7PM")},
        {78, 79, EventTimeOfDay, Time("8:05:10PM"), Time("5:7:5PM")},
        {80, 81, EventTimeOfDay, Time("8:06:09PM"), Time("9:9:10PM")},
        {82, -1, EventTimeOfDay, Time("8:06:09AM"), Time("8:06:09PM")},
        {83, -1, EventTimeOfDay, Time("8:06:09PM"), Time("8:06:09AM")},
        {84, 85, EventSpeech, "server ]-#Ax%4%4%4%4%000\n" + kHonest, Species('x')},
        {84, -1, EventFurreMoved, Moves(kThere), "server /w#3#3#3#3#" + std::string(kThere)},
        {86, 87, EventFurreMoved, Moves(kThere), Moves(kElsewhere)},
        {88, 89, EventFurreMoved, Moves(kThere), Moves(kElsewhere)},
        {90, 91, EventFurreMoved, Moves(" , 4 # , 4"), Moves(" + 3 # , 4")},
        {92, 93, EventDsTrigger, Triggers(kTrigger), Triggers(kOtherTrigger)},
        {94, 95, EventDsTrigger, Triggers(kTrigger), Triggers(kOtherTrigger)},
        {96, 97, EventDsTrigger, Triggers(kTrigger), Triggers(kOtherTrigger)},
        {98, 99, EventDsTrigger, Triggers(kTrigger), Triggers(kOtherTrigger)},
        {100, -1, EventDiceTotal, "server ([*] Ann rolls 2d6 & gets 9.", "server ([*] Ann rolls 6d2 & gets 9."},
        {101, -1, EventDiceTotal, "server ([*] Ann rolls 2d6 & gets 9.", "server ([*] Ann rolls 6d2 & gets 9."},
        {102, -1, EventDiceRoll, Rolls(6, 4), Rolls(4, 5)}, {103, -1, EventDiceRoll, Rolls(6, 5), Rolls(4, 6)},
        {104, -1, EventDiceRoll, Rolls(6, 5), Rolls(5, 6)}, {105, -1, EventDiceRoll, Rolls(1, 5), Rolls(6, 4)},
        {106, -1, EventDiceRoll, Rolls(1, 6), Rolls(6, 5)}, {107, -1, EventDiceRoll, Rolls(4, 4), Rolls(4, 5)},
        {108, -1, EventDiceRoll, Rolls(4, 5), Rolls(5, 5)}, {109, -1, EventDiceRoll, Rolls(4, 5), Rolls(5, 5)},
        {110, -1, EventDiceRoll, Rolls(4, 5), Rolls(4, 4)}, {111, -1, EventDiceRoll, Rolls(5, 5), Rolls(4, 5)},
        {112, -1, EventSpeech, Counts("9.5"), Counts("10")}, {113, -1, EventSpeech, Counts("10"), Counts("11")},
        {114, -1, EventSpeech, Counts("10"), Counts("9")}, {115, -1, EventSpeech, Counts("11"), Counts("10")},
        {116, -1, EventSpeech, Counts("10"), Counts("9.5")},
        {117, 120, EventSpeech, Says("tea please"), Says("Tea please")},
        {118, 121, EventSpeech, Says("trees"), Says("Trees")},
        {119, 122, EventSpeech, Says("tea eat"), Says("eat tea")}, {123, 124, EventSpeech, kHonest, kStranger},
        {125, 126, EventSpeech, kHonest, "type \"&client\n" + kHonest}, {127, 128, EventSpeech, kHonest, kStranger},
        {129, 130, EventSpeech, Maps("chess", "acropoli"), Maps("acropoli", "chess")},
        {131, 132, EventDreamListS, "server ]s * (small pond", "server ]s * (Pond"},
        {133, 134, EventDreamListT, "server ]t * (", "server ]t * )"},
    };
    // clang-format on
    // A badge of each group; a longer one is in none. Which other badges belong to a group is tested below.
    std::int16_t number = 40;
    for (const char badge : std::string("QEj]AIeUMaYABCD")) {
        const auto opposite = static_cast<std::int16_t>(number + 1);
        cases.push_back({number, opposite, EventSpeech, Badge({badge}), Badge({badge, badge})});
        number = static_cast<std::int16_t>(number + 2);
    }
    return cases;
}

bool Holds(std::int16_t number, const ConditionCase& played, const std::string& session) {
    GreeterBench greeter;
    greeter.SetScript({"(0:46) When a command with & is typed for you,",
                       "(5:68) take the variable {count} and store {[message]} in it.",
                       "(0:46) When a command with & is typed for you,", "(1:2) and they said {client},",
                       "(5:81) connect through a client from now on.", CauseLine(played.event),
                       ExampleLine(*FindCommand(kConditionLine, number)), "(5:2) show the note {it holds}."});
    greeter.Play("connect");
    const std::vector<std::string> told = greeter.PlayAndListen(session);
    return std::find(told.begin(), told.end(), "console it holds") != told.end();
}

TEST(ConditionOfTheLanguage, HoldsWhenItsTextSaysSo) {
    std::vector<std::int16_t> tested, expected;
    for (const ConditionCase& played : Cases()) {
        SCOPED_TRACE(ExampleLine(*FindCommand(kConditionLine, played.number)));
        EXPECT_TRUE(Holds(played.number, played, played.holds)) << played.holds;
        EXPECT_FALSE(Holds(played.number, played, played.fails)) << played.fails;
        tested.push_back(played.number);
        if (played.opposite < 0) continue;
        EXPECT_FALSE(Holds(played.opposite, played, played.holds)) << "opposite, " << played.holds;
        EXPECT_TRUE(Holds(played.opposite, played, played.fails)) << "opposite, " << played.fails;
        tested.push_back(played.opposite);
    }
    for (const Command& command : CommandsOf(kConditionLine)) expected.push_back(command.number);
    EXPECT_THAT(std::set(tested.begin(), tested.end()), testing::ElementsAreArray(expected)) << "each has a case";
}

/// The characters that stand on the list of a badge condition are the ones it takes, told by the texts themselves.
TEST(ConditionOfTheLanguage, BadgeTextsNameTheBadgesTheyTake) {
    GreeterBench greeter;
    greeter.bot.currentEvent = EventSpeech;
    for (std::int16_t number = 40; number < 70; ++number) {
        const Command& command = *FindCommand(kConditionLine, number);
        const std::string_view text = command.text;
        const bool wanted = number % 2 == 0;
        const std::size_t at = text.find(number == 44 || number == 45 ? "j," : "of ");
        const std::string list = ReplaceAll(text.substr(at).substr(number / 2 == 22 ? 0 : 3), " ", "");
        for (char badge = '!'; badge <= '~'; ++badge) {
            if (badge == ',') continue;
            greeter.bot.state.playerTag = std::string(1, badge);
            std::string line = ExampleLine(command);
            EXPECT_EQ(EvaluateCondition(greeter.bot, line, number) == wanted, list.find(badge) != list.npos)
                << text << badge;
        }
    }
}

/// Gives every furre and every notice the same to tell.
void Tell(BotState& state, const std::string& code, bool asInExamples) {
    const std::string name = asInExamples ? "Ann" : "Zoe";
    state.player.name = state.look.name = state.arrived = state.present = state.departed = name;
    state.requester = state.onlineName = name;
    state.player.looks = state.look.looks = {asInExamples ? "x%4%4%4%4%" : "", code, code, code};
    state.move.colors = state.look.looks.colors;
    state.playerTag = state.look.badge = code;
    state.ds = state.dsbot = asInExamples ? DragonSpeakNotice{{22, 19}, {24, 20}, 7, {26, 21}} : DragonSpeakNotice{};
}

bool CanHold(const Command& command, GameEvent event) {
    GreeterBench greeter;
    greeter.bot.currentEvent = event;
    for (const char code : std::string_view(" !\"#$%5?ijQE]AIeUMaYBCD")) {
        for (const bool asInExamples : {true, false}) {
            Tell(greeter.bot.state, std::string(1, code), asInExamples);
            if (code == ' ' && !asInExamples) greeter.bot.state.playerTag = greeter.bot.state.look.badge = "";
            std::string line = ExampleLine(command);
            if (EvaluateCondition(greeter.bot, line, command.number)) return true;
        }
    }
    return false;
}

TEST(ConditionOfTheLanguage, HoldsInNoOtherEventsThanTheTableSays) {
    for (const Command& command : CommandsOf(kConditionLine)) {
        if (!command.scope.neverElsewhere) continue;
        for (GameEvent event = kFirstEvent; event <= kLastEvent; ++event) {
            EXPECT_EQ(CanHold(command, event), command.scope.events.Holds(event)) << ListLine(command) << event;
        }
    }
}

}  // namespace
