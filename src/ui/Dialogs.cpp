#include "ui/Dialogs.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <utility>

namespace {

QMessageBox::Icon BoxIcon(Dialogs::Icon icon) {
    switch (icon) {
        case Dialogs::Icon::Information:
            return QMessageBox::Information;
        case Dialogs::Icon::Critical:
            return QMessageBox::Critical;
        case Dialogs::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

/// A question. Without Cancel neither Escape nor the window's frame answers it, for they would answer "No".
class Question final : public QMessageBox {
  public:
    Question(const QString& title, const QString& text, bool offersCancel, QWidget* parent)
        : QMessageBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent),
          offersCancel_(offersCancel) {
        setTextFormat(Qt::PlainText);
        if (offersCancel) addButton(QMessageBox::Cancel);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (offersCancel_ || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (offersCancel_) return QMessageBox::closeEvent(event);
        event->ignore();
    }

  private:
    bool offersCancel_;
};

/// Qt's own form of a filter has the patterns in parentheses, where the description has them already.
QString QtFilter(const QString& filter) { return filter.section('|', 0, 0).trimmed(); }

std::optional<QString> Chosen(const QString& path) { return path.isEmpty() ? std::nullopt : std::optional(path); }

}  // namespace

std::optional<QString> AskSaveName(Dialogs& dialogs, QWidget* parent, const QString& title, const QString& filter,
                                   const QString& folder, const QString& extension) {
    auto chosen = dialogs.AskSaveFile(parent, title, filter, folder);
    if (!chosen || chosen->endsWith(extension, Qt::CaseInsensitive)) return chosen;
    QString path = *chosen + extension;
    const QString question = QCoreApplication::translate("Dialogs", "%1 already exists. Replace it?").arg(path);
    const bool free = !QFileInfo::exists(path) || dialogs.Ask(parent, question, title) == Dialogs::Answer::Yes;
    return free ? std::optional(std::move(path)) : std::nullopt;
}

void QtDialogs::ShowMessage(QWidget* parent, const QString& text, const QString& title, Icon icon) {
    QMessageBox box(BoxIcon(icon), title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);  // a script and the game may say "<b>" too
    box.exec();
}

Dialogs::Answer QtDialogs::Ask(QWidget* parent, const QString& text, const QString& title, bool offersCancel) {
    Question box(title, text, offersCancel, parent);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::No;
    }
}

std::optional<QString> QtDialogs::AskText(QWidget* parent, const QString& prompt, const QString& title) {
    bool accepted = false;
    const QString text = QInputDialog::getText(parent, title, prompt, QLineEdit::Normal, {}, &accepted);
    return accepted ? std::optional(text) : std::nullopt;
}

std::optional<QString> QtDialogs::AskOpenFile(QWidget* parent, const QString& title, const QString& filter,
                                              const QString& folder) {
    return Chosen(QFileDialog::getOpenFileName(parent, title, folder, QtFilter(filter)));
}

std::optional<QString> QtDialogs::AskSaveFile(QWidget* parent, const QString& title, const QString& filter,
                                              const QString& folder) {
    return Chosen(QFileDialog::getSaveFileName(parent, title, folder, QtFilter(filter)));
}
