#include <algorithm>

#include "bot/Variables.h"
#include "net/Session.h"
#include "support/Cases.h"
#include "support/RecordingLink.h"
#include "support/RehearsalBot.h"

// Logins, relayed lines and what is typed are played: tests/sessions; what is missing for a session is told in
// tests/cli/exit-statuses.txt. Here is what a played session can't tell: ports,
// menus, packets, the client's program and its window.

namespace {

using Told = std::vector<std::string>;

/// A bot whose profile is complete, not connected yet; its script says each event of the session aloud on the console.
class ReadyBot : public RehearsalBot {
  public:
    ReadyBot() {
        host.SetServerConnected(false);
        host.SetSession(session);
        files.contents["bots/bot.ini"] = "name=Bot|One\r\npassword=made-up\r\n";
        files.contents["game/client.exe"] = "";
        bot.profile.path = "bots/bot.tvm";
        bot.profile.characterPath = "BOT.ini";
        bot.profile.clientPath = "game/client.exe";
        bot.profile.owners = "Ann";
        session.ChooseServer("elsewhere");
        SetScript({"(0:1) in,", "(5:2) {2 [vorel.name]}", "(0:2) out,", "(5:2) {3}", "(0:6) whispered,", "(5:2) {7}",
                   "(0:46) a command,", "(5:2) {47 [message]}"});
    }

    void SetClientMode() { bot.profile.connectClient = bot.profile.closeClient = 1; }

    /// Client mode, up to the point where both sockets are connected.
    void LinkClient() {
        SetClientMode();
        link.window = 7;
        session.Connect();
        session.OnClientRequest();
        session.OnClientConnected();
        AcceptServer();
        TakeTold();
    }
    /// Connects anew, up to where the client has been started; its window opens late.
    void ConnectAgain() {
        session.Disconnect();
        link.window = 0;
        session.Connect();
        link.window = 7;
        TakeTold();
    }
    void AcceptServer() {
        host.SetServerConnected(true);
        session.OnServerConnected();
    }

    /// What the menus Connect, Disconnect and Stand Alone Mode allow, in this order.
    std::string Menus() const {
        const SessionStatus& status = session.status();
        return std::string(status.canConnect ? "C" : "-") + (status.canDisconnect ? "D" : "-") +
               (status.canStandAlone ? "S" : "-");
    }

    RecordingLink link{host};
    Session session{bot, link};
};

TEST(Session, StandAloneConnectsAsConfiguredAndLogsInAsTheCharacterFileSays) {
    ReadyBot bot;
    bot.session.Connect();
    EXPECT_EQ(bot.TakeTold(), Told{"link connect elsewhere:6000"});
    bot.AcceptServer();
    EXPECT_EQ(bot.told.front(), "sent connect Bot|One made-up");
    EXPECT_EQ(bot.session.status().botName, "Bot One");
    bot.TakeTold();
    BotState& state = bot.bot.state;
    state.mapFile = state.move.colors = state.playerTag = state.vorel.desc = state.password = "of the session before";
    state.dice.amount = state.moveInto.x = state.moveFrom.x = state.dream.x = state.visitorCount = 2;
    state.dieValues = {3, 5};
    std::string& character = bot.files.contents["bots/bot.ini"];
    character = "name=Old\r\nname=New";
    bot.AcceptServer();
    EXPECT_EQ(state.mapFile + state.move.colors + state.playerTag + state.vorel.desc + state.password, "");
    EXPECT_EQ(ExpandVariables(bot.bot, "[die1][die2] [dice.amount][move.into.x][move.from.x][dream.x][visitorcount]"),
              "0[die2] 22222");
    EXPECT_EQ(bot.told.front(), "sent connect New ");
    EXPECT_EQ(bot.told[1], "sent color ");
    character = "name=Bot\r\nspec=01x";
    EXPECT_EQ(FaultOf([&] { bot.AcceptServer(); }), FaultKind::TypeMismatch);
    EXPECT_EQ(bot.bot.place.file, "bots/bot.ini");
    EXPECT_EQ(bot.bot.place.line, 2u);
}

TEST(Session, ClientModeWaitsForTheClientAndGoesToTheGamesOwnServer) {
    ReadyBot bot;
    bot.SetClientMode();
    bot.bot.profile.port = 80;
    bot.link.takenPorts = 2;
    bot.files.currentFolder = "/here";  // about to be left, so all paths are made absolute first
    bot.session.Connect();
    EXPECT_EQ(bot.link.ports.size(), 3u);  // a port that is taken is drawn again
    const std::string port = std::to_string(bot.link.ports.back());
    EXPECT_EQ(bot.TakeTold(),
              (Told{"link enter /here/game", "link write /here/game/proxy.ini=localhost " + port + "\r\n",
                    "link start /here/game/client.exe /here/bots/bot.ini"}));
    EXPECT_EQ(bot.Menus(), "-DS");
    bot.session.OnClientRequest();
    bot.session.OnClientConnected();
    EXPECT_EQ(bot.TakeTold(), Told{"link connect " + std::string(kGameServer) + ":80"});
    bot.AcceptServer();
    EXPECT_EQ(bot.told, Told{"console 2 "});  // the client logs in
    EXPECT_EQ(bot.Menus(), "-DS");
    bot.session.Disconnect();
    for (const bool called : {false, true}) {
        bot.session.Connect();
        if (called) bot.session.OnClientRequest();
        bot.session.StandAlone();
        EXPECT_EQ(bot.Menus(), "C--");  // nobody has logged in, so there is no session to go on with
    }
    bot.link.takenPorts = 100000;
    bot.session.Connect();
    const auto [least, greatest] = std::minmax_element(bot.link.ports.begin(), bot.link.ports.end());
    EXPECT_TRUE(*least >= 1000 && *greatest <= 9999) << *least << " " << *greatest;
    EXPECT_EQ(bot.Menus(), "C--");  // given up: none was free
}

TEST(Session, PacketsAreRelayedWholeAfterTheBotsOwnReaction) {
    ReadyBot bot;
    bot.LinkClient();
    bot.session.OnServerData("(Ann: hi\n([ Ann whispers, \"x\" to you. ]\r\n\n([ Ann whispers, \"y\" to you. ]\nlost");
    EXPECT_EQ(bot.TakeTold(), (Told{"console Ann: hi", "console [ Ann whispers, \"x\" to you. ]\r", "console 7",
                                    "client ]-#A", "client (Tandry Vorel: 7", "console [ Ann whispers, \"y\" to you. ]",
                                    "client (Ann: hi", "client ([ Ann whispers, \"x\" to you. ]\r", "client ",
                                    "client ([ Ann whispers, \"y\" to you. ]"}));
    bot.session.OnServerData("(Ann: 1\n(An", true);
    EXPECT_EQ(bot.TakeTold(), Told{"console Ann: 1"}) << "the packet has not come to its end";
    bot.session.OnServerData("n: 2\nlost");
    EXPECT_EQ(bot.TakeTold(), (Told{"console Ann: 2", "client (Ann: 1", "client (Ann: 2"}));
    bot.session.OnClientData("connect New|Bot secret past\ncolor 9876543210abc\n\"&go\nm 7");
    EXPECT_EQ(bot.TakeTold(), (Told{"console 47 go", "client ]-#A9876543210abc", "client (Tandry Vorel: 47 go",
                                    "sent connect New|Bot secret past", "sent color 9876543210abc"}));
    EXPECT_EQ(bot.bot.state.vorel.name, "New|Bot");
    EXPECT_EQ(bot.bot.state.password, "secret");
    EXPECT_EQ(bot.session.status().botName, "New Bot");
}

TEST(Session, SplitLinesAreDroppedUnlessKept) {
    ReadyBot bot;
    bot.AcceptServer();
    const auto hear = [&](bool keep) {
        bot.TakeTold();
        bot.session.KeepSplitLines(keep);
        bot.session.OnServerData("(Ann: h");
        bot.session.OnServerData("i\n(Bea: a\n(Cl");
        bot.session.OnServerData("eo: b\n");
        return bot.TakeTold();
    };
    EXPECT_EQ(hear(false), Told{"console Bea: a"});
    EXPECT_EQ(hear(true), (Told{"console Ann: hi", "console Bea: a", "console Cleo: b"}));
    bot.session.OnServerData("(Dan: of the last connection");
    bot.session.Connect();
    bot.AcceptServer();
    EXPECT_EQ(hear(true).front(), "console Ann: hi");
}

struct EndCase : Row {
    void (*end)(ReadyBot&);
    Told told;
    std::string menus;
};

// clang-format off
const EndCase kEnds[] = {
    {"Disconnect",      [](ReadyBot& b) { b.session.Disconnect(); },
                        {"link take away", "link close client", "link close server", "console 3", "link close window 7"}, "C--"},
    {"ServerCloses",    [](ReadyBot& b) { b.host.SetServerConnected(false); b.session.OnServerClosed(); },
                        {"link take away", "link close window 7", "console 3"}, "C--"},
    {"ClientCloses",    [](ReadyBot& b) { b.host.SetClientConnected(false); b.session.OnClientClosed(); }, {"link close window 7"}, "-D-"},
    {"ClientFails",     [](ReadyBot& b) { b.session.OnClientError({1, "gone", 104, "socket"}); },
                        {"console Client Socket Error 1: gone (104: socket)", "link close window 7"}, "-DS"},
    {"ServerFails",     [](ReadyBot& b) { b.session.OnServerError({2, "lost", 32, "tcp"}); },
                        {"link close server", "link take away", "console Server Socket Error 2: lost (32: tcp)"}, "C--"},
    {"WindowIsKept",    [](ReadyBot& b) { b.bot.profile.closeClient = 2; b.session.Disconnect(); },
                        {"link take away", "link close client", "link close server", "console 3"}, "C--"},
    {"WindowClosesOnceWithTheClient", [](ReadyBot& b) { b.session.OnClientClosed(); b.session.Disconnect(); },
                        {"link close window 7", "link take away", "link close client", "link close server", "console 3"}, "C--"},
    {"BeforeTheServerAnswersNothingIsHeardAndTheEndIsNoEvent",
                        [](ReadyBot& b) { b.ConnectAgain(); b.session.OnServerData("(Ann: hi\n"); b.session.OnClientData("\"&go\n");
                                          b.session.Disconnect(); b.session.Disconnect(); },
                        {"link take away", "link close window 7"}, "C--"},
    {"StandsAlone",     [](ReadyBot& b) { b.session.StandAlone(); }, {"link close client"}, "-D-"},
};
// clang-format on

class SessionEnd : public testing::TestWithParam<EndCase> {};

TEST_P(SessionEnd, ClosesAndTells) {
    ReadyBot bot;
    bot.LinkClient();
    GetParam().end(bot);
    EXPECT_EQ(bot.told, GetParam().told);
    EXPECT_EQ(bot.Menus(), GetParam().menus);
}

INSTANTIATE_TEST_SUITE_P(Session, SessionEnd, testing::ValuesIn(kEnds), kCaseName);

}  // namespace
