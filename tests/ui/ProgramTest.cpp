#include "platform/Guarded.h"
#include "profile/ProfileFile.h"
#include "ui/Desk.h"
#include "ui/frmCfg.h"

namespace {

class Program : public Desk {
  public:
    void OpenRecent(int number) {
        auto& menu = The<QMenu>("mnuRecent");
        emit menu.aboutToShow();
        menu.actions()[number]->trigger();
    }
    bool Drop(const QString& file, QWidget& onto) const {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(Path(file))});
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&onto, &enter);
        QDropEvent drop({}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&onto, &drop);
        return enter.isAccepted() && drop.dropAction() == Qt::CopyAction;
    }
    /// Leaves the profile and the script with unsaved changes.
    void ChangeBot() {
        TypeInEditor("typed ");
        bot().profile.owners = "Eve";
        bot().profile.dirty = true;
    }
};

TEST_F(Program, OpensAndSavesProfilesByTheMenu) {
    const QString save = "save [Save Tandry Vorel As...] Tandry Vorel (*.tvm) | *.tvm";
    Start();
    const QString title = window->windowTitle();
    EXPECT_TRUE(title.contains(QRegularExpression("^Tandry Vorel \\d+\\.\\d+\\.\\d+$"))) << title;
    EXPECT_TRUE(Choose("mnuOpen", {Path("bot.tvm")})
                    .startsWith("open [Select a Tandry Vorel to open] Tandry Vorel (*.tvm) | *.tvm"));
    Choose("mnuOpen", {"Cancel"});
    EXPECT_EQ(window->windowTitle(), title + " - [bot.tvm]");
    EXPECT_EQ(Editor().windowTitle(), "VorelSpeak Script Editor - [bot.vs][*]");
    EXPECT_TRUE(bot().profile.ignores.empty());
    Choose("mnuRun");
    EXPECT_EQ(ConsoleText(), "ready\nready\n") << "once as it was loaded, once more for Run";
    Choose("mnuNew");
    EXPECT_EQ(window->windowTitle() + Editor().windowTitle(), title + "VorelSpeak Script Editor[*]");
    EXPECT_EQ(window->host().session().ChosenServer(), kPracticeAddress) << "no part of the profile";
    OpenRecent(0);
    EXPECT_EQ(bot().profile.ignores, std::vector<std::string>{"Mean One"}) << "that way they are read";

    Choose("mnuNew");
    bot().profile.owners = "Eve";
    EXPECT_EQ(Choose("mnuSave", {"Cancel"}), save);
    EXPECT_EQ(Choose("mnuSave", {Path("mybot")}), save);
    EXPECT_EQ(Choose("mnuSave"), "");
    EXPECT_TRUE(Read("mybot.tvm").contains("\r\nOwners=Eve\r\n"));
    EXPECT_TRUE(Choose("mnuSaveAs", {Path("bot"), "No"}).endsWith("bot.tvm already exists. Replace it?"));
    EXPECT_TRUE(Read("bot.tvm").contains("Owners=Ann"));
    EXPECT_TRUE(Choose("mnuSaveAs", {Path("no/folder/bot.tvm")}).startsWith(save + "|critical [Save Vorel] "));
    EXPECT_EQ(window->windowTitle(), title + " - [mybot.tvm]");
    Choose("mnuNew");
    bot().profile.dirty = true;
    window->show();
    Close({"Yes", Path("no/folder/bot.tvm")});
    EXPECT_TRUE(window->isVisible()) << "while it can't be saved";
}

TEST_F(Program, KeepsSplitLinesOfNewBotsAndWhereItWasChosen) {
    QString keeps;
    for (const QString step : {"start", "bot.tvm", "mnuNew", "mnuSave", "start", "bot.tvm", "mybot.tvm",
                               "mnuKeepSplitLines", "bot.tvm", "mybot.tvm"}) {
        if (step == "start") Start();
        if (step.endsWith(".tvm")) Open(step);
        if (step.startsWith("mnu")) Choose(step, step == "mnuSave" ? QStringList(Path("mybot")) : QStringList());
        keeps += The<QAction>("mnuKeepSplitLines").isChecked() ? '+' : '-';
    }
    EXPECT_EQ(keeps, "+-+++-+---");
}

TEST_F(Program, NamesFilesFromTheProfileWhoseWholePathItCannotHold) {
    const QString home = "łukasz/";
    QDir(Path()).mkpath(home + "bots");
    QFile::copy(Path("bot.ini"), Path(home + "my.ini"));
    QFile::copy(Path("bot.vs"), Path(home + "my.vs"));
    const QString refusal = "The profile can't name " + Path(home);
    Start();
    EXPECT_TRUE(Open(home + "my.vs").startsWith("critical [Save Script] " + refusal + "my.vs"));
    EXPECT_EQ(bot().profile.scriptPath, "");
    const auto choose = [&](const QString& file) {
        std::string server;
        frmCfg form(bot().profile, server, {}, dialogs);
        const QString told = dialogs.During({Path(file)}, [&] { dialogs.Choose(form, "cmdINI"); });
        dialogs.Choose(form, "cmdOK");
        return told.section('|', -1);
    };
    EXPECT_TRUE(choose(home + "my.ini").startsWith("message [Invalid] " + refusal));
    Choose("mnuSave", {Path(home + "my")});
    choose(home + "my.ini");
    EXPECT_EQ(bot().profile.characterPath, "my.ini");
    EXPECT_TRUE(Choose("mnuSaveAs", {Path("mine")}).contains("|critical [Save Vorel] " + refusal));
    EXPECT_FALSE(QFile::exists(Path("mine.tvm")));
    EXPECT_FALSE(Choose("mnuSaveAs", {Path(home + "bots/my")}).contains(refusal));
    EXPECT_TRUE(Read(home + "bots/my.tvm").contains("\r\nFurcadiaCharacter=../my.ini\r\n"));
    EXPECT_TRUE(Read(home + "bots/my.tvm").contains("\r\nScript=../my.vs\r\n"));
    Close();
    EXPECT_TRUE(Read("tvorel.cfg").contains("\r\nRecent=\r\n"));
    Start();
    EXPECT_EQ(window->windowTitle().section(' ', -1) + ConsoleText(), "[my.tvm]ready\n");
    Choose("mnuNew");
    Close();
    Start();
    EXPECT_EQ(ConsoleText(), "") << "without a profile the next start has none either";
}

TEST_F(Program, TellsWhyAScriptThatIsOpenedOrSavedCantRun) {
    Write("marked.vs", "\xEF\xBB\xBF" + ScriptText(""));
    Write("marked.tvm", "\xEF\xBB\xBF[General]\r\nOwners=Ann\r\n");
    Start();
    Open("marked.tvm");
    Open("marked.vs");
    Editor().RestoreText(Path("marked.vs").toStdString(), "VSPK 01.00 Vorel \r\n");
    ChooseInEditor("mnuSave");
    const QStringList told = ConsoleText().split('\n');
    ASSERT_EQ(told.size(), 4) << ConsoleText();
    EXPECT_TRUE(told[0].startsWith(Path("marked.tvm") + ": it begins with a byte-order mark"));
    EXPECT_TRUE(told[1].startsWith(Path("marked.vs") + ": the script can't run, for it begins with a byte-order mark"));
    EXPECT_TRUE(told[2].startsWith(Path("marked.vs") + ": the script can't run, for blanks stand before or behind"));
}

/// The ways to leave a profile and a script with unsaved changes: controls, and what else there is.
class Leaving : public Program, public testing::WithParamInterface<const char*> {
  protected:
    const std::string way = GetParam();

    void SetUp() override {
        Write("other.tvm", "[General]\r\nOwners=Zed\r\n");
        Start();
        Open("other.tvm");
        Open("bot.tvm");
        Front(*window);
        ChangeBot();
    }
    bool EndsTheProgram() const { return way.ends_with("xit") || way == "CloseBox"; }

    void Leave(QStringList answers, bool leaves) {
        const QStringList questions = {"[Save Script] Do you want to save any changes to your script?",
                                       "[Save Vorel] Do you want to save any changes to your bot's configuration?"};
        const QString kind = EndsTheProgram() ? "yes-no " : "yes-no-cancel ";
        const QString expected = kind + questions.mid(0, answers.size()).join("|" + kind);
        if (leaves && way == "mnuOpen") answers << Path("other.tvm");
        const std::map<std::string, std::function<void()>> others = {{"Recent", [this] { OpenRecent(1); }},
                                                                     {"Drop", [this] { Drop("other.tvm", *window); }},
                                                                     {"CloseBox", [this] { window->close(); }}};
        const auto other = others.find(way);
        const QString told =
            other == others.end() ? Choose(GetParam(), answers) : dialogs.During(answers, other->second);
        EXPECT_TRUE(told.startsWith(expected)) << told;
        EXPECT_EQ(window->isVisible() && bot().profile.dirty, !leaves);
        EXPECT_EQ(window->isVisible() && bot().profile.owners.Text() == "Eve" && Editor().IsDirty(), !leaves);
    }
};

TEST_P(Leaving, CancelStaysAndNoDropsTheChanges) {
    const QByteArray saved = Read("bot.vs") + Read("bot.tvm");
    if (!EndsTheProgram()) {
        Leave({"Cancel"}, false);
        Leave({"No", "Cancel"}, false);
    }
    Leave({"No", "No"}, true);
    EXPECT_EQ(Read("bot.vs") + Read("bot.tvm"), saved);
    EXPECT_EQ(Start(), "") << "nothing to take back";
}

TEST_P(Leaving, YesSavesBoth) {
    Leave({"Yes", "Yes"}, true);
    EXPECT_TRUE(Read("bot.vs").startsWith("typed VSPK"));
    EXPECT_TRUE(Read("bot.tvm").contains("Owners=Eve\r\n"));
    EXPECT_TRUE(Read("bot.tvm").contains("\r\nScript=bot.vs\r\n")) << "named as it was";
}

INSTANTIATE_TEST_SUITE_P(Program, Leaving,
                         testing::Values("mnuNew", "mnuOpen", "Recent", "Drop", "mnuExit", "cmdExit", "mnuTrayExit",
                                         "CloseBox"),
                         [](const auto& way) { return way.param; });

TEST_F(Program, OpensProfilesAndScriptsThatAreDroppedAndNothingElse) {
    StartWithBot();
    Write("notes.txt", "Owners=Zed\r\n");
    EXPECT_FALSE(Drop("notes.txt", *window));
    Open("missing.tvm");
    EXPECT_TRUE(ConsoleText().contains("missing.tvm does not exist."));
    Open("notes.txt");
    EXPECT_TRUE(ConsoleText().contains("notes.txt is neither a profile (.tvm) nor a script (.vs)."));
    EXPECT_EQ(bot().profile.owners.Text(), "Ann");
    Write("other.VS", ScriptText(""));
    EXPECT_TRUE(Drop("other.VS", The("txtSend")));
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().windowTitle() + The<QLineEdit>("txtSend").text(), "VorelSpeak Script Editor - [other.VS][*]");
    EXPECT_TRUE(Drop("bot.vs", Named(Editor(), "txtScript")));
    EXPECT_EQ(Editor().windowTitle(), "VorelSpeak Script Editor - [bot.vs][*]");

    // A script that is saved on leaving, under a new name, changes the profile.
    ChooseInEditor("mnuNew");
    bot().profile.dirty = false;
    TypeInEditor("x");
    Close({"Yes", Path("new"), "Yes"});
    EXPECT_TRUE(Read("bot.tvm").contains("\r\nScript=" + Path("new.vs").toUtf8() + "\r\n"));
}

TEST_F(Program, RemembersItsPlaceAndProfileAndHidesInTheTray) {
    StartWithBot();
    window->move(40, 60);
    Close();
    EXPECT_EQ(Read("tvorel.cfg"), "[General]\r\nRecent=" + Path("bot.tvm").toUtf8() + "\r\nTop=60\r\nLeft=40\r\n");
    Start();
    EXPECT_EQ(window->pos(), QPoint(40, 60));
    EXPECT_EQ(ConsoleText(), "ready\n");

    Front(*window);
    auto& tray = *window->findChild<QSystemTrayIcon*>();
    tray.setVisible(true);
    Choose("mnuTrayMinimize");
    EXPECT_TRUE(window->isHidden());
    emit tray.activated(QSystemTrayIcon::DoubleClick);
    const auto hidesWhenMinimized = [this] {
        EXPECT_TRUE(window->isVisible() && !window->isMinimized());
        window->showMinimized();
        return Eventually([this] { return window->isHidden(); });
    };
    EXPECT_TRUE(hidesWhenMinimized());
    Choose("mnuTrayRestore");
    EXPECT_TRUE(hidesWhenMinimized());
    Choose("mnuTrayExit");
    EXPECT_TRUE(Read("tvorel.cfg").endsWith("\r\nTop=0\r\nLeft=0\r\n"));
    for (const char* const faraway : {"90000", "1e300"}) {
        Write("tvorel.cfg", QByteArray("[General]\r\nTop=0\r\nLeft=") + faraway + "\r\n");
        Start();
        EXPECT_NE(QGuiApplication::screenAt(window->pos()), nullptr) << faraway;
    }
}

/// A bot whose script and profile were changed, in a program that has ended without a word.
class AfterACrash : public Program {
  protected:
    std::string unsaved;

    void SetUp() override {
        StartWithBot();
        ChangeBot();
        unsaved = Editor().ScriptText();
        Crash();
    }
    void Crash() {
        The<QTimer>("tmrKeepUnsaved").setInterval(0);
        ASSERT_TRUE(Eventually([this] { return QFile::exists(Path("tvorel.own/unsaved-script.bak")); }));
        window.reset();
    }
    void TakeBack() {
        EXPECT_TRUE(Start({"Yes", "Yes"}).startsWith("yes-no [Tandry Vorel] The program did not end in order"));
        EXPECT_EQ(bot().profile.owners.Text(), "Eve");
        EXPECT_EQ(bot().profile.ignores, std::vector<std::string>{"Mean One"});
        EXPECT_EQ(Editor().ScriptText(), unsaved);
        EXPECT_TRUE(bot().profile.dirty && Editor().IsDirty());
    }
};

TEST_F(AfterACrash, UnsavedWorkIsTakenBackAsUnsaved) {
    TakeBack();
    EXPECT_FALSE(ConsoleText().contains("ready")) << "its script may be what has ended the program";
    Crash();
    TakeBack();
    Choose("mnuSave");
    EXPECT_TRUE(Editor().Save()) << "into the file it belongs to";
    EXPECT_TRUE(Read("bot.vs").startsWith("typed VSPK"));
    Close();
    EXPECT_EQ(Start(), "") << "nothing is left";
}

TEST_F(AfterACrash, AnotherProgramLeavesItAlone) {
    TakeBack();
    Crash();
    RecordingDialogs nobody;
    auto first = std::make_unique<frmVorel>(dialogs, Path());
    frmVorel second(nobody, Path());
    EXPECT_EQ(nobody.During({}, [&] { second.Start(); }), "");
    first.reset();
    TakeBack();
}

TEST_F(AfterACrash, AScriptIsTakenBackUnderItsProfile) {
    WriteBot("other", "(0:0) loaded,\r\n(5:2) show {other}");
    Write("tvorel.cfg", "[General]\r\nRecent=" + Path("other.tvm").toUtf8() + "\r\n");
    Start({"No", "Yes"});
    EXPECT_EQ(ConsoleText() + QString::fromStdString(Editor().ScriptText()),
              "ready\n" + QString::fromStdString(unsaved));
    window.reset();
    window = std::make_unique<frmVorel>(dialogs, Path());
    dialogs.During({"No"}, [this] { window->Start({Path("bot.tvm").toStdString()}); });
    EXPECT_EQ(ConsoleText(), "ready\n") << "instead of the most recent one";
}

TEST_F(AfterACrash, FaultsAreToldAndEndTheProgramWithTheWorkPutAside) {
    WriteBot("bad", "(0:0) loaded,\r\n(5:99999) what?");
    TakeBack();
    EXPECT_TRUE(Open("bad.tvm", {"No", "No"})
                    .endsWith("|critical [Tandry Vorel] Overflow, at " + Path("bad.vs") +
                              " line 3: a number is too large; whole ones go from -32768 to 32767.\n\nUnsaved work was "
                              "put aside in " +
                              Path() + ", and will be offered at the next start."));
    EXPECT_EQ(QCoreApplication::exec(), 70);
    const QString shown = ConsoleText();
    Choose("mnuRun");
    EXPECT_EQ(ConsoleText(), shown) << "nothing runs any more";
    Start({"Yes"});
    EXPECT_TRUE(ConsoleText().contains("so its script is not loaded")) << "or it would end the program at every start";
    EXPECT_EQ(window->windowTitle().section(' ', -1), "[bad.tvm]");
    EXPECT_FALSE(bot().script);
    EXPECT_EQ(Editor().ScriptText(), unsaved);

    Write("large.tvm", "[General]\r\nPort=99999\r\n");
    EXPECT_TRUE(Open("large.tvm", {"No"}).contains(Path("large.tvm") + " line 2: "));
    EXPECT_EQ(QCoreApplication::exec(), 70);
    Start({"No"});
    EXPECT_FALSE(bot().profile.dirty || Editor().IsDirty());
    EXPECT_EQ(Start(), "") << "what is not wanted goes";

    // What comes out of a slot that is no handler of the bot's.
    static_cast<Guarded<QApplication>&>(*qApp).OnException([this](const auto& what) { window->host().EndWith(what); });
    bot().profile.dirty = true;
    QTimer::singleShot(0, window.get(), [] { throw std::bad_alloc(); });
    const QString told = dialogs.During({}, [] { EXPECT_EQ(QCoreApplication::exec(), 70); });
    EXPECT_TRUE(told.startsWith("critical [Tandry Vorel] Out of memory: ") && told.contains("was put aside")) << told;
}

TEST_F(Program, TellsOnceWhatItCantKeepAndKeepsItLater) {
    Write("tvorel-options.ini", "[console]\nmonospaced=true\n");
    StartWithBot();
    EXPECT_FALSE(The<QAction>("mnuMonospaced").isChecked()) << "a script may have written that";
    const QDir own(Path("tvorel.own"));
    const auto kept = [this] { return Options(OptionsFile(Path())); };
    for (const char* const name : {"options.json", "unsaved-script.bak"}) QFile::remove(own.filePath(name));
    for (const char* const name : {"options.json", "unsaved-script.bak"}) ASSERT_TRUE(own.mkdir(name));
    ChangeBot();
    The<QTimer>("tmrKeepUnsaved").setInterval(0);
    EXPECT_TRUE(Eventually([this] { return ConsoleText().contains("unsaved-script.bak: Is a directory"); }));
    for (const char* const item : {"mnuTimestamps", "mnuMonospaced", "mnuTimestamps"}) Choose(item);
    EXPECT_EQ(ConsoleText().count("options.json: Is a directory"), 1);
    EXPECT_EQ(ConsoleText().count("unsaved-script.bak: Is a directory"), 1);
    ASSERT_TRUE(own.rmdir("options.json"));
    kept().Set(option::kScrollBack, 7);
    Choose("mnuReconnect");
    EXPECT_TRUE(kept().Get(option::kMonospaced) && kept().Get(option::kReconnect) && !kept().Get(option::kTimestamps));
    EXPECT_EQ(kept().Get(option::kScrollBack), 7) << "which another program has written meanwhile";

    ASSERT_TRUE(QDir(Path()).mkdir("tvorel.cfg"));
    EXPECT_TRUE(Close({"No", "No"})
                    .startsWith("critical [Tandry Vorel] Path or file access error: " + Path("tvorel.cfg") +
                                ": Is a directory."));
    Write("tvorel.own/options.json", "{ \"console/");
    Start();
    Choose("mnuMonospaced");
    EXPECT_EQ(ConsoleText().count("options.json: unterminated string"), 1);
    EXPECT_EQ(Read("tvorel.own/options.json"), "{ \"console/") << "for its maker to mend";
}

TEST_F(Program, StartsTheToolsOfTheCurrentFolderAndHelps) {
    StartWithBot();
    const QString before = QDir::currentPath();
    QDir::setCurrent(Path());
    EXPECT_EQ(Choose("cmdC_0") + Choose("cmdC_1") + ConsoleText(), "ready\n") << "neither is there, nothing happens";
    for (const char* const tool : {"fured.EXE", "Config.exe"}) {
        Write(tool, "#!/bin/sh\nprintf '%s.' \"$*\" >\"$0.tmp\" && mv \"$0.tmp\" \"$0.ran\"\n");
    }
    EXPECT_EQ(Choose("cmdC_0") + Choose("cmdC_1"), "");
    EXPECT_TRUE(Eventually([&] { return QFile::exists("fured.EXE.ran") && QFile::exists("Config.exe.ran"); }));
    EXPECT_EQ(Read("fured.EXE.ran") + Read("Config.exe.ran"), "bot.ini..");
    QDir::setCurrent(before);
    EXPECT_TRUE(Choose("cmdHelp").startsWith("information [Help] "));
    EXPECT_EQ(Choose("mnuGHelp"), Choose("cmdHelp"));
}

}  // namespace
