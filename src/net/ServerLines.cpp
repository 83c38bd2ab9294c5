#include "net/ServerLines.h"

#include "bot/Bot.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "game/Base95.h"
#include "net/MapLines.h"
#include "net/ServerLine.h"
#include "net/TextLines.h"
#include "send/modSend.h"

namespace {

// Where fields stand is named in each reader, as in docs/protocol.md. All fields of a line are read before its event
// is raised: a line too short for one is a fault, and no script has seen half of it.

constexpr std::string_view kBooted = "(You have been booted.";

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

// --- movement: "/" for a furre that moves, "<" for one that appears ----------------------------------------------

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

// --- "6" and "7": notices of DragonSpeak triggers ----------------------------------------------------------------

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

void ReadDsBotTriggerLine(Bot& bot, const ServerLine& line) {
    ReadTriggerLine(bot, line, bot.state.dsbot, EventDsBotTrigger);
}
void ReadDsTriggerLine(Bot& bot, const ServerLine& line) { ReadTriggerLine(bot, line, bot.state.ds, EventDsTrigger); }

// --- "]" and a second character ----------------------------------------------------------------------------------

/// Looks: the colour code, then one character each for gender, species and markings.
Appearance LooksAt(const ServerLine& line, std::size_t position) {
    const std::size_t genderAt = position + kColorsLength;
    return {std::string(line.Text(position, kColorsLength)), line.Char(genderAt), line.Char(genderAt + 1),
            line.Char(genderAt + 2)};
}

/// Comes before what a furre says: its looks, or its badge.
void ReadPlayerLooks(Bot& bot, const ServerLine& line) {
    constexpr std::size_t kLooksAt = 5, kTagAt = 5;
    if (line.HasAt(kKindAt, "#A")) {
        bot.state.player.looks = LooksAt(line, kLooksAt);
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
    bot.state.look.looks = LooksAt(line, kLooksAt);
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

struct Reader {
    char marker;
    void (*read)(Bot&, const ServerLine&);
};

template <std::size_t Count>
void ReadBy(const Reader (&readers)[Count], std::size_t markerAt, Bot& bot, const ServerLine& line) {
    for (const Reader& reader : readers) {
        if (line.HasAt(markerAt, std::string_view(&reader.marker, 1))) return reader.read(bot, line);
    }
}

constexpr Reader kBracketReaders[] = {
    {'-', ReadPlayerLooks},  {'%', ReadOnlineAnswer},  {'f', ReadLookResult},    {'q', AnswerDreamRequest},
    {'s', ReadDreamAppears}, {'t', ReadDreamVanishes}, {'v', ReadBreathOrFlame},
};

void ReadBracketLine(Bot& bot, const ServerLine& line) { ReadBy(kBracketReaders, kSecondMarkerAt, bot, line); }

constexpr Reader kReaders[] = {
    {'(', ReadTextLine}, {'/', ReadMovementLine},     {'<', ReadMovementLine},  {']', ReadBracketLine},
    {';', ReadMapLine},  {'6', ReadDsBotTriggerLine}, {'7', ReadDsTriggerLine},
};

}  // namespace

std::int16_t ParseServerLine(Bot& bot, std::string_view text) {
    const ServerLine line(text);
    // Before all text lines: nothing of a line that throws the bot out is shown or raised.
    if (line.HasAt(kMarkerAt, kBooted)) {
        bot.state.shutDown = true;
        bot.host.Disconnect();
    } else {
        ReadBy(kReaders, kMarkerAt, bot, line);
    }
    return -1;
}
