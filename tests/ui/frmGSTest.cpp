#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "engine/Script.h"
#include "ui/Desk.h"
#include "ui/frmGS.h"

namespace {

using Answer = Dialogs::Answer;

class ScriptEditor : public testing::Test {
  protected:
    Desk desk;
    frmGS* editor = nullptr;
    QsciScintilla* text = nullptr;
    QTreeWidget* tree = nullptr;
    std::string saved;

    void SetUp() override {
        desk.Write(
            "VsList.VS",
            "(0:7) loaded?\r\n(5:3) say nothing,\r\n (5:4) skipped,\r\n(1:1) and {it} holds,\r\n"
            "(0:8) caf\xe9 is said,\r\nremark\r\n(5:5)skipped\r\n(5 5) skipped\r\n(:5) skipped\r\n(2:0) skipped\r\n(");
        desk.StartWithBot();
        editor = &desk.Editor();
        text = &Named<QsciScintilla>(*editor, "txtScript");
        tree = &Named<QTreeWidget>(*editor, "tvwCmds");
        saved = editor->ScriptText();
    }
    void Show() {
        desk.Choose("mnuEdit");
        Front(*editor);
    }
    void Do(const char* menuItem) const { Named<QAction>(*editor, menuItem).trigger(); }
    std::pair<int, int> Caret() const {
        int line = 0, column = 0;
        text->getCursorPosition(&line, &column);
        return {line, column};
    }
};

TEST_F(ScriptEditor, SavesTheTextForTheBot) {
    Do("mnuNew");
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor[*]");
    EXPECT_EQ(editor->ScriptText(), kNewScript);
    EXPECT_EQ(desk.bot().script->Text(), saved) << "until it is saved";
    text->insertAt("(0:0) loaded,\r\n(5:2) {caf\u00e9}\r\n", 1, 0);
    desk.dialogs.texts = {std::nullopt, desk.Path("new"), desk.Path("no/such/folder/x.vs")};
    Do("mnuSave");
    EXPECT_TRUE(editor->IsDirty()) << "cancelled";
    Do("mnuSave");
    EXPECT_EQ(desk.dialogs.Take(),
              QStringList(2, "save [Save VorelSpeak Script As...] VorelSpeak Script (*.vs) | *.vs"));
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor - [new.vs][*]");
    EXPECT_EQ(desk.Console(), "ready\ncaf\u00e9\n") << "run, as it is loaded anew";
    EXPECT_TRUE(desk.Read("new.vs").startsWith("VSPK 01.00 Vorel\r\n(0:0) loaded,\r\n(5:2) {caf\xe9}\r\n"));
    EXPECT_EQ(QString::fromStdString(desk.bot().profile.scriptPath), desk.Path("new.vs"));
    EXPECT_TRUE(desk.bot().profile.dirty);
    desk.bot().profile.dirty = false;
    Do("mnuSave");
    EXPECT_FALSE(desk.bot().profile.dirty) << "the profile has named it already";
    Do("mnuSaveAs");
    EXPECT_TRUE(desk.dialogs.Take().last().startsWith("critical [Save Script] "));
}

TEST_F(ScriptEditor, OpensAScriptAndRunsIt) {
    desk.Write("Other.vs", "VSPK 01.00 Vorel\n(0:0) loaded,\n(5:2) {other}\n*Endtriggers* 9999 *Endtriggers*\n");
    desk.dialogs.texts = {desk.Path("other.VS"), desk.Path("missing.vs")};
    Do("mnuOpen");
    Do("mnuOpen");
    EXPECT_TRUE(
        desk.dialogs.Take()[0].startsWith("open [Select a VorelSpeak Script to Open] VorelSpeak Script (*.vs) "));
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor - [Other.vs][*]") << "what is missing is not opened";
    EXPECT_EQ(desk.Console(), "ready\nother\n");
}

TEST_F(ScriptEditor, AsksBeforeOtherTextTakesThePlaceOfUnsavedText) {
    desk.TypeInEditor("x");
    desk.dialogs.answers = {Answer::Cancel, Answer::Cancel, Answer::Cancel};
    Do("mnuNew");
    Do("mnuOpen");
    desk.Open("bot.vs");
    const QString question = "yes-no-cancel [Save Script] Do you want to save any changes to your script?";
    EXPECT_EQ(desk.dialogs.Take(), QStringList(3, question));
    EXPECT_EQ(editor->ScriptText(), "x" + saved);
    EXPECT_TRUE(editor->IsDirty());
}

TEST_F(ScriptEditor, TheMarkOfChangesTellsTheTruthThroughUndo) {
    desk.TypeInEditor("a");
    EXPECT_TRUE(editor->isWindowModified());
    Do("mnuUndo");
    EXPECT_FALSE(editor->isWindowModified());
    desk.TypeInEditor("b");
    Do("mnuSave");
    EXPECT_FALSE(editor->isWindowModified());
    Do("mnuUndo");
    EXPECT_TRUE(editor->isWindowModified() && editor->IsDirty()) << "back behind what was saved";
    Do("mnuRedo");
    EXPECT_FALSE(editor->isWindowModified() || editor->IsDirty());
}

TEST_F(ScriptEditor, ClosingHidesIt) {
    EXPECT_FALSE(editor->isVisible()) << "made hidden";
    const auto close = [this](std::deque<Answer> answers) {
        Show();
        desk.dialogs.answers = std::move(answers);
        editor->close();
        return desk.dialogs.Take().value(0);
    };
    const QString question = "yes-no [Save Script] Do you want to save any changes to your script?";
    EXPECT_EQ(close({}), "") << "nothing to ask";
    EXPECT_FALSE(editor->isVisible());
    desk.TypeInEditor("x");
    EXPECT_EQ(close({Answer::No}), question);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(editor->ScriptText(), "x" + saved) << "kept";
    EXPECT_EQ(desk.bot().script->Text(), saved);
    EXPECT_EQ(close({Answer::Yes}), question);
    EXPECT_EQ(desk.bot().script->Text(), "x" + saved);
    Do("mnuNew");
    desk.TypeInEditor("y");
    desk.dialogs.texts = {std::nullopt};
    close({Answer::Yes});
    EXPECT_TRUE(editor->isVisible()) << "saving was cancelled";
}

TEST_F(ScriptEditor, ChoosingACommandOfTheTreePutsItInAtTheCaret) {
    QStringList rows;
    for (QTreeWidgetItemIterator item(tree); *item; ++item) rows << (*item)->text(0);
    EXPECT_EQ(rows.join('|'),
              "Causes|(0:7) loaded?|(0:8) caf\u00e9 is said,|Additional Conditions|"
              "(1:1) and {it} holds,|Effects|(5:3) say nothing,");
    Show();
    text->setText("caf\u00e9\r\nrest");
    text->setCursorPosition(1, 0);
    tree->setFocus();
    for (QTreeWidgetItem* const item : {tree->topLevelItem(0)->child(1), tree->topLevelItem(1)->child(0),
                                        tree->topLevelItem(2)->child(0), tree->topLevelItem(2)}) {
        tree->setCurrentItem(item);
        QTest::keyClick(tree, Qt::Key_Return);
        EXPECT_EQ(Named<QLabel>(*editor, "lblPreview").text(), item->parent() ? item->text(0) : "");
    }
    EXPECT_EQ(text->text(),
              "caf\u00e9\r\n(0:8) caf\u00e9 is said,\r\n (1:1) and {it} holds,\r\n"
              "     (5:3) say nothing,\r\nrest");
    EXPECT_EQ(Caret(), std::pair(4, 0));
    QTest::keyClick(tree, Qt::Key_F6);
    EXPECT_TRUE(text->hasFocus());

    Named<QLineEdit>(*editor, "txtFilter").setText("SAID  caf");
    EXPECT_TRUE(tree->topLevelItem(0)->child(0)->isHidden() && tree->topLevelItem(2)->child(0)->isHidden());
    EXPECT_FALSE(tree->topLevelItem(0)->child(1)->isHidden()) << "holds both words";
    Named<QLineEdit>(*editor, "txtFilter").clear();
    EXPECT_FALSE(tree->topLevelItem(2)->child(0)->isHidden());
}

TEST_F(ScriptEditor, FindsReplacesAndGoesToALine) {
    Show();
    text->setText("one two\r\nTWO\r\ntwo two");
    Do("mnuFind");
    auto& find = Named<QLineEdit>(*editor, "txtFind");
    ASSERT_TRUE(find.hasFocus());
    QTest::keyClicks(&find, "two");
    QTest::keyClick(&find, Qt::Key_Return);
    Do("mnuFindNext");
    EXPECT_EQ(Caret(), std::pair(1, 3));
    Do("mnuFindPrevious");
    EXPECT_EQ(Caret(), std::pair(0, 7));
    Named<QLineEdit>(*editor, "txtReplace").setText("twofold");
    Named<QPushButton>(*editor, "cmdReplace").click();
    EXPECT_EQ(text->text(), "one twofold\r\nTWO\r\ntwo two");
    Named<QPushButton>(*editor, "cmdReplaceAll").click();
    EXPECT_EQ(text->text(), "one twofoldfold\r\ntwofold\r\ntwofold twofold");
    Do("mnuUndo");
    EXPECT_EQ(text->text(), "one twofold\r\nTWO\r\ntwo two") << "all in one step";
    QTest::keyClick(&find, Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    editor->GoToLine(3);
    EXPECT_EQ(Caret(), std::pair(2, 0));
}

TEST_F(ScriptEditor, ColoursLinesByTheirKind) {
    text->setText("VSPK 01.00 Vorel\r\n(0:1) c {a [v]} d\r\n (1:2) x\r\n     (5:3) y\r\nremark {a}");
    text->recolor();
    QStringList styles;
    for (const unsigned long at : {0UL, 18UL, 26UL, 29UL, 32UL, 34UL, 38UL, 53UL, 70UL}) {
        styles << text->lexer()->description(static_cast<int>(text->SendScintilla(QsciScintilla::SCI_GETSTYLEAT, at)));
    }
    EXPECT_EQ(styles.join(' '), "Header and end Cause Argument Variable Argument Cause Condition Effect Remark");
}

}  // namespace
