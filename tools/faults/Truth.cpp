#include "Truth.h"

#include <cstring>

namespace {

/// What is wrong with what a process has told; empty when it is the truth.
std::string UntruthOf(const Bench& bench, const Outcome& outcome, const Fault& fault, bool isNew) {
    const auto tells = [&](const std::string& what) { return outcome.told.find(what) != std::string::npos; };
    const std::string name = bench.File().filename();
    if (outcome.status == -1) return "it has crashed, or hung";
    if (bench.IsSuccess(outcome)) {
        if (!isNew) return "it says that all went well, and nothing was written";
        return fault.mustBeTold ? "nothing was told" : "";
    }
    if ((!isNew || fault.mustBeTold) && !tells(name)) return "what was told names no " + name;
    if (fault.error != 0 && !tells(std::strerror(fault.error))) return "what was told gives no reason";
    return "";
}

}  // namespace

Contents Learn(const Bench& bench) {
    Contents contents;
    bench.Lay();
    contents.laid = bench.Content();
    bench.Save("0:before");  // a program may tidy up before it comes to saving
    contents.before = bench.Content();
    bench.Lay();
    const bool saved = bench.IsSuccess(bench.Save());
    contents.after = bench.Content();
    const bool isChanged = contents.after != contents.before && contents.after != contents.laid;
    if (!saved || isChanged == bench.IsTakenAway()) contents.after.clear();
    return contents;
}

std::string WrongAfter(const Bench& bench, const Contents& contents, const Outcome& outcome, const Fault& fault) {
    const std::string content = bench.Content();
    const bool isNew = content == contents.after;
    const bool isPutBackLater = outcome.killed && bench.IsTakenAway();
    if (!isPutBackLater && !isNew && content != contents.before && content != contents.laid)
        return "it is neither the old nor the new: " + content;
    if (!outcome.killed) {
        const std::string untruth = UntruthOf(bench, outcome, fault, isNew);
        if (!untruth.empty()) return untruth;
    }
    const auto left = bench.Leftovers();
    if (left.empty() && !isPutBackLater) return "";
    // It could be taken away only if nothing has failed besides.
    const bool onlyOne = fault.plan.find(' ') == std::string::npos;
    if (!outcome.killed && onlyOne) return left.front() + " is left";
    bench.StartAgain();
    if (isPutBackLater && bench.Content() != contents.laid) return "the old one is not put back: " + bench.Content();
    return bench.Leftovers().empty() ? "" : left.front() + " is left after the next start";
}
