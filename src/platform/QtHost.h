#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "net/Link.h"
#include "net/SendBrake.h"
#include "net/Session.h"
#include "platform/ClientWindow.h"
#include "platform/Dialer.h"
#include "platform/DiskFiles.h"
#include "platform/FrontEnd.h"
#include "platform/LineSocket.h"
#include "platform/LocalClock.h"
#include "platform/ProxyFile.h"
#include "platform/ScriptTimer.h"

/// The real world of a bot: Qt's sockets, timers and clock. It owns the bot and its session, and calls them from the
/// event loop, one handler at a time. It translates; what is to be said or done, the session decides. Its own are only
/// the bounds of what is read in advance.
class QtHost final : public QObject, public Host, public Link {
  public:
    /// @param programFolder  where data files live, UTF-8
    QtHost(FrontEnd& frontEnd, std::string programFolder);

    Bot& bot() { return bot_; }
    const Bot& bot() const { return bot_; }
    Session& session() { return session_; }
    const Session& session() const { return session_; }

    /// Runs what something from outside calls for: a socket, a timer, a key. A run-time fault that comes
    /// out of it, or whatever else is thrown, ends the bot: after it nothing runs any more.
    void RunHandler(const std::function<void()>& handler);

    /// Ends the bot for what came out of a handler elsewhere; see Guarded.
    void EndWith(const std::exception& exception);

    // See Dialer.
    void ConnectNow() { dialer_.ConnectNow(); }
    void StayConnected(bool stays) { dialer_.StayConnected(stays); }
    void StopTrying() { dialer_.StopTrying(); }
    void Leave() { dialer_.Leave(); }

    /// How many lines a second the script may send; 0 for as many as it likes.
    void SetBrake(int linesPerSecond) { brake_.SetRate(linesPerSecond); }

    // Host
    bool IsServerConnected() const override { return server_.IsConnected(); }
    bool IsClientConnected() const override { return client_.IsConnected(); }
    void WriteToServer(std::string_view bytes) override;
    void WriteToClient(std::string_view bytes) override { client_.Write(bytes); }
    void Connect() override { dialer_.ConnectForScript(); }
    void Disconnect() override { dialer_.Disconnect(); }
    bool IsConsoleRead() const override { return frontEnd_.IsConsoleRead(); }
    void ShowConsoleLine(std::string_view line) override { frontEnd_.ShowConsoleLine(line); }
    void SwitchMovementTimer(bool enabled) override;
    LocalTime Now() const override { return LocalNow(); }
    std::string ShortDate(const LocalTime& time) const override { return LocalShortDate(time); }
    std::string LongTime(const LocalTime& time) const override { return LocalLongTime(time); }
    double Random() override;
    Files& Disk() override { return disk_; }
    std::string ProgramFolder() const override { return programFolder_; }

    // Link
    void ConnectServer(const std::string& address, int port) override;
    void CloseServer() override;
    void RelayToServer(std::string_view bytes) override { server_.Write(bytes); }
    void CloseClient() override;
    bool ListenForClient(std::int16_t port) override;
    void AcceptClient() override;
    void EnterFolder(const std::string& folder) override { currentFolder_ = folder; }
    void WriteProxyFile(const std::string& path, std::string_view text) override { proxy_.Write(path, text); }
    void TakeAwayProxyFile() override { proxy_.TakeAway(); }
    std::optional<StartRefusal> StartClient(const std::string& program, const std::string& characterFile) override;
    std::optional<std::int64_t> FindClientWindow() override { return clientWindow_->Find(); }
    void CloseClientWindow(std::int64_t window) override { clientWindow_->Close(window); }
    void ClearConsole() override { frontEnd_.ClearConsole(); }
    void ShowMessage(std::string_view title, std::string_view text) override { frontEnd_.ShowMessage(title, text); }
    void StatusChanged() override { frontEnd_.StatusChanged(); }

    /// What was sent to the server and still waits to go out.
    qint64 UnsentBytes() const { return server_.UnsentBytes(); }

    /// The folder that programs are started from; empty before a client was started.
    const std::string& CurrentFolder() const { return currentFolder_; }

  private:
    FrontEnd& frontEnd_;
    std::string programFolder_, currentFolder_;
    DiskFiles disk_;
    ProxyFile proxy_{disk_};
    bool ended_ = false;
    LineSocket server_{this}, client_{this};
    QTcpServer listener_;
    QTimer tmrMove_{this}, tmrBrake_{this};
    const std::shared_ptr<QTimer> tmrScript_ = SharedScriptTimer();
    QElapsedTimer clock_;
    std::unique_ptr<ClientWindow> clientWindow_ = MachineClientWindow();

    Bot bot_{*this};
    Session session_{bot_, *this};
    const std::function<void(const std::function<void()>&)> runHandler_ = [this](const auto& run) { RunHandler(run); };
    Dialer dialer_{session_, runHandler_, [this] { return Random(); }, this};
    SendBrake brake_;

    void SendAll();
    void StartTimers();
    void SendBraked(std::string_view lines);
    void ReleaseBraked();
    Wire::Listener ServerListener(const std::string& address);
    Wire::Listener ClientListener();
    void OnServerConnected();
    void OnServerEnd(const std::optional<SocketError>& error);
    void OnClientEnd(const std::optional<SocketError>& error);
    bool MayReadClient() const;
};
