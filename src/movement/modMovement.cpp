#include "movement/modMovement.h"

#include <algorithm>
#include <string>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "send/modSend.h"
#include "text/Numbers.h"

namespace modMovement {
namespace {

/// What happens to a walk when all four directions have failed at one square.
enum class GivingUp { KeepsTarget, ClearsTarget };

struct StuckRule {
    std::int16_t direction;
    std::int16_t otherDirections[3];  ///< tried in this order
    GivingUp givingUp;
};

// Kept on purpose: whether the target survives depends on the direction that failed last.
constexpr StuckRule kStuckRules[] = {
    {1, {3, 7, 9}, GivingUp::KeepsTarget},
    {3, {1, 9, 7}, GivingUp::ClearsTarget},
    {7, {9, 1, 3}, GivingUp::ClearsTarget},
    {9, {7, 3, 1}, GivingUp::KeepsTarget},
};

bool& Tried(Walk& walk, std::int16_t direction) {
    switch (direction) {
        case 1:
            return walk.tried1;
        case 3:
            return walk.tried3;
        case 7:
            return walk.tried7;
        default:
            return walk.tried9;
    }
}

void ForgetTarget(Bot& bot) { bot.walk.target = {}; }

std::int16_t GreedyDirection(Square bot, Square target) {
    if (bot.x < target.x) return bot.y > target.y ? 9 : 3;
    if (bot.x == target.x) {
        if (bot.y == target.y) return 0;  // never asked: there the walk has ended
        // From every other row a single step keeps the column. Which rows those are is not asked: a step that has left
        // the column is made up for by the next.
        if (bot.y < target.y) return Subtract16(target.y, bot.y) == 1 ? 1 : 3;
        return Subtract16(bot.y, target.y) == 1 ? 9 : 7;
    }
    // Kept on purpose: a target up and to the left by two or more rows is first walked away from, downward; the stuck
    // and detour rules make up for it.
    return bot.y > target.y && Subtract16(bot.y, target.y) == 1 ? 7 : 1;
}

/// The last step did not move the bot: its direction has failed, and another one is chosen.
void TryAnotherDirection(Bot& bot) {
    Walk& walk = bot.walk;
    const auto* const rule = std::find_if(std::begin(kStuckRules), std::end(kStuckRules),
                                          [&](const StuckRule& row) { return row.direction == walk.direction; });
    if (rule == std::end(kStuckRules)) return;
    Tried(walk, walk.direction) = true;
    for (const std::int16_t other : rule->otherDirections) {
        if (Tried(walk, other)) continue;
        Tried(walk, other) = true;
        walk.direction = other;
        return;
    }
    if (rule->givingUp == GivingUp::ClearsTarget) ForgetTarget(bot);
    StopWalk(bot);
}

/// The direction in place of one whose square is blocked. It is not tested against the blocked squares again.
std::int16_t Detour(const Bot& bot) {
    const auto blocked = [&bot](std::int16_t direction) { return IsBlocked(bot, Neighbour(bot, direction)); };
    switch (bot.walk.direction) {
        case 1:
            return !blocked(3) ? 3 : blocked(7) ? 9 : 7;
        case 3:
            return !blocked(1) ? 1 : blocked(9) ? 7 : 9;
        case 7:
            // Kept on purpose: nothing ever sets the reference, so it is 9 on all of the map, which begins at column 0.
            if (!blocked(9)) return bot.state.vorelInto.x >= bot.walk.detourReferenceX ? 9 : 1;
            return blocked(1) ? 3 : 1;
        case 9:
            return !blocked(7) ? 7 : blocked(3) ? 1 : 3;
        default:
            return 0;
    }
}

}  // namespace

// What was tried stays tried: the bot may still be stuck at the square where the last walk gave up.
void StartWalk(Bot& bot, Square target) {
    bot.walk.target = target;
    bot.host.SwitchMovementTimer(true);
}

void StopWalk(Bot& bot) { bot.host.SwitchMovementTimer(false); }

void Tick(Bot& bot) {
    Walk& walk = bot.walk;
    if (bot.state.vorelInto == walk.target) {
        ForgetTarget(bot);
        StopWalk(bot);
        return;
    }
    walk.direction = GreedyDirection(bot.state.vorelInto, walk.target);
    // What is compared is the last move that the game has told. It may be older than the walk, whose first step counts
    // as failed then.
    if (bot.state.vorelInto == bot.state.vorelFrom) {
        TryAnotherDirection(bot);
    } else {
        walk.tried1 = walk.tried3 = walk.tried7 = walk.tried9 = false;
    }
    if (IsBlocked(bot, Neighbour(bot, walk.direction))) walk.direction = Detour(bot);
    // Sent even when the walk has just given up: then once more the direction that has failed.
    std::string step = std::to_string(walk.direction);
    modSend::SendMoves(bot, step);
}

bool IsBlocked(const Bot& bot, Square square) {
    return std::find(bot.state.dreams.begin(), bot.state.dreams.end(), square) != bot.state.dreams.end();
}

Square Neighbour(const Bot& bot, std::int16_t direction) {
    const Square at = bot.state.vorelInto;
    if (direction != 1 && direction != 3 && direction != 7 && direction != 9) return at;
    // Rows are laid like bricks: an odd one begins half a square further left.
    const bool up = direction == 7 || direction == 9;
    const bool right = direction == 3 || direction == 9;
    const bool evenRow = at.y % 2 == 0;
    const auto shift = static_cast<std::int16_t>(right ? (evenRow ? 2 : 0) : (evenRow ? 0 : -2));
    return {Add16(at.x, shift), up ? Subtract16(at.y, 1) : Add16(at.y, 1)};
}

}  // namespace modMovement
