#include "rehearsal/Rehearsal.h"

#include <utility>

#include "bot/Variables.h"
#include "engine/Dispatcher.h"
#include "movement/modMovement.h"
#include "net/Passwords.h"

Rehearsal::Rehearsal(Files& disk, std::string folder, std::function<void(const std::string&)> tell)
    : host(disk, std::move(folder), std::move(tell)), bot(host), session(bot, host) {
    host.SetSession(session);
}

Outcome<Done> Rehearsal::Play(const WrittenSession& written, const std::function<void()>& begin) {
    try {
        begin();
        for (const SessionStep& step : written.steps) Play(step);
        return Done{};
    } catch (const std::exception& exception) {
        return AsFault(exception);
    }
}

void Rehearsal::Play(const SessionStep& step) {
    line_ = step.line;
    switch (step.kind) {
        case SessionStep::Kind::Connect:
            host.SetServerConnected(true);
            return session.OnServerConnected();
        case SessionStep::Kind::Close:
            // A recording has the ends, too, that the bot brought about itself: played again, it has done so by now.
            if (!host.IsServerConnected()) return;
            host.SetServerConnected(false);  // first, as with a socket: what the script sends now is lost
            return session.OnServerClosed();
        case SessionStep::Kind::Link:
            host.SetClientConnected(true);
            return session.OnClientConnected();
        case SessionStep::Kind::Unlink:
            if (!host.IsClientConnected()) return;
            host.SetClientConnected(false);
            return session.OnClientClosed();
        case SessionStep::Kind::Server:
            return session.OnServerData(step.text + "\n");
        case SessionStep::Kind::Client:
            return session.OnClientData(step.text + "\n");
        case SessionStep::Kind::Type:
            return session.TypeLine(step.text);
        case SessionStep::Kind::Event:
            return RunScript(bot, static_cast<GameEvent>(step.count));
        case SessionStep::Kind::Tick:
            for (int i = 0; i < step.count; ++i) ScriptTimerTick(bot);
            return;
        // A walk that has come to its end has no timer any more that could tick.
        case SessionStep::Kind::Step:
            for (int i = 0; i < step.count && host.IsMovementTimerEnabled(); ++i) modMovement::Tick(bot);
            return;
        case SessionStep::Kind::Show:
            return host.Tell("show", ExpandVariables(bot, step.text));
        case SessionStep::Kind::Expect:
            return Expect(step);
        case SessionStep::Kind::ExpectNothing:
            return ExpectNothing(step);
    }
}

/// A recording has stars where a password was sent, and may have been made while the bot had another one.
bool Rehearsal::IsAsExpected(const std::string& sent, const std::string& expected) const {
    const auto masked = [this](const std::string& line) { return WithoutPasswords(bot, WithoutPassword(line)); };
    const bool isMasked = expected.find(kMaskedPassword) != expected.npos;
    return sent == expected || (isMasked && masked(sent) == masked(expected));
}

void Rehearsal::Expect(const SessionStep& step) {
    const std::optional<std::string> sent = host.OldestUnclaimed();
    if (sent && IsAsExpected(*sent, step.text)) return host.Claim();
    Fail(step, "expected \"" + step.text + "\", " +
                   (sent ? "but \"" + WithoutPassword(*sent) + "\" was sent" : "but nothing was sent"));
}

void Rehearsal::ExpectNothing(const SessionStep& step) {
    if (const auto sent = host.OldestUnclaimed())
        Fail(step, "expected nothing more, but \"" + WithoutPassword(*sent) + "\" was sent");
}

void Rehearsal::Fail(const SessionStep& step, const std::string& why) {
    ++failed_;
    host.Tell("failed", std::to_string(step.line) + ": " + why);
}
