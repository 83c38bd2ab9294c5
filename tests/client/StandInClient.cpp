// A stand-in for the game's client: it reads "proxy.ini" in its folder, links to the bot, logs in when it hears
// something, and has a window. It is led by the test over a connection of its own, the leash: it tells there what it
// sees, does what it is told, and ends when the test is gone.
#include <unistd.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <cstdlib>
#include <optional>

namespace {

class Window {
  public:
    /// @param tellsProcess  whether it says which process it belongs to
    Window(const QByteArray& className, bool tellsProcess) {
        if (!IsOpen()) return;
        Create(xcb_generate_id(connection_), className, tellsProcess);  // as toolkits do, one that is never shown
        Create(window_, className, tellsProcess);
        Set(window_, Atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, 32, 1, &delete_);
        xcb_map_window(connection_, window_);
        IsAskedToClose();
    }
    ~Window() { xcb_disconnect(connection_); }
    Window(const Window&) = delete;

    bool IsOpen() const { return xcb_connection_has_error(connection_) == 0; }
    int Descriptor() const { return xcb_get_file_descriptor(connection_); }

    /// Whether it has been asked to by all that the display did until now.
    bool IsAskedToClose() {
        std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
        bool asked = false;
        while (xcb_generic_event_t* const event = xcb_poll_for_event(connection_)) {
            const auto* const message = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message->data.data32[0] == delete_) asked = true;
            std::free(event);
        }
        return asked;
    }

  private:
    xcb_connection_t* connection_ = xcb_connect(nullptr, nullptr);
    xcb_window_t window_ = IsOpen() ? xcb_generate_id(connection_) : XCB_NONE;
    xcb_atom_t delete_ = IsOpen() ? Atom("WM_DELETE_WINDOW") : XCB_NONE;

    xcb_atom_t Atom(const QByteArray& name) {
        const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.constData());
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(connection_, asked, nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }
    void Create(xcb_window_t window, const QByteArray& className, bool tellsProcess) {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 20, 20, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        const QByteArray names = className + '\0' + className + '\0';
        Set(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(names.size()), names.constData());
        const std::uint32_t process = static_cast<std::uint32_t>(getpid());
        if (tellsProcess) Set(window, Atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &process);
    }
    void Set(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::uint8_t bits, std::uint32_t count,
             const void* value) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, property, type, bits, count, value);
    }
};

class StandInClient {
  public:
    explicit StandInClient(QHash<QByteArray, QByteArray> settings)
        : settings_(std::move(settings)), window_(settings_["class"], settings_["anonymous"].isEmpty()) {
        if (window_.IsOpen()) display_.emplace(window_.Descriptor(), QSocketNotifier::Read);
        leash_.connectToHost("127.0.0.1", settings_["leash"].toUShort());
        QObject::connect(&leash_, &QTcpSocket::disconnected, [] { std::_Exit(0); });
        QObject::connect(&leash_, &QTcpSocket::readyRead, [this] {
            while (leash_.canReadLine()) Obey(leash_.readLine().trimmed());
        });
        if (display_) QObject::connect(&*display_, &QSocketNotifier::activated, [this] { WatchWindow(); });
        QObject::connect(&link_, &QTcpSocket::readyRead, [this] { Hear(); });
        QObject::connect(&link_, &QTcpSocket::disconnected, [this] { Tell("unlinked"); });
        if (leash_.waitForConnected()) Tell("ready");
        QFile proxy("proxy.ini");
        if (!proxy.open(QIODevice::ReadOnly)) return;
        const QList<QByteArray> words = proxy.readAll().simplified().split(' ');
        link_.connectToHost(words.value(0), words.value(1).toUShort());
    }

  private:
    QHash<QByteArray, QByteArray> settings_;
    Window window_;
    std::optional<QSocketNotifier> display_;
    QTcpSocket leash_, link_;
    bool loggedIn_ = false;

    void Tell(const QByteArray& what) {
        leash_.write(what + '\n');
        leash_.flush();
    }
    void Say(const QByteArray& line) {
        link_.write(line + '\n');
        link_.flush();
    }
    void Hear() {
        while (link_.canReadLine()) {
            Tell("heard " + link_.readLine().chopped(1));
            if (loggedIn_) continue;
            loggedIn_ = true;
            Say("connect " + settings_["name"] + ' ' + settings_["password"] + "\ncolor 0123456789 !\"\ndesc Hi");
        }
    }
    void WatchWindow() {
        if (display_ && !window_.IsOpen()) display_->setEnabled(false);
        if (!window_.IsOpen() || !window_.IsAskedToClose()) return;
        Tell("asked to close");
        QCoreApplication::quit();
    }
    void Obey(const QByteArray& order) {
        if (order == "crash") std::_Exit(1);
        if (order == "quit") QCoreApplication::quit();
        if (order == "unlink") link_.disconnectFromHost();
        if (order.startsWith("say ")) Say(order.mid(4));
        WatchWindow();
        Tell("done " + order);
    }
};

}  // namespace

int main(int argumentCount, char* arguments[]) {
    const QCoreApplication application(argumentCount, arguments);
    QFile character(application.arguments().value(1));
    if (!character.open(QIODevice::ReadOnly)) return 2;
    QHash<QByteArray, QByteArray> settings;
    for (const QByteArray& line : character.readAll().split('\n')) {
        settings[line.left(line.indexOf('='))] = line.mid(line.indexOf('=') + 1);
    }
    const StandInClient client(settings);
    return QCoreApplication::exec();
}
