#include "net/SystemNotices.h"

#include <string>
#include <unordered_map>
#include <vector>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "net/ServerLine.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

constexpr std::size_t kFirstWordAt = 4;
constexpr std::string_view kTooManyVisitors =
    "The list of visitors names somebody so often that not every event of it is raised.";
constexpr std::string_view kStandardTime = "(* Furcadia Standard Time: ";

/// (* Player name …, with 23 characters behind the name
void ReadPlayerNotice(Bot& bot, const ServerLine& line) {
    bot.state.requester = line.Text(11, static_cast<std::ptrdiff_t>(line.Length()) - 33);
    RunScript(bot, EventPlayerNotice);
}

void ReadYouNotice(Bot& bot, const ServerLine& line) {
    if (line.Whole() == "(* You cannot summon yourself.") return;
    bot.state.requester = line.LastWord();
    RunScript(bot, EventYouNotice);
}

/// (* Furcadia Standard Time: 7:05:09 PM
void ReadStandardTime(Bot& bot, const ServerLine& line) {
    if (!line.HasAt(1, kStandardTime)) return;
    const std::vector<std::string> pieces = Split(line.Whole().substr(kStandardTime.size()), ":");
    if (pieces.size() < 3) throw RuntimeFault(FaultKind::SubscriptOutOfRange);
    const std::string& last = pieces[2];
    const std::string_view second = WithoutLast(last, 2);
    bot.state.fst = {LeadingNumberOrZero(pieces[0]), LeadingNumberOrZero(pieces[1]), LeadingNumberOrZero(second),
                     last.substr(second.size())};
    RunScript(bot, EventTimeOfDay);
}

std::vector<std::string> Names(const std::string& list) {
    return list.empty() ? std::vector<std::string>() : Split(list, ", ");
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

void ReadVisitorList(Bot& bot, const ServerLine& line) {
    const std::string list(line.RestAfter(20));
    bot.state.newVisitors = list;
    const std::vector<std::string> before = Names(bot.state.visitors);
    // The script sees the list it compares against; where there was none it sees the new one.
    if (before.empty()) bot.state.visitors = list;
    CompareVisitors(bot, before, Names(list));
    bot.state.visitors = list;
    RunScript(bot, EventVisitorsUpdated);
}

/// The dream's name is the line's last word, without the full stop.
void ReadDreamName(Bot& bot, const ServerLine& line) {
    bot.state.previousMap = bot.state.map;
    bot.state.map = WithoutLast(line.LastWord(), 1);
}

void ReadOnePlayer(Bot& bot, const ServerLine& line) {
    ReadDreamName(bot, line);
    bot.state.visitorCount = 1;
}

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
