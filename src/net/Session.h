#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bot/Bot.h"
#include "net/ClientProgram.h"
#include "net/Link.h"
#include "net/PacketLines.h"
#include "net/SendBrake.h"
#include "net/SessionObserver.h"
#include "net/SessionStatus.h"

/// The game server's name.
inline constexpr char kGameServer[] = "lightbringer.furcadia.com";

/// The connection of one bot: to the game server, and to a local client when one is linked. In stand-alone mode the
/// bot logs in by itself; in client mode the client calls here, and every line passes through in both directions.
///
/// Idle -> Connect -> (client mode: listening -> the client calls) -> connecting -> OnServerConnected -> connected
///      -> OnServerClosed or Disconnect -> idle
class Session {
  public:
    Session(Bot& bot, Link& link) : bot_(bot), link_(link) {}

    /// Checks the profile and connects, or tells the user what is missing.
    void Connect();

    /// Ends the session from any state; raises EventDisconnected when the server was connected.
    void Disconnect();

    /// Lets the linked client go and keeps the bot connected.
    void StandAlone();

    /// Shows that the bot will connect again in so many seconds; they end with Connect, Disconnect or CallOffNextTry.
    void AwaitNextTry(int seconds);
    void CallOffNextTry();

    /// Lets a login that was refused be tried again.
    void ForgetRefusals() { status_.refusals = 0; }

    const SessionStatus& status() const { return status_; }

    /// What the user typed on the console: "-" and ":" begin raw commands, "`" precedes one, "/" begins a whisper,
    /// anything else is said.
    void TypeLine(std::string_view text);

    // What happens on the sockets. A packet that goes on has its rest in the next call.

    void OnServerConnected();
    void OnServerData(std::string_view packet, bool goesOn = false);
    void OnServerClosed();
    void OnServerError(const SocketError& error);

    /// @param givenUpAfter  the seconds after which a server that does not answer is given up
    void OnServerSilent(std::string_view address, int givenUpAfter);

    /// What was sent to the server, whole lines, and what the brake says of the script's.
    void NoteSent(std::string_view bytes);
    void OnBraked(const SendBrake::Report& report);

    void OnClientRequest();
    void OnClientConnected();
    void OnClientData(std::string_view packet, bool goesOn = false);
    void OnClientClosed();
    void OnClientError(const SocketError& error);

    // The two timers.

    void OnScriptTick();
    void OnWalkTick();

    /// Connects elsewhere than was chosen, in both modes.
    /// @param address  empty: as chosen
    /// @param port     0: the profile's
    void SetServer(std::string address, int port);

    /// The server that stand-alone mode connects to, as its user has chosen it: for as long as the program runs, and no
    /// part of any profile. At first it is the game's own.
    void ChooseServer(std::string address) { chosenServer_ = std::move(address); }
    const std::string& ChosenServer() const { return chosenServer_; }

    /// Lets an address that stands for something else be put right before it is connected to.
    using AddressResolver = std::function<void(std::string& address, int& port)>;
    void SetAddressResolver(AddressResolver resolver) { resolver_ = std::move(resolver); }

    /// Tells an observer of everything that arrives, is sent, and ticks; nullptr for none.
    void SetObserver(SessionObserver* observer) { observer_ = observer; }

    /// Keeps the unended line at the end of a packet for the next packet, instead of dropping it.
    void KeepSplitLines(bool keep);

  private:
    Bot& bot_;
    Link& link_;
    SessionStatus status_;
    ClientProgram client_{bot_, link_};
    std::string chosenServer_ = kGameServer, serverAddress_;
    int serverPort_ = 0;
    AddressResolver resolver_;
    PacketLines serverLines_, clientLines_;
    std::string toClient_, toServer_;  ///< to be relayed when the packet has come to its end
    SessionObserver* observer_ = nullptr;

    void Note(SessionObserver::Happening happening, std::string_view text = {});
    void ReadServerLines(const std::vector<std::string_view>& lines);
    void TellDropped(std::string_view whose, PacketLines& lines);
    void ConnectStandAlone();
    void ConnectThroughClient();
    void ConnectServer(std::string address);
    void LearnPassword();
    void LogIn();
    bool WasLetIn() const;
    bool FilterLine(std::string_view line);
    void ShowBotName();
    void ShowMenus(bool inSession, bool canStandAlone);
    void ShowIdle(SessionStatus::End end);
    void GiveUpClient(const std::string& why);
};
