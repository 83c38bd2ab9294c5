#include "net/SessionObserver.h"
#include "ui/Desk.h"

namespace {

/// The buttons of the tabs: what they send (tool launchers nothing), and their captions in parentheses; those without
/// one show a picture.
const QStringList kTabs[] = {
    {"use(Use)", "m 3", "m 1", "m 9", "m 7", "stand", ">", "<", "sit(Sit)", "liedown(Liedown)", "get(Get)"},
    {"gomap '", "gomap $", "gomap \x28", "gostart", "gomap &", "gomap *", "goalleg", "gomap %", "goback"},
    {"(Furcadia  Player Editor)", "(Furcadia Configuration)", "(Vorel Configuration)"},
    {"portrchng(Portrait)", "wings", "dragon", "breath", "phoenix", "flame(Flame)"},
    {"gryffe(Gryffe)", "eagle(Eagle)"},
};

/// A bot that is about to be in a session; what it sends is noted.
class InSession : public Desk, public SessionObserver {
  protected:
    QStringList sent;
    QLineEdit* line = nullptr;

    void Note(Happening happening, std::string_view text) override {
        if (happening == Happening::Sent) sent << QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    }
    void SetUp() override {
        StartWithBot();
        window->host().session().SetObserver(this);
        line = &The<QLineEdit>("txtSend");
        line->setFocus();
    }
    void TearDown() override { window->host().session().SetObserver(nullptr); }

    QString Panel(int number) { return The<QLabel>(QStringLiteral("sbVorel_%1").arg(number)).text(); }
    bool Connect() {
        Choose("mnuConnect");
        return Eventually([this] { return Panel(2) == "Connected"; });
    }
    /// Which of Connect, Disconnect and Stand Alone Mode can be chosen, and what the panels show.
    QString State() {
        QString state;
        for (const char* const item : {"mnuConnect", "mnuDisconnect", "mnuSAM"}) {
            state += The<QAction>(item).isEnabled() ? '+' : '-';
        }
        return state + " " + Panel(1) + " " + Panel(2) + " " + Panel(3);
    }
};

TEST_F(InSession, ButtonsSendTheirTags) {
    Choose("cmdA_0");
    EXPECT_EQ(sent, QStringList()) << "not connected";
    ASSERT_TRUE(Connect());
    auto& tabs = The<QTabBar>("tsControls");
    for (int tab = 4; tab >= 0; --tab) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
        QStringList shown;
        for (auto* const button : The("fmeControls").findChildren<QToolButton*>()) {
            sent.clear();
            if (!button->isVisible()) continue;
            if (tab != 2) button->click();
            EXPECT_EQ(button->objectName(), QStringLiteral("cmd%1_%2").arg(QChar('A' + tab)).arg(shown.size()));
            EXPECT_NE(button->icon().pixmap(16).isNull(), button->text().isEmpty()) << button->objectName();
            shown << sent.join('|') + (button->text().isEmpty() ? "" : "(" + button->text() + ")");
        }
        EXPECT_EQ(shown, kTabs[tab]);
    }
    QString emoticons;
    for (char letter = 'A'; letter <= 'P'; ++letter) {
        auto& button = The<QToolButton>(QStringLiteral("cmdEmoticon_%1").arg(letter - 'A'));
        EXPECT_FALSE(button.icon().pixmap(16).isNull());
        line->home(false);
        button.click();
        EXPECT_EQ(line->text(), emoticons += QStringLiteral("#S") + letter) << "behind all that stands there";
    }
    line->undo();
    EXPECT_EQ(line->text(), emoticons.chopped(3));
}

TEST_F(InSession, TypedLinesAreSentAndComeBackWithUpAndDown) {
    ASSERT_TRUE(Connect());
    sent.clear();
    for (const char* const typed : {":waves", "`sit", "/Some|Furre psst", "hello", "hello", "caf\u00e9 \u4e2d"}) {
        line->insert(typed);
        QTest::keyClick(line, Qt::Key_Return);
    }
    EXPECT_EQ(sent.join('\n'), ":waves\nsit\nwh Some|Furre psst\n\"hello\n\"hello\n\"caf\u00e9 ?");
    QTest::keyClicks(line, "unsent");
    QStringList shown;
    for (int i = 0; i < 6; ++i) QTest::keyClick(line, Qt::Key_Up), shown << line->text();
    for (int i = 0; i < 6; ++i) QTest::keyClick(line, Qt::Key_Down), shown << line->text();
    EXPECT_EQ(shown.join(' '),
              "caf\u00e9 \u4e2d hello /Some|Furre psst `sit :waves :waves "
              "`sit /Some|Furre psst hello caf\u00e9 \u4e2d unsent unsent");
    line->undo();
    EXPECT_EQ(line->text(), "caf\u00e9 \u4e2d");
}

TEST_F(InSession, MenusAndPanelsTellHowItStandsAndWhyItEnded) {
    EXPECT_EQ(State(), "+--  Disconnected ");
    QTest::keyClick(line, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(State(), "-+-  Disconnected Connecting...");
    EXPECT_TRUE(Eventually([this] { return State() == "-+- bot Connected "; })) << State();
    QTest::keyClick(line, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(State(), "+-- bot Disconnected ");

    GameServer server;
    window->host().session().SetServer("127.0.0.1", server.listener.serverPort());
    The<QAction>("mnuReconnect").setChecked(true);
    Choose("mnuKeepSplitLines");
    for (const auto& [map, told] :
         {std::pair{"", "check its name and password. Trying again"}, {"in.map", "connection. Trying again"}}) {
        ASSERT_TRUE(Connect());
        const std::size_t session = server.bots.size() - 1;
        ASSERT_TRUE(server.Hears("connect bot", session));
        server.Say("(whole\n(cut", session);
        ASSERT_TRUE(Eventually([this] { return ConsoleText().endsWith("whole\n"); })) << "the packet has been read";
        server.Say(" in two\n", session);
        ASSERT_TRUE(Eventually([this] { return ConsoleText().endsWith("cut in two\n"); }));
        bot().state.mapFile = map;
        server.Close(session);
        EXPECT_TRUE(Eventually([&] { return Panel(3).section(" in ", 0, 0).endsWith(told); })) << Panel(3);
    }
    const auto& pause = *window->host().findChild<QTimer*>("tmrReconnect");
    EXPECT_TRUE(pause.isActive());
    const QString told = Panel(3);
    window->StatusChanged();
    QCoreApplication::processEvents();
    EXPECT_EQ(Panel(3), told) << "one end, one try";
    Choose("mnuNew", {});
    EXPECT_FALSE(pause.isActive()) << "it was for another bot";
    Open("bot.tvm");
    The<QAction>("mnuReconnect").setChecked(false);
    server.listener.close();
    Choose("mnuConnect");
    EXPECT_TRUE(Eventually([this] { return Panel(3) == "No connection: Connection refused"; })) << Panel(3);

    for (const char* const typed : {"7", "x", "-1", "Cancel"}) {
        EXPECT_TRUE(Choose("mnuBrake", {typed}).contains("[Brake] How many lines a second the script may send, "));
    }
    EXPECT_EQ(Options(OptionsFile(Path())).Get(option::kBrake), 7);

    bot().profile.owners = "";
    EXPECT_TRUE(Choose("mnuConnect").startsWith("message [Bot Owner] You must add at least one name"));
    bot().profile.characterPath = "nowhere.ini";
    EXPECT_TRUE(Choose("mnuConnect").startsWith("critical [Invalid Selection] Select a valid Furcadia character "));
    EXPECT_TRUE(State().startsWith("+-- bot Disconnected "));
}

}  // namespace
