#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>

#include "net/SessionObserver.h"
#include "ui/Desk.h"

namespace {

using Lines = std::vector<std::string>;

/// The buttons of one array: what they send or add (tool launchers nothing), and their captions in
/// parentheses; without one they show a picture.
struct ButtonArray {
    const char* name;
    const char* frame;
    QStringList tagsAndCaptions;
};

QString Letters(const char* pattern) {
    QStringList tags;
    for (char letter = 'A'; letter <= 'P'; ++letter) tags << QString(pattern).arg(QChar(letter));
    return tags.join('\n');
}

// clang-format off
const ButtonArray kArrays[] = {
    {"cmdA", "fmeTab_0", {"use(Use)", "m 3", "m 1", "m 9", "m 7", "stand", ">", "<", "sit(Sit)", "liedown(Liedown)", "get(Get)"}},
    {"cmdB", "fmeTab_1", {"gomap '", "gomap $", "gomap \x28", "gostart", "gomap &", "gomap *", "goalleg", "gomap %", "goback"}},
    {"cmdC", "fmeTab_2", {"(Furcadia  Player Editor)", "(Furcadia Configuration)", "(Vorel Configuration)"}},
    {"cmdD", "fmeTab_3", {"portrchng(Portrait)", "wings", "dragon", "breath", "phoenix", "flame(Flame)"}},
    {"cmdE", "fmeTab_4", {"gryffe(Gryffe)", "eagle(Eagle)"}},
    {"cmdEmoticon", "fmeEmoticons", Letters("#S%1").split('\n')},
};
// clang-format on

QToolButton& Button(const Desk& desk, const char* array, qsizetype index) {
    return desk.The<QToolButton>(QStringLiteral("%1_%2").arg(array).arg(index));
}

TEST(Controls, HaveTheirNamesTagsCaptionsAndPictures) {
    Desk desk;
    desk.Start();
    for (const auto& [array, frame, tagsAndCaptions] : kArrays) {
        for (qsizetype i = 0; i < tagsAndCaptions.size(); ++i) {
            const QToolButton& button = Button(desk, array, i);
            const QString caption = button.text().isEmpty() ? QString() : "(" + button.text() + ")";
            EXPECT_EQ(button.property("tag").toString() + caption, tagsAndCaptions[i]);
            EXPECT_EQ(button.icon().pixmap(16).isNull(), !caption.isEmpty()) << tagsAndCaptions[i];
            EXPECT_TRUE(desk.The(frame).isAncestorOf(&button)) << tagsAndCaptions[i];
        }
        EXPECT_EQ(desk.The(frame).findChildren<QToolButton*>().size(), tagsAndCaptions.size()) << array;
    }
    QStringList captions = {desk.The<QMenu>("mnuScript").title(), desk.The<QLabel>("lblLogo").text()};
    for (const char* const frame : {"fmeBot", "fmeControls"}) captions << desk.The<QGroupBox>(frame).title();
    for (const char* const button : {"cmdHelp", "cmdExit"}) captions << desk.The<QPushButton>(button).text();
    for (const char* const item : {"mnuConnect", "mnuDisconnect", "mnuSAM", "mnuRun", "mnuGHelp"}) {
        captions << desk.The<QAction>(item).text();
    }
    for (const QAction* const item : desk.The<QMenu>("mnuTray").actions()) captions << item->text();
    EXPECT_EQ(captions.join('|'),
              "&Script|Vorel|Console|Control Panel|Help|E&xit|&Connect|&Disconnect|Stand Alone &Mode|&Run|Vorel &Help|"
              "&Restore|&Minimize||E&xit");
}

TEST(Controls, ShowOneTabAtATime) {
    Desk desk;
    desk.StartWithBot();
    auto& tabs = desk.The<QTabBar>("tsControls");
    for (const int chosen : {2, 4, 1, 3, 0}) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(chosen).center());
        EXPECT_EQ(tabs.tabText(chosen), QChar('A' + chosen));
        for (int tab = 0; tab < 5; ++tab) {
            EXPECT_EQ(desk.The(QStringLiteral("fmeTab_%1").arg(tab)).isVisible(), tab == chosen) << tab << chosen;
        }
    }
}

/// A bot that is about to be in a session; what it sends is noted.
class InSession : public testing::Test, public SessionObserver {
  protected:
    Desk desk;
    Lines sent;

    void Note(Happening happening, std::string_view text) override {
        if (happening == Happening::Sent) sent.emplace_back(text);
    }
    void SetUp() override {
        desk.StartWithBot();
        desk.window->host().SetObserver(this);
    }
    void TearDown() override { desk.window->host().SetObserver(nullptr); }

    QString Panel(int number) const { return desk.The<QLabel>(QStringLiteral("sbVorel_%1").arg(number)).text(); }
    bool Connect() {
        desk.Choose("mnuConnect");
        return Eventually([this] { return Panel(2) == "Connected"; });
    }
    void Type(const QString& text) {
        desk.The<QLineEdit>("txtSend").insert(text);
        QTest::keyClick(&desk.The("txtSend"), Qt::Key_Return);
    }
    /// Which of Connect, Disconnect and Stand Alone Mode can be chosen, and what the panels show.
    QString State() const {
        QString state;
        for (const char* const item : {"mnuConnect", "mnuDisconnect", "mnuSAM"}) {
            state += desk.The<QAction>(item).isEnabled() ? '+' : '-';
        }
        return state + " " + Panel(1) + " " + Panel(2) + " " + Panel(3);
    }
};

TEST_F(InSession, MenusAndPanelsFollow) {
    EXPECT_EQ(State(), "+--  Disconnected ");
    auto& line = desk.The("txtSend");
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(State(), "-+-  Disconnected Connecting...");
    EXPECT_TRUE(Eventually([this] { return State() == "-+- bot Connected "; })) << State();
    QTest::keyClick(&line, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(State(), "+-- bot Disconnected ");
    desk.bot().profile.owners.clear();
    desk.Choose("mnuConnect");
    EXPECT_TRUE(desk.dialogs.Take()[0].startsWith("message [Bot Owner] You must add at least one name"));
    desk.bot().profile.characterPath = "nowhere.ini";
    desk.Choose("mnuConnect");
    EXPECT_TRUE(desk.dialogs.Take()[0].startsWith("critical [Invalid Selection] Select a valid Furcadia character "));
    EXPECT_EQ(State(), "+-- bot Disconnected ");
}

TEST_F(InSession, ButtonsSendTheirTagWhileConnected) {
    Button(desk, "cmdA", 0).click();
    EXPECT_EQ(sent, Lines()) << "not connected";
    ASSERT_TRUE(Connect());
    for (const auto& [array, frame, tagsAndCaptions] : kArrays) {
        for (qsizetype i = 0; i < tagsAndCaptions.size() && array != std::string("cmdC"); ++i) {
            sent.clear();
            Button(desk, array, i).click();
            const bool emoticon = array == std::string("cmdEmoticon");
            const QString tag = tagsAndCaptions[i].section(QRegularExpression("\\(\\w"), 0, 0);
            EXPECT_EQ(sent, emoticon ? Lines() : Lines{tag.toStdString()});
        }
    }
    auto& line = desk.The<QLineEdit>("txtSend");
    EXPECT_EQ(line.text(), Letters("#S%1").remove('\n'));
    line.home(false);
    Button(desk, "cmdEmoticon", 15).click();
    EXPECT_TRUE(line.text().endsWith("#SP#SP")) << "behind all that stands there";
    line.undo();
    EXPECT_FALSE(line.text().isEmpty() || line.text().endsWith("#SP#SP")) << "undone";
}

TEST_F(InSession, TypedLinesAreSentAndComeBackWithUpAndDown) {
    ASSERT_TRUE(Connect());
    sent.clear();
    for (const char* const typed : {":waves", "`sit", "/Some|Furre psst", "hello", "hello", "caf\u00e9 \u4e2d"})
        Type(typed);
    EXPECT_EQ(sent, (Lines{":waves", "sit", "wh Some|Furre psst", "\"hello", "\"hello", "\"caf\xe9 ?"}));
    auto& line = desk.The<QLineEdit>("txtSend");
    QTest::keyClicks(&line, "unsent");
    QStringList shown;
    for (int i = 0; i < 6; ++i) QTest::keyClick(&line, Qt::Key_Up), shown << line.text();
    for (int i = 0; i < 6; ++i) QTest::keyClick(&line, Qt::Key_Down), shown << line.text();
    EXPECT_EQ(shown.join(' '),
              "caf\u00e9 \u4e2d hello /Some|Furre psst `sit :waves :waves "
              "`sit /Some|Furre psst hello caf\u00e9 \u4e2d unsent unsent");
    line.undo();
    EXPECT_EQ(line.text(), "caf\u00e9 \u4e2d");
}

TEST_F(InSession, TellsWhyItEndedAndTriesAgainWhenAsked) {
    GameServer server;
    desk.window->host().session().SetServer("127.0.0.1", server.listener.serverPort());
    ASSERT_TRUE(Connect());
    ASSERT_TRUE(server.Hears("connect bot"));
    desk.The<QAction>("mnuReconnect").setChecked(true);
    server.Close();
    EXPECT_TRUE(Eventually([this] { return Panel(3).contains("check its name and password"); })) << "not tried again";
    ASSERT_TRUE(Connect());
    desk.bot().state.mapFile = "in.map";
    ASSERT_TRUE(server.Hears("connect bot", 1));
    server.Close(1);
    EXPECT_TRUE(
        Eventually([this] { return Panel(3).startsWith("The server has ended the connection. Trying again"); }));
    desk.The<QAction>("mnuReconnect").setChecked(false);
    server.listener.close();
    desk.Choose("mnuConnect");
    EXPECT_TRUE(Eventually([this] { return Panel(3) == "No connection: Connection refused"; })) << Panel(3);
}

TEST(Reconnector, PausesGrowToFiveMinutesAndVaryByAQuarter) {
    EXPECT_EQ(Reconnector::PauseMs(0, 0.5), 5625);
    EXPECT_EQ(Reconnector::PauseMs(5, 0), 160000);
    EXPECT_EQ(Reconnector::PauseMs(1000, 0.8), 360000);
}

}  // namespace
