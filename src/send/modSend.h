#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct Bot;

/// Composes every command that a bot sends to the game server: one line of 8-bit text ended by a single line feed.
/// Nothing else writes to the server. While the server is not connected a command is dropped without a word.
///
/// Texts are expanded by ExpandVariables before they go into a line, and again by the sender below them, so that a
/// variable which the first pass yields is expanded by the next. Kept on purpose: scripts build names of variables so.
namespace modSend {

/// Sends the expanded text and a line feed.
void SendLine(Bot& bot, std::string_view text);

/// Says the expanded text aloud: a double quote in front of it, sent by SendLine.
void SendSpeech(Bot& bot, std::string_view text);

/// Shows the expanded text as the console's last line and, unless the current event is the connection or its end,
/// to a linked local client as well. The game server sees nothing of it.
void ShowNotice(Bot& bot, std::string_view text);

/// Sets the bot's description, the product's signature before or behind it as the profile says.
void SendDesc(Bot& bot, std::string_view text);

void SendOnln(Bot& bot, std::string_view name);
void SendJoin(Bot& bot, std::string_view name);
void SendSummon(Bot& bot, std::string_view name);
void SendColonLine(Bot& bot, std::string_view text);
void SendDashLine(Bot& bot, std::string_view text);

/// Blanks in the name become "|"; the message stays as it is.
void SendWhisper(Bot& bot, std::string_view name, std::string_view message);

/// Looks at a square; x and y in squares.
/// @throws RuntimeFault TypeMismatch or Overflow, when a coordinate's expanded text is no 16-bit number;
///         InvalidProcedureCall, when it can't be encoded
void SendLookAt(Bot& bot, std::int16_t x, std::int16_t y);

/// One command a character: a digit is a step or turn "m 1", letters are the actions of the move table, any other
/// character is sent as itself. All go out in one write. An empty string sends nothing.
/// @param moves  replaced by its expansion
void SendMoves(Bot& bot, std::string& moves);

// These are spoken: the game takes them as speech that begins with the command word.
void SendEject(Bot& bot, std::string_view name);
void SendEmit(Bot& bot, std::string_view text);
void SendEmitLoud(Bot& bot, std::string_view text);
void SendEntryMusic(Bot& bot, std::int16_t number);
void SendEntryText(Bot& bot, std::string_view text);
void SendGiveCookie(Bot& bot, std::string_view name);
void SendLook(Bot& bot, std::string_view name);
void SendShare(Bot& bot, std::string_view name);
void SendUnshare(Bot& bot, std::string_view name);

/// No blank stands behind the name when the message is empty.
void SendMakeCookie(Bot& bot, std::string_view name, std::string_view message);

/// "roll 2d6" and "ROLL 2d6": the game answers the first with the single dice, the second with their total.
void SendRoll(Bot& bot, std::int16_t count, std::int16_t sides);
void SendRollUpper(Bot& bot, std::int16_t count, std::int16_t sides);

}  // namespace modSend
