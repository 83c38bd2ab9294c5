#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include "client/Bench.h"
#include "engine/Script.h"
#include "support/Cases.h"

namespace {

class ClientMode : public testing::Test {
  public:
    ClientMode() {
        QFile::link(TVOREL_STAND_IN_CLIENT, Path("client"));
        Profile& profile = host_.bot().profile;
        profile.connectClient = profile.closeClient = 1;
        profile.owners = "Ann";
        profile.characterPath = Path("bot.ini").toStdString();
        profile.clientPath = Path("client").toStdString();
        host_.bot().script = std::make_shared<Script>(
            "VSPK 01.00 Vorel\r\n(0:2) out,\r\n(5:2) {out}\r\n*Endtriggers* 9999 *Endtriggers*\r\n");
        host_.session().SetServer("127.0.0.1", server_.Port());
    }

    QString Path(const char* name) const { return folder_.filePath(name); }
    void Write(const char* name, const QByteArray& text) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void Connect(const QByteArray& window = "class=Furcadia") {
        Write("bot.ini", client_.Character(window));
        host_.session().Connect();
    }
    /// Up to the point where the client has logged in.
    void Link(const QByteArray& window = "class=Furcadia") {
        Connect(window);
        ASSERT_TRUE(Eventually([&] { return server_.IsUp() && host_.IsServerConnected(); }));
        server_.Write("Welcome\n");
        ASSERT_TRUE(server_.Hears("connect Bot|One made-up"));
    }
    /// Opens a window that has nothing to do with the bot.
    void OpenStranger(Leash& leash, const QByteArray& window) {
        Write("stranger.ini", leash.Character(window));
        QProcess stranger;
        stranger.setProgram(TVOREL_STAND_IN_CLIENT);
        stranger.setArguments({Path("stranger.ini")});
        stranger.setWorkingDirectory("/");
        ASSERT_TRUE(stranger.startDetached());
        ASSERT_TRUE(leash.Hears("ready"));
    }

    QTemporaryDir folder_;
    HiddenDisplay display_;
    Line server_;
    Leash client_;
    Notebook notebook_;
    QtHost host_{notebook_, folder_.path().toStdString()};
};

TEST_F(ClientMode, LinksAndRelaysBothWays) {
    Connect();
    ASSERT_TRUE(client_.Hears("ready"));
    ASSERT_TRUE(Eventually([&] { return host_.IsServerConnected() && server_.IsUp(); }));
    server_.Write("Welcome\n");
    EXPECT_TRUE(server_.Hears("color 0123456789 !\""));
    EXPECT_TRUE(server_.Hears("desc Hi [Tandry Vorel]"));
    EXPECT_FALSE(server_.Holds("desc Hi"));
    EXPECT_EQ(host_.bot().status.botName, "Bot One");
    server_.Write("(Ann: hello\n");
    EXPECT_TRUE(client_.Hears("heard (Ann: hello"));
    EXPECT_TRUE(client_.Does("say \"good day"));
    EXPECT_TRUE(server_.Hears("\"good day"));
}

TEST_F(ClientMode, StandAloneModeLetsTheClientGoAndStaysInTheGame) {
    Link();
    host_.session().StandAlone();
    EXPECT_TRUE(client_.Hears("unlinked"));
    host_.session().TypeLine("still here");
    EXPECT_TRUE(server_.Hears("\"still here"));
    EXPECT_TRUE(client_.IsLeftAlone());
    host_.session().Disconnect();
    EXPECT_TRUE(client_.Hears("asked to close"));
}

TEST_F(ClientMode, OneCallerIsLinkedAndEveryOtherRefused) {
    Write("client-that-never-calls", "#!/bin/sh\n");
    host_.bot().profile.clientPath = Path("client-that-never-calls").toStdString();
    Connect();
    QFile proxy(Path("proxy.ini"));
    ASSERT_TRUE(proxy.open(QIODevice::ReadOnly));
    const quint16 port = proxy.readAll().simplified().split(' ').value(1).toUShort();
    QTcpSocket first, atOnce, later;
    first.connectToHost("127.0.0.1", port);
    atOnce.connectToHost("127.0.0.1", port);
    ASSERT_TRUE(first.waitForConnected());
    EXPECT_TRUE(
        Eventually([&] { return host_.IsServerConnected() && atOnce.state() == QTcpSocket::UnconnectedState; }));
    later.connectToHost("127.0.0.1", port);
    EXPECT_TRUE(Eventually([&] { return later.error() == QTcpSocket::ConnectionRefusedError; }));
    EXPECT_EQ(first.state(), QTcpSocket::ConnectedState);
}

class DyingClient : public ClientMode, public testing::WithParamInterface<const char*> {};

TEST_P(DyingClient, LeavesTheBotInTheGame) {
    Link();
    client_.Write(GetParam() + QByteArray("\n"));
    EXPECT_TRUE(client_.Ends());
    EXPECT_TRUE(Eventually([&] { return !host_.bot().status.canStandAlone; }));
    host_.session().TypeLine("still here");
    EXPECT_TRUE(server_.Hears("\"still here"));
    host_.session().Disconnect();
    EXPECT_TRUE(server_.Ends());
    EXPECT_EQ(notebook_.Count("out"), 1);
}

INSTANTIATE_TEST_SUITE_P(ClientMode, DyingClient, testing::Values("quit", "crash"),
                         [](const auto& test) { return std::string(test.param); });

struct EndCase {
    const char* name;
    void (*end)(ClientMode&);
    bool closes;
    int eventsOut;
};

// clang-format off
const EndCase kEnds[] = {
    {"Disconnect",    [](ClientMode& b) { b.host_.session().Disconnect(); }, true, 1},
    {"ServerCloses",  [](ClientMode& b) { b.server_.Close(); EXPECT_TRUE(Eventually([&] { return !b.host_.IsServerConnected(); })); }, true, 1},
    {"ClientUnlinks", [](ClientMode& b) { EXPECT_TRUE(b.client_.Does("unlink")); EXPECT_TRUE(b.client_.Hears("asked to close")); }, true, 0},
    {"WindowIsKept",  [](ClientMode& b) { b.host_.bot().profile.closeClient = 0; b.host_.session().Disconnect(); }, false, 1},
    {"ServerFails",   [](ClientMode& b) { b.host_.session().OnServerError({}); }, false, 0},
};
// clang-format on

class EndOfSession : public ClientMode, public testing::WithParamInterface<EndCase> {};

TEST_P(EndOfSession, ClosesTheClientsWindowOrLeavesIt) {
    Link();
    GetParam().end(*this);
    if (GetParam().closes) {
        EXPECT_TRUE(client_.Hears("asked to close"));
        EXPECT_TRUE(client_.Ends());
    } else {
        EXPECT_TRUE(client_.IsLeftAlone());
    }
    EXPECT_EQ(notebook_.Count("out"), GetParam().eventsOut);
    host_.bot().profile.closeClient = 1;
    host_.session().Disconnect();  // the window may be gone, and its handle still known
    host_.session().Disconnect();
    EXPECT_TRUE(client_.Ends());
}

INSTANTIATE_TEST_SUITE_P(ClientMode, EndOfSession, testing::ValuesIn(kEnds), kCaseName);

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
    Write("wrapper", "#!/bin/sh\n" TVOREL_STAND_IN_CLIENT " \"$1\" &\n");
    host_.bot().profile.clientPath = Path(given.program).toStdString();
    Leash before, after;
    if (*given.strangerBefore) OpenStranger(before, given.strangerBefore);
    Link(given.window);
    if (*given.strangerAfter) OpenStranger(after, given.strangerAfter);
    host_.session().Disconnect();
    EXPECT_TRUE(given.closes ? client_.Hears("asked to close") : client_.IsLeftAlone());
    EXPECT_TRUE(!*given.strangerBefore || before.IsLeftAlone());
    EXPECT_TRUE(!*given.strangerAfter || after.IsLeftAlone());
}

INSTANTIATE_TEST_SUITE_P(ClientMode, WindowOwner, testing::ValuesIn(kWindows), kCaseName);

TEST_F(ClientMode, WithoutADisplayEverythingElseWorksAndIsToldOnce) {
    display_.End();
    for (int session = 0; session < 2; ++session) {
        Link();
        EXPECT_EQ(notebook_.Count("window can't be found"), session == 0 ? 1 : 0);
        host_.session().Disconnect();
        EXPECT_TRUE(client_.Hears("unlinked"));
        client_.Restart();
        server_.Restart();
    }
}

TEST_F(ClientMode, ADisplayThatGoesAwayHarmsNothing) {
    Link();
    display_.End();
    host_.session().Disconnect();
    EXPECT_TRUE(client_.Hears("unlinked"));
}

/// Takes the place of a window manager that closes windows on request, and counts the requests.
class Manager {
  public:
    Manager() {
        const xcb_window_t window = xcb_generate_id(connection_);
        xcb_create_window(connection_, 0, window, root_, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0, nullptr);
        const std::uint32_t requests = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT;
        xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &requests);
        Set(window, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, window);
        Set(root_, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, window);
        Set(root_, "_NET_SUPPORTED", XCB_ATOM_ATOM, Atom("_NET_CLOSE_WINDOW"));
    }
    ~Manager() { xcb_disconnect(connection_); }
    Manager(const Manager&) = delete;

    int CloseRequests() {
        const xcb_atom_t close = Atom("_NET_CLOSE_WINDOW");
        int count = 0;
        while (xcb_generic_event_t* const event = xcb_poll_for_event(connection_)) {
            if (reinterpret_cast<const xcb_client_message_event_t*>(event)->type == close) ++count;
            std::free(event);
        }
        return count;
    }

  private:
    xcb_connection_t* connection_ = xcb_connect(nullptr, nullptr);
    xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;

    xcb_atom_t Atom(std::string_view name) {
        const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(connection_, asked, nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }
    void Set(xcb_window_t window, std::string_view property, xcb_atom_t type, std::uint32_t value) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 32, 1, &value);
    }
};

TEST_F(ClientMode, AWindowManagerThatOffersToIsAskedToCloseTheWindow) {
    Link();
    {
        Manager manager;
        ASSERT_EQ(manager.CloseRequests(), 0);
        host_.session().OnServerClosed();
        EXPECT_EQ(manager.CloseRequests(), 1);
        EXPECT_TRUE(client_.IsLeftAlone());
    }
    host_.session().Disconnect();  // what the manager left behind when it ended is no offer
    EXPECT_TRUE(client_.Hears("asked to close"));
}

TEST_F(ClientMode, AClientThatCantBeStartedEndsTheSessionWithAReason) {
    Write("client.txt", "not a program");
    host_.bot().profile.clientPath = Path("client.txt").toStdString();
    for (const auto& [permissions, reason] : {std::pair{QFile::ReadOwner | QFile::ExeOwner, "could not be started: "},
                                              {QFile::Permissions(QFile::ReadOwner), "may not be run as a program"}}) {
        QFile::setPermissions(Path("client.txt"), permissions);
        Connect();
        EXPECT_EQ(notebook_.Count(reason), 1) << testing::PrintToString(notebook_.lines);
        EXPECT_TRUE(host_.bot().status.canConnect);
        notebook_.lines.clear();
    }
}

}  // namespace
