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

constexpr std::string_view kBooted = "(You have been booted.";

/// A square: x halved in two characters, y in the next two.
Square SquareAt(const ServerLine& line, std::size_t position) {
    return {DecodeBase95Pair(line.Text(position, 2), 2), DecodeBase95Pair(line.Text(position + 2, 2), 1)};
}

std::int16_t NumberAt(const ServerLine& line, std::size_t position) {
    return DecodeBase95Pair(line.Text(position, 2), 1);
}

// --- movement: "/" for a furre that moves, "<" for one that appears ----------------------------------------------

void ReadMovementLine(Bot& bot, const ServerLine& line) {
    const bool appears = line.HasAt(1, "<");
    Movement& move = bot.state.move;
    move.colors = line.Text(2, 10);
    move.into = SquareAt(line, 12);
    move.frame = NumberAt(line, 16);
    move.from = appears ? Square{} : SquareAt(line, 18);
    // These lines carry no name: a furre is known by its colour code alone.
    if (move.colors == bot.state.vorel.looks.colors) {
        bot.state.vorelInto = move.into;
        bot.state.vorelFrom = move.from;
        if (!appears) bot.state.vorelFrame = move.frame;
    }
    RunScript(bot, EventFurreMoved);
}

// --- "6" and "7": notices of DragonSpeak triggers ----------------------------------------------------------------

void ReadTriggerLine(Bot& bot, const ServerLine& line, DragonSpeakNotice& notice, GameEvent event) {
    constexpr std::size_t kEntriesFrom = 10, kEntryLength = 6;
    notice.from = SquareAt(line, 2);
    notice.into = SquareAt(line, 6);
    for (std::size_t at = kEntriesFrom; at + kEntryLength <= line.Length() + 1; at += kEntryLength) {
        notice.trigger = NumberAt(line, at);
        notice.triggerAt = SquareAt(line, at + 2);
        RunScript(bot, event);
    }
}

void ReadDsBotTriggerLine(Bot& bot, const ServerLine& line) {
    ReadTriggerLine(bot, line, bot.state.dsbot, EventDsBotTrigger);
}
void ReadDsTriggerLine(Bot& bot, const ServerLine& line) { ReadTriggerLine(bot, line, bot.state.ds, EventDsTrigger); }

// --- "]" and a second character ----------------------------------------------------------------------------------

Appearance LooksAt(const ServerLine& line, std::size_t colorsAt) {
    return {std::string(line.Text(colorsAt, 10)), line.Char(colorsAt + 10), line.Char(colorsAt + 11),
            line.Char(colorsAt + 12)};
}

void ReadPlayerLooks(Bot& bot, const ServerLine& line) {
    if (line.HasAt(3, "#A")) {
        bot.state.player.looks = LooksAt(line, 5);
        bot.state.playerTag = line.Whole();
    } else if (line.HasAt(3, "#B")) {
        bot.state.playerTag = line.RestAfter(4);
    }
}

void ReadOnlineAnswer(Bot& bot, const ServerLine& line) {
    bot.state.onlineName = line.RestAfter(3);
    if (line.HasAt(3, "0")) RunScript(bot, EventPlayerOffline);
    if (line.HasAt(3, "1")) RunScript(bot, EventPlayerOnline);
}

void ReadLookResult(Bot& bot, const ServerLine& line) {
    bot.state.look.name = line.RestAfter(15);
    bot.state.look.looks = LooksAt(line, 3);
    RunScript(bot, EventLookResult);
}

/// The server asks for a dream to be loaded. A linked client answers for itself.
void AnswerDreamRequest(Bot& bot, const ServerLine&) {
    if (!bot.host.IsClientConnected()) modSend::SendLine(bot, "vascodagama");
}

void ReadDreamAppears(Bot& bot, const ServerLine& line) {
    bot.state.dream = SquareAt(line, 3);
    if (line.Length() >= 7) {
        bot.state.dreamName = line.RestAfter(6);
        bot.state.dreams.push_back(bot.state.dream);
    }
    RunScript(bot, EventDreamListS);
}

void ReadDreamVanishes(Bot& bot, const ServerLine& line) {
    bot.state.dream = SquareAt(line, 3);
    std::erase(bot.state.dreams, bot.state.dream);
    RunScript(bot, EventDreamListT);
}

void ReadBreathOrFlame(Bot& bot, const ServerLine& line) {
    if (line.HasAt(3, "a")) {
        bot.state.breath = SquareAt(line, 4);
        RunScript(bot, EventBreath);
    } else if (line.HasAt(3, "b")) {
        bot.state.flame = SquareAt(line, 4);
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

void ReadBracketLine(Bot& bot, const ServerLine& line) { ReadBy(kBracketReaders, 2, bot, line); }

constexpr Reader kReaders[] = {
    {'(', ReadTextLine}, {'/', ReadMovementLine},     {'<', ReadMovementLine},  {']', ReadBracketLine},
    {';', ReadMapLine},  {'6', ReadDsBotTriggerLine}, {'7', ReadDsTriggerLine},
};

}  // namespace

std::int16_t ParseServerLine(Bot& bot, std::string_view text) {
    const ServerLine line(text);
    if (line.HasAt(1, kBooted)) {
        bot.state.shutDown = true;
        bot.host.Disconnect();
    } else {
        ReadBy(kReaders, 1, bot, line);
    }
    return -1;
}
