// How fast `vorel run` answers lines of the game, beside the least that a bot can be (bare_loop.cpp), in one run on one
// machine: lines a second, processor time, memory and round trips, by the number and the kind of triggers.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "road/Load.h"
#include "road/Picture.h"
#include "road/Talk.h"

namespace {

struct Options {
    std::string programs;  ///< the folder of `vorel` and `bare_loop`
    std::string docs;      ///< the folder of performance.md, to write the figures there; empty: they are only printed
    std::vector<int> triggers{1, 10, 100, 300, 1000, 3000};
    std::vector<std::string> kinds{"equal", "contains", "pattern", "owner"};
    std::vector<std::string> options;  ///< more ones of `vorel run`
    int repetitions = 3;
    Effort effort;
    bool noExtras = false;
};

/// What is measured: a script, and the lines that it is sent.
struct Task {
    const TriggerKind* kind;
    int triggers;
    Lines lines;

    auto operator<=>(const Task&) const = default;
};

/// What the bot and the bare loop have made of a task, in each repetition.
struct Results {
    std::vector<Figures> bot, bare;
};

const TriggerKind& KindNamed(const std::string& name) {
    const auto kind = std::find_if(kTriggerKinds.begin(), kTriggerKinds.end(),
                                   [&](const TriggerKind& each) { return each.name == name; });
    if (kind == kTriggerKinds.end()) throw std::runtime_error("there are no triggers of the kind " + name);
    return *kind;
}

void WriteFile(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    if (!(file << text).flush()) throw std::runtime_error(path + " can't be written");
}

std::string ReadFile(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// A folder that goes with all that is in it.
class PassingFolder {
  public:
    PassingFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "vorel-bench-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("there is no place for temporary files");
        path_ = path;
    }
    ~PassingFolder() { std::filesystem::remove_all(path_); }
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;
    std::string Path(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

class Bench {
  public:
    explicit Bench(const Options& options) : options_(options) {
        WriteFile(folder_.Path("bot.ini"),
                  "Name=Greeter\r\nPassword=x\r\nDesc=A bot.\r\nColors=w#3#3#3#3#\r\nSpec=121\r\n");
        WriteFile(folder_.Path("bot.tvm"), "[General]\r\nFurcadiaCharacter=bot.ini\r\nOwners=" + std::string(kAsker) +
                                               "\r\nMaps=Furrabian Nights\r\nScript=bot.vs\r\n");
    }

    std::map<Task, Results> MeasureAll(const std::vector<Task>& tasks) {
        std::map<Task, Results> results;
        for (int i = 0; i < options_.repetitions; ++i) {
            std::map<std::pair<int, Lines>, Figures> bare;  // the same for all kinds of triggers
            for (const Task& task : tasks) {
                const std::pair same(task.triggers, task.lines);
                if (!bare.contains(same)) bare[same] = Measure(task, BareLoop(task.triggers));
                results[task].bare.push_back(bare[same]);
                results[task].bot.push_back(Measure(task, Bot(*task.kind, task.triggers)));
                Tell(task, results[task].bot.back(), bare[same]);
            }
        }
        return results;
    }

    Idleness MeasureIdle(int triggers) {
        constexpr int kSeconds = 3;
        const TriggerKind& kind = kTriggerKinds.front();
        return MeasureIdleness(Bot(kind, triggers), OneQuestion(kind, triggers), kSeconds);
    }

  private:
    const Options& options_;
    PassingFolder folder_;

    Figures Measure(const Task& task, const CommandFor& command) const {
        return MeasureLoad(command, BatchesFor(*task.kind, task.triggers, task.lines),
                           OneQuestion(*task.kind, task.triggers), options_.effort);
    }

    CommandFor Bot(const TriggerKind& kind, int triggers) {
        WriteFile(folder_.Path("bot.vs"), ScriptOf(kind, triggers));
        return [this](int port) {
            std::vector<std::string> command{options_.programs + "/vorel",
                                             "run",
                                             folder_.Path("bot.tvm"),
                                             "--server",
                                             "127.0.0.1",
                                             "--port",
                                             std::to_string(port),
                                             "--brake",
                                             "0",
                                             "--quiet",
                                             "--keep-split-lines",
                                             "--folder",
                                             folder_.Path("")};
            command.insert(command.end(), options_.options.begin(), options_.options.end());
            return command;
        };
    }

    CommandFor BareLoop(int triggers) const {
        return [this, triggers](int port) {
            return std::vector{options_.programs + "/bare_loop", std::to_string(port), std::to_string(triggers)};
        };
    }

    static void Tell(const Task& task, const Figures& bot, const Figures& bare) {
        std::fprintf(stderr, "%-12s %5d: %9.0f lines/s (bare %9.0f)  CPU %7.3f us (%.3f)  round trip %6.1f us (%.1f)\n",
                     std::string(task.kind->name).c_str(), task.triggers, bot.linesPerSecond, bare.linesPerSecond,
                     bot.cpuMicroseconds, bare.cpuMicroseconds, bot.roundTripMicroseconds, bare.roundTripMicroseconds);
    }
};

// --- figures in words --------------------------------------------------------------------------------------------

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The value of each repetition.
std::vector<double> Each(const Results& results, const std::function<double(const Figures&, const Figures&)>& value) {
    std::vector<double> values(results.bot.size());
    std::transform(results.bot.begin(), results.bot.end(), results.bare.begin(), values.begin(), value);
    return values;
}

std::string Rounded(double value) {
    char text[32];
    std::snprintf(text, sizeof text,
                  value >= 100   ? "%.0f"
                  : value >= 10  ? "%.1f"
                  : value >= 0.1 ? "%.2f"
                                 : "%.4f",
                  value);
    return text;
}

/// With a comma before each three digits, and the last two digits of long numbers as noughts.
std::string Grouped(double value) {
    const double rounded = value >= 10'000 ? std::round(value / 100) * 100 : value;
    std::string digits = std::to_string(std::lround(rounded));
    for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, ",");
    return digits;
}

/// A median, and how far the repetitions are from it.
std::string WithNoise(const std::vector<double>& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double median = Median(values);
    const double noise = std::max(*most - median, median - *least) / median * 100;
    return Rounded(median) + " ±" + std::to_string(std::lround(noise)) + " %";
}

double Figures::*const kLinesPerSecond = &Figures::linesPerSecond;
double Figures::*const kCpu = &Figures::cpuMicroseconds;
double Figures::*const kRoundTrip = &Figures::roundTripMicroseconds;

double MedianOf(const Results& results, double Figures::*figure) {
    return Median(Each(results, [figure](const Figures& bot, const Figures&) { return bot.*figure; }));
}

double MedianOfBare(const Results& results, double Figures::*figure) {
    return Median(Each(results, [figure](const Figures&, const Figures& bare) { return bare.*figure; }));
}

std::string Ratio(const Results& results, double Figures::*figure) {
    return WithNoise(
        Each(results, [figure](const Figures& bot, const Figures& bare) { return bot.*figure / bare.*figure; }));
}

using AllResults = std::map<Task, Results>;

std::string TableByCount(const AllResults& all, const std::string& kind, const std::vector<int>& triggers) {
    std::string table =
        "| triggers | lines a second | of the bare loop's | CPU a line | the bare loop's is 1 | idle round trip | the "
        "bare loop's is 1 | memory |\n| --- | --- | --- | --- | --- | --- | --- | --- |\n";
    for (const int count : triggers) {
        const Results& results = all.at({&KindNamed(kind), count, Lines::Speech});
        table += "| " + Grouped(count) + " | " + Grouped(MedianOf(results, kLinesPerSecond)) + " | " +
                 Ratio(results, kLinesPerSecond) + " | " + Rounded(MedianOf(results, kCpu)) + " µs | " +
                 Ratio(results, kCpu) + " | " + Rounded(MedianOf(results, kRoundTrip)) + " µs | " +
                 Ratio(results, kRoundTrip) + " | " + Rounded(MedianOf(results, &Figures::anonymousMib)) + " MiB |\n";
    }
    return table;
}

std::string TableByKind(const AllResults& all, const Options& options) {
    std::string head = "| CPU a line; the bare loop's is 1 |", rule = "| --- |", rows;
    for (const int count : options.triggers) head += " " + Grouped(count) + " |", rule += " --- |";
    for (const std::string& kind : options.kinds) {
        rows += "| " + kind + " |";
        for (const int count : options.triggers)
            rows += " " + Ratio(all.at({&KindNamed(kind), count, Lines::Speech}), kCpu) + " |";
        rows += "\n";
    }
    return head + "\n" + rule + "\n" + rows;
}

std::string Picture(const AllResults& all, const Options& options) {
    std::vector<Curve> curves;
    for (const std::string& kind : options.kinds) {
        Curve bot{kind, {}}, bare{"bare loop", {}};
        for (const int count : options.triggers) {
            const Results& results = all.at({&KindNamed(kind), count, Lines::Speech});
            bot.points.emplace_back(count, MedianOf(results, kCpu));
            bare.points.emplace_back(count, MedianOfBare(results, kCpu));
        }
        if (curves.empty()) curves.push_back(bare);
        curves.push_back(bot);
    }
    return DrawCurves("triggers in the script", "processor time of a line, µs", curves);
}

// --- the other lines and scripts, at one number of triggers --------------------------------------------------------

constexpr int kExtraTriggers = 1000;

struct Extra {
    const char* words;
    std::string kind;
    Lines lines;
    Task AsTask() const { return {&KindNamed(kind), kExtraTriggers, lines}; }
};
const std::vector<Extra> kExtras = {
    {"no trigger has the cause, but for the one that answers", "other cause", Lines::Speech},
    {"the lines of a busy place: moves, looks, emotes, and speech in four of ten", "equal", Lines::Mixed},
    {"every line is answered", "equal", Lines::AllAnswered},
};

std::string TableOfExtras(const AllResults& all) {
    std::string table =
        "| with " + Grouped(kExtraTriggers) +
        " triggers | lines a second | of the bare loop's | CPU a line; the bare loop's is 1 |\n| --- | --- | --- | --- "
        "|\n";
    for (const Extra& extra : kExtras) {
        const Results& results = all.at(extra.AsTask());
        table += std::string("| ") + extra.words + " | " + Grouped(MedianOf(results, kLinesPerSecond)) + " | " +
                 Ratio(results, kLinesPerSecond) + " | " + Ratio(results, kCpu) + " |\n";
    }
    return table;
}

// --- the whole -----------------------------------------------------------------------------------------------------

std::vector<Task> TasksOf(const Options& options) {
    std::vector<Task> tasks;
    for (const int count : options.triggers)
        for (const std::string& kind : options.kinds) tasks.push_back({&KindNamed(kind), count, Lines::Speech});
    if (!options.noExtras)
        for (const Extra& extra : kExtras) tasks.push_back(extra.AsTask());
    return tasks;
}

std::string Report(const AllResults& all, const Options& options, Bench& bench) {
    const Results& first = all.at({&KindNamed(options.kinds.front()), options.triggers.front(), Lines::Speech});
    const int least = *std::min_element(options.triggers.begin(), options.triggers.end());
    const Idleness idle = bench.MeasureIdle(least);
    return TableByCount(all, options.kinds.front(), options.triggers) + "\n" + TableByKind(all, options) + "\n" +
           (options.noExtras ? "" : TableOfExtras(all) + "\n") + "The bare loop read " +
           Grouped(MedianOfBare(first, kLinesPerSecond)) + " lines a second, " + Rounded(MedianOfBare(first, kCpu)) +
           " µs of CPU each, and answered an idle question within " + Rounded(MedianOfBare(first, kRoundTrip)) +
           " µs.\nFrom the start of `vorel run` to its login it took " + Rounded(MedianOf(first, &Figures::startMs)) +
           " ms (the bare loop: " + Rounded(MedianOfBare(first, &Figures::startMs)) +
           " ms). With nothing to do it woke " + Rounded(idle.wakeUpsPerSecond) + " times a second,\nand held " +
           Rounded(idle.anonymousMib) + " MiB of anonymous memory.\n";
}

/// Puts the report between its two marks.
void WriteReport(const std::string& path, const std::string& report) {
    constexpr std::string_view kBegin = "<!-- ratios: written by scripts/bench -->\n", kEnd = "<!-- end of ratios -->";
    std::string text = ReadFile(path);
    const std::size_t begin = text.find(kBegin), end = text.find(kEnd);
    if (begin == text.npos || end == text.npos) throw std::runtime_error(path + " has no marks for the report");
    text.replace(begin + kBegin.size(), end - begin - kBegin.size(), report);
    WriteFile(path, text);
}

void Run(const Options& options) {
    Bench bench(options);
    const AllResults all = bench.MeasureAll(TasksOf(options));
    const std::string report = Report(all, options, bench);
    std::cout << report;
    if (options.docs.empty()) return;
    WriteReport(options.docs + "/performance.md", report);
    WriteFile(options.docs + "/images/cost-of-a-line.svg", Picture(all, options));
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    options.programs = std::filesystem::path(argv[0]).parent_path().string();
    CLI::App app("Measures `vorel run` beside a bare loop.");
    app.add_option("--write-docs", options.docs, "write performance.md and its picture in this folder");
    app.add_option("--triggers", options.triggers, "how many triggers the scripts have")->capture_default_str();
    app.add_option("--kinds", options.kinds, "kinds of triggers, the first of which is shown in full")
        ->capture_default_str();
    app.add_option("--repetitions", options.repetitions)->check(CLI::PositiveNumber)->capture_default_str();
    app.add_option("--seconds", options.effort.seconds, "how long each load lasts")->capture_default_str();
    app.add_option("--batches", options.effort.batchesAtOnce, "how many hundreds of lines are on their way at a time")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    app.add_flag("--no-extras", options.noExtras, "leave out the other lines and scripts");
    app.add_option("--option", options.options, "one more option of `vorel run`; may be given again");
    CLI11_PARSE(app, argc, argv);
    try {
        Run(options);
    } catch (const std::exception& fault) {
        std::cerr << "ratios: " << fault.what() << "\n";
        return 1;
    }
}
