#pragma once

#include <QMenu>

class Dialogs;
class Options;
class QtHost;
struct Bot;

/// The menu "Session": begins the session and ends it, and chooses how the connection is kept. What is chosen is kept
/// in the options, and holds at once.
class SessionMenu final : public QMenu {
    Q_OBJECT

  public:
    SessionMenu(QtHost& host, Options& options, Dialogs& dialogs, QWidget* parent);

    /// Lets be chosen what the session's state allows.
    void ShowStatus();

    /// Shows whether the bot keeps lines that the network has split, and lets it: a new one does, a profile as its user
    /// has chosen.
    void ShowProfile();

    /// Keeps that choice for the profile, which may have a new name.
    void KeepForProfile() { KeepSplitLines(KeepsSplitLines()); }
    bool KeepsSplitLines() const { return keepsSplitLines_->isChecked(); }

  private:
    QtHost& host_;
    Options& options_;
    Dialogs& dialogs_;
    QAction *connect_, *disconnect_, *standAlone_, *keepsSplitLines_;

    QString ProfilePath() const;
    void KeepSplitLines(bool keep);
    void ChooseBrake();
};
