#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QDateTime>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

#include "cli/Report.h"
#include "cli/Verbs.h"
#include "platform/DiskFiles.h"
#include "platform/WholeFile.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "text/Fault.h"
#include "text/Text.h"

namespace {

constexpr int kExpectationFailed = 1;
constexpr int kUnreadable = 2;
constexpr int kFault = 3;

struct TryOptions {
    std::string profile, session, now, folder = ".";
    std::optional<std::uint32_t> seed;
};

/// "YYYY-MM-DD HH:MM:SS"
std::optional<LocalTime> ReadTime(const std::string& text) {
    LocalTime time;
    char end = 0;
    // The last field finds what must not be there: a seventh one read is too much.
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &time.year, &time.month, &time.day,
                                 &time.hour, &time.minute, &time.second, &end);
    const bool exists =
        QDate::isValid(time.year, time.month, time.day) && QTime::isValid(time.hour, time.minute, time.second);
    return read == 6 && exists ? std::optional(time) : std::nullopt;
}

Outcome<std::string> ReadSession(const DiskFiles& disk, const std::string& path) {
    if (path != "-") return disk.Read(path);
    return std::string(std::istreambuf_iterator<char>(std::cin), {});
}

int Unreadable(const std::string& what) {
    std::cerr << "vorel try: " << what << "\n";
    return kUnreadable;
}

/// Whether somebody reads along at a terminal.
bool IsRead() {
    static const bool terminal = isatty(STDOUT_FILENO) != 0;
    return terminal;
}

/// Each line as 8-bit text, like the session's own; a terminal gets its own encoding instead.
void PrintLine(const std::string& line) { std::cout << (IsRead() ? ToUtf8(line) : line) << "\n"; }

int Play(Rehearsal& rehearsal, const TryOptions& options, const WrittenSession& session) {
    const auto played = rehearsal.Play(session, [&] {
        const ProfileLoad load = LoadProfile(rehearsal.bot, options.profile);
        for (const std::string& remark : load.remarks) std::cerr << "vorel try: " << remark << "\n";
        if (!load.missingScript.empty()) std::cerr << MissingScript(options.profile, load) << "\n";
    });
    if (!played) {
        PrintLine("fault " + std::string(played.Fault().Name()));
        std::cerr << "vorel try: " << FaultForTerminal(played.Fault(), rehearsal.bot);
        if (rehearsal.Line() > 0) std::cerr << " It came with line " << rehearsal.Line() << " of the session.";
        std::cerr << "\n";
        return kFault;
    }
    return rehearsal.FailedExpectations() == 0 ? 0 : kExpectationFailed;
}

int Try(const TryOptions& options) {
    DiskFiles disk;
    const auto profile = disk.Find(options.profile);
    if (!profile) return Unreadable("there is no profile " + options.profile);
    // Before the rehearsal, in which a file that can't be read is the bot's fault, with a status of its own.
    if (!disk.Read(*profile)) return Unreadable("the profile " + options.profile + " can't be read");
    const auto written = ReadSession(disk, options.session);
    if (!written) return Unreadable("the session " + options.session + " can't be read");
    const WrittenSession session = ParseSession(*written);
    if (session.error) return Unreadable(options.session + ", " + *session.error);

    for (const std::string& folder : {options.folder, FolderOf(options.profile)}) ClearUnfinished(folder);
    Rehearsal rehearsal(disk, options.folder, PrintLine);
    if (IsRead()) rehearsal.host.HidePasswords();
    if (!options.now.empty()) {
        const std::optional<LocalTime> now = ReadTime(options.now);
        if (!now) return Unreadable("--now wants \"YYYY-MM-DD HH:MM:SS\", not \"" + options.now + "\"");
        rehearsal.host.FreezeClock(*now);
    }
    if (options.seed) rehearsal.host.SeedRandom(*options.seed);
    return Play(rehearsal, options, session);
}

}  // namespace

void AddTryVerb(CLI::App& app, VerbAction& action) {
    const auto options = std::make_shared<TryOptions>();
    CLI::App* const verb = app.add_subcommand("try", "Rehearse a bot: play a written session to it, without a network");
    verb->add_option("PROFILE", options->profile, "the bot's profile (.tvm)")->required();
    verb->add_option("SESSION", options->session, "the written session; - for standard input")->required();
    verb->add_option("--now", options->now, "freeze the computer's clock at \"YYYY-MM-DD HH:MM:SS\"");
    verb->add_option("--seed", options->seed, "fix the random draw");
    verb->add_option("--folder", options->folder, "where the bot's data files are (default: the current folder)");
    verb->callback([options, &action] { action = [options] { return Try(*options); }; });
}
