#pragma once

#include <QGroupBox>

#include "ui/Tools.h"

class QTabBar;

/// The frame "Control Panel": buttons that each send one ready-made command, on five tabs, and the tool launchers.
class ControlPanel final : public QGroupBox {
    Q_OBJECT

  public:
    explicit ControlPanel(QWidget* parent = nullptr);

  signals:
    /// A command button was clicked; its tag is the whole command.
    void CommandChosen(const QString& tag);

    /// A tool launcher of tab C was clicked.
    void ToolChosen(Tool tool);

  private:
    QTabBar* tsControls_;
    QList<QGroupBox*> fmeTab_;

    void ShowTab(int index);
};

/// The sixteen emoticons, tags "#SA" to "#SP".
class EmoticonRow final : public QWidget {
    Q_OBJECT

  public:
    explicit EmoticonRow(QWidget* parent = nullptr);

  signals:
    void EmoticonChosen(const QString& tag);
};
