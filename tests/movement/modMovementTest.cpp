#include <sstream>

#include "movement/modMovement.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "support/Written.h"

namespace {

using Told = std::vector<std::string>;

/// A bot on its way: it has just moved, so that nothing counts as stuck.
class Walker : public RehearsalBot {
  public:
    Walker(Square at, Square target) {
        bot.state.vorelInto = at;
        bot.state.vorelFrom = {-2, -2};
        modMovement::StartWalk(bot, target);
    }

    /// The direction that one tick sends; 0 when it sends none.
    int Step() {
        modMovement::Tick(bot);
        const Told sent = TakeTold();
        return sent.empty() ? 0 : sent.front().back() - '0';
    }
};

constexpr Square kEven{10, 10};

TEST(modMovement, TheFirstStepGoesAsWritten) {
    const Block steps = BlocksOf("tests/movement/first-steps.txt").at(0);
    for (const std::string& line : steps) {
        std::istringstream words(line);
        std::string name;
        Square at, target, dream;
        int direction = 0;
        words >> name >> at.x >> at.y >> target.x >> target.y >> direction;
        Walker walker(at, target);
        while (words >> dream.x >> dream.y) walker.bot.state.dreams.push_back(dream);
        EXPECT_EQ(walker.Step(), direction) << line;
    }
}

struct StuckCase : Row {
    Square target;
    std::vector<int> directions;  ///< of the ticks up to the one that gives up, which sends the first one again
    bool keepsTarget;
};

// clang-format off
const StuckCase kStuck[] = {
    {"DownLeft",  {8, 10},  {3, 7, 9, 1}, true},
    {"DownRight", {12, 10}, {1, 9, 7, 3}, false},
    {"UpLeft",    {10, 4},  {9, 1, 3, 7}, false},
    {"UpRight",   {12, 9},  {7, 3, 1, 9}, true},
};
// clang-format on

class StuckWalk : public testing::TestWithParam<StuckCase> {};

TEST_P(StuckWalk, TriesEachDirectionOnceAndGivesUp) {
    Walker walker(kEven, GetParam().target);
    walker.bot.state.vorelFrom = kEven;
    for (const int direction : GetParam().directions) {
        EXPECT_TRUE(walker.host.IsMovementTimerEnabled());
        EXPECT_EQ(walker.Step(), direction);
    }
    EXPECT_FALSE(walker.host.IsMovementTimerEnabled());
    EXPECT_EQ(walker.bot.walk.target == GetParam().target, GetParam().keepsTarget);
    EXPECT_EQ(walker.bot.walk.target == Square{}, !GetParam().keepsTarget);
}

INSTANTIATE_TEST_SUITE_P(modMovement, StuckWalk, testing::ValuesIn(kStuck), kCaseName);

TEST(modMovement, OnlyAMoveClearsWhatWasTriedANewWalkDoesNot) {
    Walker walker(kEven, {8, 10});
    walker.bot.state.vorelFrom = kEven;
    EXPECT_EQ(walker.Step(), 3);
    modMovement::StopWalk(walker.bot);  // keeps the target
    EXPECT_EQ(walker.bot.walk.target, (Square{8, 10}));
    modMovement::StartWalk(walker.bot, {8, 10});
    EXPECT_EQ(walker.Step(), 7);
    walker.bot.state.vorelFrom = {12, 10};
    EXPECT_EQ(walker.Step(), 1);
    walker.bot.state.vorelFrom = kEven;
    EXPECT_EQ(walker.Step(), 3);
}

TEST(modMovement, NeighboursFollowTheRowsParity) {
    Walker walker({10, 10}, {});
    const auto neighbours = [&](Square at) {
        walker.bot.state.vorelInto = at;
        const auto to = [&](std::int16_t direction) { return modMovement::Neighbour(walker.bot, direction); };
        return std::vector<Square>{to(9), to(7), to(3), to(1)};
    };
    EXPECT_EQ(neighbours({10, 10}), (std::vector<Square>{{12, 9}, {10, 9}, {12, 11}, {10, 11}}));
    EXPECT_EQ(neighbours({10, 9}), (std::vector<Square>{{10, 8}, {8, 8}, {10, 10}, {8, 10}}));
    EXPECT_EQ(neighbours({10, -3}), (std::vector<Square>{{10, -4}, {8, -4}, {10, -2}, {8, -2}}));
    EXPECT_THROW(neighbours({32766, 10}), RuntimeFault);
}

}  // namespace
