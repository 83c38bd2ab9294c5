#include "FaultCases.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace {

using By = Kind::By;

constexpr int kErrors[] = {ENOSPC, EIO, EDQUOT, EACCES};
constexpr int kFurtherErrors[] = {EIO, EACCES};

/// Calls after whose failing the save may go on: what was read is read, and without a lock on the file, or on a folder
/// that several bots share, the file is still whole.
bool IsHarmless(const std::vector<std::string>& calls, std::size_t call) {
    const bool isToLock = call + 1 < calls.size() && calls[call] == "open folder" && calls[call + 1] == "lock";
    return isToLock || calls[call] == "lock" || calls[call] == "close what was read";
}

std::string At(std::size_t call, const std::string& how) { return std::to_string(call) + ":" + how; }

std::string At(std::size_t call, int error) { return At(call, std::to_string(error)); }

/// @param before  what has happened by then, with a blank behind it
void AddKills(std::vector<Fault>& faults, std::size_t call, const std::string& before = {}) {
    for (const char* const when : {"before", "after"}) faults.push_back({before + At(call, when), true});
}

/// What is done about the failing of a call fails too.
void AddFurtherFaults(std::vector<Fault>& faults, std::size_t call, int toldError) {
    const std::string first = At(call, ENOSPC) + " ";
    for (const int error : kFurtherErrors) faults.push_back({first + At(call + 1, error), false, true, toldError});
    AddKills(faults, call + 1, first);
}

/// A write takes half, and the next one the rest, or nothing more.
void AddShortWrites(std::vector<Fault>& faults, std::size_t call) {
    const std::string first = At(call, "short");
    faults.push_back({first});
    for (const int error : kErrors) faults.push_back({first + " " + At(call + 1, error), false, true, error});
    AddKills(faults, call + 1, first + " ");
}

}  // namespace

// clang-format off
const std::vector<Kind> kKinds = {
    {"profile",         "bot/bot.tvm",                            "bot/new.tvm",   "[General]\r\nOwners=Ann\r\nScript=bot.vs\r\n"},
    {"script",          "bot/bot.vs",                             "bot/new.vs",    "VSPK 01.00 Vorel\r\n*Endtriggers* 9999 *Endtriggers*\r\n"},
    {"settings",        "program/tvorel.cfg",                     "program/tvorel.cfg", "[General]\r\nTop=1\r\nLeft=1\r\n"},
    {"options",         "program/tvorel.own/options.json",        "program/tvorel.own/options.json", "{\"console/timestamps\": true}\n"},
    {"unsaved-script",  "program/tvorel.own/unsaved-script.bak",  "program/tvorel.own/unsaved-script.bak", "\n\nold"},
    {"unsaved-profile", "program/tvorel.own/unsaved-profile.bak", "program/tvorel.own/unsaved-profile.bak", "\n\nold"},
    {"command-list",    "program/vslist.vs",                      "program/vslist.vs", ""},
    {"proxy.ini",       "client/proxy.ini",                       "client/proxy.ini", "localhost 99\r\n", By::Windows, false, true, true},
    {"console",         "out/console.txt",                        "out/console.txt", "old\n", By::Windows, false},
    {"archive",         "out/update.zip",                         "out/update.zip",  "old\n", By::Windows, false},
    {"data-by-try",     "data/book.ini",                          "data/book.ini",   "[words]\r\nold\r\n", By::Try},
    {"data-by-run",     "data/book.ini",                          "data/book.ini",   "[words]\r\nold\r\n", By::Run},
};
// clang-format on

std::vector<Fault> FaultsFor(const std::vector<std::string>& calls) {
    std::vector<Fault> faults;
    for (std::size_t call = 0; call < calls.size(); ++call) {
        const bool harmless = IsHarmless(calls, call);
        // Why something can't be read is not told, only that it can't.
        const bool isNamed = !harmless && calls[call] != "open to read";
        AddKills(faults, call);
        for (const int error : kErrors) faults.push_back({At(call, error), false, !harmless, isNamed ? error : 0});
        if (!harmless) AddFurtherFaults(faults, call, isNamed ? ENOSPC : 0);
        if (calls[call] == "write") AddShortWrites(faults, call);
    }
    return faults;
}
