#include "ui/TrayIcon.h"

#include <QMenu>

TrayIcon::TrayIcon(QWidget* window) : QSystemTrayIcon(window), menu_(new QMenu(window)) {
    setIcon(QIcon(":/icons/tvorel.svg"));
    setToolTip("Tandry Vorel");
    menu_->setObjectName("mnuTray");
    menu_->addAction(tr("&Restore"), this, &TrayIcon::RestoreChosen)->setObjectName("mnuTrayRestore");
    menu_->addAction(tr("&Minimize"), this, &TrayIcon::MinimizeChosen)->setObjectName("mnuTrayMinimize");
    menu_->addSeparator();
    menu_->addAction(tr("E&xit"), this, &TrayIcon::ExitChosen)->setObjectName("mnuTrayExit");
    setContextMenu(menu_);
    if (isSystemTrayAvailable()) show();
    connect(this, &QSystemTrayIcon::activated, this, [this](ActivationReason reason) {
        if (reason == DoubleClick) emit RestoreChosen();
    });
    connect(this, &QSystemTrayIcon::messageClicked, this, &TrayIcon::RestoreChosen);
}
