#include <QSignalSpy>

#include "ui/Desk.h"

namespace {

TEST(ConsoleView, LosesNoLineOfAFloodAndFollowsUnlessScrolledUp) {
    ConsoleView view;
    view.resize(300, 120);
    Front(view);
    QScrollBar& bar = *view.verticalScrollBar();
    int next = 0;
    const auto append = [&](int count) {
        for (const int end = next + count; next < end; ++next) view.Lines().Append(QString::number(next));
    };
    const auto followsAfter = [&] {
        append(1);
        view.Lines().Flush();
        QCoreApplication::processEvents();
        return bar.value() == bar.maximum();
    };
    QSignalSpy inserted(&view.Lines(), &QAbstractItemModel::rowsInserted);
    append(20000);
    ASSERT_TRUE(Eventually([&] { return view.Lines().rowCount() == next; }));
    EXPECT_EQ(inserted.count(), 1) << "one repaint, not one a line";
    for (int i = 0; i < next; ++i) ASSERT_EQ(view.Lines().LineAt(i), QString::number(i));
    EXPECT_TRUE(followsAfter());
    bar.setValue(10);
    EXPECT_FALSE(followsAfter());
    EXPECT_EQ(bar.value(), 10);
    view.Lines().SetScrollBack(next);
    append(5);
    EXPECT_FALSE(followsAfter());
    EXPECT_EQ(view.Lines().LineAt(bar.value()), "10") << "while the oldest lines go";
    bar.setValue(bar.maximum());
    view.resize(300, 80);
    EXPECT_TRUE(followsAfter()) << "a smaller window is no scrolling";
    view.SetMonospaced(true);
    EXPECT_TRUE(followsAfter()) << "nor is another font";
    view.Lines().SetScrollBack(3);
    append(2);
    EXPECT_TRUE(followsAfter());
    EXPECT_EQ(view.Lines().AllText(), "20010\n20011\n20012\n") << "the newest are kept";
    append(7);
    EXPECT_TRUE(followsAfter());
    EXPECT_EQ(view.Lines().AllText(), "20018\n20019\n20020\n") << "of more than there is room for, too";
}

class Console : public Desk {};

TEST_F(Console, IsReadFoundCopiedSavedAndLogged) {
    StartWithBot();
    window->ClearConsole();
    Choose("mnuLog", {Path("log.txt")});
    for (const char* const line : {"one", "caf\xe9 two", "three"}) window->ShowConsoleLine(line);
    EXPECT_EQ(ConsoleText(), "one\ncaf\u00e9 two\nthree\n");
    auto& view = The<ConsoleView>("lstView");
    auto& chosen = The<QLineEdit>("txtView");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.Lines().index(1)).center());
    EXPECT_EQ(chosen.text(), "caf\u00e9 two");
    Choose("mnuFind", {"E"});
    EXPECT_EQ(chosen.text(), "three");
    Choose("mnuFindNext");
    EXPECT_EQ(chosen.text(), "one") << "around the end, without asking again";
    EXPECT_FALSE(view.FindNext("four") || view.FindNext(""));
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\ncaf\u00e9 two");
    Choose("mnuSaveConsole", {Path("saved.txt")});
    EXPECT_EQ(Read("saved.txt"), "one\ncaf\xc3\xa9 two\nthree\n");
    EXPECT_EQ(Read("log.txt").count('\n'), 3);

    Choose("mnuScrollBack", {"2"});
    Choose("mnuTimestamps");
    EXPECT_TRUE(ConsoleText().contains(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d  caf\u00e9 two\n.*  three\n$")));
    Start();
    EXPECT_TRUE(The<QAction>("mnuTimestamps").isChecked());
    for (const char* const line : {"1", "2", "3"}) window->ShowConsoleLine(line);
    EXPECT_EQ(ConsoleText().count('\n'), 2) << "as many as were chosen";

    Choose("mnuLog");
    const QByteArray script = Read("bot.vs");
    Choose("mnuLog", {Path("bot.vs")});
    EXPECT_TRUE(ConsoleText().contains("bot.vs can't be written: the file holds something that is no log"));
    window->ShowConsoleLine("four");
    EXPECT_EQ(Read("bot.vs"), script);
}

class Variables : public Desk {};

TEST_F(Variables, FollowTheBotAndAreEditedByHand) {
    StartWithBot();
    auto& list = The<QTreeWidget>("lvwVars");
    const auto shows = [&list](const QString& rows) {
        return Eventually([&] {
            QString shown;
            for (QTreeWidgetItemIterator row(&list); *row; ++row)
                shown += (*row)->text(0) + "=" + (*row)->text(1) + " ";
            return shown == rows && !list.findChild<QLineEdit*>();
        });
    };
    UserVariables& variables = bot().variables;
    variables.Set("[b]", "caf\xe9");
    EXPECT_TRUE(shows("[b]=caf\u00e9 "));
    Choose("mnuNew");
    EXPECT_TRUE(shows(""));
    Choose("cmdAdd_Var");
    auto& name = Named<QLineEdit>(list, {});
    name.setText("points");
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_TRUE(shows("[points]=0 ")) << "names have brackets";
    list.topLevelItem(0)->setText(1, "7");
    EXPECT_EQ(*variables.Find("[points]"), "7");
    variables.Set("[last]", "1");
    variables.Set("[points]", "8");
    list.topLevelItem(0)->setText(0, "score");
    EXPECT_TRUE(shows("[score]=8 [last]=1 ")) << "with the value that the script gave it meanwhile";
    variables.Remove("[last]");
    list.topLevelItem(0)->setText(0, "");
    EXPECT_TRUE(shows("[score]=8 ")) << "a name is not emptied";
    Choose("cmdDel_Var");
    EXPECT_TRUE(shows("") && variables.Rows().empty());
}

}  // namespace
