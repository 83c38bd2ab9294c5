#pragma once

#include <QListView>

#include "ui/ConsoleModel.h"

/// The console list: follows new lines unless the user has scrolled up, finds, copies.
class ConsoleView final : public QListView {
    Q_OBJECT

  public:
    explicit ConsoleView(QWidget* parent = nullptr);

    ConsoleModel& Lines() { return lines_; }

    /// Selects the next line, after the current one and around the end, that holds a text, letter case apart.
    /// @return false when no line does
    bool FindNext(const QString& text);

    void CopySelection() const;

    void SetMonospaced(bool monospaced);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    ConsoleModel lines_;
    bool following_ = true;

    bool IsAtEnd() const;
};
