#include "client/Bench.h"
#include "client/Display.h"
#include "support/Cases.h"
#include "support/HostBench.h"

namespace {

class ClientMode : public HostBench {
  public:
    ClientMode() {
        QFile::link(TVOREL_STAND_IN_CLIENT, files.Path("client"));
        Profile& profile = host.bot().profile;
        profile.connectClient = profile.closeClient = 1;
        profile.clientPath = files.Path("client").toStdString();
    }

    void Connect(const QByteArray& window = "class=Furcadia") {
        files.Write("bot.ini", client.Character(window));
        host.Connect();
    }
    /// Up to the point where the client has logged in.
    void Link(const QByteArray& window = "class=Furcadia") {
        const std::size_t number = server.bots.size();
        Connect(window);
        ASSERT_TRUE(Eventually([&] { return server.bots.size() > number && host.IsServerConnected(); }));
        server.Say("Welcome\n", number);
        ASSERT_TRUE(server.Hears("connect Bot|One made-up\n", number));
    }
    /// Opens a window that has nothing to do with the bot.
    void OpenStranger(Leash& leash, const QByteArray& window) {
        files.Write("stranger.ini", leash.Character(window));
        ASSERT_TRUE(QProcess::startDetached(TVOREL_STAND_IN_CLIENT, {files.Path("stranger.ini")}, "/"));
        ASSERT_TRUE(leash.Hears("ready"));
    }

    HiddenDisplay display;
    Leash client;
};

struct PartingCase {
    const char* name;
    void (*part)(ClientMode&);
    const char* clientTells;
    bool staysInGame;
};

// clang-format off
const PartingCase kPartings[] = {
    {"ServerCloses",  [](ClientMode& b) { b.server.Close(); }, "asked to close", false},
    {"ClientUnlinks", [](ClientMode& b) { b.client.Say("unlink\n"); }, "asked to close", true},
    {"ClientQuits",   [](ClientMode& b) { b.client.Say("quit\n"); }, "<end>", true},
    {"ClientCrashes", [](ClientMode& b) { b.client.Say("crash\n"); }, "<end>", true},
    {"StandAlone",    [](ClientMode& b) { b.host.session().StandAlone(); }, "unlinked", true},
    {"WindowIsKept",  [](ClientMode& b) { b.host.bot().profile.closeClient = 0; b.host.Disconnect(); }, "unlinked", false},
};
// clang-format on

class Parting : public ClientMode, public testing::WithParamInterface<PartingCase> {};

TEST_P(Parting, EndsTheClientOrTheSessionOrBoth) {
    Link();
    GetParam().part(*this);
    EXPECT_TRUE(client.Hears(GetParam().clientTells));
    EXPECT_TRUE(GetParam().clientTells != std::string("unlinked") || client.IsLeftAlone());
    EXPECT_TRUE(Eventually([&] { return host.IsServerConnected() == GetParam().staysInGame; }));
    if (GetParam().staysInGame) {
        EXPECT_TRUE(Eventually([&] { return !host.bot().status.canStandAlone; }));
        host.session().TypeLine("still here");
        EXPECT_TRUE(server.Hears("\"still here"));
    }
    host.bot().profile.closeClient = 1;
    host.Disconnect();  // the window may be gone, and its handle still known
    host.Disconnect();
    EXPECT_TRUE(client.Hears("<end>") && server.Hears("<end>"));
    EXPECT_EQ(screen.Count("gone"), 1);
}

INSTANTIATE_TEST_SUITE_P(ClientMode, Parting, testing::ValuesIn(kPartings), kCaseName);

struct WindowCase {
    const char *name, *window, *program, *strangerBefore, *strangerAfter;
    bool closes;
};

// The window's class as the client or a stranger gives it; "anonymous" ones don't tell their process.
const WindowCase kWindows[] = {
    {"OfTheProgramBeforeOthersAlike", "class=Furcadia", "client", "class=Furcadia", "class=Furcadia", true},
    {"OfAWrappersProgram", "class=furcadia.exe", "wrapper", "", "", true},
    {"AnonymousButExact", "class=Furcadia\nanonymous=1", "client", "class=Furcadia\nanonymous=1", "", true},
    {"AnonymousAndInexact", "class=furcadia.exe\nanonymous=1", "client", "", "class=furcadia.exe", false},
    {"OfAnotherClass", "class=Editor", "client", "class=Furcadia", "class=Editor", false},
};

class WindowOwner : public ClientMode, public testing::WithParamInterface<WindowCase> {};

TEST_P(WindowOwner, DecidesWhichWindowIsClosed) {
    const WindowCase& given = GetParam();
    files.Write("wrapper", "#!/bin/sh\n" TVOREL_STAND_IN_CLIENT " \"$1\" &\n");
    host.bot().profile.clientPath = files.Path(given.program).toStdString();
    Leash before, after;
    if (*given.strangerBefore) OpenStranger(before, given.strangerBefore);
    Link(given.window);
    if (*given.strangerAfter) OpenStranger(after, given.strangerAfter);
    host.Disconnect();
    EXPECT_TRUE(given.closes ? client.Hears("asked to close") : client.IsLeftAlone());
    EXPECT_TRUE(!*given.strangerBefore || before.IsLeftAlone());
    EXPECT_TRUE(!*given.strangerAfter || after.IsLeftAlone());
}

INSTANTIATE_TEST_SUITE_P(ClientMode, WindowOwner, testing::ValuesIn(kWindows), kCaseName);

TEST_F(ClientMode, WithoutADisplayEverythingElseWorksAndIsToldOnce) {
    for (std::size_t session = 0; session < 3; ++session) {
        Link();
        EXPECT_EQ(screen.Count("window can't be found"), session == 1 ? 1 : 0);
        display.End();  // under the eyes of the first session
        host.Disconnect();
        EXPECT_TRUE(client.Hears("unlinked", session));
    }
}

/// Takes the place of a window manager that closes windows on request, and counts the requests.
class Manager : public Display {
  public:
    Manager() {
        const xcb_window_t root = Root(), window = NewWindow();
        const xcb_atom_t offer = Atom("_NET_CLOSE_WINDOW");
        const std::uint32_t requests = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
        xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &requests);
        Set(window, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, &window, 1);
        Set(root, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, &window, 1);
        Set(root, "_NET_SUPPORTED", XCB_ATOM_ATOM, &offer, 1);
    }
    int CloseRequests() { return TakeMessages("_NET_CLOSE_WINDOW"); }
};

TEST_F(ClientMode, AWindowManagerThatOffersToIsAskedToCloseTheWindow) {
    Link();
    {
        Manager manager;
        ASSERT_EQ(manager.CloseRequests(), 0);
        host.session().OnServerClosed();
        EXPECT_EQ(manager.CloseRequests(), 1);
        EXPECT_TRUE(client.IsLeftAlone());
    }
    host.Disconnect();  // what the manager left behind when it ended is no offer
    EXPECT_TRUE(client.Hears("asked to close"));
}

TEST_F(ClientMode, AClientThatCantBeStartedEndsTheSessionWithAReason) {
    const QString path = files.Write("client.txt", "not a program");
    host.bot().profile.clientPath = path.toStdString();
    for (const auto& [permissions, reason] : {std::pair{QFile::ReadOwner | QFile::ExeOwner, "could not be started: "},
                                              {QFile::Permissions(QFile::ReadOwner), "may not be run as a program"}}) {
        QFile::setPermissions(path, permissions);
        Connect();
        EXPECT_EQ(screen.Count(reason), 1) << testing::PrintToString(screen.lines);
        EXPECT_TRUE(host.bot().status.canConnect);
        screen.lines.clear();
    }
}

}  // namespace
