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

/// A client that says more than the server takes waits until no more than this is left of it.
constexpr qint64 kMostRelayed = qint64{64} * 1024;

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

}  // namespace

QtHost::QtHost(FrontEnd& frontEnd, std::string programFolder)
    : frontEnd_(frontEnd), programFolder_(std::move(programFolder)) {
    listener_.setMaxPendingConnections(1);
    connect(&listener_, &QTcpServer::newConnection, this,
            [this] { RunHandler([this] { session_.OnClientRequest(); }); });

    brakeClock_.start();
    tmrBrake_.setObjectName("tmrBrake");
    tmrBrake_.setSingleShot(true);
    connect(&tmrBrake_, &QTimer::timeout, this, [this] { RunHandler([this] { ReleaseBraked(); }); });

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
    RunHandler([this] { Disconnect(); });
}

// --- connecting again --------------------------------------------------------------------------------------------

void QtHost::ConnectNow() {
    reconnector_.Forget();
    session_.ForgetRefusals();
    Dial();
}

void QtHost::StayConnected(bool stays) {
    stays_ = stays;
    if (!stays) StopTrying();
}

void QtHost::StopTrying() {
    reconnector_.Forget();
    session_.CallOffNextTry();
}

void QtHost::Dial() {
    if (leaving_) return;
    RunHandler([this] { session_.Connect(); });
    TryAgainIfLost();
}

void QtHost::Connect() {
    const SessionStatus& status = session_.status();
    if (leaving_ || !status.IsIdle() || status.IsLoginRefused()) return;
    TryAgain(Reconnector::First::AtOnce);
}

void QtHost::Disconnect() {
    reconnector_.EndPause();
    session_.Disconnect();
}

void QtHost::TryAgain(Reconnector::First first) {
    constexpr int kSecondMs = 1000;
    const int pause = reconnector_.Schedule(first);
    if (pause == 0) return session_.Connect();
    session_.AwaitNextTry((pause + kSecondMs / 2) / kSecondMs);
}

/// After a session's end, when the script has had its turn to connect by itself.
void QtHost::TryAgainIfLost() {
    const SessionStatus& status = session_.status();
    if (!stays_ || ended_ || leaving_ || !status.IsIdle() || !status.IsLost() || status.IsLoginRefused()) return;
    RunHandler([this] { TryAgain(Reconnector::First::AfterAPause); });
}

// --- sockets and timers ------------------------------------------------------------------------------------------

void QtHost::Write(Wire* wire, std::string_view bytes) {
    if (wire) wire->Write(bytes);
}

void QtHost::Release(Wire*& wire) {
    if (wire) std::exchange(wire, nullptr)->Close();
}

void QtHost::WriteToServer(std::string_view bytes) {
    if (observer_) {
        std::vector<std::string> lines = Split(bytes, "\n");
        if (lines.back().empty()) lines.pop_back();
        for (const std::string& line : lines) observer_->Note(Happening::Sent, line);
    }
    bot_.scriptActs ? SendBraked(bytes) : Write(server_, bytes);
}

void QtHost::SendBraked(std::string_view bytes) {
    Write(server_, brake_.Take(bytes, bot_.place, brakeClock_.elapsed()));
    TellJam();
    if (!tmrBrake_.isActive()) ReleaseBraked();
}

void QtHost::ReleaseBraked() {
    Write(server_, brake_.Release(brakeClock_.elapsed()));
    if (const auto wait = brake_.WaitMs(brakeClock_.elapsed())) tmrBrake_.start(static_cast<int>(*wait));
}

void QtHost::TellJam() {
    const auto [news, busiest] = brake_.TakeReport();
    const std::string file = busiest.file.empty() ? "the script" : FromUtf8(busiest.file);
    const std::string place = "line " + std::to_string(busiest.line) + " of " + file;
    if (news == SendBrake::News::Jam) {
        ShowConsoleLine("The script sends more than the brake lets through, most of it by " + place +
                        ". What is too much waits.");
    } else if (news == SendBrake::News::Emptied) {
        ShowConsoleLine("More than " + std::to_string(SendBrake::kLongestQueue) +
                        " lines, or 1 MiB of them, were waiting to be sent, most of them by " + place +
                        ". They were dropped.");
    }
}

void QtHost::WriteToClient(std::string_view bytes) { Write(client_, bytes); }

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

void QtHost::CloseServer() {
    if (online_.isValid()) reconnector_.SessionEnded(std::chrono::milliseconds(online_.elapsed()));
    online_.invalidate();
    brake_.Clear();
    Release(server_);
}

void QtHost::ConnectServer(const std::string& profileAddress, int profilePort) {
    CloseServer();
    std::string address = profileAddress;
    int port = profilePort;
    if (resolver_) resolver_(address, port);
    const std::string builtIn = *kClientModeServer == '\0' ? kGameServer : kClientModeServer;
    const std::string host = ToUtf8(address.empty() ? builtIn : address);
    server_ = new Wire(new QTcpSocket, ServerListener(host), this);
    server_->Connect(host, port);
}

Wire::Listener QtHost::ServerListener(const std::string& host) {
    Wire::Listener listener;
    listener.onConnected = [this] {
        online_.start();
        RunHandler([this] { session_.OnServerConnected(); });
        if (client_) client_->Resume();
    };
    listener.onSilence = [this, host] {
        ShowConsoleLine(FromUtf8(host) + " has not answered yet. It is given up when it has not answered within " +
                        std::to_string(Wire::kAnswerWithin.count()) + " seconds.");
    };
    listener.onData = [this](std::string_view bytes, bool goesOn) {
        RunHandler([&] { session_.OnServerData(bytes, goesOn); });
    };
    listener.onEnd = [this](const auto& error) { OnServerEnd(error); };
    listener.onWritten = [this] {
        if (client_) client_->Resume();
    };
    return listener;
}

void QtHost::OnServerEnd(const std::optional<SocketError>& error) {
    CloseServer();
    RunHandler([&] { error ? session_.OnServerError(*error) : session_.OnServerClosed(); });
    TryAgainIfLost();
    if (client_) client_->Resume();
}

bool QtHost::ListenForClient(std::int16_t port) {
    listener_.close();
    return listener_.listen(QHostAddress::LocalHost, static_cast<quint16>(port));
}

void QtHost::CloseClient() {
    listener_.close();
    Release(client_);
}

void QtHost::AcceptClient() {
    Release(client_);
    QTcpSocket* const socket = listener_.nextPendingConnection();
    listener_.close();
    if (socket) client_ = new Wire(socket, ClientListener(), this);
}

Wire::Listener QtHost::ClientListener() {
    Wire::Listener listener;
    listener.onData = [this](std::string_view bytes, bool goesOn) {
        RunHandler([&] { session_.OnClientData(bytes, goesOn); });
    };
    listener.onEnd = [this](const auto& error) { OnClientEnd(error); };
    listener.mayRead = [this] { return MayReadClient(); };
    return listener;
}

/// A client may log in before the server it is to be led to has answered, and say more than that takes: it waits.
bool QtHost::MayReadClient() const {
    return !server_ || (server_->IsConnected() && server_->UnsentBytes() <= kMostRelayed);
}

void QtHost::OnClientEnd(const std::optional<SocketError>& error) {
    Release(client_);
    RunHandler([&] {
        if (error) session_.OnClientError(*error);
        session_.OnClientClosed();
    });
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
    if (!window && !toldNoWindows_ && IsServerConnected() && bot_.profile.closeClient == 1) {
        toldNoWindows_ = true;
        ShowConsoleLine("On this desktop the Furcadia client's window can't be found, so it can't be closed either.");
    }
    return window.value_or(0);
}
