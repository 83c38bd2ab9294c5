// Visitors' text against the example bots, all in one practice dream. A line's first character says what it is:
// "w" is whispered to every bot, "s" said, "e" emoted, ">" sent as a raw command, "t" lets two seconds pass, and "r" is
// whispered by way of a game that takes out no control characters. Whatever visitors say: no bot faults but for a text
// grown too long, none tells its password, and files are written only where data files belong.
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "engine/Dispatcher.h"
#include "fuzz/FuzzBot.h"
#include "movement/modMovement.h"
#include "practice/Dream.h"
#include "profile/ProfileFile.h"

namespace {

constexpr const char* kBots[] = {"greeter", "scores", "patrol"};

/// After so many rounds of bots hearing each other's words they would go on for ever.
constexpr int kMostRounds = 200;

void Broken(const std::string& promise) {
    std::fprintf(stderr, "broken promise: %s\n", promise.c_str());
    std::abort();
}

const std::string& Example(const std::string& bot, const std::string& extension) {
    static std::map<std::string, std::string> read;
    const std::string path = "examples/" + bot + "/" + bot + extension;
    if (!read.contains(path)) read[path] = ReplaceAll(ReadSource(path), "Password=practice", "Password=s3cr3t-w0rd");
    return read[path];
}

/// One of the example bots, connected to the dream.
class Player {
  public:
    Player(const std::string& name, Dream& dream) : name_(name), dream_(dream), furre_(dream.Connect().value()) {
        host_.host.SetServerConnected(false);
        host_.host.FreezeClock({2026, 11, 22, 9, 30, 15});
        host_.host.SeedRandom(1);
        for (const char* const extension : {".ini", ".tvm", ".vs"})
            host_.files.contents[name + extension] = Example(name, extension);
        Handle([&] { LoadProfile(host_.bot, name + ".tvm"); });
        host_.host.SetServerConnected(true);
        Handle([&] { host_.session.OnServerConnected(); });
        loggedIn_ = true;
    }

    FurreId Furre() const { return furre_; }
    const std::string& BotName() const { return host_.bot.state.vorel.name; }

    void Hear(const std::string& lines) {
        Handle([&] { host_.session.OnServerData(lines); });
    }

    void PassSecond() {
        Handle([&] { ScriptTimerTick(host_.bot); });
        if (host_.host.IsMovementTimerEnabled()) Handle([&] { modMovement::Tick(host_.bot); });
    }

    void CheckFiles() const {
        for (const auto& [path, bytes] : host_.files.contents) {
            const bool isOwn = FolderOf(path).empty() && path.starts_with(name_ + ".");
            const bool isData = path.starts_with("folder/") && path.ends_with(".ini");
            if (!isOwn && !isData) Broken("the file " + path + " was written");
            if (isOwn && bytes != Example(name_, path.substr(name_.size())))
                Broken("the file " + path + " was changed");
        }
    }

  private:
    /// The rules let a text that grows without end, as words that hold themselves make one, end the bot.
    static constexpr std::string_view kGrownTooLong = "Out of memory";

    template <typename Handler>
    void Handle(Handler handler) {
        if (ended_) return;
        try {
            handler();
        } catch (const RuntimeFault& fault) {
            ended_ = fault.Name() == kGrownTooLong;
            if (ended_) return;
            Broken(name_ + " faults: " + std::string(fault.Name()) + " " + fault.Detail() + " at line " +
                   std::to_string(host_.bot.place.line) + " of " + host_.bot.place.file);
        }
        SendOn();
    }

    void SendOn() {
        constexpr std::string_view kSent = "sent ";
        for (const std::string& told : host_.TakeTold()) {
            if (!told.starts_with(kSent)) continue;
            if (loggedIn_ && told.find(FuzzBot::kPassword) != std::string::npos) Broken(name_ + " tells its password");
            dream_.Hear(furre_, std::string_view(told).substr(kSent.size()));
        }
    }

    std::string name_;
    Dream& dream_;
    FurreId furre_;
    bool loggedIn_ = false, ended_ = false;
    RehearsalBot host_;
};

/// The dream with the bots and two visitors in it.
class Party {
  public:
    Party() {
        for (const char* const name : kBots) bots_.push_back(std::make_unique<Player>(name, dream_));
        for (const char* const name : {"Ann", "Visitor"}) visitors_.push_back(dream_.Arrive(name).value());
        LetTalk();
    }

    void Do(std::string_view line) {
        const FurreId visitor = visitors_[next_++ % visitors_.size()];
        const char how = line.empty() ? 't' : line.front();
        const std::string text(line.substr(line.empty() ? 0 : 1));
        if (how == 'w') {
            for (const auto& bot : bots_) dream_.Hear(visitor, "wh " + bot->BotName() + " " + text);
        } else if (how == 'r') {
            for (const auto& bot : bots_) bot->Hear("([ Ann whispers, \"" + text + "\" to you. ]\n");
        } else if (how == 's') {
            dream_.Hear(visitor, "\"" + text);
        } else if (how == 'e') {
            dream_.Hear(visitor, ":" + text);
        } else if (how == '>') {
            dream_.Hear(visitor, text);
        } else {
            for (int second = 0; second < 2; ++second) {
                for (const auto& bot : bots_) bot->PassSecond();
            }
        }
        LetTalk();
    }

    ~Party() {
        for (const auto& bot : bots_) bot->CheckFiles();
    }

  private:
    int draws_ = 0;
    Dream dream_{{[] { return LocalTime{2024, 5, 1, 19, 5, 9}; }, [this] { return (draws_++ % 10) / 10.0; }}};
    std::vector<std::unique_ptr<Player>> bots_;
    std::vector<FurreId> visitors_;
    std::size_t next_ = 0;

    /// Until nobody has anything left to say.
    void LetTalk() {
        for (int round = 0; round < kMostRounds; ++round) {
            std::map<FurreId, std::string> packets;
            for (const Delivery& delivery : dream_.TakeDeliveries()) packets[delivery.furre] += delivery.line + "\n";
            bool heard = false;
            for (const auto& bot : bots_) {
                const auto packet = packets.find(bot->Furre());
                if (packet == packets.end()) continue;
                bot->Hear(packet->second);
                heard = true;
            }
            if (!heard) return;
        }
        Broken("the bots talk for ever");
    }
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Party party;
    for (const std::string& line : Split(InputText(data, size), "\n")) party.Do(line);
    return 0;
}
