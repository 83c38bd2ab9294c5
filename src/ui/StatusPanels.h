#pragma once

#include <QStatusBar>

class QLabel;
class SessionWatch;

/// The status bar: the bot's name, whether it is connected, and why not.
class StatusPanels final : public QStatusBar {
    Q_OBJECT

  public:
    explicit StatusPanels(const SessionWatch& watch, QWidget* parent = nullptr);

    void ShowStatus();

    /// Shows something else in the last panel until the status changes.
    void Remark(const QString& text);

  private:
    const SessionWatch& watch_;
    QLabel *name_, *connection_, *reason_;

    QLabel* AddPanel(const char* name, int stretch);
};
