#include "ui/ConsoleView.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

ConsoleView::ConsoleView(QWidget* parent) : QListView(parent) {
    setModel(&lines_);
    setUniformItemSizes(true);  // or each of the thousands of lines would be measured
    setLayoutMode(QListView::SinglePass);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);

    // A reader further up keeps what is before the eyes while the oldest lines go.
    connect(&lines_, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        if (!IsAtEnd()) verticalScrollBar()->setValue(verticalScrollBar()->value() - (last - first + 1));
    });
    // Whether the view is at its end is asked before lines come, and used after.
    connect(&lines_, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] { following_ = IsAtEnd(); });
    connect(&lines_, &QAbstractItemModel::rowsInserted, this, [this] {
        if (following_) scrollToBottom();
    });
}

bool ConsoleView::IsAtEnd() const { return verticalScrollBar()->value() >= verticalScrollBar()->maximum(); }

void ConsoleView::resizeEvent(QResizeEvent* event) {
    const bool atEnd = IsAtEnd();
    QListView::resizeEvent(event);
    if (atEnd) scrollToBottom();
}

void ConsoleView::keyPressEvent(QKeyEvent* event) {
    // The list by itself would copy one line only.
    if (event->matches(QKeySequence::Copy)) return CopySelection();
    QListView::keyPressEvent(event);
}

bool ConsoleView::FindNext(const QString& text) {
    const int count = lines_.rowCount();
    const int from = currentIndex().isValid() ? currentIndex().row() : count - 1;
    for (int i = 1; i <= count && !text.isEmpty(); ++i) {
        const int row = (from + i) % count;
        if (!lines_.LineAt(row).contains(text, Qt::CaseInsensitive)) continue;
        setCurrentIndex(lines_.index(row));
        scrollTo(lines_.index(row));
        return true;
    }
    return false;
}

void ConsoleView::CopySelection() const {
    QModelIndexList rows = selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& row : rows) lines << row.data().toString();
    if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void ConsoleView::SetMonospaced(bool monospaced) {
    const bool atEnd = IsAtEnd();
    setFont(monospaced ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont());
    if (atEnd) scrollToBottom();
}
