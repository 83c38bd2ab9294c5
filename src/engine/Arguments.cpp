#include "engine/Arguments.h"

namespace {

/// The characters from one index up to another, when both were found and stand in that order.
std::optional<std::string_view> Between(std::string_view line, std::size_t begin, std::size_t end) {
    if (begin == line.npos || end == line.npos || end < begin) return std::nullopt;
    return line.substr(begin, end - begin);
}

/// The index behind the brace at an index, if there is one.
std::size_t Behind(std::size_t brace) { return brace == std::string_view::npos ? brace : brace + 1; }

}  // namespace

std::optional<std::string_view> WholeArgument(std::string_view line, std::size_t from) {
    return Between(line, Behind(line.find('{', from - 1)), line.rfind('}'));
}

std::optional<std::string_view> FirstArgument(std::string_view line) {
    const std::size_t open = line.find('{', kArgumentsFrom - 1);
    if (open == line.npos) return std::nullopt;
    return Between(line, open + 1, Behind(line.find('}', open)));
}

std::optional<std::string_view> LastArgument(std::string_view line) {
    const std::size_t open = line.rfind('{'), close = line.rfind('}');
    if (open == line.npos || close == line.npos || close < open) return std::nullopt;
    return Between(line, open + 1, close + 1);
}

std::optional<std::vector<std::string_view>> ArgumentsInTurn(std::string_view line, std::size_t count,
                                                             std::size_t from) {
    std::vector<std::string_view> arguments;
    for (std::size_t at = from - 1; arguments.size() < count;) {
        const std::size_t open = line.find('{', at);
        if (open == line.npos) return std::nullopt;
        const std::size_t close = line.find('}', open);
        if (close == line.npos) return std::nullopt;
        arguments.push_back(line.substr(open + 1, close - open - 1));
        at = close + 1;
    }
    return arguments;
}

std::optional<JoinedArguments> ArgumentsJoinedBy(std::string_view line, std::string_view phrase) {
    const std::size_t joint = line.find(phrase);
    const auto first = Between(line, Behind(line.find('{', kArgumentsFrom - 1)), joint);
    if (!first) return std::nullopt;
    const auto second = Between(line, Behind(line.find('{', joint)), line.rfind('}'));
    if (!second) return std::nullopt;
    return JoinedArguments{*first, *second};
}
