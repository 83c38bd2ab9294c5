#include "platform/QtHost.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHostAddress>
#include <QLocale>
#include <QPointer>
#include <QProcess>
#include <QRandomGenerator>
#include <utility>

#include "Version.h"
#include "engine/Dispatcher.h"
#include "movement/modMovement.h"
#include "text/Fault.h"
#include "text/Text.h"

using Happening = SessionObserver::Happening;

namespace {

/// How much of a flood is handled at a time, before the event loop gets its turn.
constexpr qint64 kPacketLimit = qint64{64} * 1024;

/// Property of a socket the rest of whose flood waits for its turn: what arrives meanwhile waits behind it.
constexpr char kWaits[] = "waits";

constexpr int kLastPort = 65535;

QString FromUtf8Text(const std::string& utf8) { return QString::fromStdString(utf8); }

/// Locales write some blanks as characters that the game's code page lacks.
std::string ToBotText(QString text) {
    for (const char16_t blank : {u'\u00A0', u'\u202F', u'\u2009'}) text.replace(QChar(blank), QChar(u' '));
    return FromUtf8(text.toStdString());
}

QString LongTimeFormat(const QLocale& locale) {
    // The locale's long format ends with the time zone, in many forms; its short one with seconds has none, so that the
    // marker of the half day comes last, as scripts expect.
    QString format = locale.timeFormat(QLocale::ShortFormat);
    const qsizetype minutes = format.indexOf("mm");
    if (minutes > 0 && !format.contains('s')) format.insert(minutes + 2, format.mid(minutes - 1, 1) + "ss");
    return format;
}

/// Why a program that is there could not be started.
std::string StartRefusal(const std::string& program, const QProcess& process) {
    if (!QFileInfo(FromUtf8Text(program)).isExecutable()) {
        return FromUtf8(program) + " may not be run as a program. Its file's permissions must allow that.";
    }
    return FromUtf8(program) + ": " + ToBotText(process.errorString());
}

/// One packet: what has arrived, or in a flood as many whole lines as fit the limit.
QByteArray TakePacket(QTcpSocket& socket) {
    if (socket.bytesAvailable() <= kPacketLimit) return socket.readAll();
    const QByteArray peeked = socket.peek(kPacketLimit);
    const qsizetype lines = peeked.lastIndexOf('\n') + 1;
    return socket.read(lines > 0 ? lines : kPacketLimit);
}

}  // namespace

QtHost::QtHost(FrontEnd& frontEnd, std::string programFolder)
    : frontEnd_(frontEnd), programFolder_(std::move(programFolder)) {
    listener_.setMaxPendingConnections(1);
    connect(&listener_, &QTcpServer::newConnection, this,
            [this] { RunHandler([this] { session_.OnClientRequest(); }); });

    tmrScript_.setObjectName("tmrScript");
    tmrMove_.setObjectName("tmrMove");
    tmrScript_.setTimerType(Qt::PreciseTimer);
    tmrScript_.start(kScriptTimerMs);
    connect(&tmrScript_, &QTimer::timeout, this, [this] {
        RunHandler([this] {
            if (observer_) observer_->Note(Happening::ScriptTick, {});
            ScriptTimerTick(bot_);
        });
    });
    tmrMove_.setInterval(modMovement::kWalkTickMs);
    connect(&tmrMove_, &QTimer::timeout, this, [this] {
        RunHandler([this] {
            if (observer_) observer_->Note(Happening::WalkStep, {});
            modMovement::Tick(bot_);
        });
    });
}

void QtHost::SetObserver(SessionObserver* observer) {
    observer_ = observer;
    session_.SetObserver(observer);
}

void QtHost::RunHandler(const std::function<void()>& handler) {
    if (ended_) return;
    try {
        handler();
    } catch (const std::exception& exception) {
        EndWith(exception);
    }
}

void QtHost::EndWith(const std::exception& exception) {
    if (std::exchange(ended_, true)) return;
    frontEnd_.EndWithFault(AsFault(exception));
}

void QtHost::Leave() {
    leaving_ = true;
    RunHandler([this] { session_.Disconnect(); });
}

bool QtHost::IsConnected(const QTcpSocket* socket) const {
    return socket && (socket->state() == QAbstractSocket::ConnectedState || socket == draining_);
}

void QtHost::Write(QTcpSocket* socket, std::string_view bytes) {
    if (socket && socket->state() == QAbstractSocket::ConnectedState)
        socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void QtHost::WriteToServer(std::string_view bytes) {
    if (observer_) {
        std::vector<std::string> lines = Split(bytes, "\n");
        if (lines.back().empty()) lines.pop_back();
        for (const std::string& line : lines) observer_->Note(Happening::Sent, line);
    }
    Write(sckServer_, bytes);
}

void QtHost::WriteToClient(std::string_view bytes) { Write(sckClient_, bytes); }

void QtHost::SwitchMovementTimer(bool enabled) {
    if (!enabled) {
        tmrMove_.stop();
    } else if (!tmrMove_.isActive()) {
        tmrMove_.start();
    }
}

LocalTime QtHost::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::string QtHost::ShortDate(const LocalTime& time) const {
    return ToBotText(QLocale::system().toString(QDate(time.year, time.month, time.day), QLocale::ShortFormat));
}

std::string QtHost::LongTime(const LocalTime& time) const {
    const QLocale locale = QLocale::system();
    return ToBotText(locale.toString(QTime(time.hour, time.minute, time.second), LongTimeFormat(locale)));
}

double QtHost::Random() { return QRandomGenerator::global()->generateDouble(); }

void QtHost::ConnectServer(const std::string& profileAddress, int profilePort) {
    Release(sckServer_);
    std::string address = profileAddress;
    int port = profilePort;
    if (resolver_) resolver_(address, port);
    sckServer_ = new QTcpSocket(this);
    connect(sckServer_, &QTcpSocket::connected, this, [this] {
        RunHandler([this] { session_.OnServerConnected(); });
        if (sckClient_) ReadPacket(sckClient_, &Session::OnClientData);
    });
    Watch(sckServer_, &Session::OnServerData, &Session::OnServerClosed, &Session::OnServerError);

    if (port < 1 || port > kLastPort) {
        const SocketError noPort{0, "there is no port " + std::to_string(port), 0, FromUtf8(address)};
        QTimer::singleShot(0, sckServer_, [this, noPort] { RunHandler([&] { session_.OnServerError(noPort); }); });
        return;
    }
    const std::string builtIn = *kClientModeServer == '\0' ? kGameServer : kClientModeServer;
    sckServer_->connectToHost(FromUtf8Text(ToUtf8(address.empty() ? builtIn : address)), static_cast<quint16>(port));
}

void QtHost::CloseClient() {
    listener_.close();
    Release(sckClient_);
}

bool QtHost::ListenForClient(std::int16_t port) {
    listener_.close();
    return listener_.listen(QHostAddress::LocalHost, static_cast<quint16>(port));
}

void QtHost::AcceptClient() {
    Release(sckClient_);
    sckClient_ = listener_.nextPendingConnection();
    listener_.close();
    if (!sckClient_) return;
    sckClient_->setParent(this);
    Watch(sckClient_, &Session::OnClientData, &Session::OnClientClosed, &Session::OnClientError);
}

std::string QtHost::StartClient(const std::string& program, const std::string& characterFile) {
    clientWindow_->BeforeStart();
    QProcess client;
    client.setProgram(FromUtf8Text(program));
    client.setArguments({FromUtf8Text(characterFile)});
    client.setWorkingDirectory(FromUtf8Text(currentFolder_));
    // What is typed at the terminal is for the bot, and what is printed there is the bot's.
    client.setStandardInputFile(QProcess::nullDevice());
    client.setStandardOutputFile(QProcess::nullDevice());
    qint64 process = 0;
    if (!client.startDetached(&process)) return StartRefusal(program, client);
    clientWindow_->AfterStart(process);
    return {};
}

std::int64_t QtHost::FindClientWindow() {
    const std::optional<std::int64_t> window = clientWindow_->Find();
    // Told once the server is connected, for that is when the console is cleared.
    if (!window && !toldNoWindows_ && IsServerConnected()) {
        toldNoWindows_ = true;
        ShowConsoleLine("On this desktop the Furcadia client's window can't be found, so it can't be closed either.");
    }
    return window.value_or(0);
}

void QtHost::Watch(QTcpSocket* socket, PacketHandler onData, void (Session::*onClosed)(), ErrorHandler onError) {
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, onData] {
        if (!socket->property(kWaits).toBool()) ReadPacket(socket, onData);
    });
    connect(socket, &QTcpSocket::disconnected, this,
            [this, socket, onData, onClosed] { Drain(socket, onData, onClosed); });
    connect(socket, &QTcpSocket::errorOccurred, this, [this, socket, onError](QAbstractSocket::SocketError error) {
        if (error == QAbstractSocket::RemoteHostClosedError) return;  // an orderly end, told by disconnected
        const SocketError what{static_cast<int>(error), FromUtf8(socket->errorString().toStdString()), 0,
                               FromUtf8(socket->peerName().toStdString())};
        RunHandler([this, onError, &what] { (session_.*onError)(what); });
    });
}

void QtHost::ReadPacket(QTcpSocket* socket, PacketHandler onData) {
    if (!IsOurs(socket) || socket->bytesAvailable() == 0) return;
    // A client may log in before the server it is to be led to has answered: what it says waits for that.
    if (socket == sckClient_ && sckServer_ && !IsConnected(sckServer_)) return;
    const QByteArray packet = TakePacket(*socket);
    RunHandler([&] { (session_.*onData)({packet.data(), static_cast<std::size_t>(packet.size())}); });
    // The rest of a flood waits until everything else has had its turn.
    if (IsOurs(socket) && socket->bytesAvailable() > 0) {
        socket->setProperty(kWaits, true);
        QTimer::singleShot(0, socket, [this, socket, onData] {
            socket->setProperty(kWaits, false);
            ReadPacket(socket, onData);
        });
    }
}

/// The other side has closed: what it sent before still counts, as if the connection stood until it is read.
void QtHost::Drain(QTcpSocket* socket, PacketHandler onData, void (Session::*onClosed)()) {
    while (IsOurs(socket) && socket->bytesAvailable() > 0 && !ended_) {
        draining_ = socket;
        const QByteArray packet = TakePacket(*socket);
        RunHandler([&] { (session_.*onData)({packet.data(), static_cast<std::size_t>(packet.size())}); });
        draining_ = nullptr;
    }
    if (!IsOurs(socket)) return;
    Release(socket == sckServer_ ? sckServer_ : sckClient_);
    RunHandler([this, onClosed] { (session_.*onClosed)(); });
}

void QtHost::Release(QTcpSocket*& socket) {
    if (!socket) return;
    QTcpSocket* const released = std::exchange(socket, nullptr);
    released->disconnect(this);
    // What was written before goes out before the connection closes.
    released->flush();
    if (released->state() == QAbstractSocket::ConnectedState) {
        connect(released, &QTcpSocket::disconnected, released, &QObject::deleteLater);
        released->disconnectFromHost();
    } else {
        released->abort();
        released->deleteLater();
    }
}
