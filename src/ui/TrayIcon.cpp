#include "ui/TrayIcon.h"

#include <QMenu>

#include "Version.h"
#include "ui/Options.h"

TrayIcon::TrayIcon(QWidget& window, Options& options)
    : QSystemTrayIcon(&window), window_(window), options_(options), menu_(new QMenu(&window)) {
    setIcon(QIcon(":/icons/tvorel.svg"));
    setToolTip("Tandry Vorel");
    menu_->setObjectName("mnuTray");
    menu_->addAction(tr("&Restore"), this, &TrayIcon::RestoreWindow)->setObjectName("mnuTrayRestore");
    menu_->addAction(tr("&Minimize"), this, &TrayIcon::MinimizeWindow)->setObjectName("mnuTrayMinimize");
    menu_->addSeparator();
    menu_->addAction(tr("E&xit"), this, &TrayIcon::ExitChosen)->setObjectName("mnuTrayExit");
    setContextMenu(menu_);
    if (isSystemTrayAvailable()) show();
    connect(this, &QSystemTrayIcon::activated, this, [this](ActivationReason reason) {
        if (reason == DoubleClick) RestoreWindow();
    });
    connect(this, &QSystemTrayIcon::messageClicked, this, &TrayIcon::RestoreWindow);
}

void TrayIcon::MinimizeWindow() {
    if (isSystemTrayAvailable()) show();  // it may have come after the start
    if (!isVisible()) return window_.showMinimized();
    window_.hide();
    if (options_.Get(option::kTrayExplained)) return;
    options_.Set(option::kTrayExplained, true);
    showMessage(kProductName, tr("The bot goes on here. A double click brings the window back."));
}

void TrayIcon::RestoreWindow() {
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    window_.show();
    window_.raise();
    window_.activateWindow();
}

void TrayIcon::TellWhisper(const QString& line) {
    // Some desktops take what looks like a tag for one.
    showMessage(tr("A whisper"), QString(line).replace('<', QChar(0x2039)));
}
