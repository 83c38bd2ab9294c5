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

/// The controls that a person works with, and not those that are parts of others.
QList<QWidget*> VisibleControls(const QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool part = widget->objectName().startsWith("qt_") || widget->inherits("QHeaderView") ||
                          IsOneOf(widget->parent(), {"QComboBox", "QTabBar", "QLineEdit"});
        const bool takesPart = IsOneOf(
            widget, {"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractItemView", "QTabBar", "QsciScintilla"});
        if (takesPart && !part && widget->isVisible() && widget->window() == &window) controls << widget;
    }
    return controls;
}

/// Goes around a window by Tab, as far as it leads. In the script, where Tab is a blank, F6 leads on. A label's key
/// leads to its control as well.
QSet<QWidget*> Reachable(QWidget& window) {
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
    return reached;
}

/// What keys lead to; none may lead to two.
class Keys {
  public:
    void Add(const QKeySequence& key, const QString& text) {
        if (key.isEmpty()) return;
        const auto [taken, isFree] = texts_.emplace(key.toString(), text);
        EXPECT_TRUE(isFree) << key.toString() << ": " << taken->second << ", " << text;
    }
    void AddMnemonic(const QString& text) { Add(QKeySequence::mnemonic(text), text); }

  private:
    std::map<QString, QString> texts_;
};

void ExpectNoClashInMenu(const QMenu& menu) {
    Keys keys;
    for (const QAction* const action : menu.actions()) {
        keys.AddMnemonic(action->text());
        if (action->menu()) ExpectNoClashInMenu(*action->menu());
        EXPECT_TRUE(action->isSeparator() || action->text().contains('&')) << action->text() << " has no mnemonic";
    }
}

/// The menu bar, the buttons and the labels that can be seen share one set of keys; the shortcuts have another.
void ExpectNoClashInWindow(const QWidget& window) {
    Keys mnemonics, shortcuts;
    for (const auto* const bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* const action : bar->actions()) {
            mnemonics.AddMnemonic(action->text());
            ExpectNoClashInMenu(*action->menu());
        }
    }
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) mnemonics.AddMnemonic(button->text());
    }
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy()) mnemonics.AddMnemonic(label->text());
    }
    for (const auto* const action : window.findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) shortcuts.Add(key, action->objectName());
    }
}

void ExpectAccessible(QWidget& window, const QString& page) {
    SCOPED_TRACE(page.toStdString());
    const QSet<QWidget*> reachable = Reachable(window);
    for (QWidget* const control : VisibleControls(window)) {
        SCOPED_TRACE(control->objectName().toStdString() + " " + control->metaObject()->className());
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(control);
        EXPECT_TRUE(reachable.contains(control));
        EXPECT_FALSE(control->objectName().isEmpty() || told->text(QAccessible::Name).isEmpty());
        EXPECT_FALSE(told->text(QAccessible::Description).isEmpty() && control->accessibleDescription().isEmpty());
    }
    ExpectNoClashInWindow(window);
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
        ExpectAccessible(*window, tabs.tabText(tab));
    }
    ExpectNoClashInMenu(The<QMenu>("mnuTray"));

    ExpectAccessible(Editor(), "without the find bar");
    ChooseInEditor("mnuFind");
    ExpectAccessible(Editor(), "with the find bar");

    frmCfg form(bot().profile, {{"First", "a.example"}}, dialogs);
    auto& pages = Named<QListWidget>(form, "lstCfg");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentRow(page);
        ExpectAccessible(form, pages.item(page)->text());
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, Accessibility, testing::Values("English", "German"),
                         [](const auto& language) { return language.param; });

}  // namespace
