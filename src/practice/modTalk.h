#pragma once

#include <string_view>

#include "practice/World.h"

/// What furres say to each other and ask of the dream. An empty text says nothing.
namespace modTalk {

void Say(World& world, Guest& guest, std::string_view text);
void Shout(World& world, Guest& guest, std::string_view text);  ///< heard on every map
void Emote(World& world, Guest& guest, std::string_view text);
void Emit(World& world, Guest& guest, std::string_view text);      ///< a notice to all on the map
void EmitLoud(World& world, Guest& guest, std::string_view text);  ///< a notice to all on every map

/// "NAME TEXT": whispers, whatever map the other one is on.
void Whisper(World& world, Guest& guest, std::string_view nameAndText);

/// Looks at a furre by name, or at a square of this map, written as two base-95 pairs.
void LookAtFurre(World& world, Guest& guest, std::string_view name);
void LookAtSquare(World& world, Guest& guest, std::string_view square);

/// Who is on this map, by name and by number.
void AskWho(World& world, Guest& guest, std::string_view);
void AskOnline(World& world, Guest& guest, std::string_view name);
void AskTime(World& world, Guest& guest, std::string_view);

void Share(World& world, Guest& guest, std::string_view name);
void Unshare(World& world, Guest& guest, std::string_view name);
void Eject(World& world, Guest& guest, std::string_view name);
void SetEntryText(World& world, Guest& guest, std::string_view text);

}  // namespace modTalk
