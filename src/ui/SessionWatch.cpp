#include "ui/SessionWatch.h"

#include "bot/Bot.h"
#include "bot/Host.h"
#include "net/FaultText.h"
#include "net/SessionStatus.h"
#include "ui/Options.h"
#include "ui/ShownText.h"

QString SessionWatch::BotName() const { return Shown(status_.botName); }

QString SessionWatch::Connection() const {
    return status_.connection.empty() ? "Disconnected" : Shown(status_.connection);
}

QString SessionWatch::HowItStands() const {
    if (!status_.canConnect) return bot_.host.IsServerConnected() ? QString() : tr("Connecting...");
    QString reason;
    if (status_.end == SessionStatus::End::ByServer && status_.refusals > 0) {
        reason = tr("The server has ended the connection before the bot was let in: check its name and password.");
    } else if (status_.end == SessionStatus::End::ByServer) {
        reason = tr("The server has ended the connection.");
    } else if (status_.end == SessionStatus::End::ByError) {
        reason = tr("No connection: %1").arg(Shown(status_.reason));
    }
    if (status_.nextTry > 0) reason += " " + tr("Trying again in %n second(s).", nullptr, status_.nextTry);
    return reason;
}

bool SessionWatch::HasWhisperToTell() const { return bot_.heard.isWhisper && options_.Get(option::kNotifyWhispers); }

QString SessionWatch::FaultInWords(const RuntimeFault& fault, bool keepsSplitLines) const {
    QString text = ShownPath(DescribeFault(fault, bot_));
    if (keepsSplitLines || !MayComeOfASplitLine(bot_)) return text;
    return text + " " +
           tr("The network may have split it: Session, Keep lines that the network has split, mends that.");
}
