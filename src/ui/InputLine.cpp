#include "ui/InputLine.h"

#include <QKeyEvent>

QString InputLine::Take() {
    constexpr qsizetype kHistoryLength = 500;
    QString text = this->text();
    if (!text.isEmpty() && (history_.isEmpty() || history_.last() != text)) history_ << text;
    if (history_.size() > kHistoryLength) history_.removeFirst();
    at_ = history_.size();  // behind the last one, for what is typed next
    typed_.clear();
    clear();
    return text;
}

void InputLine::Append(const QString& text) {
    end(false);
    insert(text);
}

void InputLine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up) {
        ShowHistory(at_ - 1);
    } else if (event->key() == Qt::Key_Down) {
        ShowHistory(at_ + 1);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void InputLine::ShowHistory(qsizetype at) {
    if (at < 0 || at > history_.size()) return;
    if (at_ == history_.size()) typed_ = text();
    at_ = at;
    // Typed over what stands there, so that it can be undone.
    selectAll();
    insert(at == history_.size() ? typed_ : history_[at]);
}
