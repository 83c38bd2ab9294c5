// Saves each kind of file with each of its system calls failing in each way, and with the process killed at each; then
// looks whether the old or the new file is there, whole, whether the truth was told, and whether the next start has
// left no temporary.
//
//   tvorel_faults calls FOLDER [KIND]  in a folder that is made and taken away; KIND is a part of the kinds' names
//   tvorel_faults full FOLDER [KIND]   the same saves on a disk that is full, or nearly; skipped where none can be
//                                      mounted

#include <sys/mount.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <thread>

#include "FaultBench.h"
#include "FaultCases.h"
#include "FullDisk.h"
#include "Truth.h"

namespace fs = std::filesystem;

namespace {

/// A kind of file, there before or not.
struct Errand {
    const Kind& kind;
    bool isOld;

    std::string Name() const { return std::string(kind.name) + (isOld ? "" : " (new)"); }
};

struct Count {
    int cases = 0, killed = 0, told = 0, violations = 0;
};

std::vector<Errand> Errands(const std::string& filter) {
    std::vector<Errand> errands;
    for (const Kind& kind : kKinds) {
        if (std::string_view(kind.name).find(filter) == std::string_view::npos) continue;
        if (*kind.oldContent != '\0') errands.push_back({kind, true});
        errands.push_back({kind, false});
    }
    return errands;
}

void Judge(Count& count, const Errand& errand, const Bench& bench, const Contents& contents, const Fault& fault) {
    bench.Lay();
    const Outcome outcome = bench.Save(fault.plan);
    const std::string wrong = WrongAfter(bench, contents, outcome, fault);
    ++count.cases;
    count.killed += outcome.killed ? 1 : 0;
    count.told += !outcome.killed && !bench.IsSuccess(outcome) ? 1 : 0;
    if (wrong.empty()) return;
    ++count.violations;
    std::cout << errand.Name() << ", " << fault.plan << ": " << wrong << "\n" << outcome.told << std::flush;
}

Count RunErrand(const Errand& errand, const fs::path& folder) {
    const Bench bench(folder, folder.string(), errand.kind, errand.isOld);
    const auto calls = bench.Calls();
    const Contents contents = Learn(bench);
    Count count;
    if (calls.empty() || contents.after.empty()) {
        std::cout << errand.Name() << ": without any fault nothing is saved" << std::endl;
        count.violations = 1;
        return count;
    }
    for (const Fault& fault : FaultsFor(calls)) Judge(count, errand, bench, contents, fault);
    return count;
}

int Sum(const std::vector<Errand>& errands, const std::vector<Count>& counts) {
    Count all;
    std::cout << std::left << std::setw(24) << "kind" << std::right << " cases killed  told wrong\n";
    const auto row = [](const std::string& name, const Count& count) {
        std::cout << std::left << std::setw(24) << name << std::right << std::setw(6) << count.cases << std::setw(7)
                  << count.killed << std::setw(6) << count.told << std::setw(6) << count.violations << "\n";
    };
    for (std::size_t i = 0; i < errands.size(); ++i) {
        row(errands[i].Name(), counts[i]);
        all.cases += counts[i].cases;
        all.killed += counts[i].killed;
        all.told += counts[i].told;
        all.violations += counts[i].violations;
    }
    row("all", all);
    return all.violations == 0 ? 0 : 1;
}

int RunAll(const fs::path& folder, const std::vector<Errand>& errands) {
    std::vector<Count> counts(errands.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < errands.size(); i = next++)
            counts[i] = RunErrand(errands[i], folder / std::to_string(i));
    };
    std::vector<std::jthread> workers;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) workers.emplace_back(work);
    workers.clear();
    return Sum(errands, counts);
}

// --- a full disk -------------------------------------------------------------------------------------------------

constexpr std::uintmax_t kPage = 4096;
constexpr int kMostPages = 8;  // more than any of the files needs

Count RunFull(const Errand& errand, const fs::path& disk, const std::string& notes) {
    const fs::path ballast = disk / "ballast";
    const Bench bench(disk / "case", notes, errand.kind, errand.isOld);
    const Contents contents = Learn(bench);
    Count count;
    for (int pages = 0; pages <= kMostPages; ++pages) {
        fs::remove(ballast);
        bench.Lay();
        FillUp(ballast, static_cast<std::uintmax_t>(pages) * kPage);
        const Outcome outcome = bench.Save();
        const std::string wrong = WrongAfter(bench, contents, outcome, {});
        ++count.cases;
        count.told += bench.IsSuccess(outcome) ? 0 : 1;
        if (wrong.empty()) continue;
        ++count.violations;
        std::cout << errand.Name() << ", " << pages << " pages free: " << wrong << "\n" << outcome.told << std::flush;
    }
    fs::remove(ballast);
    return count;
}

int RunAllFull(const fs::path& folder, const std::vector<Errand>& errands) {
    const fs::path disk = folder / "disk";
    fs::create_directories(disk);
    if (!MountSmallDisk(disk)) {
        std::cout << "A full disk: skipped, none can be mounted here: " << std::strerror(errno) << "\n";
        return 0;
    }
    std::vector<Count> counts;
    for (const Errand& errand : errands) counts.push_back(RunFull(errand, disk, folder / "notes"));
    umount(disk.c_str());
    return Sum(errands, counts);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    const fs::path folder = fs::absolute(argv[2]);
    const auto errands = Errands(argc > 3 ? argv[3] : "");
    fs::create_directories(folder);
    const int status = std::string_view(argv[1]) == "full" ? RunAllFull(folder, errands) : RunAll(folder, errands);
    fs::remove_all(folder);
    return status;
}
