// How fast `vorel run` answers lines of the game, beside the least that a bot can be (bare_loop.cpp), in one run on one
// machine: lines a second, processor time, memory and round trips, by the number and the kind of triggers.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "road/Tables.h"
#include "road/TextFile.h"

namespace {

/// Puts the report between its two marks.
void WriteReport(const std::string& path, const std::string& report) {
    constexpr std::string_view kBegin = "<!-- ratios: written by scripts/bench -->\n", kEnd = "<!-- end of ratios -->";
    std::string text = ReadTextFile(path);
    const std::size_t begin = text.find(kBegin), end = text.find(kEnd);
    if (begin == text.npos || end == text.npos) throw std::runtime_error(path + " has no marks for the report");
    text.replace(begin + kBegin.size(), end - begin - kBegin.size(), report);
    WriteTextFile(path, text);
}

/// @param docs  the folder of performance.md; empty: the report is only printed
void Run(const Plan& plan, const std::string& docs) {
    const AllResults all = Compare(plan, TasksOf(plan));
    const std::string report = DescribeResults(all, plan, MeasureIdleBot(plan));
    std::cout << report;
    if (docs.empty()) return;
    WriteReport(docs + "/performance.md", report);
    WriteTextFile(docs + "/images/cost-of-a-line.svg", DrawResults(all, plan));
}

}  // namespace

int main(int argc, char** argv) {
    Plan plan;
    std::string docs;
    bool noExtras = false;
    plan.programs = std::filesystem::path(argv[0]).parent_path().string();
    CLI::App app("Measures `vorel run` beside a bare loop.");
    app.add_option("--write-docs", docs, "write performance.md and its picture in this folder");
    app.add_option("--triggers", plan.triggers, "how many triggers the scripts have")
        ->check(CLI::Range(1, 5000))
        ->capture_default_str();
    app.add_option("--kinds", plan.kinds, "kinds of triggers, the first of which is shown in full")
        ->capture_default_str();
    app.add_option("--repetitions", plan.repetitions)->check(CLI::PositiveNumber)->capture_default_str();
    app.add_option("--seconds", plan.effort.seconds, "how long each load lasts")->capture_default_str();
    app.add_option("--batches", plan.effort.batchesAtOnce, "how many hundreds of lines are on their way at a time")
        ->check(CLI::PositiveNumber)
        ->capture_default_str();
    app.add_flag("--no-extras", noExtras, "leave out the other lines and scripts");
    app.add_option("--option", plan.options, "one more option of `vorel run`; may be given again");
    CLI11_PARSE(app, argc, argv);
    try {
        plan.extras = !noExtras;
        Run(plan, docs);
    } catch (const std::exception& fault) {
        std::cerr << "ratios: " << fault.what() << "\n";
        return 1;
    }
}
