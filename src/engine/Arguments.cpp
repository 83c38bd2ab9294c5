#include "engine/Arguments.h"

#include "text/Fault.h"

namespace {

constexpr std::size_t kArgumentsFrom = 7;

std::size_t FirstBrace(std::string_view line, std::size_t from) { return line.find('{', from - 1); }

std::optional<Arguments> WholeText(std::string_view line, std::size_t from, bool mayFault) {
    const std::size_t open = FirstBrace(line, from), close = line.rfind('}');
    if (open == line.npos || close == line.npos) return std::nullopt;
    if (open < close) return Arguments{line.substr(open + 1, close - open - 1)};
    if (mayFault) throw RuntimeFault(FaultKind::InvalidProcedureCall);
    return std::nullopt;
}

/// What stands behind the "{" at an index, up to the "}" at another one, which is kept.
std::optional<std::string_view> Group(std::string_view line, std::size_t open, std::size_t close) {
    if (open == line.npos || close == line.npos || close < open) return std::nullopt;
    return line.substr(open + 1, close - open);
}

std::optional<std::string_view> FirstGroup(std::string_view line) {
    const std::size_t open = FirstBrace(line, kArgumentsFrom);
    return Group(line, open, line.find('}', open));
}

std::optional<Arguments> FirstAndLastGroup(std::string_view line) {
    const auto first = FirstGroup(line), last = Group(line, line.rfind('{'), line.rfind('}'));
    return first && last ? std::optional(Arguments{*first, *last}) : std::nullopt;
}

/// A sum needs a variable and a number. Where one group served for both, a line that lacks the number would count up a
/// variable named after it.
std::optional<Arguments> IfApart(std::optional<Arguments> groups) {
    const bool apart = groups && (*groups)[0].data() + (*groups)[0].size() <= (*groups)[1].data();
    return apart ? groups : std::nullopt;
}

std::optional<Arguments> WithoutBraces(std::optional<Arguments> groups) {
    if (!groups) return std::nullopt;
    (*groups)[0].remove_suffix(1);
    (*groups)[1].remove_suffix(1);
    return groups;
}

/// The first argument ends where the phrase begins, the second one begins behind the first "{" from there on.
std::optional<Arguments> Joined(std::string_view line, std::string_view phrase, bool keepBrace = false) {
    const std::size_t open = FirstBrace(line, kArgumentsFrom), joint = line.find(phrase), close = line.rfind('}');
    if (open == line.npos || joint == line.npos || joint <= open) return std::nullopt;
    const std::size_t second = line.find('{', joint);  // always there: the phrase ends with it
    if (close <= second) return std::nullopt;
    return Arguments{line.substr(open + 1, joint - open - (keepBrace ? 0 : 1)),
                     line.substr(second + 1, close - second - 1)};
}

std::optional<Arguments> InTurn(std::string_view line, std::size_t count, std::size_t from) {
    Arguments arguments;
    std::size_t open = FirstBrace(line, from);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t close = open == line.npos ? open : line.find('}', open);
        if (close == line.npos) return std::nullopt;
        arguments[i] = line.substr(open + 1, close - open - 1);
        open = line.find('{', close);
    }
    return arguments;
}

}  // namespace

std::optional<Arguments> FindArguments(std::string_view line, Form form) {
    switch (form) {
        case Form::NoArguments:
            return Arguments{};
        case Form::WholeText:
            return WholeText(line, kArgumentsFrom, false);
        case Form::WholeTextFrom6:
            return WholeText(line, 6, false);
        case Form::WholeTextOrFault:
            return WholeText(line, kArgumentsFrom, true);
        case Form::FirstKept: {
            const auto first = FirstGroup(line);
            return first ? std::optional(Arguments{*first}) : std::nullopt;
        }
        case Form::FirstAndLastKept:
            return FirstAndLastGroup(line);
        case Form::FirstAndLast:
            return WithoutBraces(FirstAndLastGroup(line));
        case Form::FirstAndLastApart:
            return WithoutBraces(IfApart(FirstAndLastGroup(line)));
        case Form::ToPhrase:
            return Joined(line, "} to {");
        case Form::ToPhraseKept:
            return Joined(line, "} to {", true);
        case Form::StorePhrase:
            return Joined(line, "} and store {");
        case Form::TwoInTurnFrom1:
            return InTurn(line, 2, 1);
        case Form::ThreeInTurnFrom1:
            return InTurn(line, 3, 1);
        case Form::ThreeInTurnFrom6:
            return InTurn(line, 3, 6);
        case Form::ThreeInTurnFrom7:
            return InTurn(line, 3, kArgumentsFrom);
        case Form::FourInTurnFrom6:
            return InTurn(line, 4, 6);
    }
    return std::nullopt;
}
