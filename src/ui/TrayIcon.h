#pragma once

#include <QSystemTrayIcon>

class Options;
class QMenu;

/// The icon in the notification area. It hides a window and brings it back, and has a menu for that and to end the
/// program.
class TrayIcon final : public QSystemTrayIcon {
    Q_OBJECT

  public:
    TrayIcon(QWidget& window, Options& options);

    /// Hides the window behind the icon; where no icon can be shown, minimizes it.
    void MinimizeWindow();
    void RestoreWindow();

    /// @param line  as the console shows it
    void TellWhisper(const QString& line);

  signals:
    void ExitChosen();

  private:
    QWidget& window_;
    Options& options_;
    QMenu* menu_;
};
