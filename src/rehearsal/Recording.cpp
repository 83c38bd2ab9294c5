#include "rehearsal/Recording.h"

#include <limits>

#include "net/Passwords.h"
#include "text/Text.h"

namespace {

/// The instruction that plays a happening.
std::string_view WordFor(SessionObserver::Happening happening) {
    using Happening = SessionObserver::Happening;
    switch (happening) {
        case Happening::Connected:
            return "connect";
        case Happening::Closed:
            return "close";
        case Happening::Linked:
            return "link";
        case Happening::Unlinked:
            return "unlink";
        case Happening::ServerLine:
            return "server ";
        case Happening::ClientLine:
            return "client ";
        case Happening::Typed:
            return "type ";
        case Happening::ScriptTick:
            return "tick";
        case Happening::WalkStep:
            return "step";
        case Happening::Sent:
            return "expect ";
    }
    return "#";
}

}  // namespace

void Recording::Note(Happening happening, std::string_view text) {
    const std::string_view word = WordFor(happening);
    if (happening == Happening::ScriptTick || happening == Happening::WalkStep) return Repeat(word);
    WriteRepeated();
    WriteLine(std::string(word) + Recorded(happening, text));
}

void Recording::Remark(std::string_view text) {
    WriteRepeated();
    for (const std::string& line : FileLines(WithoutPasswords(bot_, text))) WriteLine("# " + line);
}

/// What of a line may be written. A client's login may come in two pieces, of which the second is half a password:
/// until a whole login has come, nothing that the client says is written, nor what goes on of it to the server.
std::string Recording::Recorded(Happening happening, std::string_view text) {
    if (happening == Happening::Linked) awaitsLogin_ = true;
    if (happening == Happening::ServerLine) return WithoutPasswords(bot_, text);
    const std::string shown = WithoutPassword(text);
    if (shown != text) {
        if (happening == Happening::ClientLine) awaitsLogin_ = false;
    } else if (happening == Happening::ClientLine && awaitsLogin_) {
        hidden_.emplace(text);
    }
    const bool fromClient = happening == Happening::ClientLine || happening == Happening::Sent;
    if (fromClient && hidden_.contains(shown)) return std::string(kMaskedPassword);
    return WithoutPasswords(bot_, shown);
}

void Recording::Repeat(std::string_view word) {
    // A longer wait is two lines, which play the same.
    if (word != repeated_ || times_ == std::numeric_limits<std::int16_t>::max()) WriteRepeated();
    repeated_ = word;
    ++times_;
}

void Recording::WriteRepeated() {
    if (times_ > 0) WriteLine(times_ == 1 ? repeated_ : repeated_ + " " + std::to_string(times_));
    times_ = 0;
}

// The player drops a carriage return before the line feed, so that one the line itself ends with survives.
void Recording::WriteLine(const std::string& line) { write_(line + "\r\n"); }
