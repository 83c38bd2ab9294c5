#include "cli/Report.h"

#include <algorithm>
#include <iostream>

#include "net/FaultText.h"
#include "text/Text.h"

namespace {

/// Control characters, which are the same in both encodings, can't make a terminal do anything.
std::string Harmless(std::string text) {
    const auto isControl = [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F; };
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    return text;
}

}  // namespace

void TellOfRun(const std::string& what) { std::cerr << "vorel run: " << what << std::endl; }

int RefuseRun(int status, const std::string& why) {
    TellOfRun(why);
    return status;
}

std::string FaultForTerminal(const RuntimeFault& fault, const Bot& bot) { return Harmless(DescribeFault(fault, bot)); }

std::string ReasonOfEnd(const SessionStatus& status) {
    if (status.end == SessionStatus::End::ByError) return "no connection: " + status.reason;
    if (status.refusals == 0) return "the server has ended the connection";
    const std::string times = status.IsLoginRefused() ? " " + std::to_string(status.refusals) + " times running" : "";
    return "the server has ended the connection" + times + " before the bot was let in: check its name and password";
}

std::string MissingScript(const std::string& profilePath, const ProfileLoad& load) {
    return profilePath + ": there is no script " + ToUtf8(load.missingScript) + "; the bot runs without one";
}

std::string Printable(std::string_view text) {
    const bool asItIs = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7F; });
    return asItIs ? std::string(text) : ToUtf8(Harmless(std::string(text)));  // asked first: most lines are
}
