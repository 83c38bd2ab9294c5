#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "game/Base95.h"
#include "net/LineReaders.h"
#include "send/modSend.h"

namespace {

// Where fields stand is named in each reader, as in docs/protocol.md. All fields of a line are read before its event
// is raised: a line too short for one is a fault, and no script has seen half of it.

constexpr std::size_t kMarkerAt = 1, kSecondMarkerAt = 2, kKindAt = 3;

constexpr std::ptrdiff_t kNumberLength = 2;
constexpr std::int16_t kAsIs = 1, kHalved = 2;  // x counts by twos, so the game sends half of it

std::int16_t NumberAt(const ServerLine& line, std::size_t position, std::int16_t multiplier = kAsIs) {
    return DecodeBase95Pair(line.Text(position, kNumberLength), multiplier);
}

/// A square: x halved, and y behind it.
Square SquareAt(const ServerLine& line, std::size_t position) {
    return {NumberAt(line, position, kHalved), NumberAt(line, position + kNumberLength)};
}

void ReadTriggerLine(Bot& bot, const ServerLine& line, DragonSpeakNotice& notice, GameEvent event) {
    constexpr std::size_t kFromAt = 2, kIntoAt = 6, kEntriesAt = 10, kEntryLength = 6;
    notice.from = SquareAt(line, kFromAt);
    notice.into = SquareAt(line, kIntoAt);
    // What is left over behind the last whole entry is passed over; a line may have none at all.
    for (std::size_t at = kEntriesAt; at + kEntryLength <= line.Length() + 1; at += kEntryLength) {
        notice.trigger = NumberAt(line, at);
        notice.triggerAt = SquareAt(line, at + kNumberLength);
        RunScript(bot, event);
    }
}

/// Comes before what a furre says: its looks, or its badge.
void ReadPlayerLooks(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kLooksAt = 5, kTagAt = 5;
    if (line.HasAt(kKindAt, "#A")) {
        bot.state.player.looks = line.LooksAt(kLooksAt);
        // Kept on purpose: the tag is the whole line then, so that every furre whose badge has not come has some badge.
        bot.state.playerTag = line.Whole();
    } else if (line.HasAt(kKindAt, "#B")) {
        bot.state.playerTag = line.RestFrom(kTagAt);
    }
}

void ReadOnlineAnswer(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kNameAt = 4;
    // Kept on purpose: the name is taken whatever the answer is; only two answers raise an event.
    bot.state.onlineName = line.RestFrom(kNameAt);
    if (line.HasAt(kKindAt, "0")) RunScript(bot, EventPlayerOffline);
    if (line.HasAt(kKindAt, "1")) RunScript(bot, EventPlayerOnline);
}

void ReadLookResult(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kLooksAt = 3, kNameAt = 16;
    bot.state.look.name = line.RestFrom(kNameAt);
    bot.state.look.looks = line.LooksAt(kLooksAt);
    RunScript(bot, EventLookResult);
}

/// The server asks for a dream to be loaded, and waits until it hears that it is. A linked client answers for itself.
void AnswerDreamRequest(Bot& bot, const ServerLine&) {
    if (!bot.host.IsClientConnected()) modSend::SendLine(bot, "vascodagama");
}

constexpr std::size_t kDreamSquareAt = 3, kDreamNameAt = 7;

void ReadDreamAppears(Bot& bot, const ServerLine& line) {
    bot.state.dream = SquareAt(line, kDreamSquareAt);
    // Kept on purpose: a dream without a name raises the event, but its square is no obstacle to a walk.
    if (line.Length() >= kDreamNameAt) {
        bot.state.dreamName = line.RestFrom(kDreamNameAt);
        bot.state.dreams.push_back(bot.state.dream);
    }
    RunScript(bot, EventDreamListS);
}

void ReadDreamVanishes(Bot& bot, const ServerLine& line) {
    bot.state.dream = SquareAt(line, kDreamSquareAt);
    std::erase(bot.state.dreams, bot.state.dream);
    RunScript(bot, EventDreamListT);
}

void ReadBreathOrFlame(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kSquareAt = 4;
    if (line.HasAt(kKindAt, "a")) {
        bot.state.breath = SquareAt(line, kSquareAt);
        RunScript(bot, EventBreath);
    } else if (line.HasAt(kKindAt, "b")) {
        bot.state.flame = SquareAt(line, kSquareAt);
        RunScript(bot, EventFlame);
    }
}

constexpr LineReaders kBracketReaders({
    {'-', ReadPlayerLooks},
    {'%', ReadOnlineAnswer},
    {'f', ReadLookResult},
    {'q', AnswerDreamRequest},
    {'s', ReadDreamAppears},
    {'t', ReadDreamVanishes},
    {'v', ReadBreathOrFlame},
});

}  // namespace

void ReadMovementLine(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kColorsAt = 2, kIntoAt = 12, kFrameAt = 16, kFromAt = 18;
    const bool appears = line.HasAt(kMarkerAt, "<");
    BotState& state = bot.state;
    state.move.colors = line.Text(kColorsAt, kColorsLength);
    state.moveInto = SquareAt(line, kIntoAt);
    state.move.frame = NumberAt(line, kFrameAt);
    state.moveFrom = appears ? Square{} : SquareAt(line, kFromAt);
    // Kept on purpose: these lines carry no name, so a furre is known by its colour code alone, and another one in the
    // bot's colours is taken for the bot.
    if (state.move.colors == state.vorel.looks.colors) {
        state.vorelInto = state.moveInto;
        state.vorelFrom = state.moveFrom;
        if (!appears) state.vorelFrame = state.move.frame;
    }
    RunScript(bot, EventFurreMoved);
}

void ReadDsBotTriggerLine(Bot& bot, const ServerLine& line) {
    ReadTriggerLine(bot, line, bot.state.dsbot, EventDsBotTrigger);
}
void ReadDsTriggerLine(Bot& bot, const ServerLine& line) { ReadTriggerLine(bot, line, bot.state.ds, EventDsTrigger); }

void ReadBracketLine(Bot& bot, const ServerLine& line) { kBracketReaders.Read(bot, line, kSecondMarkerAt); }
