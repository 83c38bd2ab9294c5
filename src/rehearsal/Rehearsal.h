#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "bot/Bot.h"
#include "net/Session.h"
#include "rehearsal/RehearsalHost.h"
#include "rehearsal/WrittenSession.h"
#include "text/Outcome.h"

/// A bot in the stand-in world, to which written sessions are played.
class Rehearsal {
  public:
    Rehearsal(Files& disk, std::string folder, std::function<void(const std::string&)> tell);

    /// Carries out one instruction. Faults of the bot are left to the caller.
    void Play(const SessionStep& step);

    /// Carries out a whole session, as far as a fault lets it.
    /// @param begin  what comes before its first line, such as loading the bot's profile
    /// @return the fault that has ended the bot
    Outcome<Done> Play(
        const WrittenSession& session, const std::function<void()>& begin = [] {});

    std::size_t FailedExpectations() const { return failed_; }

    /// The session's line of the instruction that was carried out last, counted from 1; 0 before the first.
    std::size_t Line() const { return line_; }

    RehearsalHost host;
    Bot bot;
    Session session;

  private:
    std::size_t failed_ = 0, line_ = 0;

    bool IsAsExpected(const std::string& sent, const std::string& expected) const;
    void Expect(const SessionStep& step);
    void ExpectNothing(const SessionStep& step);
    void Fail(const SessionStep& step, const std::string& why);
};
