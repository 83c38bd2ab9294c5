// Draws every window, page and dialog of the program into PNG files, with the greeter at work in the practice dream.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyleFactory>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>

#include "text/Fault.h"
#include "ui/ConsoleView.h"
#include "ui/Dialogs.h"
#include "ui/ShownText.h"
#include "ui/Translations.h"
#include "ui/frmGS.h"
#include "ui/frmVorel.h"

namespace {

QString pictures;

void UseColors(bool dark) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (!dark) return;
    QPalette palette(QColor(45, 47, 52), QColor(45, 47, 52));
    palette.setColor(QPalette::Base, QColor(30, 31, 35));
    palette.setColor(QPalette::Text, QColor(230, 230, 230));
    palette.setColor(QPalette::WindowText, QColor(230, 230, 230));
    palette.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    palette.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 155));
    palette.setColor(QPalette::Highlight, QColor(60, 120, 200));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
}

void Grab(QWidget* widget, const QString& name) {
    QApplication::processEvents();
    widget->grab().save(pictures + "/" + name + ".png");
}

/// Grabs the dialog that open() shows, then closes it.
void GrabDialog(const QString& name, const std::function<void()>& open) {
    QTimer::singleShot(300, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog) return;
        Grab(dialog, name);
        dialog->close();
    });
    open();
}

void GrabConfiguration(frmVorel& window) {
    QTimer::singleShot(300, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        auto* const pages = dialog->findChild<QListWidget*>("lstCfg");
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentRow(page);
            Grab(dialog, "configuration-" + pages->item(page)->text().toLower().replace(' ', '-'));
        }
        dialog->close();
    });
    window.findChild<QAction*>("mnuCfg")->trigger();
}

void GrabTabs(frmVorel& window) {
    auto* const tabs = window.findChild<QTabBar*>("tsControls");
    for (int tab = tabs->count() - 1; tab >= 0; --tab) {
        tabs->setCurrentIndex(tab);
        Grab(window.findChild<QWidget*>("fmeControls"), "panel-" + tabs->tabText(tab).toLower());
    }
}

void GrabEditor(frmGS& editor) {
    editor.show();
    auto* const commands = editor.findChild<QTreeWidget*>("tvwCmds");
    commands->topLevelItem(0)->setExpanded(true);
    if (commands->topLevelItem(0)->childCount() > 6) commands->setCurrentItem(commands->topLevelItem(0)->child(6));
    editor.GoToLine(30);
    Grab(&editor, "editor");
    editor.findChild<QAction*>("mnuFind")->trigger();
    Grab(&editor, "editor-find");
}

void GrabMenus(const QMainWindow& window, const QString& name) {
    for (const QAction* const item : window.menuBar()->actions()) {
        item->menu()->popup(window.pos());
        Grab(item->menu(), name + "-" + item->menu()->objectName().mid(3).toLower());
        item->menu()->hide();
    }
}

/// Grabs the question about an unsaved profile, and answers it.
void GrabQuestion(QtDialogs& dialogs, frmVorel& window, const QString& name, bool offersCancel) {
    QTimer::singleShot(300, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        Grab(box, name);
        box->button(QMessageBox::No)->click();
    });
    dialogs.Ask(&window, "Do you want to save any changes to your bot's configuration?", "Save Vorel", offersCancel);
}

void GrabDialogs(frmVorel& window) {
    constexpr const char* kDialogs[][2] = {
        {"help", "mnuGHelp"}, {"find", "mnuFind"},   {"scroll-back", "mnuScrollBack"},
        {"open", "mnuOpen"},  {"save", "mnuSaveAs"}, {"log", "mnuLog"}};
    for (const auto& [name, item] : kDialogs) {
        GrabDialog(name, [&window, item = item] { window.findChild<QAction*>(item)->trigger(); });
    }
    GrabDialog("go-to-line", [&] { window.editor().findChild<QAction*>("mnuGoTo")->trigger(); });
    GrabDialog("invalid", [&] {
        window.ShowMessage("Invalid Selection", "Select a valid Furcadia character before attempting to connect.");
    });
    QtDialogs dialogs;
    GrabQuestion(dialogs, window, "question", false);
    GrabQuestion(dialogs, window, "question-cancel", true);
    GrabDialog("fault", [&] { window.EndWithFault(RuntimeFault(FaultKind::TypeMismatch, "x")); });
}

void GrabAll(frmVorel& window) {
    Grab(&window, "main");
    GrabTabs(window);
    GrabMenus(window, "menu");
    GrabEditor(window.editor());
    GrabMenus(window.editor(), "editor-menu");
    GrabConfiguration(window);
    GrabDialogs(window);
}

/// Lets the bot and its visitors act until the console holds a number of lines.
void WaitForLines(frmVorel& window, int lines) {
    auto* const console = window.findChild<ConsoleView*>("lstView");
    QElapsedTimer waited;
    waited.start();
    while (console->Lines().rowCount() < lines && waited.elapsed() < 60000) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 7) {
        std::fputs("usage: tvorel_screenshots FOLDER light|dark LANGUAGE GREETER.tvm VSLIST.vs LINES\n", stderr);
        return 64;
    }
    pictures = arguments[1];
    UseColors(arguments[2] == "dark");
    LoadTranslations(application, arguments[3]);
    const QTemporaryDir folder;
    QFile::copy(arguments[5], folder.filePath("vslist.vs"));
    QtDialogs dialogs;
    frmVorel window(dialogs, folder.path());
    window.Start();
    window.OpenDocument(TypedPath(arguments[4]));
    window.host().session().ChooseServer(kPracticeAddress);
    window.show();
    window.host().RunHandler([&] { window.host().Connect(); });
    WaitForLines(window, arguments[6].toInt());
    GrabAll(window);
    return 0;
}
