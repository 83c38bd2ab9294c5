#include <gtest/gtest.h>

#include "net/SendBrake.h"
#include "support/Written.h"

namespace {

/// At so many milliseconds so many lines are sent in one piece, by this line of the script; so many have gone by then.
struct Moment {
    std::int64_t at;
    int lines;
    std::size_t by;
    std::ptrdiff_t gone;
    SendBrake::News news = SendBrake::News::None;
    std::size_t busiest = 0;
};

TEST(SendBrake, LetsABurstPassAndTheRestInOrderAndInTime) {
    using News = SendBrake::News;
    const Moment moments[] = {
        {0, 25, 3, 20, News::Jam, 3},
        {499, 0, 0, 20},
        {500, 0, 0, 21},
        {1000, 3, 9, 22},
        {5000, 0, 0, 28},
        {9000, 2, 9, 30},
        {13000, 20, 9, 46},
        {20000, 0, 0, 50},
        {25100, 0, 0, 50},
        {25100, 21, 9, 70, News::Jam, 9},
        {40000, 2000, 7, 90, News::Emptied, 7},
    };
    SendBrake brake;
    brake.SetRate(2);
    std::ptrdiff_t gone = 0;
    int next = 0;
    std::string expected, passed;
    for (const Moment& moment : moments) {
        std::string bytes;
        for (int i = 0; i < moment.lines; ++i) bytes += std::to_string(next++) + "\n";
        expected += bytes;
        passed += bytes.empty() ? brake.Release(moment.at) : brake.Take(bytes, {"bot.vs", moment.by}, moment.at);
        gone = std::count(passed.begin(), passed.end(), '\n');
        EXPECT_EQ(gone, moment.gone) << moment.at;
        const SendBrake::Report report = brake.TakeReport();
        EXPECT_EQ(report.news, moment.news) << moment.at;
        EXPECT_EQ(report.busiest.line, moment.busiest) << moment.at;
    }
    EXPECT_TRUE(expected.starts_with(passed)) << "in order";
    EXPECT_EQ(brake.WaitMs(40000), std::nullopt) << "what waited was dropped";
    brake.Take(std::string(SendBrake::kMostQueuedBytes + 1, 'x'), {"bot.vs", 5}, 40000);
    EXPECT_EQ(brake.TakeReport().news, News::Emptied) << "few lines, but long ones";
    EXPECT_EQ(brake.WaitMs(40000), std::nullopt);
}

TEST(SendBrake, TellsHowLongToWaitAndCanBeSwitchedOff) {
    SendBrake brake;
    brake.Take(std::string(201, '\n'), {}, 0);
    EXPECT_EQ(brake.WaitMs(20), 30);
    brake.SetRate(0);
    EXPECT_EQ(brake.WaitMs(20), 0);
    EXPECT_EQ(brake.Take("a\n", {}, 20), "\na\n");
    EXPECT_EQ(brake.Take(std::string(5000, '\n'), {}, 20).size(), 5000u);
}

}  // namespace
