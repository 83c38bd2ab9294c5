#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What a socket says of its failure. Windows-1252.
struct SocketError {
    int number = 0;
    std::string description;
    int systemCode = 0;
    std::string source;
};

/// Why a program that is there could not be started.
struct StartRefusal {
    bool mayBeRun = true;  ///< as far as its file's permissions go
    std::string reason;    ///< the system's; Windows-1252
};

/// What a session needs of the world beyond what its bot needs: sockets, the local game client, and a place to show how
/// it stands. What happens on the sockets comes back as calls of Session's On… operations. Paths are UTF-8.
class Link {
  public:
    virtual ~Link() = default;

    /// Begins to connect to the game server.
    /// @param address  Windows-1252
    /// @param port     one that is none fails like any other error of the socket
    virtual void ConnectServer(const std::string& address, int port) = 0;

    /// Close without a word to the session.
    virtual void CloseServer() = 0;
    virtual void CloseClient() = 0;

    /// Passes the client's lines on to the game server in one piece; the session notes each of them as sent.
    virtual void RelayToServer(std::string_view bytes) = 0;

    /// Listens on this computer for the local client, and for one only.
    /// @return false when the port is taken
    virtual bool ListenForClient(std::int16_t port) = 0;

    /// Makes the calling client the linked one, and stops listening.
    virtual void AcceptClient() = 0;

    /// The folder that programs are started from and looked up in from now on.
    virtual void EnterFolder(const std::string& folder) = 0;

    /// Writes the small file that tells the client where to connect.
    /// @throws RuntimeFault PathOrFileAccess
    virtual void WriteProxyFile(const std::string& path, std::string_view text) = 0;

    /// Takes that file away at the end of its session, if it is there, and puts back what it stood in place of.
    virtual void TakeAwayProxyFile() = 0;

    /// Starts the client's program with the character file, its window shown as usual.
    /// @return why that can't be done; nothing when it was started
    virtual std::optional<StartRefusal> StartClient(const std::string& program, const std::string& characterFile) = 0;

    /// The handle of the window of the client that was started last; 0 when it has none, or none yet, and nothing where
    /// windows of other programs can't be found.
    virtual std::optional<std::int64_t> FindClientWindow() = 0;

    /// Asks that window to close; nothing happens when it is gone.
    virtual void CloseClientWindow(std::int64_t window) = 0;

    /// Empties the console.
    virtual void ClearConsole() = 0;

    /// Shows a message that the user must acknowledge. Windows-1252.
    virtual void ShowMessage(std::string_view title, std::string_view text) = 0;

    /// Tells that Session::status has changed.
    virtual void StatusChanged() = 0;
};
