#include "platform/QtHost.h"

#include <QFileInfo>
#include <QHostAddress>
#include <QProcess>
#include <QRandomGenerator>
#include <utility>

#include "movement/modMovement.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

/// A client that says more than the server takes waits until no more than this is left of it.
constexpr qint64 kMostRelayed = qint64{64} * 1024;

}  // namespace

QtHost::QtHost(FrontEnd& frontEnd, std::string programFolder)
    : frontEnd_(frontEnd), programFolder_(std::move(programFolder)) {
    listener_.setMaxPendingConnections(1);
    connect(&listener_, &QTcpServer::newConnection, this,
            [this] { RunHandler([this] { session_.OnClientRequest(); }); });
    StartTimers();
}

void QtHost::StartTimers() {
    tmrMove_.setObjectName("tmrMove");
    tmrBrake_.setObjectName("tmrBrake");
    tmrBrake_.setSingleShot(true);
    clock_.start();
    tmrMove_.setInterval(modMovement::kWalkTickMs);
    connect(tmrScript_.get(), &QTimer::timeout, this, [this] { RunHandler([this] { session_.OnScriptTick(); }); });
    connect(&tmrMove_, &QTimer::timeout, this, [this] { RunHandler([this] { session_.OnWalkTick(); }); });
    connect(&tmrBrake_, &QTimer::timeout, this, [this] { RunHandler([this] { ReleaseBraked(); }); });
}

void QtHost::RunHandler(const std::function<void()>& handler) {
    if (ended_) return;
    try {
        handler();
    } catch (const std::exception& exception) {
        EndWith(exception);
    }
    SendAll();
}

/// What a handler has written leaves in one piece.
void QtHost::SendAll() {
    server_.Send();
    client_.Send();
}

void QtHost::EndWith(const std::exception& exception) {
    if (std::exchange(ended_, true)) return;
    frontEnd_.EndWithFault(AsFault(exception));
}

void QtHost::SwitchMovementTimer(bool enabled) {
    if (!enabled) {
        tmrMove_.stop();
    } else if (!tmrMove_.isActive()) {
        // Started anew with every new target, a walk that is given one twice a second would never take a step.
        tmrMove_.start();
    }
}

double QtHost::Random() { return QRandomGenerator::global()->generateDouble(); }

// --- the game server ---------------------------------------------------------------------------------------------

void QtHost::WriteToServer(std::string_view bytes) {
    session_.NoteSent(bytes);
    bot_.scriptActs ? SendBraked(bytes) : server_.Write(bytes);
}

void QtHost::SendBraked(std::string_view lines) {
    server_.Write(brake_.Take(lines, bot_.place, clock_.elapsed()));
    session_.OnBraked(brake_.TakeReport());
    if (!tmrBrake_.isActive()) ReleaseBraked();
}

void QtHost::ReleaseBraked() {
    server_.Write(brake_.Release(clock_.elapsed()));
    if (const auto wait = brake_.WaitMs(clock_.elapsed())) tmrBrake_.start(static_cast<int>(*wait));
}

void QtHost::ConnectServer(const std::string& address, int port) {
    CloseServer();
    server_.Connect(ToUtf8(address), port, ServerListener(address));
}

void QtHost::CloseServer() {
    dialer_.OnClosed();
    brake_.Clear();  // what still waits there was for the session that ends
    server_.Close();
}

Wire::Listener QtHost::ServerListener(const std::string& address) {
    Wire::Listener listener;
    listener.onConnected = [this] { OnServerConnected(); };
    listener.onSilence = [this, address] {
        session_.OnServerSilent(address, static_cast<int>(Wire::kAnswerWithin.count()));
    };
    listener.onData = [this](std::string_view bytes, bool goesOn) {
        RunHandler([&] { session_.OnServerData(bytes, goesOn); });
    };
    listener.onEnd = [this](const auto& error) { OnServerEnd(error); };
    listener.onWritten = [this] { client_.Resume(); };
    return listener;
}

void QtHost::OnServerConnected() {
    dialer_.OnConnected();
    RunHandler([this] { session_.OnServerConnected(); });
    client_.Resume();
}

void QtHost::OnServerEnd(const std::optional<SocketError>& error) {
    CloseServer();  // first: the script, which hears of the end now, may connect again
    RunHandler([&] { error ? session_.OnServerError(*error) : session_.OnServerClosed(); });
    dialer_.TryAgainIfLost();
    client_.Resume();
}

// --- the local client --------------------------------------------------------------------------------------------

bool QtHost::ListenForClient(std::int16_t port) {
    listener_.close();
    return listener_.listen(QHostAddress::LocalHost, static_cast<quint16>(port));
}

void QtHost::CloseClient() {
    listener_.close();
    client_.Close();
}

void QtHost::AcceptClient() {
    client_.Close();
    QTcpSocket* const socket = listener_.nextPendingConnection();
    listener_.close();  // last: it takes along whoever still waits there
    if (socket) client_.TakeOver(socket, ClientListener());
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
    return !server_.IsOpen() || (server_.IsConnected() && server_.UnsentBytes() <= kMostRelayed);
}

void QtHost::OnClientEnd(const std::optional<SocketError>& error) {
    client_.Close();
    RunHandler([&] {
        if (error) session_.OnClientError(*error);
        session_.OnClientClosed();
    });
}

std::optional<StartRefusal> QtHost::StartClient(const std::string& program, const std::string& characterFile) {
    clientWindow_->BeforeStart();
    QProcess client;
    client.setProgram(QString::fromStdString(program));
    client.setArguments({QString::fromStdString(characterFile)});
    client.setWorkingDirectory(QString::fromStdString(currentFolder_));
    // What is typed at the terminal is for the bot, and what is printed there is the bot's.
    client.setStandardInputFile(QProcess::nullDevice());
    client.setStandardOutputFile(QProcess::nullDevice());
    qint64 process = 0;
    if (!client.startDetached(&process)) {
        return StartRefusal{QFileInfo(client.program()).isExecutable(), ToBotText(client.errorString())};
    }
    clientWindow_->AfterStart(process);
    return std::nullopt;
}
