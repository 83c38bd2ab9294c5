#pragma once

#include <string>
#include <string_view>

#include "bot/Place.h"
#include "game/Furre.h"

/// What the bot logs in with.
struct Character {
    std::string name, password, desc;
    Appearance looks;
};

/// Reads a game character file: lines of key, "=" and value, keys without regard to letter case; the keys are "name",
/// "password", "desc", "colors" (ten characters) and "spec" (three digits). A later line of the same key wins, a
/// missing one leaves its field empty.
/// @param bytes  the file as it stands
/// @param place  is moved along with the lines
/// @throws RuntimeFault InvalidProcedureCall, for a "spec=" line too short; TypeMismatch, when it holds no digits
Character ReadCharacter(std::string_view bytes, PlaceMark& place);

/// The password alone, as ReadCharacter finds it.
std::string PasswordIn(std::string_view bytes);
