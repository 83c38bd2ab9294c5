#include "net/FaultText.h"

#include <algorithm>
#include <iterator>

#include "bot/Bot.h"
#include "net/Passwords.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

/// What each fault means: of a line that can't be read, and of what a script or a file asks for.
struct Reason {
    FaultKind kind;
    std::string_view ofLine, otherwise;
};

// clang-format off
constexpr Reason kReasons[] = {
    {FaultKind::Overflow,             "holds a number beyond -32768 to 32767", "a number is too large; whole ones go from -32768 to 32767"},
    {FaultKind::TypeMismatch,         "has text where lines of its kind have a number", "there is text where a number belongs"},
    {FaultKind::DivisionByZero,       "has a 0 to divide by", "a number would be divided by 0"},
    {FaultKind::SubscriptOutOfRange,  "has fewer parts than lines of its kind have", "a part is missing"},
    {FaultKind::InvalidProcedureCall, "is shorter than lines of its kind are", "a part is missing, too short, or stands in the wrong place"},
    {FaultKind::FileNotFound,         "needs a file that is not there", "there is no such file"},
    {FaultKind::PathOrFileAccess,     "needs a file that can't be opened, read or written", "it can't be opened, read or written"},
    {FaultKind::OutOfMemory,          "makes a text longer than 1 MiB", "a text would be longer than 1 MiB, or no memory is left"},
    {FaultKind::Internal,             "meets a mistake in the program; please report it", "this is a mistake in the program; please report it"},
};
// clang-format on

const Reason& ReasonOf(FaultKind kind) {
    return *std::find_if(std::begin(kReasons), std::end(kReasons),
                         [kind](const Reason& row) { return row.kind == kind; });
}

std::string_view Whose(Heard::From from) {
    switch (from) {
        case Heard::From::Game:
            return "the game's line";
        case Heard::From::Client:
            return "the client's line";
        case Heard::From::User:
            return "the typed line";
        case Heard::From::Nobody:
            break;
    }
    return "";
}

/// The line in quotes, short enough for a message.
std::string Quoted(const Bot& bot) {
    constexpr std::size_t kLongestQuote = 200;
    const Heard& heard = bot.heard;
    const std::string line = WithoutPasswords(bot, WithoutPassword(heard.line));
    const std::string shown = ToUtf8(line.substr(0, kLongestQuote)) + (line.size() > kLongestQuote ? "..." : "");
    return std::string(Whose(heard.from)) + " \"" + shown + "\"";
}

bool IsInFile(const Place& place) { return !place.file.empty() || place.line > 0; }

/// ", at greeter.vs line 12"
std::string WhereIn(const Place& place) {
    const std::string line = place.line > 0 ? " line " + std::to_string(place.line) : "";
    return place.file.empty() ? ", at" + line + " of the script" : ", at " + place.file + line;
}

std::string Named(const RuntimeFault& fault) {
    return std::string(fault.Name()) + (fault.Detail().empty() ? "" : ": " + fault.Detail());
}

}  // namespace

std::string DescribeFault(const RuntimeFault& fault, const Bot& bot) {
    const Reason& reason = ReasonOf(fault.Kind());
    const std::string named = WithoutPasswords(bot, Named(fault)), why(reason.otherwise);
    const bool heard = bot.heard.from != Heard::From::Nobody;
    if (!IsInFile(bot.place))
        return named + ": " + (heard ? Quoted(bot) + " " + std::string(reason.ofLine) : why) + ".";
    return named + WhereIn(bot.place) + ": " + why + "." + (heard ? " The bot was answering " + Quoted(bot) + "." : "");
}

std::string DescribeFault(const RuntimeFault& fault) {
    return Named(fault) + ": " + std::string(ReasonOf(fault.Kind()).otherwise) + ".";
}

bool MayComeOfASplitLine(const Bot& bot) { return bot.heard.from == Heard::From::Game && !IsInFile(bot.place); }
