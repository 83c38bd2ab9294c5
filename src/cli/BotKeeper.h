#pragma once

#include <QElapsedTimer>
#include <functional>
#include <memory>
#include <string>

#include "cli/ConsoleOutput.h"
#include "cli/RunOptions.h"
#include "cli/TerminalBot.h"
#include "platform/Reconnector.h"

/// Keeps one bot of a run, which counts as a program of its own: a fault ends it, the others go on. One that is to stay
/// begins again then, with its profile and script as they are in their files, after the pauses of a Reconnector.
class BotKeeper {
  public:
    /// @param onIdle  called when the bot may have nothing more to do; see IsIdle
    BotKeeper(const RunOptions& options, std::string profile, ConsoleOutput& output, std::function<void()> onIdle);

    /// Begins the bot: loads it, which may end it with a fault, without connecting it.
    /// @return 0, or the exit status when that can't be done, which has been told
    int Begin();

    void Connect();

    /// A line for a bot that is down goes nowhere, which is told.
    void TypeLine(const std::string& line);

    /// Disconnects for good, and begins no more.
    void Leave();

    /// Neither connected nor connecting, and not to begin again.
    bool IsIdle() const;

    /// A fault has ended the bot, and it has not begun again. One that waits to begin again when the run is ended has
    /// not failed.
    bool HasFaulted() const { return faulted_; }

    /// Of the session it has; of none while there is no bot.
    SessionStatus status() const { return bot_ ? bot_->status() : SessionStatus(); }

    /// See TerminalBot::Label. It outlasts the bot: what is typed for one that is down, or has begun again and not yet
    /// logged in, must not go to another.
    std::string Label() const { return bot_ ? bot_->Label() : label_; }

  private:
    const RunOptions& options_;
    std::string profile_, label_;
    ConsoleOutput& output_;
    std::function<void()> onIdle_;
    std::unique_ptr<TerminalBot> bot_;
    bool faulted_ = false, leaving_ = false;
    int recordings_ = 0;
    QElapsedTimer lived_;
    Reconnector restart_;

    int Record();
    void OnFault(const std::string& why);
    void Tell(const std::string& what);
    void PutDown();
    void BeginAgainLater();
    void BeginAgain();
};
