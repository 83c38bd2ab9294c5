#pragma once

#include <QKeySequence>
#include <QString>
#include <functional>

class QAction;
class QMenu;
class QMenuBar;

// How the windows build their menus. Every menu and item has an object name.

QMenu* AddMenu(QMenuBar& bar, const char* name, const QString& caption);

/// @param run  what choosing the item does
QAction* AddItem(QMenu& menu, const char* name, const QString& caption, const QKeySequence& keys,
                 std::function<void()> run);

/// An item that is on or off.
/// @param run  what switching it does
QAction* AddOption(QMenu& menu, const char* name, const QString& caption, bool on, std::function<void(bool)> run);
