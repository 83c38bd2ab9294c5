#include "practice/DreamBench.h"
#include "practice/Tour.h"
#include "support/Written.h"

// Plays the cases in dream.txt to a practice dream with Ann|Fur and Bob in it, both at (20,15), which the protocol
// writes as " * /". A line is what a client sends, as in "Ann> LINE", or a step of a tour. Behind it stands what the
// clients are sent for it, "Ann< LINE", or "Ann<! LINE" when the connection is to be closed then; or, after "!", why
// the step can't be read. A client of another name comes with its first line.

namespace {

class PlayedDream : public DreamBench {
  public:
    Block Replay(const Block& written) {
        Block replayed;
        for (const std::string& line : written) {
            const std::string word = line.substr(0, line.find(' '));
            if (word.starts_with('!') || word.find('<') != word.npos) continue;
            replayed.push_back(line);
            if (word.ends_with('>')) {
                Send(word.substr(0, word.size() - 1), line.substr(word.size() + 1));
            } else if (const std::string fault = TakeStep(line); !fault.empty()) {
                replayed.push_back("! " + fault);
            }
            for (const Delivery& delivery : dream.TakeDeliveries()) {
                const std::string mark = delivery.last ? "<! " : "< ";
                if (names_.contains(delivery.furre)) replayed.push_back(names_[delivery.furre] + mark + delivery.line);
            }
        }
        return replayed;
    }

  private:
    std::map<FurreId, std::string> names_ = {{Client("Ann|Fur", "aaaaaaaaaa\"!#"), "Ann"},
                                             {Client("Bob", "bbbbbbbbbb!!!"), "Bob"}};
    std::string tour_ = "wait for Ann|Fur\nwait for Bob\n";

    void Send(const std::string& name, const std::string& line) {
        auto client =
            std::find_if(names_.begin(), names_.end(), [&](const auto& entry) { return entry.second == name; });
        if (client == names_.end()) client = names_.emplace(dream.Connect().value(), name).first;
        dream.Hear(client->first, line);
    }

    /// Does the step as part of the tour so far, in which others are there or not.
    std::string TakeStep(const std::string& line) {
        const TourReading reading = ReadTour(tour_ + line, "tour");
        if (!reading.fault.empty()) return reading.fault;
        tour_ += line + "\n";
        reading.tour.steps.back().act(dream, reading.tour.steps.back());
        return {};
    }
};

TEST(Dream, AnswersAsWritten) {
    for (const Block& block : BlocksOf("tests/practice/dream.txt")) {
        EXPECT_EQ(Join(PlayedDream().Replay(block), "\n"), Join(block, "\n"));
    }
}

TEST(Tour, PlaysItsStepsWhenTheirTimeHasCome) {
    DreamBench bench;
    TourPlayer player(ReadTour("wait for Bot\nAnn arrives\n\n# says it in time\nafter 2 Ann says hi\nBot says well\n"
                               "after 1 Ann leaves\nboot Bot\nafter 1 pause",
                               "tour")
                          .tour,
                      bench.dream);
    player.PassSecond();
    player.PassSecond();
    EXPECT_THAT(bench.Listen(), testing::IsEmpty()) << "waits for the bot";
    const FurreId bot = bench.Client("Rex", "rrrrrrrrrr!!!");
    std::vector<std::size_t> heard;
    for (int second = 0; second < 10 && !player.IsOver(); ++second) {
        player.PassSecond();
        heard.push_back(bench.Listen()[bot].size());
    }
    EXPECT_THAT(heard, testing::ElementsAre(1, 0, 4, 1, 0))
        << "Ann appears, speaks in time, so does the bot, then goes";
    EXPECT_TRUE(TourPlayer(Tour(), bench.dream).IsOver());
}

TEST(Dream, OutlivesGarbageAndFloods) {
    DreamBench bench;
    const FurreId ann = bench.Client("Ann", "aaaaaaaaaa!!!"), bob = bench.Client("Bob", "bbbbbbbbbb!!!");
    const Lines starts = {"",      "connect ", "color ",  "desc ",   "m ",         "l ",
                          "wh ",   "wh Bob ",  "join ",   "summon ", "decline ",   "gomap ",
                          "onln ", "\"look ",  "\"roll ", "goback",  "vascodagama"};
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    unsigned seed = 1;
    const auto next = [&seed] { return seed = seed * 1664525U + 1013904223U, seed >> 16U; };
    for (int i = 0; i < 20000; ++i) {
        std::string said = starts[next() % starts.size()];
        for (unsigned n = next() % 20; n > 0; --n) said += static_cast<char>(next() % 256);
        for (const auto& [furre, lines] : bench.Hear(i % 2 == 0 ? ann : bob, said)) {
            ASSERT_LT(lines.size(), 20U);
            for (const std::string& line : lines) ASSERT_TRUE(std::none_of(line.begin(), line.end(), isControl));
        }
    }
    for (auto& [furre, lines] : bench.Hear(ann, "\"" + std::string(1000000, 'x'))) {
        for (const std::string& line : lines) EXPECT_LT(line.size(), kLongestLine + 100);
    }
    while (bench.dream.Connect()) continue;
    EXPECT_FALSE(bench.dream.Arrive("Late")) << "the dream is full";
    bench.dream.Leave(ann);
    bench.dream.Leave(ann);
    EXPECT_TRUE(bench.dream.Arrive("Late"));
}

}  // namespace
