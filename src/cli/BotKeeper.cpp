#include "cli/BotKeeper.h"

#include <QRandomGenerator>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "bot/Files.h"
#include "cli/Report.h"
#include "cli/Verbs.h"

namespace {

/// How many recordings a run makes, each in a file of its own: a bot that faults for ever is not to fill the folder,
/// and the first ones show what is wrong.
constexpr int kMostRecordings = 10;

std::string InSeconds(int milliseconds) {
    constexpr int kSecondMs = 1000;
    const int seconds = std::max((milliseconds + kSecondMs / 2) / kSecondMs, 1);
    return "in " + std::to_string(seconds) + (seconds == 1 ? " second" : " seconds");
}

}  // namespace

BotKeeper::BotKeeper(const RunOptions& options, std::string profile, ConsoleOutput& output,
                     std::function<void()> onIdle)
    : options_(options),
      profile_(std::move(profile)),
      label_(FileNameOf(profile_)),
      output_(output),
      onIdle_(std::move(onIdle)),
      restart_([] { return QRandomGenerator::global()->generateDouble(); }, [this] { BeginAgain(); }, nullptr) {}

int BotKeeper::Begin() {
    const TerminalBot::Owner owner{onIdle_, [this](const std::string& why) { OnFault(why); }};
    faulted_ = false;
    lived_.start();
    bot_ = std::make_unique<TerminalBot>(profile_, label_, options_.folder, output_, owner);
    QtHost& host = bot_->host();
    host.session().SetServer(options_.server, options_.port);
    host.StayConnected(options_.stay);
    host.SetBrake(options_.brake);
    bot_->KeepSplitLines(options_.keepSplitLines);
    if (options_.profiles.size() > 1) bot_->ShowLabel();
    if (!bot_->Load()) return RefuseRun(kNoInputExit, "there is no profile " + profile_);
    // A fault in its first script is no refusal: OnFault has it told, and sees to what becomes of the bot.
    return faulted_ || options_.record.empty() ? 0 : Record();
}

int BotKeeper::Record() {
    if (recordings_ == kMostRecordings) return 0;
    const std::optional<std::string> path = bot_->RecordTo(options_.record);
    if (!path) return RefuseRun(kCantCreateExit, "the recording " + options_.record + " can't be written");
    if (*path != options_.record) TellOfRun(options_.record + " holds something; recording to " + *path);
    if (++recordings_ == kMostRecordings)
        Tell(*path + " is the last of the " + std::to_string(recordings_) + " recordings that a run makes");
    return 0;
}

void BotKeeper::Connect() {
    if (bot_) bot_->Connect();
}

void BotKeeper::TypeLine(const std::string& line) {
    if (bot_ && !faulted_) return bot_->TypeLine(line);
    const int pause = restart_.PauseLeftMs();
    const std::string when = pause > 0 ? " and begins again " + InSeconds(pause) : "";
    TellOfRun(Label() + " is down by a fault" + when + "; nobody has heard what you typed for it");
}

void BotKeeper::Leave() {
    leaving_ = true;
    if (options_.stay) faulted_ = false;
    restart_.Forget();
    if (bot_) bot_->Leave();
}

bool BotKeeper::IsIdle() const {
    if (faulted_) return !options_.stay || leaving_;
    return !bot_ || bot_->status().IsIdle();
}

/// The bot is in the middle of the handler that has failed, so it goes later.
void BotKeeper::OnFault(const std::string& why) {
    faulted_ = true;
    Tell(why);
    QTimer::singleShot(0, &restart_, [this] {
        PutDown();
        IsIdle() ? onIdle_() : BeginAgainLater();
    });
}

void BotKeeper::Tell(const std::string& what) {
    TellOfRun(what);
    output_.Log(what);
}

void BotKeeper::PutDown() {
    label_ = Label();
    bot_.reset();
}

void BotKeeper::BeginAgainLater() {
    restart_.SessionEnded(std::chrono::milliseconds(lived_.elapsed()));
    Tell(profile_ + ": beginning again " + InSeconds(restart_.Schedule(Reconnector::First::AfterAPause)));
}

void BotKeeper::BeginAgain() {
    if (Begin() == 0) return Connect();
    faulted_ = true;  // what has refused it, such as a profile that is being written anew, may pass
    PutDown();
    BeginAgainLater();
}
