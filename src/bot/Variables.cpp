#include "bot/Variables.h"

#include <algorithm>
#include <functional>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "bot/Bot.h"
#include "bot/BotVariables.h"
#include "text/Limits.h"

namespace {

/// The text on its way through the replacements. A value is worked out only where its variable stands, and the memory
/// for it is taken only when the text stays within its bounds.
class Expansion {
  public:
    Expansion(const Bot& bot, std::string_view text) : bot_(bot), text_(text) {}

    /// Replaces a name wherever it stands, by what value() gives.
    /// @return how many bytes were put in each time, and at which indices of the new text
    template <typename Value>
    std::pair<std::size_t, std::vector<std::size_t>> Replace(std::string_view name, Value value) {
        std::vector<std::size_t> places = PlacesOf(name);
        if (places.empty()) return {};
        const std::string put(value());
        CheckTextLength(text_.size() - places.size() * name.size() + places.size() * put.size());
        std::string replaced;
        std::size_t from = 0;
        for (std::size_t& place : places) {
            replaced.append(text_, from, place - from);
            from = place + name.size();
            place = replaced.size();
            replaced.append(put);
        }
        text_ = replaced.append(text_, from);
        bracket_ = text_.find('[');
        return {put.size(), std::move(places)};
    }
    void Replace(const Variable& variable) {
        std::string value;
        if (Holds(variable.name) && variable.append(bot_, value)) Replace(variable.name, [&] { return value; });
    }
    bool Holds(std::string_view part) const { return text_.find(part) != std::string::npos; }
    const Bot& bot() const { return bot_; }
    std::string_view Text() const { return text_; }
    std::string Take() { return std::move(text_); }

  private:
    const Bot& bot_;
    std::string text_;
    std::size_t bracket_ = text_.find('[');  ///< the first one: nearly all names begin so

    std::vector<std::size_t> PlacesOf(std::string_view name) const {
        std::vector<std::size_t> places;
        const std::size_t from = name.starts_with('[') ? bracket_ : 0;
        for (std::size_t at = text_.find(name, from); at != std::string::npos;
             at = text_.find(name, at + name.size())) {
            places.push_back(at);
        }
        return places;
    }
};

/// Replaces the names of a long list in turn, each with a replacement of its own whose result the next one sees. Rows
/// are not tried one by one: only those have a turn whose name stands in the text, or may have come about where another
/// one's value was put in.
/// @tparam Names  NamesAt(text, at, found) and LongestName() as UserVariables has them, NameOf(rank), ValueOf(rank)
template <typename Names>
class TurnsOf {
  public:
    TurnsOf(Expansion& text, const Names& names) : text_(text), names_(names) {}

    void Take() {
        LookBetween(0, text_.Text().size());
        while (!waiting_.empty()) {
            const std::size_t rank = *waiting_.begin();
            waiting_.erase(waiting_.begin());
            next_ = rank + 1;
            const auto [length, places] = text_.Replace(names_.NameOf(rank), [&] { return names_.ValueOf(rank); });
            LookAround(length, places);
        }
    }

  private:
    Expansion& text_;
    const Names& names_;
    std::set<std::size_t> waiting_;  ///< the ranks that may have a turn
    std::size_t next_ = 0;           ///< lower ranks have had theirs

    void LookBetween(std::size_t from, std::size_t to) {
        for (std::size_t at = from; at < to; ++at) {
            names_.NamesAt(text_.Text(), at, [this](std::size_t rank) {
                if (rank >= next_) waiting_.insert(rank);
            });
        }
    }

    /// A name that was not there before holds something of what was put in, or reaches over where it was put.
    void LookAround(std::size_t length, const std::vector<std::size_t>& places) {
        std::size_t seen = 0;
        for (const std::size_t place : places) {
            const std::size_t reach = std::min(place, names_.LongestName());
            LookBetween(std::max(seen, place - reach), place + length);
            seen = place + length;
        }
    }
};

template <typename Names>
void ReplaceInTurn(Expansion& text, const Names& names) {
    TurnsOf<Names>(text, names).Take();
}

/// The user variables, which go in the order of their list.
class UserNames {
  public:
    explicit UserNames(const UserVariables& variables) : variables_(variables) {}

    template <typename Found>
    void NamesAt(std::string_view text, std::size_t at, Found found) const {
        variables_.NamesAt(text, at, found);
    }
    std::size_t LongestName() const { return variables_.LongestName(); }
    std::string_view NameOf(std::size_t rank) const { return variables_.Rows().at(rank).name; }
    std::string_view ValueOf(std::size_t rank) const { return variables_.Rows().at(rank).value; }

  private:
    const UserVariables& variables_;
};

/// Variables with a number from 1 on behind their stem, such as "[die3]". All of one number go before the next, in the
/// order of their stems.
class NumberedNames {
  public:
    using Value = std::function<std::string(std::size_t stem, std::size_t number)>;

    NumberedNames(std::vector<std::string_view> stems, std::size_t count, Value value)
        : stems_(std::move(stems)), count_(count), value_(std::move(value)) {}

    template <typename Found>
    void NamesAt(std::string_view text, std::size_t at, Found found) const {
        if (text[at] != '[') return;
        for (std::size_t stem = 0; stem < stems_.size(); ++stem) {
            if (!text.substr(at).starts_with(stems_[stem])) continue;
            const std::size_t number = NumberAt(text, at + stems_[stem].size());
            if (0 < number && number <= count_) found(RankOf(stem, number));
        }
    }
    std::size_t LongestName() const {
        return NameOf(RankOf(stems_.size() - 1, std::max<std::size_t>(count_, 1))).size();
    }
    std::string NameOf(std::size_t rank) const {
        return std::string(stems_[rank % stems_.size()]) + std::to_string(rank / stems_.size() + 1) + "]";
    }
    std::string ValueOf(std::size_t rank) const { return value_(rank % stems_.size(), rank / stems_.size() + 1); }

  private:
    std::vector<std::string_view> stems_;  ///< the longest one last
    std::size_t count_;
    Value value_;

    std::size_t RankOf(std::size_t stem, std::size_t number) const { return (number - 1) * stems_.size() + stem; }
};

void ReplaceEach(Expansion& text, std::span<const Variable> variables) {
    for (const Variable& variable : variables) text.Replace(variable);
}

void ReplaceWords(Expansion& text) {
    constexpr std::string_view kOne = StemOf(kWord), kFrom = StemOf(kStartingWord);
    const Bot& bot = text.bot();
    if (!(text.Holds(kOne) || text.Holds(kFrom))) return;
    ReplaceInTurn(text, NumberedNames({kOne, kFrom}, CountOfWords(bot), [&bot](std::size_t stem, std::size_t n) {
                      return std::string(stem == 0 ? Word(bot, n) : WordsFrom(bot, n));
                  }));
}

void ReplaceSingleDice(Expansion& text) {
    const Bot& bot = text.bot();
    if (!text.Holds(StemOf(kDie))) return;
    ReplaceInTurn(text, NumberedNames({StemOf(kDie)}, CountOfDice(bot), [&bot](std::size_t, std::size_t n) {
                      return std::to_string(bot.state.dieValues[n - 1]);
                  }));
}

/// Each variable in its turn, the result of one being what the next one sees. The order is what scripts count on: a
/// value that holds another variable is filled in when that one's turn is still to come, and stays as it is when it has
/// been.
std::string ExpandInTurn(const Bot& bot, std::string_view text) {
    Expansion expansion(bot, text);
    ReplaceInTurn(expansion, UserNames(bot.variables));
    ReplaceEach(expansion, EventVariables());
    ReplaceWords(expansion);
    ReplaceEach(expansion, StateVariables());
    ReplaceSingleDice(expansion);
    ReplaceEach(expansion, DiceVariables());
    return expansion.Take();
}

/// So many names are looked up one by one. A text with more, such as a stranger may say, is cheaper gone through for
/// each of the variables.
constexpr std::size_t kMostMentions = 64;

/// All variables at one go, which is the same as in turn as long as each stands apart from the others and no value
/// holds a "[", so that no name can come about.
/// @param room  what the text becomes; of no use when that is not so
/// @return whether it is so
bool ExpandAtOnce(const Bot& bot, std::string_view text, std::string& room) {
    std::size_t longest = text.size();  // in between, if the variables went in the worst order
    std::size_t mentions = 0;
    room.clear();
    while (const std::optional<Mention> mention = NextMention(text)) {
        if (!mention->standsApart || ++mentions > kMostMentions) return false;
        room.append(text, 0, mention->at);
        const std::size_t valueAt = room.size();
        if (!AppendValueOf(bot, mention->name, room))
            room += mention->name;
        else if (room.find('[', valueAt) != room.npos)
            return false;
        longest += room.size() - valueAt;
        if (longest > kLongestText) return false;
        text.remove_prefix(mention->at + mention->name.size());
    }
    room += text;
    return true;
}

}  // namespace

std::string_view ExpandVariables(const Bot& bot, std::string_view text, std::string& room) {
    CheckTextLength(text.size());
    // Every line is expanded, and up to three times; most hold no name.
    if (text.find('[') == text.npos && bot.variables.AllBracketed()) return text;
    if (bot.variables.AllSimple() && ExpandAtOnce(bot, text, room)) return room;
    return room = ExpandInTurn(bot, text);
}

std::string ExpandVariables(const Bot& bot, std::string_view text) {
    std::string room;
    const std::string_view expanded = ExpandVariables(bot, text, room);
    return expanded.data() == room.data() ? std::move(room) : std::string(expanded);
}

bool AppendValueOf(const Bot& bot, std::string_view name, std::string& text) {
    const std::string* const value = bot.variables.Find(name);
    if (value) text += *value;
    return value || AppendValue(bot, name, text);
}

std::optional<Mention> NextMention(std::string_view text) {
    const std::size_t open = text.find('[');
    const std::size_t next = open == text.npos ? open : text.find_first_of("[]", open + 1);
    if (next == text.npos) return std::nullopt;
    return Mention{open, text.substr(open, next + 1 - open), text[next] == ']'};
}

std::vector<std::string_view> VariableNames() {
    std::vector<std::string_view> names;
    const auto add = [&names](std::span<const Variable> variables) {
        for (const Variable& variable : variables) names.push_back(variable.name);
    };
    add(EventVariables());
    names.insert(names.end(), {kWord, kStartingWord});
    add(StateVariables());
    names.push_back(kDie);
    add(DiceVariables());
    return names;
}
