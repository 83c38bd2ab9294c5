#include "client/Bench.h"
#include "support/Cases.h"
#include "support/HostBench.h"

namespace {

class ClientMode : public HostBench {
  public:
    ClientMode() {
        QFile::link(TVOREL_STAND_IN_CLIENT, files.Path("client"));
        files.Write("wrapper", "#!/bin/sh\n./client \"$1\" &\n");
        SetClient("client");
    }
    void SetClient(const QString& program) {
        Profile& profile = host.bot().profile;
        profile.connectClient = profile.closeClient = 1;
        profile.clientPath = files.Path(program).toStdString();
    }
    /// Up to the point where the client has logged in and spoken.
    void Link(const QByteArray& className = "Furcadia", bool tellsProcess = true) {
        const std::size_t session = server.bots.size();
        files.Write("bot.ini", "leash=" + QByteArray::number(leash.listener.serverPort()) + "\nclass=" + className +
                                   "\ntells=" + (tellsProcess ? "true" : "false") + "\n");
        host.ConnectNow();
        ASSERT_TRUE(server.Hears("connect Bot|One made-up\n\"Hello!\n", session));
    }
    /// Whether the client has closed its window, because it was asked to.
    bool ClosesWindow() {
        const QByteArray& heard = leash.heard[0];
        const qsizetype before = heard.size();
        leash.Say("?");
        EXPECT_TRUE(Eventually([&] { return heard.indexOf("open", before) >= 0 || heard.contains("<end>"); }));
        return heard.contains("closed");
    }

    HiddenDisplay display;
    GameServer leash;
};

struct PartingCase : Row {
    void (*part)(ClientMode&);
    const char* clientTells;
    bool closesWindow, staysInGame;
};

// clang-format off
const PartingCase kPartings[] = {
    {"ServerCloses",  [](ClientMode& b) { b.server.Close(); }, "", true, false},
    {"ClientUnlinks", [](ClientMode& b) { b.server.Say("(unlink\n"); }, "unlinked", true, true},
    {"ClientCrashes", [](ClientMode& b) { b.server.Say("(crash\n(and leaves this unread\n"); }, "<end>", false, true},
    {"StandAlone",    [](ClientMode& b) { b.host.session().StandAlone(); }, "unlinked", false, true},
    {"WindowIsKept",  [](ClientMode& b) { b.host.bot().profile.closeClient = 0; b.host.Disconnect(); }, "unlinked", false, false},
};
// clang-format on

class Parting : public ClientMode, public testing::WithParamInterface<PartingCase> {};

TEST_P(Parting, EndsTheClientOrTheSessionOrBoth) {
    Link();
    GetParam().part(*this);
    EXPECT_TRUE(Eventually([&] { return !host.session().status().canStandAlone; }));
    EXPECT_TRUE(leash.Hears(GetParam().clientTells));
    EXPECT_EQ(ClosesWindow(), GetParam().closesWindow);
    EXPECT_EQ(host.IsServerConnected(), GetParam().staysInGame);
    host.session().TypeLine("still here");
    EXPECT_TRUE(!GetParam().staysInGame || server.Hears("\"still here"));
    host.bot().profile.closeClient = 1;
    host.Disconnect();
    EXPECT_TRUE(server.Hears("<end>"));
    EXPECT_TRUE(leash.Hears("<end>")) << "in the end the window is closed";
    EXPECT_EQ(screen.Count("gone"), 1);
}

INSTANTIATE_TEST_SUITE_P(ClientMode, Parting, testing::ValuesIn(kPartings), kCaseName);

/// The classes of the client's window and of a stranger's before and after it. They tell their process, or none does.
struct WindowCase : Row {
    const char *program, *strangerBefore, *window, *strangerAfter;
    bool tellProcess, closes;
};

const WindowCase kWindows[] = {
    {"OfTheProgramBeforeOthersAlike", "client", "Furcadia", "Furcadia", "Furcadia", true, true},
    {"OfAWrappersProgram", "wrapper", "Other", "furcadia.exe", "Other", true, true},
    {"AnonymousButExact", "client", "Furcadia", "Furcadia", "Other", false, true},
    {"AnonymousAndInexact", "client", "Other", "furcadia.exe", "furcadia.exe", false, false},
    {"OfAnotherClass", "client", "Furcadia", "Editor", "Editor", true, false},
};

class WindowOwner : public ClientMode, public testing::WithParamInterface<WindowCase> {};

TEST_P(WindowOwner, DecidesWhichWindowIsClosed) {
    const WindowCase& given = GetParam();
    const auto nobodysClient = static_cast<std::uint32_t>(given.tellProcess ? getpid() : 0);
    SetClient(given.program);
    Window before(given.strangerBefore, nobodysClient);
    Link(given.window, given.tellProcess);
    Window after(given.strangerAfter, nobodysClient);
    host.Disconnect();
    EXPECT_EQ(ClosesWindow(), given.closes);
    EXPECT_FALSE(before.IsAskedToClose() || after.IsAskedToClose());
}

INSTANTIATE_TEST_SUITE_P(ClientMode, WindowOwner, testing::ValuesIn(kWindows), kCaseName);

TEST_F(ClientMode, WithoutADisplayEverythingElseWorksAndIsToldOnce) {
    for (std::size_t session = 0; session < 4; ++session) {
        Link();
        EXPECT_EQ(screen.Count("window can't be found"), session == 2 ? 1 : 0) << "once, and when it was to be closed";
        host.bot().profile.closeClient = session == 0 ? 0 : 1;
        display.End();  // under the eyes of the first session
        host.Disconnect();
        EXPECT_TRUE(leash.Hears("unlinked", session));
    }
}

TEST_F(ClientMode, AWindowManagerThatOffersToIsAskedToCloseTheWindow) {
    Link();
    {
        Manager manager;
        host.session().OnServerClosed();
        EXPECT_EQ(manager.CloseRequests(), 1);
        EXPECT_FALSE(ClosesWindow());
    }
    host.Disconnect();  // what the manager left behind when it ended is no offer
    EXPECT_TRUE(ClosesWindow());
}

TEST_F(ClientMode, AClientThatCantBeStartedEndsTheSessionWithAReason) {
    files.Write("client.txt", "not a program");
    SetClient("client.txt");
    for (const auto& [permissions, reason] : {std::pair{QFile::ReadOwner | QFile::ExeOwner, "could not be started: "},
                                              {QFile::Permissions(QFile::ReadOwner), "may not be run as a program"}}) {
        QFile::setPermissions(files.Path("client.txt"), permissions);
        host.ConnectNow();
        EXPECT_EQ(screen.Count(reason), 1) << testing::PrintToString(screen.lines);
        EXPECT_TRUE(host.session().status().canConnect);
    }
}

}  // namespace
