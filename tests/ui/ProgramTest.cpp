#include <QAbstractButton>
#include <QDropEvent>
#include <QMimeData>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QUrl>

#include "profile/ProfileFile.h"
#include "support/Cases.h"
#include "ui/Desk.h"

namespace {

using Answer = Dialogs::Answer;

bool Drop(const Desk& desk, const QString& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(desk.Path(file))});
    QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(desk.window.get(), &enter);
    QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(desk.window.get(), &drop);
    return enter.isAccepted();
}

TEST(Program, OpensAProfileByTheMenuItsOwnWay) {
    Desk desk;
    desk.Start();
    const QString title = desk.window->windowTitle();
    EXPECT_TRUE(title.contains(QRegularExpression("^Tandry Vorel \\d+\\.\\d+\\.\\d+$"))) << title;
    desk.dialogs.texts = {desk.Path("bot.tvm"), std::nullopt};
    desk.Choose("mnuOpen");
    desk.Choose("mnuOpen");
    EXPECT_TRUE(desk.dialogs.Take()[0].startsWith("open [Select a Tandry Vorel to open] Tandry Vorel (*.tvm) | *.tvm"));
    EXPECT_EQ(desk.window->windowTitle(), title + " - [bot.tvm]");
    EXPECT_EQ(desk.Editor().windowTitle(), "VorelSpeak Script Editor - [bot.vs][*]");
    EXPECT_TRUE(desk.bot().profile.ignores.empty());
    desk.Choose("mnuRun");
    EXPECT_EQ(desk.Console(), "ready\nready\n") << "once as it was loaded, once more for Run";
    desk.Choose("mnuNew");
    EXPECT_EQ(desk.window->windowTitle(), title);
    EXPECT_EQ(desk.Editor().windowTitle(), "VorelSpeak Script Editor[*]");
    EXPECT_EQ(desk.bot().profile.serverAddress, kPracticeAddress) << "no part of the profile";
    emit desk.The<QMenu>("mnuRecent").aboutToShow();
    desk.The<QMenu>("mnuRecent").actions()[0]->trigger();
    EXPECT_EQ(desk.bot().profile.ignores, std::vector<std::string>{"Mean One"}) << "that way they are read";
}

TEST(Program, SavesAProfileWithItsExtension) {
    Desk desk;
    desk.Start();
    desk.bot().profile.owners = "Eve";
    desk.dialogs.texts = {std::nullopt, desk.Path("mybot"), desk.Path("bot"), desk.Path("no/folder/bot.tvm")};
    for (int i = 0; i < 3; ++i) desk.Choose("mnuSave");
    EXPECT_EQ(desk.dialogs.Take(), QStringList(2, "save [Save Tandry Vorel As...] Tandry Vorel (*.tvm) | *.tvm"));
    EXPECT_TRUE(desk.Read("mybot.tvm").contains("\r\nOwners=Eve\r\n"));
    EXPECT_TRUE(desk.window->windowTitle().endsWith(" - [mybot.tvm]"));
    desk.dialogs.answers = {Answer::No};
    desk.Choose("mnuSaveAs");
    EXPECT_TRUE(desk.dialogs.Take()[1].endsWith("bot.tvm already exists. Replace it?"));
    EXPECT_TRUE(desk.Read("bot.tvm").contains("Owners=Ann"));
    desk.Choose("mnuSaveAs");
    EXPECT_TRUE(desk.dialogs.Take()[1].startsWith("critical [Save Vorel] "));
    EXPECT_TRUE(desk.window->windowTitle().endsWith(" - [mybot.tvm]"));
    desk.Choose("mnuNew");
    desk.bot().profile.dirty = true;
    desk.dialogs.answers = {Answer::Yes};
    desk.dialogs.texts = {desk.Path("no/folder/bot.tvm")};
    EXPECT_FALSE(desk.window->close()) << "while it can't be saved";
}

/// A way to leave a profile and a script with unsaved changes.
struct Way {
    const char* name;
    void (*leave)(Desk&);
    bool (*left)(Desk&);
};

bool HasNewProfile(Desk& desk) { return desk.bot().profile.owners.empty(); }
bool HasOtherProfile(Desk& desk) { return desk.bot().profile.owners == "Zed"; }
bool IsClosed(Desk& desk) { return !desk.window->isVisible(); }
void OpenOther(Desk& desk) {
    desk.dialogs.texts.assign(1, desk.Path("other.tvm"));
    desk.Choose("mnuOpen");
}
void OpenRecent(Desk& desk) {
    emit desk.The<QMenu>("mnuRecent").aboutToShow();
    desk.The<QMenu>("mnuRecent").actions()[1]->trigger();
}

const Way kWays[] = {
    {"New", [](Desk& desk) { desk.Choose("mnuNew"); }, HasNewProfile},
    {"Open", OpenOther, HasOtherProfile},
    {"Recent", OpenRecent, HasOtherProfile},
    {"Drop", [](Desk& desk) { Drop(desk, "other.tvm"); }, HasOtherProfile},
    {"Exit", [](Desk& desk) { desk.Choose("mnuExit"); }, IsClosed},
    {"CloseBox", [](Desk& desk) { desk.window->close(); }, IsClosed},
    {"ExitButton", [](Desk& desk) { desk.The<QAbstractButton>("cmdExit").click(); }, IsClosed},
    {"TrayExit", [](Desk& desk) { desk.Choose("mnuTrayExit"); }, IsClosed},
};

class Leaving : public testing::TestWithParam<Way> {
  protected:
    Desk desk;
    QByteArray savedProfile, savedScript;

    void SetUp() override {
        desk.Write("other.tvm", "[General]\r\nOwners=Zed\r\n");
        desk.Start();
        desk.Open("other.tvm");
        desk.Open("bot.tvm");
        Front(*desk.window);
        savedProfile = desk.Read("bot.tvm");
        savedScript = desk.Read("bot.vs");
        desk.bot().profile.owners = "Eve";
        desk.bot().profile.dirty = true;
        desk.TypeInEditor("typed ");
    }
    /// @return what was asked
    QString Leave(std::deque<Answer> answers) {
        desk.dialogs.answers = std::move(answers);
        GetParam().leave(desk);
        EXPECT_TRUE(desk.dialogs.answers.empty());
        return desk.dialogs.Take().filter("yes-no").join('|');
    }
    const QString scriptAsked = "yes-no-cancel [Save Script] Do you want to save any changes to your script?";
    const QString bothAsked =
        scriptAsked + "|yes-no-cancel [Save Vorel] Do you want to save any changes to your bot's configuration?";
};

TEST_P(Leaving, CancelStays) {
    EXPECT_EQ(Leave({Answer::Cancel}), scriptAsked);
    EXPECT_EQ(Leave({Answer::No, Answer::Cancel}), bothAsked);
    EXPECT_FALSE(GetParam().left(desk));
    EXPECT_TRUE(desk.bot().profile.dirty && desk.bot().profile.owners == "Eve" && desk.Editor().IsDirty());
}

TEST_P(Leaving, NoDropsTheChanges) {
    EXPECT_EQ(Leave({Answer::No, Answer::No}), bothAsked);
    EXPECT_TRUE(GetParam().left(desk));
    EXPECT_EQ(desk.Read("bot.vs"), savedScript);
    EXPECT_EQ(desk.Read("bot.tvm"), savedProfile);
    EXPECT_FALSE(desk.window->isVisible() && desk.bot().profile.dirty);
    desk.Start();
    EXPECT_EQ(desk.dialogs.Take(), QStringList()) << "nothing to take back";
}

TEST_P(Leaving, YesSavesBoth) {
    EXPECT_EQ(Leave({Answer::Yes, Answer::Yes}), bothAsked);
    EXPECT_TRUE(GetParam().left(desk));
    EXPECT_TRUE(desk.Read("bot.vs").startsWith("typed VSPK"));
    EXPECT_TRUE(desk.Read("bot.tvm").contains("Owners=Eve\r\n"));
    EXPECT_TRUE(desk.Read("bot.tvm").contains("\r\nScript=bot.vs\r\n")) << "named as it was";
}

INSTANTIATE_TEST_SUITE_P(Program, Leaving, testing::ValuesIn(kWays), kCaseName);

TEST(Program, OpensProfilesAndScriptsThatAreDroppedAndNothingElse) {
    Desk desk;
    desk.StartWithBot();
    desk.Write("notes.txt", "Owners=Zed\r\n");
    EXPECT_FALSE(Drop(desk, "notes.txt"));
    desk.Open("notes.txt");
    EXPECT_TRUE(desk.Console().contains("notes.txt is neither a profile (.tvm) nor a script (.vs)."));
    EXPECT_EQ(desk.bot().profile.owners, "Ann");
    desk.Write("other.VS", ScriptText(""));
    EXPECT_TRUE(Drop(desk, "other.VS"));
    EXPECT_TRUE(desk.Editor().isVisible());
    EXPECT_EQ(desk.Editor().windowTitle(), "VorelSpeak Script Editor - [other.VS][*]");

    // A script that is saved on leaving, under a new name, changes the profile.
    Named<QAction>(desk.Editor(), "mnuNew").trigger();
    desk.bot().profile.dirty = false;
    desk.TypeInEditor("x");
    desk.dialogs.answers = {Answer::Yes, Answer::Yes};
    desk.dialogs.texts = {desk.Path("new")};
    desk.window->close();
    EXPECT_TRUE(desk.Read("bot.tvm").contains("\r\nScript=" + desk.Path("new.vs").toUtf8() + "\r\n"));
}

TEST(Program, RemembersItsPlaceAndProfile) {
    Desk desk;
    desk.StartWithBot();
    desk.window->move(40, 60);
    desk.window->close();
    EXPECT_EQ(desk.Read("tvorel.cfg"),
              "[General]\r\nRecent=" + desk.Path("bot.tvm").toUtf8() + "\r\nTop=60\r\nLeft=40\r\n");
    desk.Start();
    EXPECT_EQ(desk.window->pos(), QPoint(40, 60));
    EXPECT_EQ(desk.Console(), "ready\n");

    Front(*desk.window);
    auto& tray = *desk.window->findChild<QSystemTrayIcon*>();
    tray.setVisible(true);
    desk.Choose("mnuTrayMinimize");
    EXPECT_TRUE(desk.window->isHidden());
    emit tray.activated(QSystemTrayIcon::DoubleClick);
    EXPECT_TRUE(desk.window->isVisible());
    desk.window->showMinimized();
    EXPECT_TRUE(Eventually([&] { return desk.window->isHidden(); }));
    desk.Choose("mnuTrayRestore");
    EXPECT_TRUE(desk.window->isVisible() && !desk.window->isMinimized());
    desk.window->showMinimized();
    EXPECT_TRUE(Eventually([&] { return desk.window->isHidden(); }));
    desk.Choose("mnuTrayExit");
    EXPECT_TRUE(desk.Read("tvorel.cfg").endsWith("\r\nTop=0\r\nLeft=0\r\n"));
}

/// A bot whose script and profile were changed, in a program that has ended without a word.
class AfterACrash : public testing::Test {
  protected:
    Desk desk;
    std::string unsaved;

    void SetUp() override {
        desk.StartWithBot();
        desk.TypeInEditor("typed ");
        desk.bot().profile.owners = "Eve";
        desk.bot().profile.dirty = true;
        unsaved = desk.Editor().ScriptText();
        Crash();
    }
    void Crash() {
        desk.The<QTimer>("tmrKeepUnsaved").setInterval(0);
        ASSERT_TRUE(Eventually([this] { return QFile::exists(desk.Path("unsaved-script.bak")); }));
        desk.window.reset();
    }
    void StartAndAnswer(Answer answer) {
        desk.dialogs.answers = {answer, answer};
        desk.Start();
    }
};

TEST_F(AfterACrash, UnsavedWorkIsTakenBackAsUnsaved) {
    for (int crash = 0; crash < 2; ++crash) {
        StartAndAnswer(Answer::Yes);
        EXPECT_TRUE(desk.dialogs.Take()[0].startsWith("yes-no [Tandry Vorel] The program did not end in order"));
        EXPECT_EQ(desk.bot().profile.owners, "Eve");
        EXPECT_EQ(desk.bot().profile.ignores, std::vector<std::string>{"Mean One"});
        EXPECT_EQ(desk.Editor().ScriptText(), unsaved);
        EXPECT_TRUE(desk.bot().profile.dirty && desk.Editor().IsDirty());
        if (crash == 0) Crash();
    }
    desk.Choose("mnuSave");
    EXPECT_TRUE(desk.Editor().Save()) << "into the file it belongs to";
    EXPECT_TRUE(desk.Read("bot.vs").startsWith("typed VSPK"));
    desk.window->close();
    desk.Start();
    EXPECT_EQ(desk.dialogs.Take(), QStringList()) << "nothing is left";
}

TEST_F(AfterACrash, UnsavedWorkThatIsNotWantedGoes) {
    StartAndAnswer(Answer::No);
    EXPECT_FALSE(desk.bot().profile.dirty || desk.Editor().IsDirty());
    desk.dialogs.Take();
    desk.Start();
    EXPECT_EQ(desk.dialogs.Take(), QStringList());
}

TEST_F(AfterACrash, AFaultAtTheStartLeavesUnsavedWorkForTheNext) {
    desk.WriteBot("bad", "(0:0) loaded,\r\n(5:99999) what?");
    desk.Write("tvorel.cfg", "[General]\r\nRecent=" + desk.Path("bad.tvm").toUtf8() + "\r\n");
    desk.Start();
    EXPECT_TRUE(desk.dialogs.Take().value(0).contains(desk.Path("bad.vs") + ", line 3"));
    EXPECT_EQ(QCoreApplication::exec(), 70);
    StartAndAnswer(Answer::Yes);
    EXPECT_TRUE(desk.Console().contains("was not opened")) << "or it would end the program at every start";
    EXPECT_EQ(desk.Editor().ScriptText(), unsaved);
}

TEST_F(AfterACrash, AFaultIsToldAndEndsTheProgramWithTheWorkPutAside) {
    StartAndAnswer(Answer::Yes);
    desk.Write("bad.tvm", "[General]\r\nPort=99999\r\n");
    desk.dialogs.answers = {Answer::No, Answer::No};
    desk.Open("bad.tvm");
    EXPECT_EQ(desk.dialogs.Take().last(), "critical [Tandry Vorel] Overflow\n\n" + desk.Path("bad.tvm") +
                                              ", line 2\n\nUnsaved work was put aside in " + desk.Path() +
                                              ", and will be offered at the next start.");
    EXPECT_EQ(QCoreApplication::exec(), 70);
    desk.Choose("mnuRun");
    EXPECT_EQ(desk.Console(), "") << "nothing runs any more";
    StartAndAnswer(Answer::Yes);
    EXPECT_EQ(desk.Editor().ScriptText(), unsaved);
}

TEST(Program, StartsTheToolsOfTheCurrentFolderAndHelps) {
    Desk desk;
    desk.StartWithBot();
    const QString before = QDir::currentPath();
    QDir::setCurrent(desk.Path());
    const auto click = [&] {
        for (const char* const tool : {"cmdC_0", "cmdC_1"}) desk.The<QAbstractButton>(tool).click();
    };
    click();
    EXPECT_EQ(desk.Console(), "ready\n") << "neither is there, and nothing happens";
    for (const char* const tool : {"fured.EXE", "Config.exe"}) {
        desk.Write(tool, "#!/bin/sh\nprintf '%s.' \"$*\" >\"$0.tmp\" && mv \"$0.tmp\" \"$0.ran\"\n");
    }
    click();
    EXPECT_TRUE(Eventually([&] { return QFile::exists("fured.EXE.ran") && QFile::exists("Config.exe.ran"); }));
    EXPECT_EQ(desk.Read("fured.EXE.ran") + desk.Read("Config.exe.ran"), "bot.ini..");
    QDir::setCurrent(before);
    desk.The<QAbstractButton>("cmdHelp").click();
    desk.Choose("mnuGHelp");
    for (const QString& told : desk.dialogs.Take()) {
        EXPECT_TRUE(told.startsWith("information [Help] ") && told.contains(desk.Path())) << told;
    }
}

}  // namespace
