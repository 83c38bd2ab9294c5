#include "rehearsal/WrittenSession.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

#include "text/Text.h"

namespace {

using Kind = SessionStep::Kind;

enum class Wants { Nothing, Text, Code, Times };

struct Instruction {
    std::string_view word;
    Kind kind;
    Wants wants;
};

constexpr Instruction kInstructions[] = {
    {"connect", Kind::Connect, Wants::Nothing},
    {"close", Kind::Close, Wants::Nothing},
    {"link", Kind::Link, Wants::Nothing},
    {"unlink", Kind::Unlink, Wants::Nothing},
    {"server", Kind::Server, Wants::Text},
    {"client", Kind::Client, Wants::Text},
    {"type", Kind::Type, Wants::Text},
    {"event", Kind::Event, Wants::Code},
    {"tick", Kind::Tick, Wants::Times},
    {"step", Kind::Step, Wants::Times},
    {"show", Kind::Show, Wants::Text},
    {"expect", Kind::Expect, Wants::Text},
    {"expect-nothing", Kind::ExpectNothing, Wants::Nothing},
};

/// An event code is a 16-bit number; a count of ticks may be more: a day has 86400.
std::optional<int> ReadNumber(std::string_view text, Wants wants) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
    const bool usable = wants == Wants::Code ? number == static_cast<std::int16_t>(number) : number >= 0;
    return usable ? std::optional(number) : std::nullopt;
}

std::string Problem(std::size_t line, const std::string& what) { return "line " + std::to_string(line) + ": " + what; }

/// Reads one instruction into the session, or its error.
void ReadStep(WrittenSession& session, std::size_t line, const std::string& text) {
    const std::string word = text.substr(0, text.find(' '));
    const auto* const instruction = std::find_if(std::begin(kInstructions), std::end(kInstructions),
                                                 [&](const Instruction& row) { return row.word == word; });
    if (instruction == std::end(kInstructions)) {
        session.error = Problem(line, "there is no instruction \"" + word + "\"");
        return;
    }
    SessionStep step{instruction->kind, line, text.substr(std::min(word.size() + 1, text.size()))};
    const bool timesLeftOut = instruction->wants == Wants::Times && step.text.empty();
    if ((instruction->wants == Wants::Code || instruction->wants == Wants::Times) && !timesLeftOut) {
        const std::optional<int> number = ReadNumber(Trim(step.text), instruction->wants);
        if (!number) {
            session.error = Problem(line, "\"" + word + "\" wants a whole number, not \"" + step.text + "\"");
            return;
        }
        step.count = *number;
    }
    session.steps.push_back(std::move(step));
}

}  // namespace

WrittenSession ParseSession(std::string_view bytes) {
    WrittenSession session;
    std::size_t number = 0;
    for (const std::string& line : Split(bytes, "\n")) {
        ++number;
        // Only one: a second carriage return belongs to the text, for the game's lines may end with one.
        const std::string text = line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
        if (text.empty() || text.starts_with('#')) continue;
        ReadStep(session, number, text);
        if (session.error) return {{}, session.error};
    }
    return session;
}
