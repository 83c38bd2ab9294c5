#include "engine/Requirement.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

#include "engine/Arguments.h"
#include "engine/Conditions.h"
#include "game/Compare.h"
#include "text/Numbers.h"

namespace {

using Kind = Requirement::Kind;

/// What a condition compares its arguments with.
struct Compared {
    std::int16_t number;  ///< of the condition
    Kind kind;
    field::TextField text = nullptr;
    field::NumberField value = nullptr;
    field::SquareField square = nullptr;
    bool isPattern = false;
};

using field::NoticeSquare, field::Place, field::Roll, field::Text, field::Time;

// Only conditions that hold for few values; a negation holds for nearly all.
// clang-format off
constexpr Compared kCompared[] = {
    {0,   Kind::Equal,  field::FurreName},
    {2,   Kind::Equal,  Text<&BotState::message>},
    {4,   Kind::Held,   Text<&BotState::message>, {}, {}, true},
    {6,   Kind::Held,   Text<&BotState::message>},
    {8,   Kind::Equal,  field::LookDesc},
    {10,  Kind::Held,   field::LookDesc, {}, {}, true},
    {12,  Kind::Held,   field::LookDesc},
    {70,  Kind::Equal,  Text<&BotState::map>},
    {72,  Kind::Equal,  Text<&BotState::previousMap>},
    {74,  Kind::Listed, Text<&BotState::visitors>},
    {76,  Kind::Number, {}, Time<&StandardTime::hour>},
    {78,  Kind::Number, {}, Time<&StandardTime::minute>},
    {80,  Kind::Number, {}, Time<&StandardTime::second>},
    {84,  Kind::Equal,  field::ColorsOrMoverColors},
    {86,  Kind::Square, {}, {}, Place<&BotState::moveFrom>},
    {88,  Kind::Square, {}, {}, Place<&BotState::moveInto>},
    {90,  Kind::Square, {}, {}, field::MoveEnd},
    {92,  Kind::Square, {}, {}, NoticeSquare<&DragonSpeakNotice::from>},
    {94,  Kind::Square, {}, {}, NoticeSquare<&DragonSpeakNotice::into>},
    {96,  Kind::Number, {}, field::NoticeTrigger},
    {98,  Kind::Square, {}, {}, NoticeSquare<&DragonSpeakNotice::triggerAt>},
    {100, Kind::Number, {}, Roll<&Dice::amount>},
    {101, Kind::Number, {}, Roll<&Dice::sides>},
    {109, Kind::Number, {}, Roll<&Dice::total>},
    {127, Kind::Listed, field::List<&Profile::owners>},
    {129, Kind::Listed, field::List<&Profile::maps>},
    {131, Kind::Equal,  Text<&BotState::dreamName>},
    {133, Kind::Square, {}, {}, Place<&BotState::dream>},
};
// clang-format on

/// The number of an argument; nothing when no field can have it.
std::optional<std::int16_t> WholeNumber(std::string_view argument) {
    const double number = LeadingNumber(argument);
    if (number != std::floor(number) || !(std::fabs(number) <= 32768) || number == 32768) return std::nullopt;
    return static_cast<std::int16_t>(number);
}

/// The longest run of a pattern's characters that stand for themselves: a text that matches holds it. There is no list
/// in it, for its "[" would be something to expand.
std::string_view LongestRun(std::string_view pattern) {
    std::string_view longest;
    while (!pattern.empty()) {
        const std::string_view run = pattern.substr(0, pattern.find_first_of("*?#"));
        if (run.size() > longest.size()) longest = run;
        pattern.remove_prefix(std::min(run.size() + 1, pattern.size()));
    }
    return longest;
}

std::string FoldedText(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), Folded);
    return folded;
}

}  // namespace

Requirement RequirementOf(std::string_view line, std::int16_t number) {
    Requirement tested = {.text = std::string(line), .number = number};
    Requirement never = {.kind = Kind::Never};
    const auto* const row = std::find_if(std::begin(kCompared), std::end(kCompared),
                                         [number](const Compared& compared) { return compared.number == number; });
    if (row == std::end(kCompared)) return tested;
    const std::optional<Arguments> arguments = FindArguments(line, FormOfCondition(number));
    if (!arguments) return never;

    Requirement requirement = {
        .kind = row->kind, .textField = row->text, .numberField = row->value, .squareField = row->square};
    if (row->kind == Kind::Number) {
        const auto wanted = WholeNumber((*arguments)[0]);
        if (!wanted) return never;
        requirement.number = *wanted;
    } else if (row->kind == Kind::Square) {
        const auto x = WholeNumber((*arguments)[0]), y = WholeNumber((*arguments)[1]);
        if (!x || !y) return never;
        requirement.square = {*x, *y};
    } else {
        requirement.text = FoldedText(row->isPattern ? LongestRun((*arguments)[0]) : (*arguments)[0]);
        if (row->kind == Kind::Held && requirement.text.empty()) return tested;
    }
    return requirement;
}
