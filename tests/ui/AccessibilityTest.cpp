#include <Qsci/qsciscintilla.h>

#include <QAccessible>
#include <algorithm>
#include <map>

#include "ui/Desk.h"
#include "ui/frmCfg.h"

namespace {

bool IsOneOf(const QObject* object, std::initializer_list<const char*> classes) {
    return std::any_of(classes.begin(), classes.end(), [&](const char* name) { return object->inherits(name); });
}

/// Whether a person works with it: a control that can be seen, and no part of another one.
bool TakesPart(const QWidget* widget) {
    const bool part = widget->objectName().startsWith("qt_") || widget->inherits("QHeaderView") ||
                      IsOneOf(widget->parent(), {"QComboBox", "QTabBar", "QLineEdit"});
    return widget->isVisible() && !part &&
           IsOneOf(widget,
                   {"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractItemView", "QTabBar", "QsciScintilla"});
}

/// Goes around a window by Tab, as far as it leads. In the script, where Tab is a blank, F6 leads on. A label's key
/// leads to its control as well.
QSet<QWidget*> Reachable(QWidget& window) {
    Front(window);
    QSet<QWidget*> reached;
    for (QWidget* at = QApplication::focusWidget(); at && !reached.contains(at); at = QApplication::focusWidget()) {
        reached << at;
        // Of radio buttons one is reached, and the arrow keys lead to the others.
        for (auto* const other : at->parentWidget()->findChildren<QRadioButton*>()) {
            if (at->inherits("QRadioButton")) reached << other;
        }
        QTest::keyClick(at, qobject_cast<QsciScintilla*>(at) ? Qt::Key_F6 : Qt::Key_Tab);
    }
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (!QKeySequence::mnemonic(label->text()).isEmpty()) reached << label->buddy();
    }
    return reached;
}

/// What keys lead to; none may lead to two.
using Keys = std::map<QString, QString>;

void Add(Keys& keys, const QString& text, const QKeySequence& key) {
    if (key.isEmpty()) return;
    const auto [taken, isFree] = keys.emplace(key.toString(), text);
    EXPECT_TRUE(isFree) << key.toString() << ": " << taken->second << ", " << text;
}
void AddMnemonic(Keys& keys, const QString& text) { Add(keys, text, QKeySequence::mnemonic(text)); }

void ExpectNoClash(const QMenu& menu) {
    Keys keys;
    for (const QAction* const action : menu.actions()) {
        AddMnemonic(keys, action->text());
        if (action->menu()) ExpectNoClash(*action->menu());
        EXPECT_TRUE(action->isSeparator() || action->text().contains('&')) << action->text() << " has no mnemonic";
    }
}

/// The menu bar, the buttons and the labels that can be seen share one set of keys; the shortcuts have another.
void ExpectAccessible(QWidget& window) {
    const QSet<QWidget*> reachable = Reachable(window);
    Keys mnemonics, shortcuts;
    for (const QAction* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) Add(shortcuts, action->objectName(), key);
        if (!qobject_cast<QMenuBar*>(action->menu() ? action->menu()->parent() : nullptr)) continue;
        AddMnemonic(mnemonics, action->text());
        ExpectNoClash(*action->menu());
    }
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        SCOPED_TRACE(widget->objectName().toStdString() + " " + widget->metaObject()->className());
        const auto* const button = qobject_cast<QAbstractButton*>(widget);
        const auto* const label = qobject_cast<QLabel*>(widget);
        if (button && button->isVisible()) AddMnemonic(mnemonics, button->text());
        if (label && label->isVisible() && label->buddy()) AddMnemonic(mnemonics, label->text());
        if (!TakesPart(widget) || widget->window() != &window) continue;
        EXPECT_TRUE(reachable.contains(widget));
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(widget->objectName().isEmpty() || told->text(QAccessible::Name).isEmpty());
        EXPECT_FALSE(told->text(QAccessible::Description).isEmpty() && widget->accessibleDescription().isEmpty());
    }
}

class Accessibility : public Desk, public testing::WithParamInterface<const char*> {};

/// In English, and in German, whose words have mnemonics of their own.
TEST_P(Accessibility, OfEveryWindow) {
    QTranslator german;
    if (GetParam() == std::string("German")) {
        ASSERT_TRUE(german.load(TVOREL_GERMAN) && QCoreApplication::installTranslator(&german));
    }
    Write("vslist.vs", "(0:0) When the script is loaded,\r\n");
    Start();
    auto& tabs = The<QTabBar>("tsControls");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        ExpectAccessible(*window);
    }
    ExpectNoClash(The<QMenu>("mnuTray"));

    ExpectAccessible(Editor());
    ChooseInEditor("mnuFind");
    ExpectAccessible(Editor());

    std::string server;
    frmCfg form(bot().profile, server, {{"First", "a.example"}}, dialogs);
    auto& pages = Named<QListWidget>(form, "lstCfg");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentRow(page);
        ExpectAccessible(form);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Accessibility, testing::Values("English", "German"),
                         [](const auto& language) { return language.param; });

}  // namespace
