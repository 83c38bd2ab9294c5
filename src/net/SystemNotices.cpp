#include <string>
#include <unordered_map>
#include <vector>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "game/Lists.h"
#include "net/LineReaders.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr std::size_t kFirstWordAt = 4;  // behind "(* "

/// How many visitors' events one list may raise. No dream holds a hundredth as many visitors; but a name that stands in
/// two lists many times raises an event for each pair, and a list made for that would keep the bot busy for hours.
constexpr std::size_t kMostVisitorEvents = 100000;

constexpr std::string_view kTooManyVisitors =
    "The list of visitors names somebody so often that not every event of it is raised.";
constexpr std::string_view kStandardTime = "(* Furcadia Standard Time: ";

/// (* Player name is not currently here.
void ReadPlayerNotice(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kNameAt = 11;
    // Kept on purpose: the words behind the name are not looked at, only counted; a notice in other words is cut
    // elsewhere, and one too short is a fault.
    constexpr std::string_view kBehindName = " is not currently here.";
    bot.state.requester = WithoutLast(line.RestFrom(kNameAt), kBehindName.size());
    RunScript(bot, EventPlayerNotice);
}

/// (* You … name
void ReadYouNotice(Bot& bot, const ServerLine& line) {
    // Its last word is no name.
    if (line.Whole() == "(* You cannot summon yourself.") return;
    bot.state.requester = line.LastWord();
    RunScript(bot, EventYouNotice);
}

/// (* Furcadia Standard Time: 7:05:09 PM. The first two numbers end at a ":", the third before the last two characters.
void ReadStandardTime(Bot& bot, const ServerLine& line) {
    if (!line.Whole().starts_with(kStandardTime)) return;
    const std::vector<std::string> pieces = Split(line.Whole().substr(kStandardTime.size()), ":");
    if (pieces.size() < 3) throw RuntimeFault(FaultKind::SubscriptOutOfRange);
    const std::string& last = pieces[2];
    const std::string_view second = WithoutLast(last, 2);
    bot.state.fst = {LeadingNumberOrZero(pieces[0]), LeadingNumberOrZero(pieces[1]), LeadingNumberOrZero(second),
                     last.substr(second.size())};
    RunScript(bot, EventTimeOfDay);
}

using NameCount = std::unordered_map<std::string_view, std::size_t>;

NameCount CountNames(const std::vector<std::string>& names) {
    NameCount counts;
    for (const std::string& name : names) ++counts[name];
    return counts;
}

/// Raises the events of one visitor list, as long as they stay within their bounds.
class VisitorEvents {
  public:
    explicit VisitorEvents(Bot& bot) : bot_(bot) {}

    void Raise(GameEvent event, std::string BotState::*visitor, const std::string& name) {
        if (raised_++ < kMostVisitorEvents) {
            bot_.state.*visitor = name;
            RunScript(bot_, event);
        } else if (raised_ == kMostVisitorEvents + 1) {
            bot_.host.ShowConsoleLine(kTooManyVisitors);
        }
    }
    bool Full() const { return raised_ > kMostVisitorEvents; }

  private:
    Bot& bot_;
    std::size_t raised_ = 0;
};

/// Raises the events for the visitors that stayed, left and came: a name that stood in the list before stays once for
/// each time that it stands in the list now.
void CompareVisitors(Bot& bot, const std::vector<std::string>& before, const std::vector<std::string>& now) {
    const NameCount timesBefore = CountNames(before), timesNow = CountNames(now);
    VisitorEvents events(bot);
    for (const std::string& name : before) {
        const auto found = timesNow.find(name);
        if (found == timesNow.end()) events.Raise(EventVisitorLeft, &BotState::departed, name);
        const std::size_t times = found == timesNow.end() ? 0 : found->second;
        for (std::size_t i = 0; i < times && !events.Full(); ++i) {
            events.Raise(EventVisitorPresent, &BotState::present, name);
        }
    }
    for (const std::string& name : now) {
        if (!timesBefore.contains(name)) events.Raise(EventVisitorArrived, &BotState::arrived, name);
    }
}

/// (* Current players: names
void ReadVisitorList(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kNamesAt = 21;
    const std::string list(line.RestFrom(kNamesAt));
    bot.state.newVisitors = list;
    const std::vector<std::string> before = EntriesOf(bot.state.visitors);
    // The script sees the list it compares against; where there was none it sees the new one.
    if (before.empty()) bot.state.visitors = list;
    CompareVisitors(bot, before, EntriesOf(list));
    bot.state.visitors = list;
    RunScript(bot, EventVisitorsUpdated);
}

/// The dream's name is the line's last word, without the full stop. Kept on purpose: of a name in several words that is
/// the end only.
void ReadDreamName(Bot& bot, const ServerLine& line) {
    bot.state.previousMap = bot.state.map;
    bot.state.map = WithoutLast(line.LastWord(), 1);
}

/// (* One player in the dream of name. Kept on purpose: only its first word is looked at.
void ReadOnePlayer(Bot& bot, const ServerLine& line) {
    ReadDreamName(bot, line);
    bot.state.visitorCount = 1;
}

/// (* count players in the dream of name.
void ReadPlayerCount(Bot& bot, const ServerLine& line) {
    const std::string_view count = line.WordAt(kFirstWordAt);
    if (!line.HasAt(kFirstWordAt + count.size(), " players in the dream of ")) return;
    ReadDreamName(bot, line);
    bot.state.visitorCount = LeadingNumberOrZero(count);
}

struct Reader {
    std::string_view firstWord;
    void (*read)(Bot&, const ServerLine&);
};

// The first row that fits counts; the last one fits whatever word there is.
constexpr Reader kReaders[] = {
    {"Player ", ReadPlayerNotice}, {"You ", ReadYouNotice}, {"Furcadia ", ReadStandardTime},
    {"Current ", ReadVisitorList}, {"One ", ReadOnePlayer}, {"", ReadPlayerCount},
};

}  // namespace

void ReadSystemNotice(Bot& bot, const ServerLine& line) {
    for (const Reader& reader : kReaders) {
        if (line.HasAt(kFirstWordAt, reader.firstWord)) return reader.read(bot, line);
    }
}
