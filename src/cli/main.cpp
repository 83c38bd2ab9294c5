#include <CLI/CLI.hpp>
#include <string>

#include "Version.h"
#include "cli/Verbs.h"

namespace {

/// Wrong usage has an exit status of its own for each verb: `try` promises 2, the others follow <sysexits.h>.
int UsageExit(const CLI::App& app) {
    constexpr int kTryUsageExit = 2;
    return app.get_subcommand("try")->parsed() ? kTryUsageExit : kUsageExit;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app(std::string(kProductName) + " " + kProductVersion + " in the terminal: bots for Furcadia", "vorel");
    app.set_version_flag("--version", std::string(kProductName) + " " + kProductVersion);
    app.require_subcommand(1);
    VerbAction action;
    AddRunVerb(app, action);
    AddTryVerb(app, action);
    AddPracticeVerb(app, action);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : UsageExit(app);
    }
    return action();
}
