#include "ui/FindBar.h"

#include <Qsci/qsciscintilla.h>

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

QLineEdit* NewEdit(const QString& name, QGridLayout* layout, int row, const QString& caption) {
    auto* const edit = new QLineEdit;
    edit->setObjectName(name);
    auto* const label = new QLabel(caption);
    label->setBuddy(edit);
    edit->setAccessibleName(QString(caption).remove('&'));
    edit->setAccessibleDescription(edit->accessibleName());
    layout->addWidget(label, row, 0);
    layout->addWidget(edit, row, 1);
    return edit;
}

QPushButton* NewButton(const QString& name, QGridLayout* layout, int row, int column, const QString& caption) {
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setAccessibleDescription(QString(caption).remove('&'));
    layout->addWidget(button, row, column);
    return button;
}

}  // namespace

FindBar::FindBar(QsciScintilla& text, QWidget* parent) : QWidget(parent), text_(text) {
    setObjectName("fmeFind");
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    txtFind_ = NewEdit("txtFind", layout, 0, tr("Fi&nd:"));
    txtReplace_ = NewEdit("txtReplace", layout, 1, tr("Re&place with:"));
    connect(NewButton("cmdFindNext", layout, 0, 2, tr("Ne&xt")), &QPushButton::clicked, this, [this] { Find(true); });
    connect(NewButton("cmdFindPrevious", layout, 0, 3, tr("Previ&ous")), &QPushButton::clicked, this,
            [this] { Find(false); });
    connect(NewButton("cmdReplace", layout, 1, 2, tr("&Replace")), &QPushButton::clicked, this, [this] { Replace(); });
    connect(NewButton("cmdReplaceAll", layout, 1, 3, tr("Replace &all")), &QPushButton::clicked, this,
            [this] { ReplaceAll(); });
    connect(txtFind_, &QLineEdit::returnPressed, this, [this] { Find(true); });
    connect(txtReplace_, &QLineEdit::returnPressed, this, [this] { Replace(); });
    hide();
}

void FindBar::Open() {
    if (text_.hasSelectedText() && !text_.selectedText().contains('\n')) txtFind_->setText(text_.selectedText());
    show();
    txtFind_->setFocus();
    txtFind_->selectAll();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    hide();
    text_.setFocus();
}

bool FindBar::Find(bool forward) {
    int line = 0, index = 0;
    text_.getCursorPosition(&line, &index);
    // Backwards the search must begin before what is selected now, or it would find that again.
    if (!forward && text_.hasSelectedText()) {
        int endLine = 0, endIndex = 0;
        text_.getSelection(&line, &index, &endLine, &endIndex);
    }
    return text_.findFirst(txtFind_->text(), false, false, false, true, forward, line, index);
}

void FindBar::Replace() {
    // That something is selected is asked as well: where nothing is, it would equal an empty search.
    const bool selected = text_.selectedText().compare(txtFind_->text(), Qt::CaseInsensitive) == 0;
    if (selected && text_.hasSelectedText()) text_.replaceSelectedText(txtReplace_->text());
    Find(true);
}

void FindBar::ReplaceAll() {
    if (txtFind_->text().isEmpty()) return;
    text_.beginUndoAction();
    // Not around the end: what is put in may hold what is sought.
    bool found = text_.findFirst(txtFind_->text(), false, false, false, false, true, 0, 0);
    while (found) {
        text_.replace(txtReplace_->text());
        found = text_.findNext();
    }
    text_.endUndoAction();
}
