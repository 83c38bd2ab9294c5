#include "net/Session.h"

#include <optional>
#include <utility>
#include <vector>

#include "Version.h"
#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "bot/Place.h"
#include "bot/ProfilePaths.h"
#include "engine/Dispatcher.h"
#include "movement/modMovement.h"
#include "net/CharacterFile.h"
#include "net/ClientLines.h"
#include "net/ServerLines.h"
#include "net/SessionTexts.h"
#include "send/modSend.h"
#include "text/Fault.h"
#include "text/Text.h"

using Happening = SessionObserver::Happening;

namespace {

constexpr std::string_view kInvalidSelection = "Invalid Selection";

/// How much of a packet is held back until the rest of it has come, before it is relayed.
constexpr std::size_t kMostHeldBack = std::size_t{64} * 1024;

}  // namespace

void Session::Connect() {
    const bool waited = std::exchange(status_.nextTry, 0) > 0;
    status_.end = SessionStatus::End::NotYet;
    const bool character = FindProfileFile(bot_, bot_.profile.characterPath).has_value();
    // Without a client to link nobody needs its program.
    const bool client = !bot_.profile.IsClientMode() || FindProfileFile(bot_, bot_.profile.clientPath).has_value();
    status_.lacksFiles = !character || !client;
    if (status_.lacksFiles) {
        link_.ShowMessage(kInvalidSelection, MissingFiles(character, client));
    } else if (bot_.profile.owners.Text().empty()) {
        link_.ShowMessage("Bot Owner",
                          "You must add at least one name to the bot owners list before attempting to connect.");
    } else if (bot_.profile.IsClientMode()) {
        ConnectThroughClient();
    } else {
        ConnectStandAlone();
    }
    // The profile may have lost what it takes meanwhile: then the try is over before it has begun.
    if (waited && status_.canConnect) ShowMenus(false, false);
}

void Session::ConnectStandAlone() {
    ShowMenus(true, false);
    link_.CloseServer();
    link_.CloseClient();
    ConnectServer(chosenServer_);
}

void Session::ConnectThroughClient() {
    ShowMenus(true, true);
    LearnPassword();
    link_.CloseServer();
    link_.CloseClient();
    if (const std::string why = client_.Start(); !why.empty()) GiveUpClient(why);
}

void Session::GiveUpClient(const std::string& why) {
    link_.CloseClient();
    bot_.host.ShowConsoleLine(why);
    status_.reason = why;
    ShowIdle(SessionStatus::End::ByError);
}

/// @param address  empty for the game's own server: by its name, or the numeric address the program was built with
void Session::ConnectServer(std::string address) {
    LearnPassword();
    serverLines_.Clear();
    toClient_.clear();
    if (!serverAddress_.empty()) address = serverAddress_;
    int port = serverPort_ == 0 ? bot_.profile.port : serverPort_;
    if (resolver_) resolver_(address, port);
    if (address.empty()) address = *kClientModeServer == '\0' ? kGameServer : kClientModeServer;
    link_.ConnectServer(address, port);
}

void Session::Disconnect() {
    status_.nextTry = 0;
    ShowIdle(SessionStatus::End::Asked);
    link_.CloseClient();
    if (bot_.host.IsServerConnected()) {
        Note(Happening::Closed);
        link_.CloseServer();
        RunScript(bot_, EventDisconnected);
    } else {
        link_.CloseServer();
    }
    client_.ForgetWindow();
}

void Session::StandAlone() {
    // Until the client has logged in through the bot there is no session that could go on without it.
    if (!bot_.host.IsServerConnected()) return Disconnect();
    link_.CloseClient();
    ShowMenus(status_.canDisconnect, false);
}

void Session::AwaitNextTry(int seconds) {
    status_.nextTry = seconds;
    status_.canDisconnect = true;
    bot_.host.ShowConsoleLine(NextTryLine(seconds));
    link_.StatusChanged();
}

void Session::CallOffNextTry() {
    if (std::exchange(status_.nextTry, 0) == 0) return;
    status_.canDisconnect = false;
    link_.StatusChanged();
}

void Session::TypeLine(std::string_view text) {
    Note(Happening::Typed, text);
    HeardMark heard(bot_, Heard::From::User, text);
    // What is typed goes the way of a client's lines, so that "desc " and "\"&" mean the same here.
    const auto sendIfAccepted = [this](std::string_view line) {
        if (FilterLine(line)) modSend::SendLine(bot_, line);
    };
    if (text.starts_with('-') || text.starts_with(':')) {
        sendIfAccepted(text);
    } else if (text.starts_with('`')) {
        sendIfAccepted(text.substr(1));
    } else if (text.starts_with('/')) {
        sendIfAccepted("wh " + std::string(text.substr(1)));
    } else if (FilterLine(text)) {
        modSend::SendSpeech(bot_, text);
    }
}

/// Whatever is said of the password from now on, before and beside the login too, is to be known for what it is.
void Session::LearnPassword() {
    const std::optional<std::string> path = FindProfileFile(bot_, bot_.profile.characterPath);
    if (!path) return;
    const auto bytes = bot_.host.Disk().Read(*path);
    bot_.characterPassword = bytes ? PasswordIn(*bytes) : std::string();  // a login that needs the file will say so
}

void Session::OnServerConnected() {
    Note(Happening::Connected);
    bot_.state.BeginSession();
    LearnPassword();
    bot_.clock.seconds = bot_.clock.minutes = 0;  // the hours never count, see ElapsedClock
    status_.connection = "Connected";
    ShowMenus(true, bot_.host.IsClientConnected());
    link_.ClearConsole();
    if (!bot_.profile.IsClientMode()) LogIn();
    client_.LookForWindow();
    RunScript(bot_, EventConnected);
}

void Session::LogIn() {
    const std::optional<std::string> path = FindProfileFile(bot_, bot_.profile.characterPath);
    if (!path) throw RuntimeFault(FaultKind::FileNotFound, ToUtf8(bot_.profile.characterPath));
    PlaceMark place(bot_, *path);
    const Character character = ReadCharacter(ValueOrFault(bot_.host.Disk().Read(*path)), place);
    bot_.state.password = character.password;
    bot_.state.vorel.desc = character.desc;
    bot_.state.vorel.looks = character.looks;
    bot_.state.vorel.name = character.name;
    ShowBotName();
    // At once, without a greeting of the server to wait for. Kept on purpose: the sender ends every text with a line
    // feed of its own, so an empty line follows the two.
    modSend::SendLine(
        bot_, "connect " + character.name + " " + character.password + "\ncolor " + character.looks.Code() + "\n");
    modSend::SendDesc(bot_, bot_.state.vorel.desc);
}

void Session::OnServerData(std::string_view packet, bool goesOn) {
    if (!bot_.host.IsServerConnected()) return;
    std::string room;
    const std::vector<std::string_view> lines = serverLines_.Take(packet, goesOn, room);
    TellDropped("the server", serverLines_);
    ReadServerLines(lines);
    // The client sees a packet only after the bot has answered it, and in one piece; a flood, in large ones.
    if (goesOn && toClient_.size() < kMostHeldBack) return;
    const std::string relayed = std::exchange(toClient_, {});
    if (!relayed.empty() && bot_.host.IsClientConnected()) bot_.host.WriteToClient(relayed);
}

void Session::ReadServerLines(const std::vector<std::string_view>& lines) {
    // Whoever isn't linked by now will not be when the packet has come to its end: a client's link begins a connection.
    const bool relays = bot_.host.IsClientConnected();
    HeardMark heard(bot_, Heard::From::Game);
    for (const std::string_view line : lines) {
        Note(Happening::ServerLine, line);
        heard.AtLine(line);
        ParseServerLine(bot_, line);
        if (relays) toClient_.append(line).append("\n");
    }
}

void Session::TellDropped(std::string_view whose, PacketLines& lines) {
    for (std::size_t dropped = lines.TakeDropped(); dropped > 0; --dropped) {
        bot_.host.ShowConsoleLine(LeftOutLine(whose));
    }
}

void Session::OnServerClosed() {
    Note(Happening::Closed);
    status_.refusals = WasLetIn() ? 0 : status_.refusals + 1;
    ShowIdle(SessionStatus::End::ByServer);
    client_.CloseWindow();
    RunScript(bot_, EventDisconnected);
}

void Session::OnServerError(const SocketError& error) {
    // Kept on purpose: a broken connection raises no EventDisconnected, an orderly end does.
    link_.CloseServer();
    if (WasLetIn()) status_.refusals = 0;
    status_.reason = error.description;
    ShowIdle(SessionStatus::End::ByError);
    bot_.host.ShowConsoleLine(ErrorLine("Server", error));
}

void Session::OnServerSilent(std::string_view address, int givenUpAfter) {
    bot_.host.ShowConsoleLine(SilenceLine(address, givenUpAfter));
}

void Session::NoteSent(std::string_view bytes) {
    if (!observer_) return;
    for (const std::string& line : WrittenLines(bytes)) Note(Happening::Sent, line);
}

void Session::OnBraked(const SendBrake::Report& report) {
    if (const std::string line = BrakeLine(report); !line.empty()) bot_.host.ShowConsoleLine(line);
}

/// The game sends the map of the dream to whoever is let in.
bool Session::WasLetIn() const { return !bot_.state.mapFile.empty(); }

void Session::OnClientRequest() {
    link_.AcceptClient();
    Note(Happening::Linked);
    clientLines_.Clear();
    toServer_.clear();
    // Kept on purpose: with a client the bot always goes to the game's own server, whatever was configured.
    ConnectServer("");
}

void Session::OnClientConnected() {
    Note(Happening::Linked);
    ShowMenus(status_.canDisconnect, true);
}

void Session::OnClientData(std::string_view packet, bool goesOn) {
    if (!bot_.host.IsClientConnected()) return;
    std::string room;
    const std::vector<std::string_view> lines = clientLines_.Take(packet, goesOn, room);
    TellDropped("the client", clientLines_);
    for (const std::string_view line : lines) {
        Note(Happening::ClientLine, line);
        HeardMark heard(bot_, Heard::From::Client, line);
        if (!FilterLine(line)) continue;
        toServer_.append(line).append("\n");
        // Behind its line, as if each had come in a packet of its own: so a recording can be played line by line.
        if (bot_.host.IsServerConnected()) Note(Happening::Sent, line);
    }
    if (goesOn && toServer_.size() < kMostHeldBack) return;
    const std::string relayed = std::exchange(toServer_, {});
    if (!relayed.empty() && bot_.host.IsServerConnected()) link_.RelayToServer(relayed);
}

void Session::OnClientClosed() {
    Note(Happening::Unlinked);
    ShowMenus(status_.canDisconnect, false);
    client_.ForgetWindow();
}

void Session::OnClientError(const SocketError& error) {
    bot_.host.ShowConsoleLine(ErrorLine("Client", error));
    client_.ForgetWindow();
}

void Session::OnScriptTick() {
    Note(Happening::ScriptTick);
    ScriptTimerTick(bot_);
}

void Session::OnWalkTick() {
    Note(Happening::WalkStep);
    modMovement::Tick(bot_);
}

void Session::SetServer(std::string address, int port) {
    serverAddress_ = std::move(address);
    serverPort_ = port;
}

void Session::KeepSplitLines(bool keep) {
    serverLines_.KeepSplitLines(keep);
    clientLines_.KeepSplitLines(keep);
}

void Session::Note(Happening happening, std::string_view text) {
    if (observer_) observer_->Note(happening, text);
}

/// Reads a line of the client or the user; see FilterClientLine.
/// @return whether it goes on to the server
bool Session::FilterLine(std::string_view line) {
    const bool goesOn = FilterClientLine(bot_, line);
    if (IsLogin(line)) ShowBotName();
    return goesOn;
}

void Session::ShowBotName() {
    status_.botName = BarsToBlanks(bot_.state.vorel.name);
    link_.StatusChanged();
}

void Session::ShowMenus(bool inSession, bool canStandAlone) {
    status_.canConnect = !inSession;
    status_.canDisconnect = inSession;
    status_.canStandAlone = canStandAlone;
    link_.StatusChanged();
}

void Session::ShowIdle(SessionStatus::End end) {
    link_.TakeAwayProxyFile();
    status_.end = end;
    status_.connection = "Disconnected";
    ShowMenus(false, false);
}
