#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeWidget>

#include "ui/Desk.h"

namespace {

class Console : public testing::Test {
  protected:
    ConsoleView view;
    QScrollBar& bar = *view.verticalScrollBar();

    void SetUp() override {
        view.resize(300, 120);
        Front(view);
    }
    void Append(int count) {
        for (int i = 0; i < count; ++i) view.Lines().Append(QString::number(next_++));
        view.Lines().Flush();
        QCoreApplication::processEvents();
    }
    bool IsAtEnd() const { return bar.value() == bar.maximum(); }

  private:
    int next_ = 0;
};

TEST_F(Console, LosesNoLineOfAFloodAndShowsItAtOnce) {
    constexpr int kLines = 20000;
    QSignalSpy inserted(&view.Lines(), &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < kLines; ++i) view.Lines().Append(QString::number(i));
    ASSERT_TRUE(Eventually([&] { return view.Lines().rowCount() == kLines; }));
    EXPECT_EQ(inserted.count(), 1) << "one repaint, not one a line";
    for (int i = 0; i < kLines; ++i) ASSERT_EQ(view.Lines().LineAt(i), QString::number(i));
    EXPECT_TRUE(IsAtEnd());
}

TEST_F(Console, KeepsTheNewestLines) {
    view.Lines().SetScrollBack(3);
    for (const int appended : {2, 2, 7}) Append(appended);
    EXPECT_EQ(view.Lines().AllText(), "8\n9\n10\n");
    view.Lines().SetScrollBack(2);
    EXPECT_EQ(view.Lines().AllText(), "9\n10\n");
}

TEST_F(Console, FollowsUnlessScrolledUp) {
    Append(100);
    EXPECT_TRUE(IsAtEnd());
    bar.setValue(10);
    Append(5);
    EXPECT_EQ(bar.value(), 10);
    bar.setValue(bar.maximum());
    view.resize(300, 80);
    Append(1);
    EXPECT_TRUE(IsAtEnd()) << "a smaller window is no scrolling";
    view.SetMonospaced(true);
    Append(1);
    EXPECT_TRUE(IsAtEnd()) << "nor is another font";
}

TEST_F(Console, FindsAroundTheEndAndCopiesInOrder) {
    for (const char* const line : {"Alpha", "beta", "ALPHA two"}) view.Lines().Append(line);
    view.Lines().Flush();
    for (const int row : {0, 2, 0, 2}) {
        EXPECT_TRUE(view.FindNext("alpha"));
        EXPECT_EQ(view.currentIndex().row(), row);
    }
    EXPECT_FALSE(view.FindNext("gamma") || view.FindNext(""));
    QTest::keyClick(&view, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "beta\nALPHA two");
}

TEST(ConsoleInTheWindow, IsReadFoundSavedAndLogged) {
    Desk desk;
    desk.Start();
    Front(*desk.window);
    desk.dialogs.texts = {desk.Path("log.txt"), "E", desk.Path("saved.txt"), "2"};
    desk.The<QAction>("mnuLog").setChecked(true);
    for (const char* const line : {"one", "caf\xe9 two", "three"}) desk.window->ShowConsoleLine(line);
    EXPECT_EQ(desk.Console(), "one\ncaf\u00e9 two\nthree\n");
    auto& view = desk.The<ConsoleView>("lstView");
    auto& chosen = desk.The<QLineEdit>("txtView");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.Lines().index(1)).center());
    EXPECT_EQ(chosen.text(), "caf\u00e9 two");
    desk.Choose("mnuFind");
    EXPECT_EQ(chosen.text(), "three");
    desk.Choose("mnuFindNext");
    EXPECT_EQ(chosen.text(), "one") << "without asking again";
    desk.Choose("mnuSaveConsole");
    EXPECT_EQ(desk.Read("saved.txt"), "one\ncaf\xc3\xa9 two\nthree\n");
    EXPECT_EQ(desk.Read("log.txt").count('\n'), 3);

    desk.Choose("mnuScrollBack");
    desk.The<QAction>("mnuTimestamps").setChecked(true);
    EXPECT_TRUE(desk.Console().contains(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d  caf\u00e9 two\n.*  three\n$")));
    desk.Start();
    EXPECT_TRUE(desk.The<QAction>("mnuTimestamps").isChecked());
    for (const char* const line : {"1", "2", "3"}) desk.window->ShowConsoleLine(line);
    EXPECT_EQ(desk.Console().count('\n'), 2) << "as many as were chosen";
}

TEST(VariableList, FollowsTheBotAndIsEditedByHand) {
    Desk desk;
    desk.Start();
    Front(*desk.window);
    auto& list = desk.The<QTreeWidget>("lvwVars");
    const auto shows = [&list](const QString& rows) {
        return Eventually([&] {
            QString shown;
            for (int i = 0; i < list.topLevelItemCount(); ++i) {
                shown += list.topLevelItem(i)->text(0) + "=" + list.topLevelItem(i)->text(1) + " ";
            }
            return shown == rows && !list.findChild<QLineEdit*>();
        });
    };
    const auto type = [&list](const QString& text) {
        ASSERT_TRUE(Eventually([&] { return list.findChild<QLineEdit*>(); }));
        auto* const editor = list.findChild<QLineEdit*>();
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
    };
    EXPECT_EQ(list.headerItem()->text(0) + list.headerItem()->text(1), "VariableValue");
    UserVariables& variables = desk.bot().variables;
    variables.Set("[b]", "caf\xe9");
    EXPECT_TRUE(shows("[b]=caf\u00e9 "));
    desk.Choose("mnuNew");
    EXPECT_TRUE(shows(""));
    desk.The<QPushButton>("cmdAdd_Var").click();
    type("points");
    EXPECT_TRUE(shows("[points]=0 ")) << "names have brackets";
    list.setCurrentItem(list.topLevelItem(0), 1);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_F2);
    type("7");
    EXPECT_TRUE(shows("[points]=7 "));
    EXPECT_EQ(*variables.Find("[points]"), "7");
    list.editItem(list.topLevelItem(0), 0);
    type("");
    EXPECT_TRUE(shows("[points]=7 ")) << "a name is not emptied";
    desk.The<QPushButton>("cmdDel_Var").click();
    EXPECT_TRUE(shows("") && variables.Rows().empty());
}

}  // namespace
