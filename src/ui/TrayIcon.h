#pragma once

#include <QSystemTrayIcon>

class QMenu;

/// The icon in the notification area, with a menu to restore, minimize and end the program.
class TrayIcon final : public QSystemTrayIcon {
    Q_OBJECT

  public:
    explicit TrayIcon(QWidget* window);

  signals:
    void RestoreChosen();
    void MinimizeChosen();
    void ExitChosen();

  private:
    QMenu* menu_;
};
