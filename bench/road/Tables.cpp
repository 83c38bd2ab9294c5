#include "road/Tables.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

#include "road/Picture.h"

namespace {

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

/// With a comma before each three digits, and the last two digits of long numbers as noughts.
std::string Grouped(double value) {
    const double rounded = value >= 10'000 ? std::round(value / 100) * 100 : value;
    std::string digits = std::to_string(std::lround(rounded));
    for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, ",");
    return digits;
}

/// With as many digits as say something.
std::string Rounded(double value) {
    if (value >= 100) return Grouped(value);
    char text[32];
    std::snprintf(text, sizeof text, value >= 10 ? "%.1f" : value >= 0.1 ? "%.2f" : "%.4f", value);
    return text;
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

std::string TableByCount(const AllResults& all, const std::string& kind, const std::vector<int>& triggers) {
    std::string table =
        "| triggers | lines a second | of the bare loop's | CPU a line | the bare loop's is 1 | idle round trip | the "
        "bare loop's is 1 | memory |\n| --- | --- | --- | --- | --- | --- | --- | --- |\n";
    for (const int count : triggers) {
        const Results& results = all.at({&KindNamed(kind), count, Lines::Mixed});
        table += "| " + Grouped(count) + " | " + Grouped(MedianOf(results, kLinesPerSecond)) + " | " +
                 Ratio(results, kLinesPerSecond) + " | " + Rounded(MedianOf(results, kCpu)) + " µs | " +
                 Ratio(results, kCpu) + " | " + Rounded(MedianOf(results, kRoundTrip)) + " µs | " +
                 Ratio(results, kRoundTrip) + " | " + Rounded(MedianOf(results, &Figures::anonymousMib)) + " MiB |\n";
    }
    return table;
}

std::string TableByKind(const AllResults& all, const Plan& plan) {
    std::string head = "| CPU a line; the bare loop's is 1 |", rule = "| --- |", rows;
    for (const int count : plan.triggers) head += " " + Grouped(count) + " |", rule += " --- |";
    for (const std::string& kind : plan.kinds) {
        rows += "| " + kind + " |";
        for (const int count : plan.triggers)
            rows += " " + Ratio(all.at({&KindNamed(kind), count, Lines::Mixed}), kCpu) + " |";
        rows += "\n";
    }
    return head + "\n" + rule + "\n" + rows;
}

constexpr int kExtraTriggers = 1000;

struct Extra {
    const char* words;
    std::string kind;
    Lines lines;
    Task AsTask() const { return {&KindNamed(kind), kExtraTriggers, lines}; }
};
const std::vector<Extra> kExtras = {
    {"no trigger has the cause, but for the one that answers", "other cause", Lines::Mixed},
    {"all lines are speech, and every trigger is tried", "equal", Lines::Speech},
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

}  // namespace

std::vector<Task> TasksOf(const Plan& plan) {
    std::vector<Task> tasks;
    for (const int count : plan.triggers)
        for (const std::string& kind : plan.kinds) tasks.push_back({&KindNamed(kind), count, Lines::Mixed});
    if (plan.extras)
        for (const Extra& extra : kExtras) tasks.push_back(extra.AsTask());
    return tasks;
}

std::string DescribeResults(const AllResults& all, const Plan& plan, const Idleness& idle) {
    const Results& first = all.at({&KindNamed(plan.kinds.front()), plan.triggers.front(), Lines::Mixed});
    return TableByCount(all, plan.kinds.front(), plan.triggers) + "\n" + TableByKind(all, plan) + "\n" +
           (plan.extras ? TableOfExtras(all) + "\n" : "") + "The bare loop read " +
           Grouped(MedianOfBare(first, kLinesPerSecond)) + " lines a second, " + Rounded(MedianOfBare(first, kCpu)) +
           " µs of CPU each, and answered an idle question within " + Rounded(MedianOfBare(first, kRoundTrip)) +
           " µs.\nFrom the start of `vorel run` to its login it took " + Rounded(MedianOf(first, &Figures::startMs)) +
           " ms (the bare loop: " + Rounded(MedianOfBare(first, &Figures::startMs)) +
           " ms). With nothing to do it woke " + Rounded(idle.wakeUpsPerSecond) + " times a second,\nand held " +
           Rounded(idle.anonymousMib) + " MiB of anonymous memory.\n";
}

std::string DrawResults(const AllResults& all, const Plan& plan) {
    std::vector<Curve> curves;
    for (const std::string& kind : plan.kinds) {
        Curve bot{kind, {}}, bare{"bare loop", {}};
        for (const int count : plan.triggers) {
            const Results& results = all.at({&KindNamed(kind), count, Lines::Mixed});
            bot.points.emplace_back(count, MedianOf(results, kCpu));
            bare.points.emplace_back(count, MedianOfBare(results, kCpu));
        }
        if (curves.empty()) curves.push_back(bare);
        curves.push_back(bot);
    }
    return DrawCurves("triggers in the script", "processor time of a line, µs", curves);
}
