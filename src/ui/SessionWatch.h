#pragma once

#include <QCoreApplication>
#include <QString>

class Options;
class RuntimeFault;
struct Bot;
struct SessionStatus;

/// What there is to tell of a bot's session: how it stands, why it has ended and when it is tried again, and whether it
/// was a whisper. It goes by the bot's state and shows nothing itself.
class SessionWatch {
    Q_DECLARE_TR_FUNCTIONS(SessionWatch)

  public:
    SessionWatch(const Bot& bot, const SessionStatus& status, const Options& options)
        : bot_(bot), status_(status), options_(options) {}

    QString BotName() const;

    /// "Connected" or "Disconnected".
    QString Connection() const;

    /// That the bot is connecting; or why it is not connected, and when it tries again. Empty when all is well.
    QString HowItStands() const;

    /// Whether the console line that is shown at this moment is a whisper to the bot, and the user wants to hear of it.
    bool HasWhisperToTell() const;

    /// Why the bot has ended, and what may help.
    /// @param keepsSplitLines  whether the bot puts lines together that the network has split
    QString FaultInWords(const RuntimeFault& fault, bool keepsSplitLines) const;

  private:
    const Bot& bot_;
    const SessionStatus& status_;
    const Options& options_;
};
