#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>

#include "engine/Script.h"
#include "ui/Desk.h"

namespace {

class ScriptEditor : public Desk {
  protected:
    frmGS* editor = nullptr;
    QsciScintilla* text = nullptr;
    std::string saved;

    void SetUp() override {
        Write(
            "VsList.VS",
            "(0:7) loaded?\r\n(5:3) say nothing,\r\n (5:4) skipped,\r\n(1:1) and {it} holds,\r\n"
            "(0:8) caf\xe9 is said,\r\nremark\r\n(5:5)skipped\r\n(5 5) skipped\r\n(:5) skipped\r\n(2:0) skipped\r\n(");
        StartWithBot();
        editor = &Editor();
        text = &Named<QsciScintilla>(*editor, "txtScript");
        saved = editor->ScriptText();
    }
    void Show() {
        Choose("mnuEdit");
        Front(*editor);
    }
    /// Counted in bytes.
    long Caret() const { return text->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS); }
};

TEST_F(ScriptEditor, OpensSavesAndRunsTheTextForTheBot) {
    const QString save = "save [Save VorelSpeak Script As...] VorelSpeak Script (*.vs) | *.vs";
    ChooseInEditor("mnuNew");
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor[*]");
    EXPECT_EQ(editor->ScriptText(), kNewScript);
    EXPECT_EQ(bot().script->Text(), saved) << "until it is saved";
    text->insertAt("(0:0) loaded,\r\n(5:2) {caf\u00e9}\r\n", 1, 0);
    EXPECT_EQ(ChooseInEditor("mnuSave", {"Cancel"}), save);
    EXPECT_TRUE(editor->IsDirty());
    EXPECT_EQ(ChooseInEditor("mnuSave", {Path("new")}), save);
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor - [new.vs][*]");
    EXPECT_EQ(ConsoleText(), "ready\ncaf\u00e9\n") << "run, as it is loaded anew";
    EXPECT_TRUE(Read("new.vs").startsWith("VSPK 01.00 Vorel\r\n(0:0) loaded,\r\n(5:2) {caf\xe9}\r\n"));
    EXPECT_EQ(QString::fromStdString(bot().profile.scriptPath), Path("new.vs"));
    EXPECT_TRUE(bot().profile.dirty);
    bot().profile.dirty = false;
    ChooseInEditor("mnuSave");
    EXPECT_FALSE(bot().profile.dirty) << "the profile has named it already";
    EXPECT_TRUE(ChooseInEditor("mnuSaveAs", {Path("no/folder/x.vs")}).startsWith(save + "|critical [Save Script] "));

    Write("Other.vs", "VSPK 01.00 Vorel\n(0:0) loaded,\n(5:2) {other}\n*Endtriggers* 9999 *Endtriggers*\n");
    EXPECT_TRUE(ChooseInEditor("mnuOpen", {Path("other.VS")})
                    .startsWith("open [Select a VorelSpeak Script to Open] VorelSpeak Script (*.vs) "));
    ChooseInEditor("mnuOpen", {Path("missing.vs")});
    EXPECT_EQ(editor->windowTitle(), "VorelSpeak Script Editor - [Other.vs][*]") << "what is missing is not opened";
    EXPECT_TRUE(ConsoleText().endsWith("\nother\n"));
}

TEST_F(ScriptEditor, TheMarkOfChangesTellsTheTruthThroughUndo) {
    QString marks;
    for (const QString step : {"typed", "mnuUndo", "again", "mnuSave", "mnuUndo", "mnuRedo"}) {
        if (step.startsWith("mnu")) {
            ChooseInEditor(step);
        } else {
            TypeInEditor(step);
        }
        EXPECT_EQ(editor->IsDirty(), editor->isWindowModified()) << step;
        marks += editor->IsDirty() ? '+' : '-';
    }
    EXPECT_EQ(marks, "+-+-+-");
}

TEST_F(ScriptEditor, AsksBeforeUnsavedTextGoesAndHidesWhenClosed) {
    EXPECT_FALSE(editor->isVisible()) << "made hidden";
    const auto close = [this](const QStringList& answers) {
        Show();
        return dialogs.During(answers, [this] { editor->close(); });
    };
    EXPECT_EQ(close({}), "");
    EXPECT_FALSE(editor->isVisible());
    TypeInEditor("x");
    const QString question = " [Save Script] Do you want to save any changes to your script?";
    EXPECT_EQ(ChooseInEditor("mnuNew", {"Cancel"}), "yes-no-cancel" + question);
    EXPECT_EQ(ChooseInEditor("mnuOpen", {"Cancel"}), "yes-no-cancel" + question);
    EXPECT_EQ(Open("bot.vs", {"Cancel"}), "yes-no-cancel" + question);
    EXPECT_EQ(close({"No"}), "yes-no" + question);
    EXPECT_FALSE(editor->isVisible());
    EXPECT_TRUE(editor->IsDirty() && editor->ScriptText() == "x" + saved) << "kept";
    EXPECT_EQ(bot().script->Text(), saved);
    EXPECT_EQ(close({"Yes"}), "yes-no" + question);
    EXPECT_EQ(bot().script->Text(), "x" + saved);
    ChooseInEditor("mnuNew");
    text->insert("\u4e2d");
    EXPECT_TRUE(
        ChooseInEditor("mnuSaveAs", {Path("y"), "No"}).contains("|yes-no [Save Script] Line 1 holds characters"));
    EXPECT_TRUE(editor->IsDirty() && !QFile::exists(Path("y.vs")));
    close({"Yes", "Cancel"});
    EXPECT_TRUE(editor->isVisible()) << "saving was cancelled";
}

TEST_F(ScriptEditor, ChoosingACommandOfTheTreePutsItInAtTheCaret) {
    auto& tree = Named<QTreeWidget>(*editor, "tvwCmds");
    const auto rows = [&tree] {
        QStringList shown;
        for (QTreeWidgetItemIterator item(&tree, QTreeWidgetItemIterator::NotHidden); *item; ++item) {
            shown << (*item)->text(0);
        }
        return shown.join('|');
    };
    const QString all =
        "Causes|(0:7) loaded?|(0:8) caf\u00e9 is said,|Additional Conditions|(1:1) and {it} holds,|Effects|"
        "(5:3) say nothing,";
    EXPECT_EQ(rows(), all);
    Show();
    text->setText("caf\u00e9\r\nrest");
    text->setCursorPosition(1, 0);
    tree.setFocus();
    for (QTreeWidgetItem* const item : {tree.topLevelItem(0)->child(1), tree.topLevelItem(1)->child(0),
                                        tree.topLevelItem(2)->child(0), tree.topLevelItem(2)}) {
        tree.setCurrentItem(item);
        QTest::keyClick(&tree, Qt::Key_Return);
        EXPECT_EQ(Named<QLabel>(*editor, "lblPreview").text(), item->parent() ? item->text(0) : "");
    }
    EXPECT_EQ(text->text(),
              "caf\u00e9\r\n(0:8) caf\u00e9 is said,\r\n (1:1) and {it} holds,\r\n     (5:3) say nothing,\r\nrest");
    EXPECT_EQ(Caret(), text->text().toUtf8().indexOf("rest"));
    QTest::keyClick(&tree, Qt::Key_F6);
    EXPECT_TRUE(text->hasFocus());
    Named<QLineEdit>(*editor, "txtFilter").setText("SAID  caf");
    EXPECT_EQ(rows(), "Causes|(0:8) caf\u00e9 is said,|Additional Conditions|Effects") << "both words";
    Named<QLineEdit>(*editor, "txtFilter").clear();
    EXPECT_EQ(rows(), all);
}

TEST_F(ScriptEditor, FindsReplacesAndGoesToALine) {
    Show();
    text->setText("one two\r\nTWO\r\ntwo two");
    ChooseInEditor("mnuFind");
    auto& find = Named<QLineEdit>(*editor, "txtFind");
    ASSERT_TRUE(find.hasFocus());
    QTest::keyClicks(&find, "two");
    QTest::keyClick(&find, Qt::Key_Return);
    ChooseInEditor("mnuFindNext");
    EXPECT_EQ(Caret(), 12);
    ChooseInEditor("mnuFindPrevious");
    EXPECT_EQ(Caret(), 7);
    Named<QLineEdit>(*editor, "txtReplace").setText("twofold");
    ChooseInEditor("cmdReplace");
    EXPECT_EQ(text->text(), "one twofold\r\nTWO\r\ntwo two");
    ChooseInEditor("cmdReplaceAll");
    EXPECT_EQ(text->text(), "one twofoldfold\r\ntwofold\r\ntwofold twofold");
    ChooseInEditor("mnuUndo");
    EXPECT_EQ(text->text(), "one twofold\r\nTWO\r\ntwo two") << "all in one step";
    QTest::keyClick(&find, Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    editor->GoToLine(3);
    EXPECT_EQ(Caret(), text->text().indexOf("two two"));
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
