#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <iostream>
#include <string>

#include "Version.h"
#include "cli/Verbs.h"
#include "net/FaultText.h"
#include "platform/CoreDumps.h"
#include "text/Fault.h"

namespace {

/// Wrong usage has an exit status of its own for each verb: `try` promises 2, the others follow <sysexits.h>.
int UsageExit(const CLI::App& app) {
    constexpr int kTryUsageExit = 2;
    return app.get_subcommand("try")->parsed() ? kTryUsageExit : kUsageExit;
}

/// What is wrong with the usage, in one line.
std::string UsageLine(const CLI::App* app, const CLI::Error& error) {
    const auto verbs = app->get_subcommands();
    const auto words = app->remaining();
    const std::string command = verbs.empty() ? "vorel" : "vorel " + verbs.front()->get_name();
    const bool unknownVerb = verbs.empty() && !words.empty();
    const std::string what = unknownVerb ? "there is no verb \"" + words.front() + "\"" : std::string(error.what());
    return command + ": " + what + " (" + command + " --help tells more)\n";
}

/// A program started without the three usual descriptors would take the first sockets it opens for them.
void OpenMissingDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free descriptor is the one that is missing.
        if (fcntl(descriptor, F_GETFD) == -1 && open("/dev/null", O_RDWR) == -1) return;
    }
}

}  // namespace

int main(int argc, char** argv) {
    OpenMissingDescriptors();
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a fault like a full disk, and told like one
    TurnOffCoreDumps();
    CLI::App app(std::string(kProductName) + " " + kProductVersion + " in the terminal: bots for Furcadia", "vorel");
    app.set_version_flag("--version", std::string(kProductName) + " " + kProductVersion);
    app.require_subcommand(1);
    app.failure_message(UsageLine);
    VerbAction action;
    AddRunVerb(app, action);
    AddTryVerb(app, action);
    AddPracticeVerb(app, action);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : UsageExit(app);
    }
    try {
        return action();
    } catch (const std::exception& exception) {
        std::cerr << "vorel: " << DescribeFault(AsFault(exception)) << std::endl;
        return kFaultExit;
    }
}
