#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "bot/Files.h"
#include "bot/Host.h"
#include "net/Link.h"

class Session;

/// The stand-in world of a rehearsal: no network, the sockets' states are set from outside, and everything the bot
/// does is told as one line of text, in the order in which it happens.
class RehearsalHost final : public Host, public Link {
  public:
    /// @param disk    where the bot's files are
    /// @param folder  the program's own folder for this rehearsal, UTF-8
    /// @param tell    takes each line: "sent …", "client …", "console …", "box …"
    RehearsalHost(Files& disk, std::string folder, std::function<void(const std::string&)> tell);

    /// Which session the bot's own connecting and disconnecting goes to. Must be set before the bot runs.
    void SetSession(Session& session) { session_ = &session; }

    void SetServerConnected(bool connected) { serverConnected_ = connected; }
    void SetClientConnected(bool connected) { clientConnected_ = connected; }
    bool IsMovementTimerEnabled() const { return movementTimer_; }

    void FreezeClock(const LocalTime& now) { frozenNow_ = now; }
    void SeedRandom(std::uint32_t seed) { random_.seed(seed); }

    /// Tells a login with stars in place of its password.
    void HidePasswords() { hidesPasswords_ = true; }

    void Tell(std::string_view what, std::string_view text);

    /// Takes the oldest command sent to the server that was not taken yet; nothing when there is none.
    std::optional<std::string> OldestUnclaimed() const;
    void Claim() { unclaimed_.pop_front(); }

    // Host
    bool IsServerConnected() const override { return serverConnected_; }
    bool IsClientConnected() const override { return clientConnected_; }
    void WriteToServer(std::string_view bytes) override;
    void WriteToClient(std::string_view bytes) override;
    void Connect() override;
    void Disconnect() override;
    void ShowConsoleLine(std::string_view line) override { Tell("console", line); }
    void SwitchMovementTimer(bool enabled) override { movementTimer_ = enabled; }
    LocalTime Now() const override;
    std::string ShortDate(const LocalTime& time) const override;
    std::string LongTime(const LocalTime& time) const override;
    double Random() override;
    Files& Disk() override { return disk_; }
    std::string ProgramFolder() const override { return folder_; }

    // Link
    void ConnectServer(const std::string&, int) override {}
    void CloseServer() override { serverConnected_ = false; }
    void RelayToServer(std::string_view bytes) override { WriteToServer(bytes); }
    void CloseClient() override { clientConnected_ = false; }
    bool ListenForClient(std::int16_t) override { return true; }
    void AcceptClient() override { clientConnected_ = true; }
    void EnterFolder(const std::string&) override {}
    void WriteProxyFile(const std::string&, std::string_view) override {}
    void TakeAwayProxyFile() override {}
    std::optional<StartRefusal> StartClient(const std::string&, const std::string&) override { return {}; }
    std::optional<std::int64_t> FindClientWindow() override { return 0; }
    void CloseClientWindow(std::int64_t) override {}
    void ClearConsole() override {}
    void ShowMessage(std::string_view title, std::string_view text) override;
    void StatusChanged() override {}

  private:
    Files& disk_;
    std::string folder_;
    std::function<void(const std::string&)> tell_;
    Session* session_ = nullptr;
    bool serverConnected_ = false, clientConnected_ = false, movementTimer_ = false;
    bool hidesPasswords_ = false;
    std::optional<LocalTime> frozenNow_;
    std::mt19937 random_{std::random_device{}()};
    std::deque<std::string> unclaimed_;
};
