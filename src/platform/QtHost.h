#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "net/Link.h"
#include "net/SendBrake.h"
#include "net/Session.h"
#include "net/SessionObserver.h"
#include "platform/ClientWindow.h"
#include "platform/DiskFiles.h"
#include "platform/FrontEnd.h"
#include "platform/ProxyFile.h"
#include "platform/Reconnector.h"
#include "platform/Wire.h"

/// The real world of a bot: Qt's sockets, timers and clock. It owns the bot and its session, and calls them from the
/// event loop, one handler at a time. It translates and decides nothing.
class QtHost final : public QObject, public Host, public Link {
  public:
    /// @param programFolder  where data files live, UTF-8
    QtHost(FrontEnd& frontEnd, std::string programFolder);

    Bot& bot() { return bot_; }
    const Bot& bot() const { return bot_; }
    Session& session() { return session_; }
    const Session& session() const { return session_; }

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

    /// Connects at once, as the user wants it.
    void ConnectNow();

    /// Whether a connection that is lost, or can't be had, is tried again, with growing pauses and for ever. A refused
    /// login is not.
    void StayConnected(bool stays);

    /// How many lines a second the script may send; 0 for as many as it likes.
    void SetBrake(int linesPerSecond) { brake_.SetRate(linesPerSecond); }

    /// Calls off the try that was to come.
    void StopTrying();

    /// Disconnects for good: the script hears of the end, but can't connect again.
    void Leave();

    // Host
    bool IsServerConnected() const override { return IsConnected(server_); }
    bool IsClientConnected() const override { return IsConnected(client_); }
    void WriteToServer(std::string_view bytes) override;
    void WriteToClient(std::string_view bytes) override;
    void Connect() override;
    void Disconnect() override;
    void ShowConsoleLine(std::string_view line) override { frontEnd_.ShowConsoleLine(line); }
    void SwitchMovementTimer(bool enabled) override;
    LocalTime Now() const override;
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    double Random() override;
    Files& Disk() override { return disk_; }
    std::string ProgramFolder() const override { return programFolder_; }

    // Link
    void ConnectServer(const std::string& profileAddress, int profilePort) override;
    void CloseServer() override;
    void RelayToServer(std::string_view bytes) override { Write(server_, bytes); }
    void CloseClient() override;
    bool ListenForClient(std::int16_t port) override;
    void AcceptClient() override;
    void EnterFolder(const std::string& folder) override { currentFolder_ = folder; }
    void WriteProxyFile(const std::string& path, std::string_view text) override { proxy_.Write(path, text); }
    void TakeAwayProxyFile() override { proxy_.TakeAway(); }
    std::string StartClient(const std::string& program, const std::string& characterFile) override;
    std::int64_t FindClientWindow() override;
    void CloseClientWindow(std::int64_t window) override { clientWindow_->Close(window); }
    void ClearConsole() override { frontEnd_.ClearConsole(); }
    void ShowMessage(std::string_view title, std::string_view text) override { frontEnd_.ShowMessage(title, text); }
    void StatusChanged() override { frontEnd_.StatusChanged(); }

    /// The folder that programs are started from; empty before a client was started.
    const std::string& CurrentFolder() const { return currentFolder_; }

  private:
    FrontEnd& frontEnd_;
    std::string programFolder_, currentFolder_;
    DiskFiles disk_;
    ProxyFile proxy_{disk_};
    bool ended_ = false, leaving_ = false, stays_ = false;
    AddressResolver resolver_;
    SessionObserver* observer_ = nullptr;

    Wire* server_ = nullptr;  ///< a new one for every connection; null when there is none
    Wire* client_ = nullptr;
    QTcpServer listener_;
    QTimer tmrScript_{this}, tmrMove_{this};
    std::unique_ptr<ClientWindow> clientWindow_ = MachineClientWindow();
    bool toldNoWindows_ = false;

    Reconnector reconnector_{[this] { return Random(); }, [this] { Dial(); }, this};
    QElapsedTimer online_;  ///< since the server was connected; invalid when it isn't

    Bot bot_{*this};
    Session session_{bot_, *this};

    SendBrake brake_;
    QTimer tmrBrake_{this};
    QElapsedTimer brakeClock_;

    void SendBraked(std::string_view bytes);
    void ReleaseBraked();
    void TellJam();
    void Dial();
    void TryAgain(Reconnector::First first);
    void TryAgainIfLost();
    static bool IsConnected(const Wire* wire) { return wire && wire->IsConnected(); }
    static void Write(Wire* wire, std::string_view bytes);
    static void Release(Wire*& wire);
    Wire::Listener ServerListener(const std::string& address);
    Wire::Listener ClientListener();
    void OnServerEnd(const std::optional<SocketError>& error);
    void OnClientEnd(const std::optional<SocketError>& error);
    bool MayReadClient() const;
};
