#include "engine/PlainRules.h"

#include <algorithm>
#include <optional>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/DataFile.h"
#include "game/Compare.h"
#include "text/Limits.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

std::string Pair(Square square) { return "(" + std::to_string(square.x) + "," + std::to_string(square.y) + ")"; }

std::string TextOf(const NamedField& field) {
    if (const auto* const text = std::get_if<std::string*>(&field.value)) return **text;
    if (const auto* const number = std::get_if<std::int16_t*>(&field.value)) return std::to_string(**number);
    return std::get<std::string>(field.value);
}

void Replace(std::string& text, std::string_view name, const std::string& value) {
    if (name.empty() || text.find(name) == std::string::npos) return;
    std::string replaced;
    std::size_t from = 0;
    for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, from)) {
        replaced.append(text, from, at - from).append(value);
        CheckTextLength(replaced.size());
        from = at + name.size();
    }
    text = replaced.append(text, from);
    CheckTextLength(text.size());
}

bool IsOneOf(int event, std::initializer_list<int> events) {
    return std::find(events.begin(), events.end(), event) != events.end();
}

/// The furre of the event of which more than the name is known.
Furre* FurreOf(Bot& bot) {
    if (IsOneOf(bot.currentEvent, {4, 5, 6, 7, 11})) return &bot.state.player;
    return IsOneOf(bot.currentEvent, {8, 9, 10}) ? &bot.state.vorel : nullptr;
}

const std::string* PlayerName(Bot& bot) {
    BotState& state = bot.state;
    const int event = bot.currentEvent;
    if (const Furre* const furre = FurreOf(bot)) return &furre->name;
    if (IsOneOf(event, {13, 14})) return &state.look.name;
    if (event == 21) return &state.arrived;
    if (event == 22) return &state.present;
    if (event == 23) return &state.departed;
    if ((event >= 27 && event <= 35) || IsOneOf(event, {44, 45})) return &state.requester;
    if (IsOneOf(event, {36, 37})) return &state.onlineName;
    if (IsOneOf(event, {40, 42})) return &state.cookieGiver;
    return event == 41 ? &state.cookieName : nullptr;
}

void ReplacePlayer(Bot& bot, std::string& text) {
    const std::string* const name = PlayerName(bot);
    if (!name) return;
    Replace(text, "[player]", *name);
    Replace(text, "[player.name]", *name);
    if (const Furre* const furre = FurreOf(bot)) {
        Replace(text, "[player.colors]", furre->looks.colors);
        Replace(text, "[player.gender]", furre->looks.gender);
        Replace(text, "[player.species]", furre->looks.species);
        Replace(text, "[player.markings]", furre->looks.markings);
        Replace(text, "[player.desc]", furre->desc);
    }
    if (IsOneOf(bot.currentEvent, {40, 42})) Replace(text, "[cookiename]", bot.state.cookieName);
    if (bot.currentEvent == 41) Replace(text, "[cookiename]", bot.state.cookieGiver);
}

void ReplaceWords(Bot& bot, std::string& text) {
    if (bot.state.message.empty()) return;
    const std::vector<std::string> words = Split(bot.state.message, " ");
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::string rest;
        for (std::size_t k = i; k < words.size(); ++k) rest = rest.empty() ? words[k] : rest + " " + words[k];
        Replace(text, "[word" + std::to_string(i + 1) + "]", words[i]);
        Replace(text, "[startingword" + std::to_string(i + 1) + "]", rest);
    }
}

/// One condition, on its expanded line.
class Condition {
  public:
    Condition(Bot& bot, const std::string& line, int number) : bot_(bot), line_(line), number_(number) {}

    bool Holds() const {
        const auto test = [this](int positive) { return Test(positive); };
        if (number_ < 0 || number_ == 27 || number_ > 134) return false;
        if (IsOneOf(number_, {82, 83, 125, 126}) || (number_ >= 100 && number_ <= 119)) return test(number_) == true;
        if (number_ >= 120 && number_ <= 122) return test(number_ - 3) == false;
        const bool oddIsPositive = number_ >= 123;
        const bool isPositive = (number_ % 2 == 1) == oddIsPositive;
        return test(isPositive ? number_ : number_ - 1) == isPositive;
    }

  private:
    using Text = std::optional<std::string>;
    using Answer = std::optional<bool>;  // nothing: neither the test nor its negation holds

    Bot& bot_;
    const std::string& line_;
    const int number_;

    Text Between(std::size_t open, std::size_t close, bool keepBrace = true) const {
        if (open == std::string::npos || close == std::string::npos || close < open) return std::nullopt;
        return line_.substr(open + 1, close - open - (keepBrace ? 0 : 1));
    }
    Text Whole(std::size_t from = 7) const { return Between(line_.find('{', from - 1), line_.rfind('}'), false); }
    Text First() const {
        const std::size_t open = line_.find('{', 6);
        return Between(open, line_.find('}', open));
    }
    Text Last() const { return Between(line_.rfind('{'), line_.rfind('}')); }

    static std::string Folded(const std::string& text) { return UpperCase(ReplaceAll(text, "|", " ")); }

    Answer Equals(const std::string& text, const Text& argument) const {
        return argument ? Answer(Folded(text) == Folded(*argument)) : std::nullopt;
    }
    Answer Matches(const std::string& text, const Text& pattern) const {
        return pattern ? Answer(Like(Folded(text), Folded(*pattern))) : std::nullopt;
    }
    Answer Contains(const std::string& text, const Text& part) const {
        return part ? Answer(UpperCase(text).find(UpperCase(*part)) != std::string::npos) : std::nullopt;
    }
    Answer IsListed(const std::string& list, const Text& name) const {
        if (!name) return std::nullopt;
        const std::vector<std::string> entries = Split(list, ", ");
        return !list.empty() && std::any_of(entries.begin(), entries.end(),
                                            [&](const std::string& entry) { return Folded(entry) == Folded(*name); });
    }
    Answer Is(std::int16_t number) const {
        const Text first = First();
        return first ? Answer(number == LeadingNumber(*first)) : std::nullopt;
    }
    Answer IsAt(Square square) const {
        const Text x = First(), y = Last();
        return x && y ? Answer(square.x == LeadingNumber(*x) && square.y == LeadingNumber(*y)) : std::nullopt;
    }
    /// @param how  0 to 4: less, at most, equal, at least, more
    static bool Compares(double a, double b, int how) {
        return how == 0 ? a < b : how == 1 ? a <= b : how == 2 ? a == b : how == 3 ? a >= b : a > b;
    }

    Answer Test(int positive) const {
        const BotState& state = bot_.state;
        if (positive <= 1) return NameEquals();
        if (positive <= 13) {
            const std::string& text = positive < 8 ? state.message : state.look.desc;
            if (positive % 6 == 2) return Equals(text, Whole());
            return positive % 6 == 4 ? Matches(text, Whole()) : Contains(text, Whole());
        }
        if (positive <= 35) return LooksAre(positive);
        if (positive <= 69) return BadgeIs(positive);
        const std::int16_t time[] = {state.fst.hour, state.fst.minute, state.fst.second};
        if (positive >= 76 && positive <= 80) return Is(time[(positive - 76) / 2]);
        if (positive >= 102 && positive <= 106) return DieCompares(positive - 102);
        if (positive >= 107 && positive <= 111) {
            return First() ? Answer(Compares(state.dice.total, LeadingNumber(*First()), positive - 107)) : std::nullopt;
        }
        if (positive >= 112 && positive <= 116) {
            if (!First() || !Last()) return std::nullopt;
            const int how = positive == 115 ? 4 : positive == 116 ? 3 : positive - 112;
            return Compares(LeadingNumber(*First()), LeadingNumber(*Last()), how);
        }
        if (positive >= 92 && positive <= 98) {
            if (!IsOneOf(bot_.currentEvent, {38, 39})) return std::nullopt;
            const DragonSpeakNotice& notice = bot_.currentEvent == 38 ? state.dsbot : state.ds;
            if (positive == 96) return Is(notice.trigger);
            return IsAt(positive == 92 ? notice.from : positive == 94 ? notice.into : notice.triggerAt);
        }
        // clang-format off
        switch (positive) {
            case 70: return Equals(state.map, Whole());
            case 72: return Equals(state.previousMap, Whole());
            case 74: return IsListed(state.visitors, Whole());
            case 82: return state.fst.median == "AM";
            case 83: return state.fst.median == "PM";
            case 84: return ColorsEqual();
            case 86: return IsAt(state.moveFrom);
            case 88: case 90: return IsAt(state.moveInto);
            case 100: return Is(state.dice.amount);
            case 101: return Is(state.dice.sides);
            case 117: return First() && Last() ? Answer(*First() == *Last()) : std::nullopt;
            case 118: return First() && Last() ? Answer(Like(*First(), *Last())) : std::nullopt;
            case 119: return First() && Last() ? Answer(First()->find(*Last()) != std::string::npos) : std::nullopt;
            case 123: return FileHolds();
            case 125: case 126: return bot_.profile.connectClient == positive - 125;
            case 127: return IsListed(bot_.profile.owners.Text(), Whole());
            case 129: return IsListed(bot_.profile.maps.Text(), Whole());
            case 131: return Equals(state.dreamName, Whole(6));
            case 133: return IsAt(state.dream);
            default: return std::nullopt;
        }
        // clang-format on
    }

    Answer NameEquals() const {
        const int event = bot_.currentEvent;
        if (IsOneOf(event, {6, 8, 9, 10, 14, 31, 32, 35, 40, 41, 42, 44, 45})) return std::nullopt;
        const std::string* const name = PlayerName(bot_);
        return name ? Equals(*name, Whole()) : std::nullopt;
    }
    const Appearance* Looks() const {
        if (bot_.currentEvent == 13) return &bot_.state.look.looks;
        return IsOneOf(bot_.currentEvent, {4, 5, 7, 11}) ? &bot_.state.player.looks : nullptr;
    }
    Answer LooksAre(int positive) const {
        const Appearance* const looks = Looks();
        if (!looks) return std::nullopt;
        const std::string code(1, "#5!]\"%$?! \""[(positive - 14) / 2]);
        if (positive >= 30) return Folded(looks->gender) == code;
        const bool readsMarkings = positive == 16 || number_ == 21 || number_ == 29;
        return Folded(readsMarkings ? looks->markings : looks->species) == code;
    }
    const std::string* Badge(int lookEvent) const {
        if (IsOneOf(bot_.currentEvent, {4, 5, 7, 11})) return &bot_.state.playerTag;
        return bot_.currentEvent == lookEvent ? &bot_.state.look.badge : nullptr;
    }
    Answer BadgeIs(int positive) const {
        const std::string* const badge = Badge(positive < 40 ? 13 : 14);
        if (!badge) return std::nullopt;
        if (positive == 36) return !badge->empty();
        if (positive == 38) return *badge == "i" || *badge == "I";
        const char* const groups[] = {"QRST",  "EFGH",       "j",          "]^_`",       "ABCD",
                                      "IJKL",  "efgh",       "UVWX",       "MNOP",       "abcd",
                                      "YZ[\\", "QE]AIeUMaY", "RF^BJfVNbZ", "SG_CKgWOc[", "TH`DLhXPd\\"};
        return badge->size() == 1 && std::string(groups[(positive - 40) / 2]).find(*badge) != std::string::npos;
    }
    Answer ColorsEqual() const {
        if (bot_.currentEvent == 15) return number_ == 84 ? Equals(bot_.state.move.colors, Whole()) : std::nullopt;
        return Looks() ? Equals(Looks()->colors, Whole()) : std::nullopt;
    }
    Answer DieCompares(int how) const {
        if (!First() || !Last()) return std::nullopt;
        const std::int16_t die = RoundTo16(LeadingNumber(*First()));
        const auto& values = bot_.state.dieValues;
        if (die < 1 || die > static_cast<int>(values.size())) throw RuntimeFault(FaultKind::SubscriptOutOfRange);
        return Compares(values[static_cast<std::size_t>(die) - 1], LeadingNumber(*Last()), how);
    }
    Answer FileHolds() const {
        std::string arguments[3];
        std::size_t close = 5;
        for (std::string& argument : arguments) {
            const std::size_t open = line_.find('{', close);
            close = line_.find('}', open);
            const Text group = Between(open, close, false);
            if (!group) return std::nullopt;
            argument = *group;
        }
        const auto bytes = ReadDataFile(bot_, arguments[2]);
        return bytes && DataFileHolds(*bytes, arguments[1], arguments[0]);
    }
};

}  // namespace

std::vector<NamedField> FieldsOf(Bot& bot) {
    BotState& s = bot.state;
    const LocalTime now = bot.host.Now();
    const std::string time = bot.host.LongTime(now), fst = std::to_string(s.fst.hour) + ":" +
                                                           std::to_string(s.fst.minute) + ":" +
                                                           std::to_string(s.fst.second) + " " + s.fst.median;
    // clang-format off
    return {
        {"player.name", &s.player.name}, {"player.desc", &s.player.desc}, {"player.colors", &s.player.looks.colors},
        {"player.gender", &s.player.looks.gender}, {"player.species", &s.player.looks.species},
        {"player.markings", &s.player.looks.markings}, {"player.tag", &s.playerTag}, {"requester", &s.requester},
        {"online", &s.onlineName}, {"arrived", &s.arrived}, {"present", &s.present}, {"departed", &s.departed},
        {"giver", &s.cookieGiver}, {"cookie", &s.cookieName}, {"connectclient", &bot.profile.connectClient},
        {"dice.amount", &s.dice.amount},
        {"dice.sides", &s.dice.sides}, {"dice.total", &s.dice.total}, {"hours", &bot.clock.hours},
        {"minutes", &bot.clock.minutes}, {"seconds", &bot.clock.seconds},

        {"[vorel.name]", &s.vorel.name}, {"[vorel.desc]", &s.vorel.desc}, {"[vorel.badge]", &s.vorel.badge},
        {"[vorel.colors]", &s.vorel.looks.colors}, {"[vorel.gender]", &s.vorel.looks.gender},
        {"[vorel.markings]", &s.vorel.looks.markings}, {"[vorel.species]", &s.vorel.looks.species},
        {"[vorel.owners]", bot.profile.owners.Text()},
        {"[vorel.into]", Pair(s.vorelInto)}, {"[vorel.from]", Pair(s.vorelFrom)},
        {"[vorel.into.x]", &s.vorelInto.x}, {"[vorel.into.y]", &s.vorelInto.y},
        {"[vorel.from.x]", &s.vorelFrom.x}, {"[vorel.from.y]", &s.vorelFrom.y},

        {"[date]", bot.host.ShortDate(now)}, {"[time]", time}, {"[hour]", std::to_string(now.hour)},
        {"[minute]", std::to_string(now.minute)}, {"[second]", std::to_string(now.second)},
        {"[median]", time.substr(time.size() - 2)},

        {"[fst]", fst}, {"[fst.time]", fst}, {"[fst.hour]", &s.fst.hour}, {"[fst.minute]", &s.fst.minute},
        {"[fst.second]", &s.fst.second}, {"[fst.median]", &s.fst.median},
        {"[move.colors]", &s.move.colors}, {"[move.from.x]", &s.moveFrom.x}, {"[move.from.y]", &s.moveFrom.y},
        {"[move.frame]", &s.move.frame}, {"[move.into.x]", &s.moveInto.x}, {"[move.into.y]", &s.moveInto.y},
        {"[move.into]", Pair(s.moveInto)}, {"[move.from]", Pair(s.moveFrom)},
        {"[look.name]", &s.look.name}, {"[look.colors]", &s.look.looks.colors}, {"[look.gender]", &s.look.looks.gender},
        {"[look.species]", &s.look.looks.species}, {"[look.markings]", &s.look.looks.markings},
        {"[look.badge]", &s.look.badge}, {"[look.desc]", &s.look.desc},
        {"[dsbot.from.x]", &s.dsbot.from.x}, {"[dsbot.from.y]", &s.dsbot.from.y}, {"[dsbot.into.x]", &s.dsbot.into.x},
        {"[dsbot.into.y]", &s.dsbot.into.y}, {"[dsbot.trigger]", &s.dsbot.trigger},
        {"[dsbot.trigger.x]", &s.dsbot.triggerAt.x}, {"[dsbot.trigger.y]", &s.dsbot.triggerAt.y},
        {"[ds.from.x]", &s.ds.from.x}, {"[ds.from.y]", &s.ds.from.y}, {"[ds.into.x]", &s.ds.into.x},
        {"[ds.into.y]", &s.ds.into.y}, {"[ds.trigger]", &s.ds.trigger},
        {"[ds.trigger.x]", &s.ds.triggerAt.x}, {"[ds.trigger.y]", &s.ds.triggerAt.y},
        {"[breath.x]", &s.breath.x}, {"[breath.y]", &s.breath.y}, {"[flame.x]", &s.flame.x}, {"[flame.y]", &s.flame.y},
        {"[dream.name]", &s.dreamName}, {"[dream.x]", &s.dream.x}, {"[dream.y]", &s.dream.y},
        {"[message]", &s.message}, {"[visitors]", &s.visitors}, {"[visitorcount]", &s.visitorCount},
        {"[map]", &s.map}, {"[previousmap]", &s.previousMap},
    };
    // clang-format on
}

std::string ExpandPlainly(Bot& bot, std::string text) {
    CheckTextLength(text.size());
    for (const auto& [rank, row] : bot.variables.Rows()) Replace(text, row.name, row.value);
    if (text.find('[') == std::string::npos) return text;  // so all the others begin
    ReplacePlayer(bot, text);
    ReplaceWords(bot, text);
    for (const NamedField& field : FieldsOf(bot)) {
        if (field.name.starts_with('[') && text.find(field.name) != std::string::npos)
            Replace(text, field.name, TextOf(field));
    }
    const Dice& dice = bot.state.dice;
    for (std::size_t i = 0; i < bot.state.dieValues.size() && static_cast<int>(i) < dice.amount; ++i) {
        Replace(text, "[die" + std::to_string(i + 1) + "]", std::to_string(bot.state.dieValues[i]));
    }
    Replace(text, "[dice.total]", std::to_string(dice.total));
    Replace(text, "[dice.amount]", std::to_string(dice.amount));
    Replace(text, "[dice.sides]", std::to_string(dice.sides));
    return text;
}

bool HoldsPlainly(Bot& bot, std::string& line, std::int16_t number) {
    line = ExpandPlainly(bot, line);
    return Condition(bot, line, number).Holds();
}
