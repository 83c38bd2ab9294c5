#include <deque>
#include <set>

#include "engine/Dispatcher.h"
#include "movement/modMovement.h"
#include "platform/DiskFiles.h"
#include "practice/DreamBench.h"
#include "practice/Tour.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "text/Text.h"

using testing::IsEmpty;

namespace {

const std::string kExamples = std::string(TVOREL_SOURCE_DIR) + "/examples";

/// A whole bot in the practice dream, with lines handed over in memory where otherwise sockets are.
class BotInDream {
  public:
    BotInDream() : rehearsal(disk_, ".", [this](const std::string& line) { Take(line); }) {}

    void Connect(const std::string& profile) {
        EXPECT_TRUE(LoadProfile(rehearsal.bot, profile).found);
        id = bench.dream.Connect().value();
        rehearsal.host.SetServerConnected(true);
        rehearsal.session.OnServerConnected();
        Exchange();
    }

    /// Until neither side has anything more to say.
    void Exchange() {
        for (bool quiet = false; !quiet;) {
            for (; !sent_.empty(); sent_.pop_front()) bench.dream.Hear(id, sent_.front());
            std::string packet;
            const Lines heard = bench.Listen()[id];
            for (const std::string& line : heard) packet += line + "\n";
            if (!packet.empty()) rehearsal.session.OnServerData(packet);
            quiet = packet.empty() && sent_.empty();
        }
    }

    void Play(const std::string& tourFile) {
        TourReading reading = ReadTour(disk_.Read(tourFile), tourFile);
        ASSERT_EQ(reading.fault, "");
        TourPlayer player(std::move(reading.tour), bench.dream);
        for (int second = 0; second < 120 && !player.IsOver(); ++second) {
            player.PassSecond();
            Exchange();
        }
        EXPECT_TRUE(player.IsOver());
    }

    Square At() { return bench.dream.Find(rehearsal.bot.state.vorel.name)->at; }

    DreamBench bench;
    FurreId id = 0;
    Lines console;

  private:
    void Take(const std::string& line) {
        constexpr std::string_view kSent = "sent ", kConsole = "console ";
        if (line.starts_with(kSent)) sent_.push_back(line.substr(kSent.size()));
        if (line.starts_with(kConsole)) console.push_back(line.substr(kConsole.size()));
    }
    DiskFiles disk_;
    std::deque<std::string> sent_;

  public:
    Rehearsal rehearsal;
};

/// What the events carry must be what was done, or a line has a word too many.
TEST(ExampleTour, RaisesEveryEventInAConnectedBotAndTellsWhatHappened) {
    BotInDream witness;
    witness.Connect(kExamples + "/tour/witness.tvm");
    witness.Play(kExamples + "/tour/tour.txt");
    std::set<int> missing = {EventDreamListS, EventDreamListT};
    for (int code = EventSpeech; code <= EventDiceRoll; ++code) missing.insert(code);
    for (const std::string& line : witness.console) {
        if (line.starts_with("event ")) missing.erase(std::stoi(line.substr(6)));
    }
    EXPECT_THAT(missing, IsEmpty());
    for (const char* const line :
         {"event 7, somebody whispers to the bot: Bob: psst", "event 11, the bot whispers: to Ann: nice to meet you",
          "event 20, the bot enters any map or dream: Practice|Dream, from Unknown",
          "event 23, a visitor has gone: Bob", "event 24, the list of visitors is new: Witness, Ann, Bob",
          "event 25, somebody breathes: (18,14)", "event 31, a notice says what you did: Ann",
          "event 32, a notice speaks of your request: Ann", "event 38, the bot sets off a trigger: 1 at (18,14)",
          "event 40, a cookie is given to somebody else: Ann to Ann", "event 43, the game tells its time: 7:5:9 PM",
          "event 45, dice are thrown: Ann: 2d6 = 3, the first 1", "event 48, a dream opens: Small|Pond at (26,12)",
          "event 4, somebody speaks: Ann: that was all"}) {
        EXPECT_THAT(witness.console, testing::Contains(line));
    }
}

TEST(BotInThePracticeDream, WalksRoundTheWallAndTheDream) {
    BotInDream witness;
    witness.Connect(kExamples + "/tour/witness.tvm");
    ASSERT_TRUE(witness.bench.dream.OpenDream("Small|Pond", {26, 19}));
    witness.Exchange();
    modMovement::StartWalk(witness.rehearsal.bot, {28, 21});
    int ticks = 0;
    for (; ticks < 60 && witness.rehearsal.host.IsMovementTimerEnabled(); ++ticks) {
        modMovement::Tick(witness.rehearsal.bot);
        witness.Exchange();
    }
    EXPECT_EQ(witness.At(), (Square{28, 21})) << ticks << " steps";
    EXPECT_EQ(witness.rehearsal.bot.state.map, "Practice|Dream") << "never stepped into the pond";
}

}  // namespace
