#pragma once

#include <QGroupBox>
#include <QTimer>
#include <QTreeWidget>

class UserVariables;

/// The list of user variables, live while the bot runs: two columns, rows that can be added, changed and removed.
class VariableList final : public QTreeWidget {
    Q_OBJECT

  public:
    VariableList(UserVariables& variables, QWidget* parent = nullptr);

    void AddRow();
    void RemoveRow();

    /// Shows the variables as they are now.
    void Refresh();

  private:
    UserVariables& variables_;
    std::size_t shown_ = 0;
    bool refreshing_ = false;
    QTimer refresh_;

    void TakeOver(QTreeWidgetItem* item, int column);
};

/// The frame "Variables": the list, and buttons that add to it and take from it.
class VariableFrame final : public QGroupBox {
    Q_OBJECT

  public:
    explicit VariableFrame(UserVariables& variables, QWidget* parent = nullptr);
};
