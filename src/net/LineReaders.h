#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "net/ServerLine.h"

struct Bot;

/// What ParseServerLine calls for each kind of line. Each reads the fields of its kind into the bot's state and raises
/// the events; docs/protocol.md has the fields.

/// Reads one kind of line, told by the one character at some position.
using ReadLine = void (*)(Bot&, const ServerLine&);
struct LineReader {
    char marker;
    ReadLine read;
};

/// Readers by their markers.
class LineReaders {
  public:
    template <std::size_t Count>
    constexpr explicit LineReaders(const LineReader (&readers)[Count]) {
        for (const LineReader& reader : readers) byMarker_[static_cast<unsigned char>(reader.marker)] = reader.read;
    }

    /// Reads a line by the character at a position.
    /// @return false when there is none, or no reader for it
    bool Read(Bot& bot, const ServerLine& line, std::size_t markerAt) const {
        if (line.Length() < markerAt) return false;
        const ReadLine read = byMarker_[static_cast<unsigned char>(line.Whole()[markerAt - 1])];
        if (read) read(bot, line);
        return read != nullptr;
    }

  private:
    std::array<ReadLine, 256> byMarker_{};
};

// --- what is seen of the scene (SceneLines.cpp) ------------------------------------------------------------------

/// "/" and "<": a furre moves, or appears.
void ReadMovementLine(Bot& bot, const ServerLine& line);

/// "6" and "7": notices of DragonSpeak triggers.
void ReadDsBotTriggerLine(Bot& bot, const ServerLine& line);
void ReadDsTriggerLine(Bot& bot, const ServerLine& line);

/// "]" and a second character: looks, badges, answers, dreams, fire.
void ReadBracketLine(Bot& bot, const ServerLine& line);

/// ";", which names the file of the map entered (MapLines.cpp).
void ReadMapLine(Bot& bot, const ServerLine& line);

// --- text lines, which begin with "(" ----------------------------------------------------------------------------

/// "([ ": a whisper to the bot or the echo of its own (Whispers.cpp). Answers the built-in words by itself: "botstat",
/// "vorel-help", and "shut down" from a furre who may say so.
/// @return whether the line is to be shown: what an ignored furre whispers is not
bool ReadWhisper(Bot& bot, const ServerLine& line);

/// "([" that is no whisper: "([#" notices, "([*" notices of requests and dice, "([%" cookies (BracketNotices.cpp).
void ReadBracketNotice(Bot& bot, const ServerLine& line);

/// The dice roll in a "([*" line, if it holds one: "… rolls 2d6 …" (DiceLines.cpp).
/// With " & gets " the line tells the total alone, otherwise it lists the single dice as well.
void ReadDice(Bot& bot, const ServerLine& line);

/// "(*": notices about players, the time, visitor lists, and how many are in a dream (SystemNotices.cpp).
void ReadSystemNotice(Bot& bot, const ServerLine& line);

// What is said, and what else is text (SpeechLines.cpp).

/// Who speaks or emotes: the first word, for speech without its colon.
std::string_view SpeakerOf(const ServerLine& line);

/// "(name: text" and "(name text".
void ReadSpeechOrEmote(Bot& bot, const ServerLine& line);

/// "(You say, …" and "(You shout, …".
void ReadOwnSpeech(Bot& bot, const ServerLine& line);

/// "({S} name shouts: text".
void ReadShout(Bot& bot, const ServerLine& line);

/// "((": the entry into a dream, and the size of its DragonSpeak.
void ReadDreamNotice(Bot& bot, const ServerLine& line);

/// "(>" and "(#B": the description of who was looked at, with the badge.
void ReadLookDescription(Bot& bot, const ServerLine& line);
void ReadLookDescriptionWithBadge(Bot& bot, const ServerLine& line);
