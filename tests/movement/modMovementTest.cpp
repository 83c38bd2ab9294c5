#include <gtest/gtest.h>

#include "movement/modMovement.h"
#include "support/Cases.h"
#include "support/RehearsalBot.h"
#include "text/Fault.h"

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

struct StepCase : Row {
    Square at, target;
    std::vector<Square> dreams;
    int direction;
};

constexpr Square kEven{10, 10}, kUpLeft{10, 9}, kUpRight{12, 9}, kDownLeft{10, 11}, kDownRight{12, 11};

// clang-format off
const StepCase kSteps[] = {
    // Straight for the target
    {"AlreadyThere", kEven, kEven, {}, 0}, {"RightAndUp", {10, 10}, {12, 9}, {}, 9},
    {"RightInTheSameRow", {10, 10}, {12, 10}, {}, 3}, {"RightAndDown", {10, 10}, {12, 11}, {}, 3},
    {"OneRowDown", {10, 10}, {10, 11}, {}, 1}, {"TwoRowsDown", {10, 5}, {10, 7}, {}, 3},
    {"OneRowUp", {10, 7}, {10, 6}, {}, 9}, {"ThreeRowsUp", {10, 7}, {10, 4}, {}, 7},
    {"LeftInTheSameRow", {10, 10}, {8, 10}, {}, 1}, {"LeftAndDown", {10, 10}, {8, 13}, {}, 1},
    {"LeftAndOneRowUp", {10, 10}, {8, 9}, {}, 7}, {"LeftAndTwoRowsUpGoesDown", {20, 10}, {10, 4}, {}, 1},
    // Round a dream; the squares are the neighbours in an even row
    {"DownLeftTurnsRight", kEven, {8, 10}, {kDownLeft}, 3},
    {"DownLeftGoesUp", kEven, {8, 10}, {kDownLeft, kDownRight}, 7},
    {"DownLeftGoesUpRight", kEven, {8, 10}, {kDownLeft, kDownRight, kUpLeft}, 9},
    {"DownRightTurnsLeft", kEven, {12, 10}, {kDownRight}, 1},
    {"DownRightGoesUp", kEven, {12, 10}, {kDownRight, kDownLeft}, 9},
    {"DownRightGoesUpLeft", kEven, {12, 10}, {kDownRight, kDownLeft, kUpRight}, 7},
    {"UpLeftTurnsRightAtZero", {0, 10}, {0, 4}, {{0, 9}}, 9}, {"UpLeftGoesDown", kEven, {10, 4}, {kUpLeft, kUpRight}, 1},
    {"UpLeftGoesDownRight", kEven, {10, 4}, {kUpLeft, kUpRight, kDownLeft}, 3},
    {"UpRightTurnsLeft", kEven, {12, 9}, {kUpRight}, 7}, {"UpRightGoesDown", kEven, {12, 9}, {kUpRight, kUpLeft}, 3},
    {"UpRightGoesDownLeft", kEven, {12, 9}, {kUpRight, kUpLeft, kDownRight}, 1},
    {"UpLeftGoesDownWestOfZero", {-2, 10}, {-2, 4}, {{-2, 9}}, 1},
    {"DreamsElsewhere", kEven, {12, 9}, {{12, 10}, {9, 12}}, 9},
};
// clang-format on

class FirstStep : public testing::TestWithParam<StepCase> {};

TEST_P(FirstStep, Goes) {
    Walker walker(GetParam().at, GetParam().target);
    walker.bot.state.dreams = GetParam().dreams;
    EXPECT_EQ(walker.Step(), GetParam().direction);
}

INSTANTIATE_TEST_SUITE_P(modMovement, FirstStep, testing::ValuesIn(kSteps), kCaseName);

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
