#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The commands that a script may hold: a tree of causes, conditions and effects, a filter, and what the one that is
/// looked at does.
class CommandTree final : public QWidget {
    Q_OBJECT

  public:
    explicit CommandTree(QWidget* parent = nullptr);

    /// Fills the tree, in place of what was in it.
    /// @param lines  of a command list, Windows-1252; what is no command is passed over
    void ShowCommands(const std::vector<std::string>& lines);

    void FocusTree();

  signals:
    /// @param command  as the list has it
    void CommandChosen(const QString& command);

  private:
    QTreeWidget* tvwCmds_;
    QLineEdit* txtFilter_;
    QLabel* lblPreview_;

    void Filter(const QString& words);
    void ShowPreview(const QTreeWidgetItem* item);
    void Choose(const QTreeWidgetItem* item);
};
