#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "cli/ConsoleOutput.h"
#include "cli/RecordingFile.h"
#include "platform/FrontEnd.h"
#include "platform/QtHost.h"
#include "rehearsal/Recording.h"

/// One bot that runs without a window.
class TerminalBot final : public FrontEnd {
  public:
    struct Owner {
        std::function<void()> onIdle;                         ///< the bot is neither connected nor connecting
        std::function<void(const std::string& why)> onFault;  ///< a fault has ended it; UTF-8
    };

    /// @param label   what it is called until it logs in, UTF-8
    /// @param folder  where its data files live, UTF-8
    TerminalBot(std::string profilePath, std::string label, const std::string& folder, ConsoleOutput& output,
                Owner owner);
    ~TerminalBot() override;

    /// Loads the profile, with its script.
    /// @return false when there is no such profile
    bool Load();

    /// Writes what comes and goes as a session that can be rehearsed.
    /// @return the path that it goes to, which is another one where the file holds something (see RecordingFile);
    ///         nothing when it can't be written
    std::optional<std::string> RecordTo(const std::string& path);

    /// Prefixes its lines with its name, for when several bots share the output.
    void ShowLabel() { hasLabel_ = true; }

    /// The name it logs in with, or before that what its owner calls it; UTF-8.
    std::string Label() const;

    void Connect();

    /// Disconnects for good: the script hears of the end, but can't connect again.
    void Leave();

    void TypeLine(const std::string& line);

    const SessionStatus& status() const { return host_.session().status(); }

    QtHost& host() { return host_; }

    /// See Session::KeepSplitLines.
    void KeepSplitLines(bool keep);

    // FrontEnd
    bool IsConsoleRead() const override { return output_.IsRead(); }
    void ShowConsoleLine(std::string_view line) override;
    void ClearConsole() override {}
    void ShowMessage(std::string_view title, std::string_view text) override;
    void StatusChanged() override;
    void EndWithFault(const RuntimeFault& fault) override;

  private:
    std::string profilePath_, label_;
    ConsoleOutput& output_;
    Owner owner_;
    bool hasLabel_ = false, keepsSplitLines_ = false;
    RecordingFile recordFile_;
    bool endTold_ = false;  ///< why the last session has ended
    std::unique_ptr<Recording> recording_;
    QtHost host_;

    void Record(const std::string& lines);
    void TellEnd();
};
