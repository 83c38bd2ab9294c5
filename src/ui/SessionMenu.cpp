#include "ui/SessionMenu.h"

#include "platform/QtHost.h"
#include "ui/Dialogs.h"
#include "ui/MenuItems.h"
#include "ui/Options.h"
#include "ui/ShownText.h"

SessionMenu::SessionMenu(QtHost& host, Options& options, Dialogs& dialogs, QWidget* parent)
    : QMenu(tr("S&ession"), parent), host_(host), options_(options), dialogs_(dialogs) {
    setObjectName("mnuSession");
    connect_ =
        AddItem(*this, "mnuConnect", "&Connect", QKeySequence(Qt::CTRL | Qt::Key_K), [this] { host_.ConnectNow(); });
    disconnect_ = AddItem(*this, "mnuDisconnect", "&Disconnect", QKeySequence(Qt::CTRL | Qt::Key_D),
                          [this] { host_.RunHandler([this] { host_.Disconnect(); }); });
    standAlone_ = AddItem(*this, "mnuSAM", "Stand Alone &Mode", {},
                          [this] { host_.RunHandler([this] { host_.session().StandAlone(); }); });
    addSeparator();
    AddOption(*this, "mnuReconnect", tr("&Reconnect when the connection is lost"), options_.Get(option::kReconnect),
              [this](bool on) {
                  options_.Set(option::kReconnect, on);
                  host_.StayConnected(on);
              });
    keepsSplitLines_ = AddOption(*this, "mnuKeepSplitLines", tr("&Keep lines that the network has split"), false,
                                 [this](bool on) { KeepSplitLines(on); });
    AddOption(*this, "mnuConnectAtStart", tr("Connect when the program &starts"), options_.Get(option::kConnectAtStart),
              [this](bool on) { options_.Set(option::kConnectAtStart, on); });
    AddItem(*this, "mnuBrake", tr("&Brake..."), {}, [this] { ChooseBrake(); });
    // The items tell only what is chosen from now on.
    host_.StayConnected(options_.Get(option::kReconnect));
    host_.SetBrake(options_.Get(option::kBrake));
}

void SessionMenu::ShowStatus() {
    const SessionStatus& status = host_.session().status();
    connect_->setEnabled(status.canConnect);
    disconnect_->setEnabled(status.canDisconnect);
    standAlone_->setEnabled(status.canStandAlone);
}

QString SessionMenu::ProfilePath() const { return ShownPath(host_.bot().profile.path); }

void SessionMenu::ShowProfile() {
    const QString path = ProfilePath();
    const bool keep = path.isEmpty() || options_.KeepsSplitLines(path);
    keepsSplitLines_->setChecked(keep);
    host_.session().KeepSplitLines(keep);
}

void SessionMenu::KeepSplitLines(bool keep) {
    host_.session().KeepSplitLines(keep);
    const QString path = ProfilePath();
    if (!path.isEmpty() && options_.KeepsSplitLines(path) != keep) options_.KeepSplitLines(path, keep);
}

void SessionMenu::ChooseBrake() {
    const auto text = dialogs_.AskText(
        parentWidget()->window(),
        tr("How many lines a second the script may send, %1 at present. 0 lets it send as many as it likes.")
            .arg(options_.Get(option::kBrake)),
        tr("Brake"));
    bool isNumber = false;
    const int lines = text ? text->toInt(&isNumber) : 0;
    if (!isNumber || lines < 0 || lines > SendBrake::kHighestRate) return;
    options_.Set(option::kBrake, lines);
    host_.SetBrake(lines);
}
