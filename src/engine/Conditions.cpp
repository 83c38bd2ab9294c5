#include "engine/Conditions.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "engine/Arguments.h"
#include "engine/CommandNumbers.h"
#include "engine/DataFile.h"
#include "engine/Fields.h"
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
    bool mayFault = false;
};

// --- texts -----------------------------------------------------------------------------------------------------

using TextTest = bool (*)(std::string_view text, std::string_view argument);

template <field::TextField Field, TextTest Test>
std::optional<bool> Text(const Bot& bot, const Arguments& arguments) {
    const std::string* const text = Field(bot);
    return text ? std::optional(Test(*text, arguments[0])) : std::nullopt;
}
template <TextTest Test>
constexpr Predicate kMessage = Text<field::Text<&BotState::message>, Test>;
template <TextTest Test>
constexpr Predicate kLookDesc = Text<field::LookDesc, Test>;
template <std::string KnownThisSession::*Part>
constexpr Predicate kIsCalled = Text<field::Text<Part>, LooseEquals>;

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

// --- looks and badges ------------------------------------------------------------------------------------------

template <char Code>
constexpr char kCode = Code;

template <field::TextField Field, char Code>
std::optional<bool> CodeIs(const Bot& bot, const Arguments&) {
    const std::string* const text = Field(bot);
    return text ? std::optional(LooseEquals(*text, std::string_view(&kCode<Code>, 1))) : std::nullopt;
}
template <char Code>
constexpr Predicate SpeciesIs = CodeIs<field::Looks<&Appearance::species>, Code>;
template <char Code>
constexpr Predicate MarkingsAre = CodeIs<field::Looks<&Appearance::markings>, Code>;
template <char Code>
constexpr Predicate GenderIs = CodeIs<field::Looks<&Appearance::gender>, Code>;

std::optional<bool> HasBadge(const Bot& bot, const Arguments&) {
    const std::string* const badge = field::Badge<EventLookResult>(bot);
    return badge ? std::optional(!badge->empty()) : std::nullopt;
}

// "I" passes as well, though it is a badge of another group: of the conditions on badges this one alone is loose.
constexpr Predicate BadgeIsLetterI = CodeIs<field::Badge<EventLookResult>, 'i'>;

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
    const std::string* const badge = field::Badge<EventLookDescription>(bot);
    if (!badge) return std::nullopt;
    return badge->size() == 1 && std::string_view(Group.text).find((*badge)[0]) != std::string_view::npos;
}

// --- numbers and squares ---------------------------------------------------------------------------------------

template <field::NumberField Field, typename Comparison = std::equal_to<>>
std::optional<bool> Number(const Bot& bot, const Arguments& arguments) {
    const std::optional<std::int16_t> number = Field(bot);
    return number ? std::optional(Comparison{}(double{static_cast<double>(*number)}, LeadingNumber(arguments[0])))
                  : std::nullopt;
}
template <typename Comparison>
constexpr Predicate kDiceTotal = Number<field::Roll<&Dice::total>, Comparison>;

template <typename Comparison>
std::optional<bool> Numbers(const Bot&, const Arguments& arguments) {
    return Comparison{}(LeadingNumber(arguments[0]), LeadingNumber(arguments[1]));
}

template <field::SquareField Field>
std::optional<bool> SquareIs(const Bot& bot, const Arguments& arguments) {
    const std::optional<Square> square = Field(bot);
    if (!square) return std::nullopt;
    return LeadingNumber(arguments[0]) == square->x && LeadingNumber(arguments[1]) == square->y;
}
template <Square KnownAcrossLogins::*Part>
constexpr Predicate PlaceIs = SquareIs<field::Place<Part>>;
template <Square DragonSpeakNotice::*Part>
constexpr Predicate NoticeSquareIs = SquareIs<field::NoticeSquare<Part>>;

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

constexpr bool kMayFault = true;

// clang-format off
constexpr Condition kConditions[] = {
    {0,   true,  Form::WholeText,         Text<field::FurreName, LooseEquals>},
    {1,   false, Form::WholeText,         Text<field::FurreName, LooseEquals>},
    {2,   true,  Form::WholeText,         kMessage<LooseEquals>},
    {3,   false, Form::WholeText,         kMessage<LooseEquals>},
    {4,   true,  Form::WholeText,         kMessage<LooseLike>},
    {5,   false, Form::WholeText,         kMessage<LooseLike>},
    {6,   true,  Form::WholeText,         kMessage<ContainsIgnoringCase>},
    {7,   false, Form::WholeText,         kMessage<ContainsIgnoringCase>},
    {8,   true,  Form::WholeText,         kLookDesc<LooseEquals>},
    {9,   false, Form::WholeText,         kLookDesc<LooseEquals>},
    {10,  true,  Form::WholeText,         kLookDesc<LooseLike>},
    {11,  false, Form::WholeText,         kLookDesc<LooseLike>},
    {12,  true,  Form::WholeText,         kLookDesc<ContainsIgnoringCase>},
    {13,  false, Form::WholeText,         kLookDesc<ContainsIgnoringCase>},
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
    {70,  true,  Form::WholeText,         kIsCalled<&BotState::map>},
    {71,  false, Form::WholeText,         kIsCalled<&BotState::map>},
    {72,  true,  Form::WholeText,         kIsCalled<&BotState::previousMap>},
    {73,  false, Form::WholeText,         kIsCalled<&BotState::previousMap>},
    {74,  true,  Form::WholeText,         Text<field::Text<&BotState::visitors>, InList>},
    {75,  false, Form::WholeText,         Text<field::Text<&BotState::visitors>, InList>},
    {76,  true,  Form::FirstKept,         Number<field::Time<&StandardTime::hour>>},
    {77,  false, Form::FirstKept,         Number<field::Time<&StandardTime::hour>>},
    {78,  true,  Form::FirstKept,         Number<field::Time<&StandardTime::minute>>},
    {79,  false, Form::FirstKept,         Number<field::Time<&StandardTime::minute>>},
    {80,  true,  Form::FirstKept,         Number<field::Time<&StandardTime::second>>},
    {81,  false, Form::FirstKept,         Number<field::Time<&StandardTime::second>>},
    // Not a pair: until the game has told its time, neither of these holds.
    {82,  true,  Form::NoArguments,       IsMorning},
    {83,  true,  Form::NoArguments,       IsAfternoon},
    // Kept on purpose: only the positive one of these two knows the furre that moved.
    {84,  true,  Form::WholeText,         Text<field::ColorsOrMoverColors, LooseEquals>},
    {85,  false, Form::WholeText,         Text<field::Looks<&Appearance::colors>, LooseEquals>},
    {86,  true,  Form::FirstAndLastKept,  PlaceIs<&BotState::moveFrom>},
    {87,  false, Form::FirstAndLastKept,  PlaceIs<&BotState::moveFrom>},
    {88,  true,  Form::FirstAndLastKept,  PlaceIs<&BotState::moveInto>},
    {89,  false, Form::FirstAndLastKept,  PlaceIs<&BotState::moveInto>},
    {90,  true,  Form::FirstAndLastKept,  SquareIs<field::MoveEnd>},
    {91,  false, Form::FirstAndLastKept,  SquareIs<field::MoveEnd>},
    {92,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::from>},
    {93,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::from>},
    {94,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::into>},
    {95,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::into>},
    {96,  true,  Form::FirstKept,         Number<field::NoticeTrigger>},
    {97,  false, Form::FirstKept,         Number<field::NoticeTrigger>},
    {98,  true,  Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::triggerAt>},
    {99,  false, Form::FirstAndLastKept,  NoticeSquareIs<&DragonSpeakNotice::triggerAt>},
    {100, true,  Form::FirstKept,         Number<field::Roll<&Dice::amount>>},
    {101, true,  Form::FirstKept,         Number<field::Roll<&Dice::sides>>},
    {102, true,  Form::FirstAndLastKept,  Die<std::less<>>, kMayFault},
    {103, true,  Form::FirstAndLastKept,  Die<std::less_equal<>>, kMayFault},
    {104, true,  Form::FirstAndLastKept,  Die<std::equal_to<>>, kMayFault},
    {105, true,  Form::FirstAndLastKept,  Die<std::greater_equal<>>, kMayFault},
    {106, true,  Form::FirstAndLastKept,  Die<std::greater<>>, kMayFault},
    {107, true,  Form::FirstKept,         kDiceTotal<std::less<>>},
    {108, true,  Form::FirstKept,         kDiceTotal<std::less_equal<>>},
    {109, true,  Form::FirstKept,         kDiceTotal<std::equal_to<>>},
    {110, true,  Form::FirstKept,         kDiceTotal<std::greater_equal<>>},
    {111, true,  Form::FirstKept,         kDiceTotal<std::greater<>>},
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
    {123, true,  Form::ThreeInTurnFrom6,  FileHoldsEntry, kMayFault},
    {124, false, Form::ThreeInTurnFrom6,  FileHoldsEntry, kMayFault},
    {125, true,  Form::NoArguments,       ConnectClientIs<0>},
    {126, true,  Form::NoArguments,       ConnectClientIs<1>},
    {127, true,  Form::WholeText,         IsIn<&Profile::owners>},
    {128, false, Form::WholeText,         IsIn<&Profile::owners>},
    {129, true,  Form::WholeText,         IsIn<&Profile::maps>},
    {130, false, Form::WholeText,         IsIn<&Profile::maps>},
    {131, true,  Form::WholeTextFrom6,    kIsCalled<&BotState::dreamName>},
    {132, false, Form::WholeTextFrom6,    kIsCalled<&BotState::dreamName>},
    {133, true,  Form::FirstAndLastKept,  PlaceIs<&BotState::dream>},
    {134, false, Form::FirstAndLastKept,  PlaceIs<&BotState::dream>},
};
// clang-format on

static_assert(HasARowForEach(kConditionNumbers, kConditions));

const Condition* FindCondition(std::int16_t number) { return RowOf(kConditions, kConditionNumbers, number); }

}  // namespace

bool EvaluateCondition(const Bot& bot, std::string_view line, std::int16_t number) {
    const Condition* const condition = FindCondition(number);
    if (!condition) return false;
    const std::optional<Arguments> arguments = FindArguments(line, condition->form);
    return arguments && condition->holds(bot, *arguments) == condition->wanted;  // no answer equals neither
}

bool MayFault(std::int16_t number) {
    const Condition* const condition = FindCondition(number);
    return condition && condition->mayFault;
}

Form FormOfCondition(std::int16_t number) {
    const Condition* const condition = FindCondition(number);
    return condition ? condition->form : Form::NoArguments;
}
