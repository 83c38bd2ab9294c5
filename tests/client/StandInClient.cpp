// A stand-in for the game's client: it reads "proxy.ini" in its folder, links to the bot, logs in when it hears
// something, and has a window. It is led by the test over a connection of its own, the leash: it tells there what it
// sees, does what it is told, and ends when the test is gone.
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <optional>
#include <utility>

#include "client/Display.h"

namespace {

class Window : public Display {
  public:
    /// @param tellsProcess  whether it says which process it belongs to
    Window(const QByteArray& className, bool tellsProcess) {
        if (!IsOpen()) return;
        Create(className, tellsProcess);  // as toolkits do, one that is never shown
        const xcb_window_t window = Create(className, tellsProcess);
        const xcb_atom_t close = Atom("WM_DELETE_WINDOW");
        Set(window, "WM_PROTOCOLS", XCB_ATOM_ATOM, &close, 1);
        xcb_map_window(connection_, window);
        IsAskedToClose();
    }
    bool IsAskedToClose() { return TakeMessages("WM_DELETE_WINDOW") > 0; }

  private:
    xcb_window_t Create(const QByteArray& className, bool tellsProcess) {
        const xcb_window_t window = NewWindow();
        const QByteArray names = className + '\0' + className + '\0';
        Set(window, "WM_CLASS", XCB_ATOM_STRING, names.constData(), static_cast<std::size_t>(names.size()));
        const std::uint32_t process = static_cast<std::uint32_t>(getpid());
        if (tellsProcess) Set(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, &process, 1);
        return window;
    }
};

class StandInClient {
  public:
    explicit StandInClient(const QString& characterFile)
        : character_(characterFile, QSettings::IniFormat), window_(Says("class"), Says("anonymous").isEmpty()) {
        if (window_.IsOpen()) display_.emplace(window_.Descriptor(), QSocketNotifier::Read);
        leash_.connectToHost("127.0.0.1", Says("leash").toUShort());
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
    QSettings character_;
    Window window_;
    std::optional<QSocketNotifier> display_;
    QTcpSocket leash_, link_;
    bool loggedIn_ = false;

    QByteArray Says(const char* key) const { return character_.value(key).toByteArray(); }
    void Tell(const QByteArray& what) {
        leash_.write(what + '\n');
        leash_.flush();
    }
    void Hear() {
        link_.readAll();
        if (std::exchange(loggedIn_, true)) return;
        link_.write("connect " + Says("name") + ' ' + Says("password") + "\ncolor 0123456789 !\"\ndesc Hi\n");
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
        WatchWindow();
        Tell("done " + order);
    }
};

}  // namespace

int main(int argumentCount, char* arguments[]) {
    const QCoreApplication application(argumentCount, arguments);
    const StandInClient client(application.arguments().value(1));
    return QCoreApplication::exec();
}
