#include <deque>

#include "engine/Dispatcher.h"
#include "movement/modMovement.h"
#include "platform/DiskFiles.h"
#include "practice/DreamBench.h"
#include "practice/Tour.h"
#include "profile/ProfileFile.h"
#include "rehearsal/Rehearsal.h"
#include "support/Written.h"

namespace {

const std::string kFolder = "examples/tour/";

/// The witness in the practice dream, with lines handed over in memory where otherwise sockets are.
class Witness {
  public:
    Witness() : rehearsal(disk_, ".", [this](const std::string& line) { Take(line); }) {
        EXPECT_TRUE(LoadProfile(rehearsal.bot, TVOREL_SOURCE_DIR "/" + kFolder + "witness.tvm").found);
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

    Lines console;
    DreamBench bench;
    FurreId id = bench.dream.Connect().value();

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
    Witness witness;
    TourReading reading = ReadTour(ReadSource(kFolder + "tour.txt"), "tour.txt");
    EXPECT_EQ(reading.fault, "");
    TourPlayer player(std::move(reading.tour), witness.bench.dream);
    for (int second = 0; second < 120 && !player.IsOver(); ++second) {
        player.PassSecond();
        witness.Exchange();
    }
    EXPECT_TRUE(player.IsOver());
    const std::string told = Join(witness.console, "\n") + "\n";
    EXPECT_EQ(told, ReadSource("tests/practice/witness.out"));
    for (int code = EventSpeech; code <= kLastEvent; ++code) {
        const bool isOfTheProgram = code == EventTimerTick || code == EventClientCommand;
        EXPECT_EQ(told.find("event " + std::to_string(code) + ",") == told.npos, isOfTheProgram) << code;
    }
}

TEST(BotInThePracticeDream, WalksRoundTheWallAndTheDream) {
    Witness witness;
    ASSERT_TRUE(witness.bench.dream.OpenDream("Small|Pond", {26, 19}));
    witness.Exchange();
    modMovement::StartWalk(witness.rehearsal.bot, {28, 21});
    int ticks = 0;
    for (; ticks < 60 && witness.rehearsal.host.IsMovementTimerEnabled(); ++ticks) {
        modMovement::Tick(witness.rehearsal.bot);
        witness.Exchange();
    }
    EXPECT_EQ(witness.bench.dream.Find("Witness")->at, (Square{28, 21})) << ticks << " steps";
    EXPECT_EQ(witness.rehearsal.bot.state.map, "Practice|Dream") << "never stepped into the pond";
}

}  // namespace
