#pragma once

#include <QWidget>

class QLineEdit;
class QsciScintilla;

/// Find and replace under the script editor; Escape puts it away.
class FindBar final : public QWidget {
    Q_OBJECT

  public:
    FindBar(QsciScintilla& text, QWidget* parent = nullptr);

    /// Shows itself, with the selected word to look for.
    void Open();

    void FindNext() { Find(true); }
    void FindPrevious() { Find(false); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QsciScintilla& text_;
    QLineEdit *txtFind_, *txtReplace_;

    bool Find(bool forward);
    void Replace();
    void ReplaceAll();
};
