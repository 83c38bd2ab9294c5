#include <gtest/gtest.h>

#include <set>
#include <string>

#include "engine/Variables.h"
#include "engine/modScript.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"

namespace {

constexpr char kFile[] = "folder/Notes_.ini";

class ActingBot : public RehearsalBot {
  public:
    ActingBot() {
        bot.currentEvent = EventWhisper;
        bot.state.player.name = "Ann A";
        bot.state.map = "Chess|Island";
        bot.profile.maps = "Home, CHESS island";
    }
    /// Carries out an effect of the given number, the one on a line plus one.
    void Act(int number, const std::string& arguments) {
        std::string line = "(5:" + std::to_string(number - 1) + ") " + arguments;
        modScript::ExecuteEffect(bot, line, static_cast<std::int16_t>(number));
    }
    std::string Variable(std::string_view name) {
        const std::string* const value = bot.variables.Find(name);
        return value ? *value : "none";
    }
};

struct CommandRow {
    int number;
    std::string arguments, told;
};
// What the examples of the language, which are all played, don't show.
// clang-format off
const CommandRow kUngated[] = {
    {3, "{a} and {b}", "console a} and {b"}, {25, "{1.5}", "sent l  ! \""}, {38, "{12 x}", "sent \"entrymusic 12"},
    {42, "no braces", ""}, {42, "{Bob}", "sent \"unshare Ann A"}, {0, "{x}", ""}, {66, "{x}", ""}, {93, "{x}", ""},
    {-1, "{x}", ""}};
const CommandRow kGated[] = {
    {13, "{Hi}", "sent wh Ann|A Hi"}, {12, "{Hi you} to {Bob B}", "sent wh Bob|B Hi you"}, {55, "{0}{6}", ""},
    {54, "{2}{x}", ""}, {65, "{Hi} to {Bob}", "sent \"make-cookie Bob Hi}"}, {12, "{Hi} for {Bob}", ""},
    {12, "x } to {a} {b}", ""}, {12, "{Hi} to {", ""}, {9, "Hi}", ""}, {55, "{2} {6", ""}};
// clang-format on

TEST(Commands, TakeTheirArgumentsApart) {
    ActingBot acting;
    const auto expectTold = [&](const CommandRow& row, const std::string& told) {
        acting.Act(row.number, row.arguments);
        EXPECT_EQ(Join(acting.TakeTold(), "|"), told) << row.number << " " << row.arguments;
    };
    for (const CommandRow& row : kGated) expectTold(row, row.told);
    for (const char* const maps : {"", "Home, Chess", "Chess Island II"}) {
        acting.bot.profile.maps = maps;
        for (const CommandRow& row : kGated) expectTold(row, "");
    }
    for (const CommandRow& row : kUngated) expectTold(row, row.told);
}

TEST(Commands, BracesTheWrongWayRoundAreAFault) {
    ActingBot acting;
    EXPECT_EQ(FaultOf([&] { acting.Act(9, "}{"); }), FaultKind::InvalidProcedureCall);
    EXPECT_EQ(FaultOf([&] { acting.Act(42, "} x {"); }), FaultKind::InvalidProcedureCall);
    EXPECT_EQ(FaultOf([&] { acting.Act(54, "{40000}{1}"); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([&] { acting.Act(87, "{32767}{1}"); }), FaultKind::Overflow);
}

struct VariableCase {
    const char* name;
    int number;
    std::string arguments, value;  ///< of [n], which is "7" before
    std::optional<FaultKind> fault = {};
};
// clang-format off
const VariableCase kVariableCases[] = {
    {"StoreMakesBrackets", 69, "{n} and store {a}b}", "a}b"},
    {"StoreMendsHalfTheBrackets", 69, "{n]} and store {}", ""}, {"NamesDifferByCase", 69, "{N} and store {5}", "7"},
    {"Add", 70, "{n} {0.1}", "7.1"}, {"AddTakesFirstAndLastGroup", 70, "{n} {100} {1}", "8"},
    {"AddNeedsTwoGroups", 70, "{n}", "7"}, {"AddNeedsGroupsApart", 70, "{n {1}", "7"},
    {"Multiply", 72, "{n} {-0}", "0"}, {"DivideInFifteenDigits", 73, "{n} {3}", "2.33333333333333"},
    {"DivideByZero", 73, "{n} {x}", "7", FaultKind::DivisionByZero},
    {"ResultTooLarge", 72, "{n} {1" + std::string(308, '0') + "}", "7", FaultKind::Overflow},
};
// clang-format on
class VariableEffect : public testing::TestWithParam<VariableCase> {};
TEST_P(VariableEffect, ChangesTheVariable) {
    ActingBot acting;
    acting.bot.variables.Set("[n]", "7");
    EXPECT_EQ(FaultOf([&] { acting.Act(GetParam().number, GetParam().arguments); }), GetParam().fault);
    EXPECT_EQ(acting.Variable("[n]"), GetParam().value);
}
INSTANTIATE_TEST_SUITE_P(Effects, VariableEffect, testing::ValuesIn(kVariableCases), kCaseName);

TEST(Arithmetic, MakesAMissingVariableFromTheNumber) {
    ActingBot acting;
    for (const int number : {70, 71, 72, 73}) acting.Act(number, "{v" + std::to_string(number) + "} {0.5}");
    acting.Act(73, "{undivided} {0}");
    EXPECT_EQ(ExpandVariables(acting.bot, "[v70] [v71] [v72] [v73] [undivided]"), "0.5 -0.5 0 0 0");
}

constexpr char kSame[] = "as it was";

struct FileCase {
    const char* name;
    int number;
    std::string arguments, before, after;
    std::string value = "none";  ///< of [v]
};
// clang-format off
const FileCase kFileCases[] = {
    {"WriteMakesTheFile", 74, "{S} {Notes?} {k} {v}", "", "[S]\nk=v\n"},
    {"WriteReplacesTheFirstOfTheKey", 74, "{s} {notes_} {K} {v}", "[S]\nk=1\n\nk=2\n[T]", "[S]\nK=v\n\nk=2\n[T]\n"},
    {"WriteAddsAtTheSectionsEnd", 74, "{S} {notes_} {k} {v}", "x\n[S]\na=b\n[T]\n", "x\n[S]\na=b\nk=v\n[T]\n"},
    {"WriteAddsASectionAtTheEnd", 74, "{U} {notes_} {k} {v}", "[S]\na", "[S]\na\n[U]\nk=v\n"},
    {"WriteFindsTheKeyInALaterPart", 74, "{S} {notes_} {k} {v}", "[S]\n[T]\n[s]\nk=1\n", "[S]\n[T]\n[s]\nk=v\n"},
    {"WriteNeedsFourGroups", 74, "{s} {notes_} {k}", "[S]\n", kSame},
    {"ReadTakesAllBehindTheFirstEquals", 75, "{s} {notes_} {K} {v}", "[S]\nk=a=b\nk=c\n", kSame, "a=b"},
    {"ReadSeesNoEqualsAtTheFirstCharacter", 75, "{S} {notes_} {=} {v}", "[S]\n==b\n", kSame, "b"},
    {"RemoveEntryTakesTheFirst", 76, "{s} {notes_} {K}", "[S]\nk=1\nk=2\n", "[S]\nk=2\n"},
    {"RemoveEntrySeesEqualsAtTheFirstCharacter", 76, "{S} {notes_} {}", "[S]\n=1\nk=2\n", "[S]\nk=2\n"},
    {"AddLineAtTheSectionsEnd", 77, "{c} {s} {notes_}", "[S]\na\n\n[T]\nb\n", "[S]\na\n\nc\n[T]\nb\n"},
    {"ReadListTakesEveryPart", 78, "{s} {notes_} {v}", "[S]\na\n\n[T]\nx\n[s]\nb", kSame, "a, , b"},
    {"ReadListBeforeTheFirstSection", 78, "{} {notes_} {v}", "a\n[S]\nb\n", kSame, "a"},
    {"ReadListWithoutTheSectionIsEmpty", 78, "{x} {notes_} {v}", "[S]\na\n", kSame, ""},
    {"RemoveLinesLoosely", 79, "{a|b} {s} {notes_}", "[S]\nA B\nx\nA|B\n[T]\nA B\n", "[S]\nx\n[T]\nA B\n"},
    {"RemoveSectionTakesEveryPart", 80, "{s} {notes_}", "[S]\na\n[T]\nb\n[s]\nc\n", "[T]\nb\n"},
    {"RemoveTheOnlySectionLeavesAnEmptyFile", 80, "{s} {notes_}", "[S]\na\n", ""},
    {"RandomLineOfNoneDoesNothing", 92, "{s} {notes_} {v}", "[S]\n", kSame},
};
// clang-format on
class FileEffect : public testing::TestWithParam<FileCase> {};
TEST_P(FileEffect, ReadsOrRewritesTheFile) {
    for (const char* const lineEnd : {"\n", "\r\n"}) {
        ActingBot acting;
        const std::string before = ReplaceAll(GetParam().before, "\n", lineEnd);
        if (!before.empty()) acting.files.contents[kFile] = before;
        acting.Act(GetParam().number, GetParam().arguments);
        // Whichever line ends a file came with, it is written with CR LF.
        EXPECT_EQ(acting.files.contents.at(kFile),
                  GetParam().after == kSame ? before : ReplaceAll(GetParam().after, "\n", "\r\n"));
        EXPECT_EQ(acting.files.contents.size(), 1U);
        EXPECT_EQ(acting.Variable("[v]"), GetParam().value);
    }
}
INSTANTIATE_TEST_SUITE_P(Effects, FileEffect, testing::ValuesIn(kFileCases), kCaseName);

TEST(FileEffects, DoNothingWithoutTheFileAndFaultWhenItCannotBeWritten) {
    ActingBot acting;
    for (const int number : {75, 76, 78, 79, 80, 92}) acting.Act(number, "{s} {notes} {k} {v}");
    EXPECT_TRUE(acting.files.contents.empty());
    EXPECT_TRUE(acting.bot.variables.Rows().empty());
    acting.files.unwritable = "folder/notes.ini";
    EXPECT_EQ(FaultOf([&] { acting.Act(77, "{line} {s} {notes}"); }), FaultKind::PathOrFileAccess);
}

TEST(FileEffects, DrawEveryLineSometime) {
    ActingBot acting;
    acting.files.contents[kFile] = "[S]\r\na\r\nb\r\nc\r\n";
    std::set<std::string> drawn;
    for (int draws = 0; draws < 60; ++draws) {
        acting.Act(92, "{S} {Notes_} {v}");
        drawn.insert(acting.Variable("[v]"));
    }
    EXPECT_EQ(drawn, (std::set<std::string>{"a", "b", "c"}));
}

TEST(ProfileEffects, TakeEveryEntryOfTheNameOut) {
    ActingBot acting;
    for (const char* const name : {"{Bob}", "{Eve E}", "{Bob}"}) acting.Act(83, name);
    EXPECT_EQ(acting.bot.profile.owners, "Bob, Eve E, Bob");
    acting.Act(84, "{bob}");
    EXPECT_EQ(acting.bot.profile.owners, "Eve E");
    acting.Act(84, "{eve|e}");
    EXPECT_EQ(acting.bot.profile.owners, "");
}

TEST(WalkEffects, WalkToEvenSquaresOnly) {
    ActingBot acting;
    for (const auto& [typed, x] :
         {std::pair{"{13} {20}", 14}, {"{12} {20}", 12}, {"{-3} {20}", -2}, {"{2.5}{20}", 2}}) {
        acting.Act(87, typed);
        EXPECT_EQ(acting.bot.walk.target, (Square{static_cast<std::int16_t>(x), 20})) << typed;
    }
}

TEST(SessionEffects, ReconnectOnlyAfterADisconnectionThatNobodyAskedFor) {
    ActingBot acting;
    for (const GameEvent event : {EventWhisper, EventDisconnected}) {
        for (const bool shutDown : {true, false}) {
            acting.bot.currentEvent = event;
            acting.bot.state.shutDown = shutDown;
            acting.Act(1, "");  // a profile without owners can't connect, and says so
            EXPECT_EQ(acting.TakeTold().empty(), event == EventWhisper || shutDown);
        }
    }
}

}  // namespace
