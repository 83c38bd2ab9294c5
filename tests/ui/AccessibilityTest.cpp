#include <Qsci/qsciscintilla.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSet>
#include <QTabBar>
#include <QTranslator>
#include <map>

#include "ui/Desk.h"
#include "ui/frmCfg.h"

namespace {

/// The controls that a person works with, and not those that are parts of others.
QList<QWidget*> VisibleControls(const QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool part = widget->objectName().startsWith("qt_") || qobject_cast<QHeaderView*>(widget) ||
                          qobject_cast<QComboBox*>(widget->parent()) || qobject_cast<QTabBar*>(widget->parent()) ||
                          qobject_cast<QLineEdit*>(widget->parent());
        const bool takesPart = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                               qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                               qobject_cast<QTabBar*>(widget) || qobject_cast<QsciScintilla*>(widget);
        if (takesPart && !part && widget->isVisible() && widget->window() == &window) controls << widget;
    }
    return controls;
}

void ExpectNames(const QWidget& window) {
    for (QWidget* const control : VisibleControls(window)) {
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(control);
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << control->objectName();
        EXPECT_FALSE(told->text(QAccessible::Description).isEmpty() && control->accessibleDescription().isEmpty())
            << control->objectName();
    }
}

/// Goes around a window by Tab, as far as it leads. In the script, where Tab is a blank, F6 leads on. A label's key
/// leads to its control as well.
void ExpectReachable(QWidget& window) {
    Front(window);
    QSet<QWidget*> reached;
    for (QWidget* at = QApplication::focusWidget(); at && !reached.contains(at); at = QApplication::focusWidget()) {
        reached << at;
        // Of radio buttons the chosen one is reached, and the arrow keys lead to the others.
        if (auto* const button = qobject_cast<QAbstractButton*>(at); button && button->autoExclusive()) {
            for (auto* const other : at->parentWidget()->findChildren<QAbstractButton*>()) {
                if (other->autoExclusive()) reached << other;
            }
        }
        QTest::keyClick(at, qobject_cast<QsciScintilla*>(at) ? Qt::Key_F6 : Qt::Key_Tab);
    }
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (!QKeySequence::mnemonic(label->text()).isEmpty()) reached << label->buddy();
    }
    for (QWidget* const control : VisibleControls(window)) {
        EXPECT_TRUE(reached.contains(control)) << control->objectName() << " of " << window.objectName();
    }
}

using TextsByKey = std::map<QString, QStringList>;

void AddMnemonic(TextsByKey& keys, const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) keys[key.toString()] << text;
}

void ExpectNoClash(const TextsByKey& keys) {
    for (const auto& [key, texts] : keys) EXPECT_EQ(texts.size(), 1) << key << ": " << texts.join(", ");
}

void ExpectNoClashInMenu(const QMenu& menu) {
    TextsByKey keys;
    for (const QAction* const action : menu.actions()) {
        AddMnemonic(keys, action->text());
        if (action->menu()) ExpectNoClashInMenu(*action->menu());
        EXPECT_TRUE(action->isSeparator() || action->text().contains('&')) << action->text() << " has no mnemonic";
    }
    ExpectNoClash(keys);
}

/// The menu bar, the buttons and the labels that can be seen share one set of keys; the shortcuts have another.
void ExpectNoClashInWindow(const QWidget& window) {
    TextsByKey mnemonics, shortcuts;
    for (const auto* const bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* const action : bar->actions()) {
            AddMnemonic(mnemonics, action->text());
            ExpectNoClashInMenu(*action->menu());
        }
    }
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) AddMnemonic(mnemonics, button->text());
    }
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy()) AddMnemonic(mnemonics, label->text());
    }
    for (const auto* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) shortcuts[key.toString()] << action->objectName();
    }
    ExpectNoClash(mnemonics);
    ExpectNoClash(shortcuts);
}

void ExpectAccessible(QWidget& window, const QString& page) {
    SCOPED_TRACE(page.toStdString());
    ExpectReachable(window);
    ExpectNames(window);
    ExpectNoClashInWindow(window);
}

/// In English, and in German, whose words have mnemonics of their own.
class Accessibility : public testing::TestWithParam<const char*> {
  protected:
    QTranslator german;

    void SetUp() override {
        if (GetParam() == std::string("English")) return;
        ASSERT_TRUE(german.load(TVOREL_GERMAN));
        QCoreApplication::installTranslator(&german);
    }
};

INSTANTIATE_TEST_SUITE_P(Windows, Accessibility, testing::Values("English", "German"),
                         [](const auto& language) { return language.param; });

TEST_P(Accessibility, TheMainWindow) {
    Desk desk;
    desk.Start();
    desk.window->show();
    auto& tabs = desk.The<QTabBar>("tsControls");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        ExpectAccessible(*desk.window, tabs.tabText(tab));
    }
    ExpectNoClashInMenu(desk.The<QMenu>("mnuTray"));
}

TEST_P(Accessibility, TheEditor) {
    Desk desk;
    desk.Write("vslist.vs", "(0:0) When the script is loaded,\r\n");
    desk.Start();
    ExpectAccessible(desk.Editor(), "without the find bar");
    Named<QAction>(desk.Editor(), "mnuFind").trigger();
    ExpectAccessible(desk.Editor(), "with the find bar");
}

TEST_P(Accessibility, TheConfiguration) {
    Profile profile;
    RecordingDialogs dialogs;
    frmCfg form(profile, {{"First", "a.example"}}, dialogs);
    form.show();
    auto& pages = Named<QListWidget>(form, "lstCfg");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentRow(page);
        ExpectAccessible(form, pages.item(page)->text());
    }
}

}  // namespace
