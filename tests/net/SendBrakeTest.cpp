#include <sstream>

#include "net/SendBrake.h"
#include "support/Written.h"

namespace {

TEST(SendBrake, LetsABurstPassAndTheRestInOrderAndInTime) {
    SendBrake brake;
    brake.SetRate(2);
    int next = 0;
    std::string expected, passed;
    const Block moments = BlocksOf("tests/net/brake.txt").at(0);
    for (const std::string& moment : moments) {
        std::istringstream words(moment);
        std::int64_t at = 0;
        std::size_t by = 0, busiest = 0;
        int lines = 0, gone = 0, news = 0;
        words >> at >> lines >> by >> gone >> news >> busiest;
        std::string bytes;
        for (; lines > 0; --lines) bytes += std::to_string(next++) + "\n";
        expected += bytes;
        passed += bytes.empty() ? brake.Release(at) : brake.Take(bytes, {"bot.vs", by}, at);
        EXPECT_EQ(std::count(passed.begin(), passed.end(), '\n'), gone) << moment;
        const SendBrake::Report report = brake.TakeReport();
        EXPECT_EQ(static_cast<int>(report.news), news) << moment;
        EXPECT_EQ(report.busiest.line, busiest) << moment;
    }
    EXPECT_TRUE(expected.starts_with(passed)) << "in order";
    EXPECT_EQ(brake.WaitMs(40000), std::nullopt) << "what waited was dropped";
    brake.Take(std::string(SendBrake::kMostQueuedBytes + 1, 'x'), {"bot.vs", 5}, 40000);
    EXPECT_EQ(brake.TakeReport().news, SendBrake::News::Emptied) << "few lines, but long ones";
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
