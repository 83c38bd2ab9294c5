#pragma once

#include <string>

#include "net/Link.h"
#include "rehearsal/RehearsalHost.h"

/// Stands in for the machine's side of a session: tells each call as a line "link …" of the rehearsal and carries
/// out none, save that closed sockets are closed and the calling client is connected.
class RecordingLink final : public Link {
  public:
    explicit RecordingLink(RehearsalHost& host) : host_(host) {}

    int takenPorts = 0;  ///< so many draws of a port meet a taken one
    std::int64_t window = 0;

    void ConnectServer(const std::string& address, int port) override {
        Tell("connect " + address + ":" + std::to_string(port));
    }
    void CloseServer() override {
        if (host_.IsServerConnected()) Tell("close server");
        host_.SetServerConnected(false);
    }
    void CloseClient() override {
        if (host_.IsClientConnected()) Tell("close client");
        host_.SetClientConnected(false);
    }
    void RelayToServer(std::string_view bytes) override { host_.WriteToServer(bytes); }
    bool ListenForClient(std::int16_t port) override {
        ports.push_back(port);
        return takenPorts-- <= 0;
    }
    void AcceptClient() override { host_.SetClientConnected(true); }
    void EnterFolder(const std::string& folder) override { Tell("enter " + folder); }
    void WriteProxyFile(const std::string& path, std::string_view text) override {
        Tell("write " + path + "=" + std::string(text));
        hasProxyFile_ = true;
    }
    void TakeAwayProxyFile() override {
        if (std::exchange(hasProxyFile_, false)) Tell("take away");
    }
    std::optional<StartRefusal> StartClient(const std::string& program, const std::string& characterFile) override {
        Tell("start " + program + " " + characterFile);
        return std::nullopt;
    }
    std::optional<std::int64_t> FindClientWindow() override { return window; }
    void CloseClientWindow(std::int64_t handle) override { Tell("close window " + std::to_string(handle)); }

    void ClearConsole() override {}
    void ShowMessage(std::string_view title, std::string_view text) override { host_.ShowMessage(title, text); }
    void StatusChanged() override {}

    std::vector<std::int16_t> ports;  ///< the ones that were tried

  private:
    RehearsalHost& host_;
    bool hasProxyFile_ = false;

    void Tell(const std::string& what) { host_.Tell("link", what); }
};
