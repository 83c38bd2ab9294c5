#include "engine/ConditionIndex.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "bot/Variables.h"
#include "engine/Conditions.h"
#include "game/Lists.h"

namespace {

using Kind = Requirement::Kind;

constexpr std::size_t kCharactersOfALook = 32;

Requirement RequirementOfLine(const ScriptLine& condition) {
    const std::int16_t number = condition.asCondition.number;
    // What a variable will stand for is not known yet.
    if (condition.text.find('[') != condition.text.npos) return {.text = condition.text, .number = number};
    return RequirementOf(condition.text, number);
}

std::uint32_t CodeOf(Square square) {
    return std::uint32_t{static_cast<std::uint16_t>(square.x)} << 16U | static_cast<std::uint16_t>(square.y);
}
std::uint32_t CodeOf(std::int16_t number) { return static_cast<std::uint16_t>(number); }

struct Before {
    static auto Key(const Requirement& r) {
        // Which field it is only has to be told apart.
        return std::tuple(
            r.kind, reinterpret_cast<std::uintptr_t>(r.textField), reinterpret_cast<std::uintptr_t>(r.numberField),
            reinterpret_cast<std::uintptr_t>(r.squareField), r.number, CodeOf(r.square), std::string_view(r.text));
    }
    bool operator()(const Requirement& a, const Requirement& b) const { return Key(a) < Key(b); }
};

/// How many triggers require it, and the causes' lines of those that are filed under it.
struct Use {
    std::size_t shared = 0;
    LineNumbers causes;
};
using Uses = std::map<Requirement, Use, Before>;

/// The better of two requirements to file a trigger under: what can be looked up, then what fewer triggers share. Of
/// what must be tested, one test for many is better.
bool IsBetter(const Uses::value_type* a, const Uses::value_type* b) {
    const auto rank = [](const Uses::value_type& use) {
        const auto shared = static_cast<std::ptrdiff_t>(use.second.shared);
        const bool tested = use.first.kind == Kind::Tested;
        return std::tuple(tested, tested ? -shared : shared, use.first.kind);
    };
    return rank(*a) < rank(*b);
}

/// What is filed for a field, which is put in when there is nothing yet.
template <typename Filed, typename Field>
auto& ValuesOf(std::vector<Filed>& filed, Field field) {
    for (Filed& entry : filed) {
        if (entry.field == field) return entry.values;
    }
    return filed.emplace_back(Filed{field, {}}).values;
}

/// Calls each(entry) for the entries of a list, without taking memory for them.
template <typename Each>
void ForEachEntry(std::string_view list, Each each) {
    for (bool more = !list.empty(); more;) {
        const std::size_t end = list.find(kListSeparator);
        each(list.substr(0, end));
        more = end != list.npos;
        if (more) list.remove_prefix(end + kListSeparator.size());
    }
}

template <typename Values, typename Key>
void AddFound(const Values& values, const Key& key, Stops& stops) {
    const auto found = values.find(key);
    if (found != values.end()) stops.Add(found->second);
    stops.CountEffort(1);
}

}  // namespace

ConditionIndex::ConditionIndex(const std::vector<Trigger>& triggers) {
    Uses uses;
    std::vector<std::vector<Uses::value_type*>> ofTriggers;
    for (const Trigger& trigger : triggers) {
        ofTriggers.emplace_back();
        for (const ScriptLine* const condition : trigger.conditions) {
            const auto use = uses.try_emplace(RequirementOfLine(*condition)).first;
            ++use->second.shared;
            ofTriggers.back().push_back(&*use);
        }
    }
    for (std::size_t i = 0; i < triggers.size(); ++i) {
        auto* const best = *std::min_element(ofTriggers[i].begin(), ofTriggers[i].end(), IsBetter);
        best->second.causes.push_back(triggers[i].causeLine);
    }

    std::map<field::TextField, std::vector<std::pair<std::string, LineNumbers>>> held;
    for (auto& [requirement, use] : uses) {
        LineNumbers& lines = use.causes;
        if (lines.empty()) continue;
        const auto& [kind, textField, numberField, squareField, text, number, square] = requirement;
        switch (kind) {
            case Kind::Never:
                break;
            case Kind::Equal:
                ValuesOf(equal_, textField).emplace(text, std::move(lines));
                break;
            case Kind::Listed:
                ValuesOf(listed_, textField).emplace(text, std::move(lines));
                break;
            case Kind::Number:
                ValuesOf(numbers_, numberField).emplace(CodeOf(number), std::move(lines));
                break;
            case Kind::Square:
                ValuesOf(squares_, squareField).emplace(CodeOf(square), std::move(lines));
                break;
            case Kind::Held:
                held[textField].emplace_back(text, std::move(lines));
                break;
            case Kind::Tested:
                tested_.push_back({text, number, std::move(lines)});
                break;
        }
    }
    for (auto& [textField, texts] : held) held_.push_back({textField, HeldTexts(std::move(texts))});
}

void ConditionIndex::Find(const Bot& bot, Stops& stops) const {
    for (const auto& [field, values] : equal_) {
        if (const std::string* const text = field(bot)) AddFound(values, std::string_view(*text), stops);
    }
    for (const auto& [field, values] : held_) {
        const std::string* const text = field(bot);
        if (!text) continue;
        values.FindIn(*text, [&](const LineNumbers& lines) { stops.Add(lines); });
        stops.CountEffort(text->size() / kCharactersOfALook);
    }
    for (const auto& [field, values] : listed_) {
        const auto add = [&, &lines = values](std::string_view entry) { AddFound(lines, entry, stops); };
        if (const std::string* const list = field(bot)) ForEachEntry(*list, add);
    }
    for (const auto& [field, values] : numbers_) {
        if (const auto number = field(bot)) AddFound(values, CodeOf(*number), stops);
    }
    for (const auto& [field, values] : squares_) {
        if (const auto square = field(bot)) AddFound(values, CodeOf(*square), stops);
    }
    std::string room;
    for (const auto& [line, number, causes] : tested_) {
        if (EvaluateCondition(bot, ExpandVariables(bot, line, room), number)) stops.Add(causes);
        stops.CountEffort(1);
    }
}
