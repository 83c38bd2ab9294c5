#pragma once

#include <QFile>
#include <functional>
#include <memory>
#include <string>

#include "cli/ConsoleOutput.h"
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

    /// @param folder   where its data files live, UTF-8
    TerminalBot(std::string profilePath, const std::string& folder, ConsoleOutput& output, Owner owner);
    ~TerminalBot() override;

    /// Loads the profile, with its script.
    /// @return false when there is no such profile
    bool Load();

    /// Writes what comes and goes as a session that can be rehearsed.
    /// @return false when the file can't be written
    bool RecordTo(const std::string& path);

    /// Prefixes its lines with its name, for when several bots share the output.
    void ShowLabel() { hasLabel_ = true; }

    /// The name it logs in with, or before that its profile's; UTF-8.
    std::string Label() const;

    void Connect();

    /// Disconnects for good: the script hears of the end, but can't connect again.
    void Leave();

    void TypeLine(const std::string& line);

    bool IsIdle() const { return host_.bot().status.canConnect; }

    /// Whether an error has ended its last connection, or kept it from being made, instead of an orderly end.
    bool HasFailed() const { return host_.bot().status.end == SessionStatus::End::ByError; }

    Session& session() { return host_.session(); }

    // FrontEnd
    void ShowConsoleLine(std::string_view line) override;
    void ClearConsole() override {}
    void ShowMessage(std::string_view title, std::string_view text) override;
    void StatusChanged() override;
    void EndWithFault(const RuntimeFault& fault) override;

  private:
    std::string profilePath_;
    ConsoleOutput& output_;
    Owner owner_;
    bool hasLabel_ = false;
    QFile recordFile_;
    bool recordBroken_ = false;
    std::unique_ptr<Recording> recording_;
    QtHost host_;

    void Record(const std::string& lines);
};
