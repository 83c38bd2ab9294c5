#include "send/modSend.h"

#include <algorithm>
#include <iterator>

#include "Version.h"
#include "bot/Bot.h"
#include "bot/Events.h"
#include "bot/Host.h"
#include "bot/Variables.h"
#include "game/Base95.h"
#include "text/Limits.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace {

const std::string kSignature = "[" + std::string(kProductName) + "]";

struct MoveLetter {
    char letter;
    std::string_view command;
};
// Letter case counts: "S" and "s" are two moves, and no other letter has a capital one.
constexpr MoveLetter kMoveLetters[] = {
    {'b', "breath"}, {'d', "dragon"}, {'e', "eagle"}, {'f', "flame"}, {'g', "get"},
    {'l', "lie"},    {'S', "stand"},  {'s', "sit"},   {'u', "use"},   {'w', "wings"},
};

std::string MoveCommand(char move) {
    if (move >= '0' && move <= '9') return std::string("m ") + move;
    const auto* const row = std::find_if(std::begin(kMoveLetters), std::end(kMoveLetters),
                                         [move](const MoveLetter& entry) { return entry.letter == move; });
    return row == std::end(kMoveLetters) ? std::string(1, move) : std::string(row->command);
}

/// A number's text is expanded like any other: a variable may be named like a number.
std::string ExpandNumber(const Bot& bot, std::int16_t number) { return ExpandVariables(bot, std::to_string(number)); }

std::string EncodedCoordinate(const Bot& bot, std::int16_t coordinate, std::int16_t divisor) {
    return EncodeBase95Pair(NumberOrFault(ExpandNumber(bot, coordinate)), divisor);
}

/// A command and the expansion of the text behind it.
std::string WithText(const Bot& bot, std::string_view command, std::string_view text) {
    std::string room;
    return std::string(command).append(ExpandVariables(bot, text, room));
}

void SendLineWithText(Bot& bot, std::string_view command, std::string_view text) {
    modSend::SendLine(bot, WithText(bot, command, text));
}

void SendSpeechWithText(Bot& bot, std::string_view command, std::string_view text) {
    modSend::SendSpeech(bot, WithText(bot, command, text));
}

}  // namespace

namespace modSend {

void SendLine(Bot& bot, std::string_view text) {
    if (bot.host.IsServerConnected()) bot.host.WriteToServer(WithText(bot, "", text) += '\n');
}

void SendSpeech(Bot& bot, std::string_view text) { SendLineWithText(bot, "\"", text); }

void ShowNotice(Bot& bot, std::string_view text) {
    const std::string notice = ExpandVariables(bot, text);
    bot.host.ShowConsoleLine(notice);
    // Kept on purpose: of a connection's begin and end the console hears, and the client doesn't.
    const bool clientIsListening = bot.currentEvent != EventConnected && bot.currentEvent != EventDisconnected;
    if (clientIsListening && bot.host.IsClientConnected()) {
        // As the game would send it: looks first, for the client shows whose words these are.
        bot.host.WriteToClient("]-#A" + bot.state.vorel.looks.Code() + "\n(" + kProductName + ": " + notice + "\n");
    }
}

void SendDesc(Bot& bot, std::string_view text) {
    const std::string desc = ExpandVariables(bot, text);
    SendLine(bot, bot.profile.signatureFirst ? "desc " + kSignature + " " + desc : "desc " + desc + " " + kSignature);
}

void SendOnln(Bot& bot, std::string_view name) { SendLineWithText(bot, "onln ", name); }
void SendJoin(Bot& bot, std::string_view name) { SendLineWithText(bot, "join ", name); }
void SendSummon(Bot& bot, std::string_view name) { SendLineWithText(bot, "summon ", name); }
void SendColonLine(Bot& bot, std::string_view text) { SendLineWithText(bot, ":", text); }
void SendDashLine(Bot& bot, std::string_view text) { SendLineWithText(bot, "-", text); }

void SendWhisper(Bot& bot, std::string_view name, std::string_view message) {
    SendLine(bot, "wh " + BlanksToBars(ExpandVariables(bot, name)) + " " + ExpandVariables(bot, message));
}

void SendLookAt(Bot& bot, std::int16_t x, std::int16_t y) {
    constexpr std::int16_t kHalved = 2, kAsIs = 1;
    const std::string column = EncodedCoordinate(bot, x, kHalved);  // first: of two bad coordinates x is the fault
    SendLine(bot, "l " + column + EncodedCoordinate(bot, y, kAsIs));
}

void SendMoves(Bot& bot, std::string& moves) {
    if (moves.empty()) return;
    moves = ExpandVariables(bot, moves);
    std::string commands;
    for (const char move : moves) {
        if (!commands.empty()) commands += '\n';
        commands += MoveCommand(move);
        CheckTextLength(commands.size());  // as it grows: a letter may become seven characters
    }
    if (!commands.empty()) SendLine(bot, commands);
}

void SendEject(Bot& bot, std::string_view name) { SendSpeechWithText(bot, "eject ", name); }
void SendEmit(Bot& bot, std::string_view text) { SendSpeechWithText(bot, "emit ", text); }
void SendEmitLoud(Bot& bot, std::string_view text) { SendSpeechWithText(bot, "emitloud ", text); }
void SendEntryText(Bot& bot, std::string_view text) { SendSpeechWithText(bot, "entrytext ", text); }
void SendGiveCookie(Bot& bot, std::string_view name) { SendSpeechWithText(bot, "give-cookie ", name); }
void SendLook(Bot& bot, std::string_view name) { SendSpeechWithText(bot, "look ", name); }
void SendShare(Bot& bot, std::string_view name) { SendSpeechWithText(bot, "share ", name); }

void SendEntryMusic(Bot& bot, std::int16_t number) { SendSpeech(bot, "entrymusic " + ExpandNumber(bot, number)); }

// Kept on purpose: the name is left to the senders' own expansions.
void SendUnshare(Bot& bot, std::string_view name) { SendSpeech(bot, "unshare " + std::string(name)); }

void SendMakeCookie(Bot& bot, std::string_view name, std::string_view message) {
    std::string command = "make-cookie " + ExpandVariables(bot, name);
    if (!message.empty()) command += " " + ExpandVariables(bot, message);
    SendSpeech(bot, command);
}

void SendRoll(Bot& bot, std::int16_t count, std::int16_t sides) {
    SendSpeech(bot, "roll " + ExpandNumber(bot, count) + "d" + ExpandNumber(bot, sides));
}

// Kept on purpose: these numbers are not expanded, unlike those of SendRoll.
void SendRollUpper(Bot& bot, std::int16_t count, std::int16_t sides) {
    SendSpeech(bot, "ROLL " + std::to_string(count) + "d" + std::to_string(sides));
}

}  // namespace modSend
