#include "bot/Variables.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Host.h"
#include "text/Limits.h"
#include "text/Text.h"

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
    void ReplaceText(std::string_view name, std::string_view value) {
        Replace(name, [&] { return value; });
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

std::string Pair(const Square& square) { return "(" + std::to_string(square.x) + "," + std::to_string(square.y) + ")"; }

/// The rows of each table below are replaced in their order, which shows where one value holds another one's name.
struct Variable {
    std::string_view name;
    std::string (*value)(const Bot&);
};

template <std::size_t Count>
void ReplaceEach(Expansion& text, const Variable (&variables)[Count]) {
    for (const Variable& variable : variables) {
        text.Replace(variable.name, [&] { return variable.value(text.bot()); });
    }
}

/// What "[player]" and its like stand for depends on the event, see ReplaceEventPlayer.
constexpr std::string_view kPlayerNames[] = {"[player]", "[player.name]"};
constexpr std::string_view kCookieName = "[cookiename]";

struct FurreVariable {
    std::string_view name;
    std::string_view (*value)(const Furre&);
};
constexpr FurreVariable kFurreVariables[] = {
    {"[player.colors]", [](const Furre& furre) -> std::string_view { return furre.looks.colors; }},
    {"[player.gender]", [](const Furre& furre) -> std::string_view { return furre.looks.gender; }},
    {"[player.species]", [](const Furre& furre) -> std::string_view { return furre.looks.species; }},
    {"[player.markings]", [](const Furre& furre) -> std::string_view { return furre.looks.markings; }},
    {"[player.desc]", [](const Furre& furre) -> std::string_view { return furre.desc; }},
};

/// Variables with a number in the place of the N.
constexpr std::string_view kWord = "[wordN]", kStartingWord = "[startingwordN]", kDie = "[dieN]";

constexpr std::string_view StemOf(std::string_view numbered) { return numbered.substr(0, numbered.size() - 2); }

#define TEXT(path) [](const Bot& bot) { return bot.path; }
#define NUMBER(path) [](const Bot& bot) { return std::to_string(bot.path); }
#define PAIR(path) [](const Bot& bot) { return Pair(bot.path); }

constexpr Variable kBotVariables[] = {
    {"[vorel.name]", TEXT(state.vorel.name)},
    {"[vorel.desc]", TEXT(state.vorel.desc)},
    {"[vorel.badge]", TEXT(state.vorel.badge)},
    {"[vorel.colors]", TEXT(state.vorel.looks.colors)},
    {"[vorel.gender]", TEXT(state.vorel.looks.gender)},
    {"[vorel.markings]", TEXT(state.vorel.looks.markings)},
    {"[vorel.species]", TEXT(state.vorel.looks.species)},
    {"[vorel.owners]", TEXT(profile.owners.Text())},
    {"[vorel.into]", PAIR(state.vorelInto)},
    {"[vorel.from]", PAIR(state.vorelFrom)},
    {"[vorel.into.x]", NUMBER(state.vorelInto.x)},
    {"[vorel.into.y]", NUMBER(state.vorelInto.y)},
    {"[vorel.from.x]", NUMBER(state.vorelFrom.x)},
    {"[vorel.from.y]", NUMBER(state.vorelFrom.y)},
};

std::string LongTimeNow(const Bot& bot) { return bot.host.LongTime(bot.host.Now()); }

// Kept on purpose: under a 24-hour format the last two characters of the time are digits of the seconds.
std::string Median(const Bot& bot) {
    const std::string time = LongTimeNow(bot);
    return time.substr(time.size() < 2 ? 0 : time.size() - 2);
}

constexpr Variable kClockVariables[] = {
    {"[date]", [](const Bot& bot) { return bot.host.ShortDate(bot.host.Now()); }},
    {"[time]", LongTimeNow},
    {"[hour]", NUMBER(host.Now().hour)},
    {"[minute]", NUMBER(host.Now().minute)},
    {"[second]", NUMBER(host.Now().second)},
    {"[median]", Median},
};

std::string StandardTimeText(const Bot& bot) {
    const StandardTime& fst = bot.state.fst;
    return std::to_string(fst.hour) + ":" + std::to_string(fst.minute) + ":" + std::to_string(fst.second) + " " +
           fst.median;
}

constexpr Variable kStateVariables[] = {
    {"[fst]", StandardTimeText},
    {"[fst.time]", StandardTimeText},
    {"[fst.hour]", NUMBER(state.fst.hour)},
    {"[fst.minute]", NUMBER(state.fst.minute)},
    {"[fst.second]", NUMBER(state.fst.second)},
    {"[fst.median]", TEXT(state.fst.median)},
    {"[move.colors]", TEXT(state.move.colors)},
    {"[move.from.x]", NUMBER(state.moveFrom.x)},
    {"[move.from.y]", NUMBER(state.moveFrom.y)},
    {"[move.frame]", NUMBER(state.move.frame)},
    {"[move.into.x]", NUMBER(state.moveInto.x)},
    {"[move.into.y]", NUMBER(state.moveInto.y)},
    {"[move.into]", PAIR(state.moveInto)},
    {"[move.from]", PAIR(state.moveFrom)},
    {"[look.name]", TEXT(state.look.name)},
    {"[look.colors]", TEXT(state.look.looks.colors)},
    {"[look.gender]", TEXT(state.look.looks.gender)},
    {"[look.species]", TEXT(state.look.looks.species)},
    {"[look.markings]", TEXT(state.look.looks.markings)},
    {"[look.badge]", TEXT(state.look.badge)},
    {"[look.desc]", TEXT(state.look.desc)},
    {"[dsbot.from.x]", NUMBER(state.dsbot.from.x)},
    {"[dsbot.from.y]", NUMBER(state.dsbot.from.y)},
    {"[dsbot.into.x]", NUMBER(state.dsbot.into.x)},
    {"[dsbot.into.y]", NUMBER(state.dsbot.into.y)},
    {"[dsbot.trigger]", NUMBER(state.dsbot.trigger)},
    {"[dsbot.trigger.x]", NUMBER(state.dsbot.triggerAt.x)},
    {"[dsbot.trigger.y]", NUMBER(state.dsbot.triggerAt.y)},
    {"[ds.from.x]", NUMBER(state.ds.from.x)},
    {"[ds.from.y]", NUMBER(state.ds.from.y)},
    {"[ds.into.x]", NUMBER(state.ds.into.x)},
    {"[ds.into.y]", NUMBER(state.ds.into.y)},
    {"[ds.trigger]", NUMBER(state.ds.trigger)},
    {"[ds.trigger.x]", NUMBER(state.ds.triggerAt.x)},
    {"[ds.trigger.y]", NUMBER(state.ds.triggerAt.y)},
    {"[breath.x]", NUMBER(state.breath.x)},
    {"[breath.y]", NUMBER(state.breath.y)},
    {"[flame.x]", NUMBER(state.flame.x)},
    {"[flame.y]", NUMBER(state.flame.y)},
    {"[dream.name]", TEXT(state.dreamName)},
    {"[dream.x]", NUMBER(state.dream.x)},
    {"[dream.y]", NUMBER(state.dream.y)},
    {"[message]", TEXT(state.message)},
    {"[visitors]", TEXT(state.visitors)},
    {"[visitorcount]", NUMBER(state.visitorCount)},
    {"[map]", TEXT(state.map)},
    {"[previousmap]", TEXT(state.previousMap)},
};

constexpr Variable kDiceVariables[] = {
    {"[dice.total]", NUMBER(state.dice.total)},
    {"[dice.amount]", NUMBER(state.dice.amount)},
    {"[dice.sides]", NUMBER(state.dice.sides)},
};

#undef TEXT
#undef NUMBER
#undef PAIR

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
            if (const std::size_t number = NumberAt(text, at + stems_[stem].size())) found(RankOf(stem, number));
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

    /// The number that stands there up to its "]", written as numbers are; 0 when there is none, or no such variable.
    std::size_t NumberAt(std::string_view text, std::size_t at) const {
        std::size_t number = 0;
        const char* const end = text.data() + text.size();
        const auto read = std::from_chars(text.data() + at, end, number);
        const bool whole = read.ec == std::errc() && read.ptr != end && *read.ptr == ']';
        return whole && text[at] != '0' && number <= count_ ? number : 0;
    }
};

/// Which of the names the bot keeps stands for "[player]" depends on the current event. Of a furre looked at it is the
/// name alone, the rest of it has variables of its own.
void ReplaceEventPlayer(Expansion& text) {
    const BotState& state = text.bot().state;
    const EventFacts& event = FactsOf(text.bot().currentEvent);
    const std::string* const name = event.FurreNameIn(state);
    if (!name) return;
    for (const std::string_view variable : kPlayerNames) text.ReplaceText(variable, *name);
    if (event.furre && event.furre != &BotState::look) {
        for (const auto& [variable, value] : kFurreVariables) text.ReplaceText(variable, value(state.*event.furre));
    }
    if (event.otherName) text.ReplaceText(kCookieName, state.*event.otherName);
}

/// The words from one on, joined with blanks. Kept on purpose: empty words vanish while nothing is joined yet.
std::string WordsFrom(const std::vector<std::string>& words, std::size_t first) {
    std::string joined;
    for (std::size_t i = first; i < words.size(); ++i) {
        if (!joined.empty()) joined += ' ';
        joined += words[i];
    }
    return joined;
}

void ReplaceWords(Expansion& text) {
    constexpr std::string_view kOne = StemOf(kWord), kFrom = StemOf(kStartingWord);
    // No message has no words, where cutting it would make an empty one of it.
    if (text.bot().state.message.empty() || !(text.Holds(kOne) || text.Holds(kFrom))) return;
    const std::vector<std::string> words = Split(text.bot().state.message, " ");
    ReplaceInTurn(text, NumberedNames({kOne, kFrom}, words.size(), [&](std::size_t stem, std::size_t n) {
                      return stem == 0 ? words[n - 1] : WordsFrom(words, n - 1);
                  }));
}

void ReplaceDice(Expansion& text) {
    const BotState& state = text.bot().state;
    if (state.dice.amount > 0 && text.Holds(StemOf(kDie))) {
        // The count of a roll outlives a login, its single dice don't; and a roll may list fewer than were thrown.
        const std::size_t kept = std::min(state.dieValues.size(), static_cast<std::size_t>(state.dice.amount));
        ReplaceInTurn(text, NumberedNames({StemOf(kDie)}, kept, [&](std::size_t, std::size_t n) {
                          return std::to_string(state.dieValues[n - 1]);
                      }));
    }
    ReplaceEach(text, kDiceVariables);
}

}  // namespace

std::string ExpandVariables(const Bot& bot, std::string_view text) {
    CheckTextLength(text.size());
    // Every line is expanded, and up to three times; most hold no name.
    if (text.find('[') == text.npos && bot.variables.AllBracketed()) return std::string(text);
    // The order is what scripts count on: a value that holds another variable is filled in when that one's turn is
    // still to come, and stays as it is when it has been.
    Expansion expansion(bot, text);
    ReplaceInTurn(expansion, UserNames(bot.variables));
    ReplaceEventPlayer(expansion);
    ReplaceWords(expansion);
    ReplaceEach(expansion, kBotVariables);
    ReplaceEach(expansion, kClockVariables);
    ReplaceEach(expansion, kStateVariables);
    ReplaceDice(expansion);
    return expansion.Take();
}

std::vector<std::string_view> VariableNames() {
    std::vector<std::string_view> names(std::begin(kPlayerNames), std::end(kPlayerNames));
    const auto add = [&names](const auto& variables) {
        for (const auto& variable : variables) names.push_back(variable.name);
    };
    add(kFurreVariables);
    names.insert(names.end(), {kCookieName, kWord, kStartingWord});
    add(kBotVariables);
    add(kClockVariables);
    add(kStateVariables);
    names.push_back(kDie);
    add(kDiceVariables);
    return names;
}
