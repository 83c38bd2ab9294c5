#pragma once

#include <QLineEdit>
#include <QStringList>

/// The console's input line: what was sent comes back with Up and Down.
class InputLine final : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

    /// Takes the text away, and remembers it.
    QString Take();

    /// Puts a text behind what stands there.
    void Append(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QStringList history_;
    qsizetype at_ = 0;  ///< the line of the history shown; its size for the one being typed
    QString typed_;

    void ShowHistory(qsizetype at);
};
