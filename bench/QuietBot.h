#pragma once

#include <memory>
#include <string>

#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "engine/Script.h"
#include "net/Link.h"

/// No files at all.
class NoFiles final : public Files {
  public:
    Outcome<std::string> Read(const std::string& path) const override {
        return RuntimeFault(FaultKind::FileNotFound, path);
    }
    Outcome<Done> Write(const std::string& path, std::string_view) override {
        return RuntimeFault(FaultKind::PathOrFileAccess, path);
    }
    std::optional<std::string> Find(const std::string&) const override { return std::nullopt; }
    std::string Absolute(const std::string& path) const override { return path; }
    std::string DataPath(const std::string&, const std::string& name) const override { return name; }
    Outcome<std::optional<std::string>> ReadData(const std::string&) const override {
        return std::optional<std::string>();
    }
    bool LeadToSameFile(const std::string&, const std::string&) const override { return false; }
    Outcome<std::unique_ptr<Lock>> LockFolder(const std::string&) override { return std::unique_ptr<Lock>(); }
};

/// A world that costs nothing: connected, and counts what the bot sends instead of sending it.
class QuietHost final : public Host {
  public:
    std::size_t written = 0;

    bool IsServerConnected() const override { return true; }
    bool IsClientConnected() const override { return false; }
    void WriteToServer(std::string_view bytes) override { written += bytes.size(); }
    void WriteToClient(std::string_view) override {}
    void Connect() override {}
    void Disconnect() override {}
    void ShowConsoleLine(std::string_view) override {}
    void SwitchMovementTimer(bool) override {}
    LocalTime Now() const override { return {}; }
    std::string ShortDate(const LocalTime&) const override { return "1/1/1970"; }
    std::string LongTime(const LocalTime&) const override { return "12:00:00 AM"; }
    double Random() override { return 0.5; }
    Files& Disk() override { return files_; }
    std::string ProgramFolder() const override { return "."; }

  private:
    NoFiles files_;
};

/// A machine that does nothing for a session.
class QuietLink final : public Link {
  public:
    void ConnectServer(const std::string&, int) override {}
    void CloseServer() override {}
    void CloseClient() override {}
    void RelayToServer(std::string_view) override {}
    bool ListenForClient(std::int16_t) override { return false; }
    void AcceptClient() override {}
    void EnterFolder(const std::string&) override {}
    void WriteProxyFile(const std::string&, std::string_view) override {}
    void TakeAwayProxyFile() override {}
    std::optional<StartRefusal> StartClient(const std::string&, const std::string&) override { return std::nullopt; }
    std::optional<std::int64_t> FindClientWindow() override { return std::nullopt; }
    void CloseClientWindow(std::int64_t) override {}
    void ClearConsole() override {}
    void ShowMessage(std::string_view, std::string_view) override {}
    void StatusChanged() override {}
};

/// A bot in that world, by the name of Greeter, on a map where it may speak.
struct QuietBot {
    QuietHost host;
    Bot bot{host};

    QuietBot() {
        bot.state.vorel.name = "Greeter";
        bot.profile.maps = bot.state.map = "Practice Dream";
        bot.state.player.name = "Ann";
        bot.state.message = "hello there, how are you";
    }

    /// @param lines  each with CR LF behind it
    void SetScript(const std::string& lines) {
        bot.script = std::make_shared<Script>("VSPK 01.00 Vorel\r\n" + lines + "*Endtriggers* 9999 *Endtriggers*\r\n");
    }
};

/// A whisper's trigger of the usual size: a cause, a condition that does not hold for the bot's message, two effects.
inline std::string WhisperTrigger(int number) {
    return "(0:6) When somebody whispers\r\n"
           " (1:2) just {word" +
           std::to_string(number) +
           "},\r\n"
           "     (5:8) say {Hello, [player]!}\r\n"
           "     (5:12) whisper back {You said [message].}\r\n\r\n";
}

inline std::string WhisperTriggers(int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) lines += WhisperTrigger(i);
    return lines;
}
