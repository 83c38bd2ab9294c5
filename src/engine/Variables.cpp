#include "engine/Variables.h"

#include "engine/Bot.h"
#include "engine/Events.h"
#include "engine/Host.h"
#include "text/Text.h"

namespace {

/// The text on its way through the replacements. A value is worked out only where its variable stands.
class Expansion {
  public:
    Expansion(const Bot& bot, std::string_view text) : bot_(bot), text_(text) {}

    template <typename Value>
    void Replace(std::string_view name, Value value) {
        if (text_.find(name) != std::string::npos) text_ = ReplaceAll(text_, name, value());
    }
    void ReplaceText(std::string_view name, std::string_view value) {
        Replace(name, [&] { return value; });
    }
    bool Holds(std::string_view part) const { return text_.find(part) != std::string::npos; }
    const Bot& bot() const { return bot_; }
    std::string Take() { return std::move(text_); }

  private:
    const Bot& bot_;
    std::string text_;
};

std::string Pair(const Square& square) { return "(" + std::to_string(square.x) + "," + std::to_string(square.y) + ")"; }

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
    {"[vorel.owners]", TEXT(profile.owners)},
    {"[vorel.into]", PAIR(state.vorelInto)},
    {"[vorel.from]", PAIR(state.vorelFrom)},
    {"[vorel.into.x]", NUMBER(state.vorelInto.x)},
    {"[vorel.into.y]", NUMBER(state.vorelInto.y)},
    {"[vorel.from.x]", NUMBER(state.vorelFrom.x)},
    {"[vorel.from.y]", NUMBER(state.vorelFrom.y)},
};

std::string LongTimeNow(const Bot& bot) { return bot.host.LongTime(bot.host.Now()); }

// Under a 24-hour format the last two characters of the time are digits of the seconds.
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
    {"[move.from.x]", NUMBER(state.move.from.x)},
    {"[move.from.y]", NUMBER(state.move.from.y)},
    {"[move.frame]", NUMBER(state.move.frame)},
    {"[move.into.x]", NUMBER(state.move.into.x)},
    {"[move.into.y]", NUMBER(state.move.into.y)},
    {"[move.into]", PAIR(state.move.into)},
    {"[move.from]", PAIR(state.move.from)},
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

void ReplaceUserVariables(Expansion& text) {
    for (const UserVariable& variable : text.bot().variables.Rows()) text.ReplaceText(variable.name, variable.value);
}

void ReplacePlayerName(Expansion& text, std::string_view name) {
    text.ReplaceText("[player]", name);
    text.ReplaceText("[player.name]", name);
}

void ReplacePlayer(Expansion& text, const Furre& furre) {
    ReplacePlayerName(text, furre.name);
    text.ReplaceText("[player.colors]", furre.looks.colors);
    text.ReplaceText("[player.gender]", furre.looks.gender);
    text.ReplaceText("[player.species]", furre.looks.species);
    text.ReplaceText("[player.markings]", furre.looks.markings);
    text.ReplaceText("[player.desc]", furre.desc);
}

/// Which of the names the bot keeps stands for "[player]" depends on the current event.
void ReplaceEventPlayer(Expansion& text) {
    const BotState& state = text.bot().state;
    switch (text.bot().currentEvent) {
        case EventSpeech:
        case EventShout:
        case EventEmote:
        case EventWhisper:
        case EventSelfWhisper:
            return ReplacePlayer(text, state.player);
        // Kept on purpose: in these events the subject is the bot itself.
        case EventSelfSpeech:
        case EventSelfShout:
        case EventSelfEmote:
            return ReplacePlayer(text, state.vorel);
        case EventLookResult:
        case EventLookDescription:
            return ReplacePlayerName(text, state.look.name);
        case EventVisitorArrived:
            return ReplacePlayerName(text, state.arrived);
        case EventVisitorPresent:
            return ReplacePlayerName(text, state.present);
        case EventVisitorLeft:
            return ReplacePlayerName(text, state.departed);
        case EventJoinRequest:
        case EventJoinInvite:
        case EventJoined:
        case EventSummoned:
        case EventYouNotice:
        case EventYourNotice:
        case EventSummonedAfterAccept:
        case EventJoinedAfterAccept:
        case EventPlayerNotice:
        case EventDiceTotal:
        case EventDiceRoll:
            return ReplacePlayerName(text, state.requester);
        case EventPlayerOnline:
        case EventPlayerOffline:
            return ReplacePlayerName(text, state.onlineName);
        case EventCookieSeen:
        case EventCookieReceived:
            ReplacePlayerName(text, state.cookieGiver);
            return text.ReplaceText("[cookiename]", state.cookieName);
        // Kept on purpose: the bot gave this cookie, so the furre of the event is the one who got it.
        case EventCookieGiven:
            ReplacePlayerName(text, state.cookieName);
            return text.ReplaceText("[cookiename]", state.cookieGiver);
        default:
            return;
    }
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
    if (text.bot().state.message.empty() || !(text.Holds("[word") || text.Holds("[startingword"))) return;
    const std::vector<std::string> words = Split(text.bot().state.message, " ");
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        text.ReplaceText("[word" + number + "]", words[i]);
        text.Replace("[startingword" + number + "]", [&] { return WordsFrom(words, i); });
    }
}

void ReplaceDice(Expansion& text) {
    const Dice& dice = text.bot().state.dice;
    if (dice.amount > 0 && text.Holds("[die")) {
        const std::size_t kept = std::min(dice.values.size(), static_cast<std::size_t>(dice.amount));
        for (std::size_t i = 0; i < kept; ++i) {
            text.ReplaceText("[die" + std::to_string(i + 1) + "]", std::to_string(dice.values[i]));
        }
    }
    ReplaceEach(text, kDiceVariables);
}

}  // namespace

std::string ExpandVariables(const Bot& bot, std::string_view text) {
    if (text.find('[') == text.npos && bot.variables.AllBracketed()) return std::string(text);
    Expansion expansion(bot, text);
    ReplaceUserVariables(expansion);
    ReplaceEventPlayer(expansion);
    ReplaceWords(expansion);
    ReplaceEach(expansion, kBotVariables);
    ReplaceEach(expansion, kClockVariables);
    ReplaceEach(expansion, kStateVariables);
    ReplaceDice(expansion);
    return expansion.Take();
}
