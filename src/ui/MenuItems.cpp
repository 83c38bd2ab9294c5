#include "ui/MenuItems.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

QMenu* AddMenu(QMenuBar& bar, const char* name, const QString& caption) {
    QMenu* const menu = bar.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* AddItem(QMenu& menu, const char* name, const QString& caption, const QKeySequence& keys,
                 std::function<void()> run) {
    QAction* const item = menu.addAction(caption, &menu, std::move(run));
    item->setObjectName(name);
    item->setShortcut(keys);
    return item;
}

QAction* AddOption(QMenu& menu, const char* name, const QString& caption, bool on, std::function<void(bool)> run) {
    QAction* const item = menu.addAction(caption);
    item->setObjectName(name);
    item->setCheckable(true);
    item->setChecked(on);  // before anybody listens: how it stands is no choice of the user's
    QObject::connect(item, &QAction::toggled, &menu, std::move(run));
    return item;
}
