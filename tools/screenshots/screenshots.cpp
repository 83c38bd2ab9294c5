// Draws every window, page and dialog of the program into PNG files, with the greeter at work in the practice dream.

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenu>
#include <QStyleFactory>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>

#include "ui/ConsoleView.h"
#include "ui/Dialogs.h"
#include "ui/ShownText.h"
#include "ui/frmGS.h"
#include "ui/frmVorel.h"

namespace {

QString prefix;

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
    widget->grab().save(prefix + name + ".png");
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

void GrabAll(frmVorel& window) {
    Grab(&window, "main");
    GrabTabs(window);
    GrabEditor(window.editor());
    GrabConfiguration(window);
    GrabDialog("help", [&] { window.findChild<QAction*>("mnuGHelp")->trigger(); });
    GrabDialog("find", [&] { window.findChild<QAction*>("mnuFind")->trigger(); });
    auto* const menu = window.findChild<QMenu*>("mnuScript");
    menu->popup(window.pos());
    Grab(menu, "menu-script");
    menu->hide();
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
    if (arguments.size() != 6) {
        std::fputs("usage: tvorel_screenshots PICTURES/PREFIX light|dark GREETER.tvm VSLIST.vs LINES\n", stderr);
        return 64;
    }
    prefix = arguments[1];
    UseColors(arguments[2] == "dark");
    const QTemporaryDir folder;
    QFile::copy(arguments[4], folder.filePath("vslist.vs"));
    QtDialogs dialogs;
    frmVorel window(dialogs, folder.path());
    window.Start();
    window.OpenDocument(TypedPath(arguments[3]));
    window.host().bot().profile.serverAddress = kPracticeAddress;
    window.show();
    window.host().RunHandler([&] { window.host().Connect(); });
    WaitForLines(window, arguments[5].toInt());
    GrabAll(window);
    return 0;
}
