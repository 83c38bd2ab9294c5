#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "cli/BotKeeper.h"
#include "cli/ConsoleOutput.h"
#include "cli/EndSignals.h"
#include "cli/Printing.h"
#include "cli/Report.h"
#include "cli/RunOptions.h"
#include "cli/TourFile.h"
#include "cli/TypedInput.h"
#include "cli/Verbs.h"
#include "game/Compare.h"
#include "net/FaultText.h"
#include "platform/DiskFiles.h"
#include "platform/EpollDispatcher.h"
#include "platform/Guarded.h"
#include "platform/OpenFiles.h"
#include "platform/WholeFile.h"
#include "practice/PracticeServer.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

/// How long after the last step of a tour the bots still have for their answers.
constexpr int kLastAnswersMs = 2000;

/// What a run has open: for itself, for each bot (a connection, and the client's in client mode, which its script can
/// begin at any time), and for each guest of the practice dream.
constexpr std::size_t kOwnFiles = 32, kFilesOfABot = 2, kFilesOfAGuest = 1;

/// Why so many bots can't run in one process; empty when they can.
std::string TooManyBots(std::size_t bots, bool practice) {
    if (practice && bots > kMostFurres) {
        return std::to_string(bots) + " bots don't go into the practice dream, which holds " +
               std::to_string(kMostFurres) + " furres. Run fewer bots at a time.";
    }
    const std::size_t each = kFilesOfABot + (practice ? kFilesOfAGuest : 0), needed = kOwnFiles + bots * each;
    const std::size_t allowed = AllowOpenFiles(needed);
    if (needed <= allowed) return "";
    const std::string need = std::to_string(needed);
    return std::to_string(bots) + " bots take " + need + " open files and connections, " + std::to_string(each) +
           " each and some for the program, but a program may have " + std::to_string(allowed) +
           " here. Raise that limit (\"ulimit -n " + need + "\" in the shell, LimitNOFILE=" + need +
           " in a unit of systemd), or run fewer bots at a time.";
}

/// The tour that lies beside a profile; empty when there is none.
std::string TourBeside(const std::string& profile) {
    return DiskFiles().Find(JoinPath(FolderOf(profile), "tour.txt")).value_or("");
}

/// The bots of one process, from loading to the exit status.
class TerminalRun {
  public:
    explicit TerminalRun(RunOptions options) : options_(std::move(options)), output_(options_.quiet) {}

    int Run() {
        ClearFolders();
        if (const int refusal = Prepare()) return refusal;
        for (const auto& bot : bots_) bot->Connect();
        // Not one has so much as begun to connect.
        if (AllAreIdle()) return AnyHasFaulted() ? kFaultExit : kConfigExit;

        // The console, which is gathered while a turn of the event loop has something to do.
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                         QCoreApplication::instance(), [] { std::cout.flush(); });
        const EndSignals endSignals([this] { End(0); });
        const TypedInput input([this](const std::string& line) { Type(line); });
        return QCoreApplication::exec();
    }

    /// A fault has ended what the bots run in; UTF-8.
    void OnFault(const std::string& why) {
        TellOfRun(why);
        output_.Log(why);
        End(kFaultExit);
        // A fault on the way out counts too.
        exit_ = kFaultExit;
        QCoreApplication::exit(kFaultExit);
    }

  private:
    RunOptions options_;
    ConsoleOutput output_;
    std::unique_ptr<PracticeServer> practice_;
    std::vector<std::unique_ptr<BotKeeper>> bots_;
    std::optional<int> exit_;

    /// Of what a killed program has left unfinished. Once each: a folder may hold the files of many bots.
    void ClearFolders() const {
        std::set<std::string> folders = {options_.folder};
        for (const std::string& profile : options_.profiles) folders.insert(FolderOf(profile));
        for (const std::string& folder : folders) ClearUnfinished(folder);
    }

    /// @return 0, or the exit status when the run can't begin
    int Prepare() {
        if (options_.profiles.size() > 1 && !options_.record.empty()) {
            return RefuseRun(kUsageExit, "--record records one bot, not " + std::to_string(options_.profiles.size()));
        }
        const std::string tooMany = TooManyBots(options_.profiles.size(), options_.practice);
        if (!tooMany.empty()) return RefuseRun(kUsageExit, tooMany);
        const std::string noLog = options_.log.empty() ? "" : output_.LogTo(options_.log);
        if (!noLog.empty()) return RefuseRun(kCantCreateExit, noLog);
        if (options_.practice) {
            if (const int refusal = OpenPractice()) return refusal;
        }
        for (const std::string& profile : options_.profiles) {
            const auto onIdle = [this] { OnIdle(); };
            const auto& bot = bots_.emplace_back(std::make_unique<BotKeeper>(options_, profile, output_, onIdle));
            if (const int refusal = bot->Begin()) return refusal;
        }
        return 0;
    }

    int OpenPractice() {
        TourReading reading =
            ReadTourFile(options_.tour.empty() ? TourBeside(options_.profiles.front()) : options_.tour);
        if (!reading.fault.empty()) return RefuseRun(kUsageExit, reading.fault);
        PracticeSettings settings;
        settings.tour = std::move(reading.tour);
        const bool noTour = settings.tour.steps.empty();
        practice_ = std::make_unique<PracticeServer>(std::move(settings));
        const auto listening = practice_->Listen(0);
        if (listening.port == 0)
            return RefuseRun(kUnavailableExit, "the practice dream: " + listening.fault.toStdString());
        options_.server = "127.0.0.1";
        options_.port = listening.port;
        // Somebody at a terminal may want to talk with the bot when the visitors have gone.
        if (isatty(STDIN_FILENO) == 0) {
            const auto endSoon = [this] { QTimer::singleShot(kLastAnswersMs, practice_.get(), [this] { End(0); }); };
            QObject::connect(practice_.get(), &PracticeServer::TourEnded, practice_.get(), endSoon);
            if (noTour) endSoon();
        }
        return 0;
    }

    /// With several bots, "@name text" goes to the bot of that name, anything else to the first one.
    void Type(const std::string& line) {
        BotKeeper* chosen = bots_.front().get();
        std::string text = line;
        if (bots_.size() > 1 && line.starts_with('@')) {
            const std::string name = line.substr(1, line.find(' ') - 1);
            for (const auto& bot : bots_) {
                if (!LooseEquals(FromUtf8(bot->Label()), name)) continue;
                chosen = bot.get();
                text = line.substr(std::min(line.find(' '), line.size() - 1) + 1);
                break;
            }
        }
        chosen->TypeLine(text);
    }

    bool AllAreIdle() const {
        return std::all_of(bots_.begin(), bots_.end(), [](const auto& bot) { return bot->IsIdle(); });
    }

    bool AnyHasFaulted() const {
        return std::any_of(bots_.begin(), bots_.end(), [](const auto& bot) { return bot->HasFaulted(); });
    }

    /// Without a window nobody could connect an idle bot again: when the last one has gone idle, the run is over.
    void OnIdle() {
        if (AllAreIdle()) End(StatusOfIdleBots());
    }

    /// A fault comes first, for its bot may be begun again; then what ends a run for good, which a supervisor is not to
    /// start again.
    int StatusOfIdleBots() const {
        if (AnyHasFaulted()) return kFaultExit;
        const auto any = [this](bool (*holds)(const SessionStatus&)) {
            return std::any_of(bots_.begin(), bots_.end(), [&](const auto& bot) { return holds(bot->status()); });
        };
        if (any([](const SessionStatus& status) { return status.IsLoginRefused(); })) return kNoPermissionExit;
        if (any([](const SessionStatus& status) { return status.end == SessionStatus::End::NotYet; }))
            return kConfigExit;
        return any([](const SessionStatus& status) { return status.IsLost(); }) ? kUnavailableExit : 0;
    }

    /// Disconnects every bot, so that its script hears of it, and leaves.
    void End(int status) {
        if (exit_) return;
        exit_ = status;
        for (const auto& bot : bots_) bot->Leave();
        if (AnyHasFaulted()) exit_ = kFaultExit;
        QCoreApplication::exit(*exit_);
    }
};

int Run(const RunOptions& options) {
    int argumentCount = 1;
    char program[] = "vorel";
    char* arguments[] = {program, nullptr};
    Printing printing;  // first, and so the last to go: the others may have something to say on their way out
    WaitByEpoll();
    Guarded<QCoreApplication> application(argumentCount, arguments);
    TerminalRun run(options);
    application.OnException([&](const std::exception& exception) { run.OnFault(DescribeFault(AsFault(exception))); });
    return printing.Leave(run.Run());
}

}  // namespace

void AddRunVerb(CLI::App& app, VerbAction& action) {
    const auto options = std::make_shared<RunOptions>();
    CLI::App* const verb = app.add_subcommand("run", "Run bots without a window");
    verb->add_option("PROFILE", options->profiles, "the bots' profiles (.tvm)")->required();
    auto* const practice =
        verb->add_flag("--practice", options->practice, "open the practice dream in this process and connect there");
    verb->add_option("--tour", options->tour, "the tour that its visitors play (default: tour.txt beside the profile)")
        ->needs(practice);
    const auto notEmpty = [](const std::string& host) { return host.empty() ? "wants the name of a host" : ""; };
    verb->add_option("--server", options->server, "connect to this host, in both modes")
        ->check(CLI::Validator(notEmpty, "HOST"))
        ->excludes(practice);
    verb->add_option("--port", options->port, "connect to this port")->check(CLI::Range(1, 65535))->excludes(practice);
    verb->add_option("--log", options->log, "append the console to this file, with times");
    verb->add_option("--record", options->record, "write what comes and goes as a session for `vorel try`");
    verb->add_flag("--keep-split-lines", options->keepSplitLines, "keep a line that was cut by the end of a packet");
    verb->add_flag("--quiet", options->quiet, "show no console lines");
    verb->add_option("--brake", options->brake, "how many lines a second a script may send (0: as many as it likes)")
        ->check(CLI::Range(0, SendBrake::kHighestRate))
        ->capture_default_str();
    verb->add_flag("--stay", options->stay, "connect again, for ever, when the connection is lost or can't be had");
    verb->add_option("--folder", options->folder, "where data files are (default: the current folder)");
    verb->callback([options, &action] { action = [options] { return Run(*options); }; });
}
