#pragma once

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "engine/Bot.h"
#include "engine/Host.h"
#include "net/Link.h"
#include "net/Session.h"
#include "net/SessionObserver.h"
#include "platform/ClientWindow.h"
#include "platform/DiskFiles.h"
#include "platform/FrontEnd.h"

/// The real world of a bot: Qt's sockets, timers and clock. It owns the bot and its session, and calls them from the
/// event loop, one handler at a time. It translates and decides nothing.
class QtHost final : public QObject, public Host, public Link {
  public:
    /// @param programFolder  where data files live, UTF-8
    QtHost(FrontEnd& frontEnd, std::string programFolder);

    Bot& bot() { return bot_; }
    const Bot& bot() const { return bot_; }
    Session& session() { return session_; }

    /// Lets an address that stands for something else be put right before it is connected to.
    using AddressResolver = std::function<void(std::string& address, int& port)>;
    void SetAddressResolver(AddressResolver resolver) { resolver_ = std::move(resolver); }

    /// Tells an observer of everything that arrives, is sent, and ticks; nullptr for none.
    void SetObserver(SessionObserver* observer);

    /// Runs what something from outside calls for: a socket, a timer, a key. The one place where a run-time fault is
    /// caught, and whatever else is thrown; after it nothing runs any more.
    void RunHandler(const std::function<void()>& handler);

    /// Ends the bot for what came out of a handler elsewhere; see Guarded.
    void EndWith(const std::exception& exception);

    /// Disconnects for good: the script hears of the end, but can't connect again.
    void Leave();

    // Host
    bool IsServerConnected() const override { return IsConnected(sckServer_); }
    bool IsClientConnected() const override { return IsConnected(sckClient_); }
    void WriteToServer(std::string_view bytes) override;
    void WriteToClient(std::string_view bytes) override;
    void Connect() override {
        if (!leaving_) session_.Connect();
    }
    void Disconnect() override { session_.Disconnect(); }
    void ShowConsoleLine(std::string_view line) override { frontEnd_.ShowConsoleLine(line); }
    void ClearConsole() override { frontEnd_.ClearConsole(); }
    void ShowMessage(std::string_view title, std::string_view text) override { frontEnd_.ShowMessage(title, text); }
    void StatusChanged() override { frontEnd_.StatusChanged(); }
    void SwitchMovementTimer(bool enabled) override;
    LocalTime Now() const override;
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    double Random() override;
    Files& Disk() override { return disk_; }
    std::string ProgramFolder() const override { return programFolder_; }

    // Link
    void ConnectServer(const std::string& profileAddress, int profilePort) override;
    void CloseServer() override { Release(sckServer_); }
    void RelayToServer(std::string_view bytes) override { Write(sckServer_, bytes); }
    void CloseClient() override;
    bool ListenForClient(std::int16_t port) override;
    void AcceptClient() override;
    void EnterFolder(const std::string& folder) override { currentFolder_ = folder; }
    void WriteProxyFile(const std::string& path, std::string_view text) override { disk_.Write(path, text); }
    std::string StartClient(const std::string& program, const std::string& characterFile) override;
    std::int64_t FindClientWindow() override;
    void CloseClientWindow(std::int64_t window) override { clientWindow_->Close(window); }

    /// The folder that programs are started from; empty before a client was started.
    const std::string& CurrentFolder() const { return currentFolder_; }

  private:
    FrontEnd& frontEnd_;
    std::string programFolder_, currentFolder_;
    DiskFiles disk_;
    bool ended_ = false, leaving_ = false;
    AddressResolver resolver_;
    SessionObserver* observer_ = nullptr;

    QTcpSocket* sckServer_ = nullptr;  ///< a new one for every connection; null when there is none
    QTcpSocket* sckClient_ = nullptr;
    const QTcpSocket* draining_ = nullptr;  ///< closed by the other side, what it sent not read yet
    QTcpServer listener_;
    QTimer tmrScript_{this}, tmrMove_{this};
    std::unique_ptr<ClientWindow> clientWindow_ = MachineClientWindow();
    bool toldNoWindows_ = false;

    Bot bot_{*this};
    Session session_{bot_, *this};

    using PacketHandler = void (Session::*)(std::string_view packet);
    using ErrorHandler = void (Session::*)(const SocketError& error);

    bool IsConnected(const QTcpSocket* socket) const;
    bool IsOurs(const QTcpSocket* socket) const { return socket == sckServer_ || socket == sckClient_; }
    void Write(QTcpSocket* socket, std::string_view bytes);
    void Release(QTcpSocket*& socket);
    void Watch(QTcpSocket* socket, PacketHandler onData, void (Session::*onClosed)(), ErrorHandler onError);
    void ReadPacket(QTcpSocket* socket, PacketHandler onData);
    void Drain(QTcpSocket* socket, PacketHandler onData, void (Session::*onClosed)());
};
