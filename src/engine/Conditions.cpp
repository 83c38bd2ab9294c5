#include "engine/Conditions.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Variables.h"
#include "engine/Arguments.h"
#include "engine/CommandNumbers.h"
#include "engine/DataFile.h"
#include "game/Compare.h"
#include "game/Lists.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

/// A predicate answers nothing when the current event has nothing to compare; then neither it nor its negation holds.
using Predicate = std::optional<bool> (*)(const Bot&, const Arguments&);

struct Condition {
    std::int16_t number;
    bool wanted;
    Form form;
    Predicate holds;
};

// Unlike where texts are compared whole, "|" is no blank here: a part may well be sought for its bar.
bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
    return UpperCase(text).find(UpperCase(part)) != std::string::npos;
}

// --- the furre of the event ------------------------------------------------------------------------------------

bool IsSpeechEvent(const EventFacts& event) { return event.comparable && event.furre == &BotState::player; }

const Appearance* DescribedLooks(const Bot& bot) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.comparable && event.furre ? &(bot.state.*event.furre).looks : nullptr;
}

const std::string* EventFurreName(const Bot& bot) {
    const EventFacts& event = FactsOf(bot.currentEvent);
    return event.comparable ? event.FurreNameIn(bot.state) : nullptr;
}

std::optional<bool> FurreNameEquals(const Bot& bot, const Arguments& arguments) {
    const std::string* const name = EventFurreName(bot);
    return name ? std::optional(LooseEquals(*name, arguments[0])) : std::nullopt;
}

template <std::string Appearance::*Field, char Code>
std::optional<bool> LooksAre(const Bot& bot, const Arguments&) {
    const Appearance* const looks = DescribedLooks(bot);
    return looks ? std::optional(LooseEquals(looks->*Field, std::string(1, Code))) : std::nullopt;
}
template <char Code>
constexpr Predicate SpeciesIs = LooksAre<&Appearance::species, Code>;
template <char Code>
constexpr Predicate MarkingsAre = LooksAre<&Appearance::markings, Code>;
template <char Code>
constexpr Predicate GenderIs = LooksAre<&Appearance::gender, Code>;

std::optional<bool> ColorsEqual(const Bot& bot, const Arguments& arguments) {
    const Appearance* const looks = DescribedLooks(bot);
    return looks ? std::optional(LooseEquals(looks->colors, arguments[0])) : std::nullopt;
}

std::optional<bool> ColorsOrMoverColorsEqual(const Bot& bot, const Arguments& arguments) {
    if (bot.currentEvent == EventFurreMoved) return LooseEquals(bot.state.move.colors, arguments[0]);
    return ColorsEqual(bot, arguments);
}

// --- badges ----------------------------------------------------------------------------------------------------

/// The badge belongs to the furre that speaks, or to the one looked at, which of two events ever tells.
const std::string* Badge(const Bot& bot, GameEvent lookEvent) {
    if (IsSpeechEvent(FactsOf(bot.currentEvent))) return &bot.state.playerTag;
    return bot.currentEvent == lookEvent ? &bot.state.look.badge : nullptr;
}

std::optional<bool> HasBadge(const Bot& bot, const Arguments&) {
    const std::string* const badge = Badge(bot, EventLookResult);
    return badge ? std::optional(!badge->empty()) : std::nullopt;
}

// "I" passes as well, though it is a badge of another group: of the conditions on badges this one alone is loose.
std::optional<bool> BadgeIsLetterI(const Bot& bot, const Arguments&) {
    const std::string* const badge = Badge(bot, EventLookResult);
    return badge ? std::optional(LooseEquals(*badge, "i")) : std::nullopt;
}

/// Badge codes, as an argument of a template.
struct Codes {
    char text[11] = {};  // the largest groups have ten codes

    template <std::size_t Size>
    constexpr Codes(const char (&codes)[Size]) {  // NOLINT(google-explicit-constructor): stands for its text
        std::copy_n(codes, Size, text);
    }
};

// Kept on purpose: for a look these wait for the description, where the conditions above wait for the look's result.
template <Codes Group>
std::optional<bool> BadgeIsIn(const Bot& bot, const Arguments&) {
    const std::string* const badge = Badge(bot, EventLookDescription);
    if (!badge) return std::nullopt;
    return badge->size() == 1 && std::string_view(Group.text).find((*badge)[0]) != std::string_view::npos;
}

// --- texts -----------------------------------------------------------------------------------------------------

const std::string& MessageOf(const Bot& bot) { return bot.state.message; }
const std::string& LookDescOf(const Bot& bot) { return bot.state.look.desc; }
const std::string& MapOf(const Bot& bot) { return bot.state.map; }
const std::string& PreviousMapOf(const Bot& bot) { return bot.state.previousMap; }
const std::string& VisitorsOf(const Bot& bot) { return bot.state.visitors; }
const std::string& DreamNameOf(const Bot& bot) { return bot.state.dreamName; }

using TextOf = const std::string& (*)(const Bot&);
using TextTest = bool (*)(std::string_view text, std::string_view argument);

template <TextOf Field, TextTest Test>
std::optional<bool> Text(const Bot& bot, const Arguments& arguments) {
    return Test(Field(bot), arguments[0]);
}

template <SplitList Profile::*List>
std::optional<bool> IsIn(const Bot& bot, const Arguments& arguments) {
    return (bot.profile.*List).Holds(arguments[0]);
}

template <TextTest Test>
std::optional<bool> Both(const Bot&, const Arguments& arguments) {
    return Test(arguments[0], arguments[1]);
}

bool SameText(std::string_view a, std::string_view b) { return a == b; }

// Kept on purpose: both arguments still end with "}", so a text is found only at the very end of the other.
bool Contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// --- numbers and squares ---------------------------------------------------------------------------------------

std::int16_t HourOf(const Bot& bot) { return bot.state.fst.hour; }
std::int16_t MinuteOf(const Bot& bot) { return bot.state.fst.minute; }
std::int16_t SecondOf(const Bot& bot) { return bot.state.fst.second; }
std::int16_t DiceAmountOf(const Bot& bot) { return bot.state.dice.amount; }
std::int16_t DiceSidesOf(const Bot& bot) { return bot.state.dice.sides; }
std::int16_t DiceTotalOf(const Bot& bot) { return bot.state.dice.total; }

template <std::int16_t (*Field)(const Bot&), typename Comparison = std::equal_to<>>
std::optional<bool> Number(const Bot& bot, const Arguments& arguments) {
    return Comparison{}(double{static_cast<double>(Field(bot))}, LeadingNumber(arguments[0]));
}

template <typename Comparison>
std::optional<bool> Numbers(const Bot&, const Arguments& arguments) {
    return Comparison{}(LeadingNumber(arguments[0]), LeadingNumber(arguments[1]));
}

bool IsAt(Square square, const Arguments& arguments) {
    return LeadingNumber(arguments[0]) == square.x && LeadingNumber(arguments[1]) == square.y;
}

Square MoveFromOf(const Bot& bot) { return bot.state.moveFrom; }
Square MoveIntoOf(const Bot& bot) { return bot.state.moveInto; }
Square DreamOf(const Bot& bot) { return bot.state.dream; }

/// Where the furre stands after its move; both squares are the same when it only turned. So it is the square moved into
/// every time, and (1:90) asks in other words what (1:88) asks.
Square MoveEndOf(const Bot& bot) {
    return bot.state.moveFrom == bot.state.moveInto ? bot.state.moveFrom : bot.state.moveInto;
}

template <Square (*Field)(const Bot&)>
std::optional<bool> SquareIs(const Bot& bot, const Arguments& arguments) {
    return IsAt(Field(bot), arguments);
}

const DragonSpeakNotice* NoticeOf(const Bot& bot) {
    if (bot.currentEvent == EventDsBotTrigger) return &bot.state.dsbot;
    return bot.currentEvent == EventDsTrigger ? &bot.state.ds : nullptr;
}

template <Square DragonSpeakNotice::*Field>
std::optional<bool> NoticeSquareIs(const Bot& bot, const Arguments& arguments) {
    const DragonSpeakNotice* const notice = NoticeOf(bot);
    return notice ? std::optional(IsAt(notice->*Field, arguments)) : std::nullopt;
}

std::optional<bool> NoticeTriggerIs(const Bot& bot, const Arguments& arguments) {
    const DragonSpeakNotice* const notice = NoticeOf(bot);
    return notice ? std::optional(LeadingNumber(arguments[0]) == notice->trigger) : std::nullopt;
}

/// The first argument selects the die, counted from 1 like [die1]; the second is what it is compared with.
template <typename Comparison>
std::optional<bool> Die(const Bot& bot, const Arguments& arguments) {
    const std::int16_t die = RoundTo16(LeadingNumber(arguments[0]));
    const auto& values = bot.state.dieValues;
    if (die < 1 || static_cast<std::size_t>(die) > values.size()) throw RuntimeFault(FaultKind::SubscriptOutOfRange);
    const double value = values[static_cast<std::size_t>(die) - 1];
    return Comparison{}(value, LeadingNumber(arguments[1]));
}

// --- the rest --------------------------------------------------------------------------------------------------

std::optional<bool> IsMorning(const Bot& bot, const Arguments&) { return bot.state.fst.median == "AM"; }
std::optional<bool> IsAfternoon(const Bot& bot, const Arguments&) { return bot.state.fst.median == "PM"; }

template <std::int16_t Flag>
std::optional<bool> ConnectClientIs(const Bot& bot, const Arguments&) {
    return bot.profile.connectClient == Flag;
}

std::optional<bool> FileHoldsEntry(const Bot& bot, const Arguments& arguments) {
    const std::optional<std::string> bytes = ReadDataFile(bot, arguments[2]);
    return bytes && DataFileHolds(*bytes, arguments[1], arguments[0]);
}

// clang-format off
constexpr Condition kConditions[] = {
    {0,   true,  Form::WholeText,         FurreNameEquals},
    {1,   false, Form::WholeText,         FurreNameEquals},
    {2,   true,  Form::WholeText,         Text<MessageOf, LooseEquals>},
    {3,   false, Form::WholeText,         Text<MessageOf, LooseEquals>},
    {4,   true,  Form::WholeText,         Text<MessageOf, LooseLike>},
    {5,   false, Form::WholeText,         Text<MessageOf, LooseLike>},
    {6,   true,  Form::WholeText,         Text<MessageOf, ContainsIgnoringCase>},
    {7,   false, Form::WholeText,         Text<MessageOf, ContainsIgnoringCase>},
    {8,   true,  Form::WholeText,         Text<LookDescOf, LooseEquals>},
    {9,   false, Form::WholeText,         Text<LookDescOf, LooseEquals>},
    {10,  true,  Form::WholeText,         Text<LookDescOf, LooseLike>},
    {11,  false, Form::WholeText,         Text<LookDescOf, LooseLike>},
    {12,  true,  Form::WholeText,         Text<LookDescOf, ContainsIgnoringCase>},
    {13,  false, Form::WholeText,         Text<LookDescOf, ContainsIgnoringCase>},
    {14,  true,  Form::NoArguments,       SpeciesIs<'#'>},
    {15,  false, Form::NoArguments,       SpeciesIs<'#'>},
    {16,  true,  Form::NoArguments,       MarkingsAre<'5'>},
    {17,  false, Form::NoArguments,       MarkingsAre<'5'>},
    {18,  true,  Form::NoArguments,       SpeciesIs<'!'>},
    {19,  false, Form::NoArguments,       SpeciesIs<'!'>},
    {20,  true,  Form::NoArguments,       SpeciesIs<']'>},
    // Kept on purpose: the negations 21 and 29 look at the markings, and scripts in use count on it.
    {21,  false, Form::NoArguments,       MarkingsAre<']'>},
    {22,  true,  Form::NoArguments,       SpeciesIs<'"'>},
    {23,  false, Form::NoArguments,       SpeciesIs<'"'>},
    {24,  true,  Form::NoArguments,       SpeciesIs<'%'>},
    {25,  false, Form::NoArguments,       SpeciesIs<'%'>},
    // Its negation, 27, was never given out, and must not be: a line with that number never holds.
    {26,  true,  Form::NoArguments,       SpeciesIs<'$'>},
    {28,  true,  Form::NoArguments,       SpeciesIs<'?'>},
    {29,  false, Form::NoArguments,       MarkingsAre<'?'>},
    {30,  true,  Form::NoArguments,       GenderIs<'!'>},
    {31,  false, Form::NoArguments,       GenderIs<'!'>},
    {32,  true,  Form::NoArguments,       GenderIs<' '>},
    {33,  false, Form::NoArguments,       GenderIs<' '>},
    {34,  true,  Form::NoArguments,       GenderIs<'"'>},
    {35,  false, Form::NoArguments,       GenderIs<'"'>},
    {36,  true,  Form::NoArguments,       HasBadge},
    {37,  false, Form::NoArguments,       HasBadge},
    {38,  true,  Form::NoArguments,       BadgeIsLetterI},
    {39,  false, Form::NoArguments,       BadgeIsLetterI},
    {40,  true,  Form::NoArguments,       BadgeIsIn<"QRST">},
    {41,  false, Form::NoArguments,       BadgeIsIn<"QRST">},
    {42,  true,  Form::NoArguments,       BadgeIsIn<"EFGH">},
    {43,  false, Form::NoArguments,       BadgeIsIn<"EFGH">},
    {44,  true,  Form::NoArguments,       BadgeIsIn<"j">},
    {45,  false, Form::NoArguments,       BadgeIsIn<"j">},
    {46,  true,  Form::NoArguments,       BadgeIsIn<"]^_`">},
    {47,  false, Form::NoArguments,       BadgeIsIn<"]^_`">},
    {48,  true,  Form::NoArguments,       BadgeIsIn<"ABCD">},
    {49,  false, Form::NoArguments,       BadgeIsIn<"ABCD">},
    {50,  true,  Form::NoArguments,       BadgeIsIn<"IJKL">},
    {51,  false, Form::NoArguments,       BadgeIsIn<"IJKL">},
    {52,  true,  Form::NoArguments,       BadgeIsIn<"efgh">},
    {53,  false, Form::NoArguments,       BadgeIsIn<"efgh">},
    {54,  true,  Form::NoArguments,       BadgeIsIn<"UVWX">},
    {55,  false, Form::NoArguments,       BadgeIsIn<"UVWX">},
    {56,  true,  Form::NoArguments,       BadgeIsIn<"MNOP">},
    {57,  false, Form::NoArguments,       BadgeIsIn<"MNOP">},
    {58,  true,  Form::NoArguments,       BadgeIsIn<"abcd">},
    {59,  false, Form::NoArguments,       BadgeIsIn<"abcd">},
    {60,  true,  Form::NoArguments,       BadgeIsIn<"YZ[\\">},
    {61,  false, Form::NoArguments,       BadgeIsIn<"YZ[\\">},
    {62,  true,  Form::NoArguments,       BadgeIsIn<"QE]AIeUMaY">},
    {63,  false, Form::NoArguments,       BadgeIsIn<"QE]AIeUMaY">},
    {64,  true,  Form::NoArguments,       BadgeIsIn<"RF^BJfVNbZ">},
    {65,  false, Form::NoArguments,       BadgeIsIn<"RF^BJfVNbZ">},
    {66,  true,  Form::NoArguments,       BadgeIsIn<"SG_CKgWOc[">},
    {67,  false, Form::NoArguments,       BadgeIsIn<"SG_CKgWOc[">},
    {68,  true,  Form::NoArguments,       BadgeIsIn<"TH`DLhXPd\\">},
    {69,  false, Form::NoArguments,       BadgeIsIn<"TH`DLhXPd\\">},
    {70,  true,  Form::WholeText,         Text<MapOf, LooseEquals>},
    {71,  false, Form::WholeText,         Text<MapOf, LooseEquals>},
    {72,  true,  Form::WholeText,         Text<PreviousMapOf, LooseEquals>},
    {73,  false, Form::WholeText,         Text<PreviousMapOf, LooseEquals>},
    {74,  true,  Form::WholeText,         Text<VisitorsOf, InList>},
    {75,  false, Form::WholeText,         Text<VisitorsOf, InList>},
    {76,  true,  Form::FirstKept,         Number<HourOf>},
    {77,  false, Form::FirstKept,         Number<HourOf>},
    {78,  true,  Form::FirstKept,         Number<MinuteOf>},
    {79,  false, Form::FirstKept,         Number<MinuteOf>},
    {80,  true,  Form::FirstKept,         Number<SecondOf>},
    {81,  false, Form::FirstKept,         Number<SecondOf>},
    // Not a pair: until the game has told its time, neither of these holds.
    {82,  true,  Form::NoArguments,       IsMorning},
    {83,  true,  Form::NoArguments,       IsAfternoon},
    // Kept on purpose: only the positive one of these two knows the furre that moved.
    {84,  true,  Form::WholeText,         ColorsOrMoverColorsEqual},
    {85,  false, Form::WholeText,         ColorsEqual},
    {86,  true,  Form::FirstAndLastKept,  SquareIs<MoveFromOf>},
    {87,  false, Form::FirstAndLastKept,  SquareIs<MoveFromOf>},
    {88,  true,  Form::FirstAndLastKept,  SquareIs<MoveIntoOf>},
    {89,  false, Form::FirstAndLastKept,  SquareIs<MoveIntoOf>},
    {90,  true,  Form::FirstAndLastKept,  SquareIs<MoveEndOf>},
    {91,  false, Form::FirstAndLastKept,  SquareIs<MoveEndOf>},
    {92,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::from>},
    {93,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::from>},
    {94,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::into>},
    {95,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::into>},
    {96,  true,  Form::FirstKept,         NoticeTriggerIs},
    {97,  false, Form::FirstKept,         NoticeTriggerIs},
    {98,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::triggerAt>},
    {99,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::triggerAt>},
    {100, true,  Form::FirstKept,         Number<DiceAmountOf>},
    {101, true,  Form::FirstKept,         Number<DiceSidesOf>},
    {102, true,  Form::FirstAndLastKept,  Die<std::less<>>},
    {103, true,  Form::FirstAndLastKept,  Die<std::less_equal<>>},
    {104, true,  Form::FirstAndLastKept,  Die<std::equal_to<>>},
    {105, true,  Form::FirstAndLastKept,  Die<std::greater_equal<>>},
    {106, true,  Form::FirstAndLastKept,  Die<std::greater<>>},
    {107, true,  Form::FirstKept,         Number<DiceTotalOf, std::less<>>},
    {108, true,  Form::FirstKept,         Number<DiceTotalOf, std::less_equal<>>},
    {109, true,  Form::FirstKept,         Number<DiceTotalOf, std::equal_to<>>},
    {110, true,  Form::FirstKept,         Number<DiceTotalOf, std::greater_equal<>>},
    {111, true,  Form::FirstKept,         Number<DiceTotalOf, std::greater<>>},
    // Mind the last two: for dice "or equal" comes first, here it comes last.
    {112, true,  Form::FirstAndLastKept,  Numbers<std::less<>>},
    {113, true,  Form::FirstAndLastKept,  Numbers<std::less_equal<>>},
    {114, true,  Form::FirstAndLastKept,  Numbers<std::equal_to<>>},
    {115, true,  Form::FirstAndLastKept,  Numbers<std::greater<>>},
    {116, true,  Form::FirstAndLastKept,  Numbers<std::greater_equal<>>},
    // These negations come three rows later, behind all three tests. Unlike conditions on what the game has sent, all
    // six go by letter case and take "|" for itself.
    {117, true,  Form::FirstAndLastKept,  Both<SameText>},
    {118, true,  Form::FirstAndLastKept,  Both<Like>},
    {119, true,  Form::FirstAndLastKept,  Both<Contains>},
    {120, false, Form::FirstAndLastKept,  Both<SameText>},
    {121, false, Form::FirstAndLastKept,  Both<Like>},
    {122, false, Form::FirstAndLastKept,  Both<Contains>},
    {123, true,  Form::ThreeInTurnFrom6,  FileHoldsEntry},
    {124, false, Form::ThreeInTurnFrom6,  FileHoldsEntry},
    {125, true,  Form::NoArguments,       ConnectClientIs<0>},
    {126, true,  Form::NoArguments,       ConnectClientIs<1>},
    {127, true,  Form::WholeText,         IsIn<&Profile::owners>},
    {128, false, Form::WholeText,         IsIn<&Profile::owners>},
    {129, true,  Form::WholeText,         IsIn<&Profile::maps>},
    {130, false, Form::WholeText,         IsIn<&Profile::maps>},
    {131, true,  Form::WholeTextFrom6,    Text<DreamNameOf, LooseEquals>},
    {132, false, Form::WholeTextFrom6,    Text<DreamNameOf, LooseEquals>},
    {133, true,  Form::FirstAndLastKept,  SquareIs<DreamOf>},
    {134, false, Form::FirstAndLastKept,  SquareIs<DreamOf>},
};
// clang-format on

static_assert(HasARowForEach(kConditionNumbers, kConditions));

const Condition* FindCondition(std::int16_t number) { return RowOf(kConditions, kConditionNumbers, number); }

}  // namespace

bool EvaluateCondition(Bot& bot, std::string& line, std::int16_t number) {
    line = ExpandVariables(bot, line);
    const Condition* const condition = FindCondition(number);
    if (!condition) return false;
    const std::optional<Arguments> arguments = FindArguments(line, condition->form);
    return arguments && condition->holds(bot, *arguments) == condition->wanted;  // no answer equals neither
}

Form FormOfCondition(std::int16_t number) {
    const Condition* const condition = FindCondition(number);
    return condition ? condition->form : Form::NoArguments;
}
