#include "practice/GameCommands.h"

#include <algorithm>
#include <iterator>

#include "practice/modDreamLines.h"
#include "practice/modGames.h"
#include "practice/modRequests.h"
#include "practice/modTalk.h"
#include "practice/modTravel.h"

namespace {

using Handler = void (*)(World&, Guest&, std::string_view text);

struct Command {
    std::string_view word;
    Handler carryOut;
};

void Pass(World&, Guest&, std::string_view) {}

void SetDescription(World&, Guest& guest, std::string_view text) { guest.who.desc = text; }

/// Ten characters of colours, then gender, species and markings; what is missing is blank.
void SetColors(World&, Guest& guest, std::string_view text) {
    std::string code(text.substr(0, 13));
    code.resize(13, ' ');
    guest.who.looks = {code.substr(0, 10), code.substr(10, 1), code.substr(11, 1), code.substr(12, 1)};
}

void Step(World& world, Guest& guest, std::string_view text) {
    if (text.size() == 1) modTravel::Step(world, guest, text.front());
}

template <bool Right>
void Turn(World& world, Guest& guest, std::string_view) {
    modTravel::Turn(world, guest, Right);
}

template <std::int16_t Posture>
void TakePosture(World& world, Guest& guest, std::string_view) {
    modTravel::TakePosture(world, guest, Posture);
}

template <std::string (*Line)(Square)>
void ShowAtOwnSquare(World& world, Guest& guest, std::string_view) {
    ForEachOnMapOf(world, guest, [&](const Guest& other) { world.Send(other, Line(guest.at)); });
}

template <void (*Travel)(World&, Guest&)>
void Go(World& world, Guest& guest, std::string_view) {
    Travel(world, guest);
}

void Use(World& world, Guest& guest, std::string_view) { modTravel::SetOffTrigger(world, guest, guest.at); }

void Get(World& world, Guest& guest, std::string_view) {
    world.Send(guest, modDreamLines::Remark("There is nothing here to pick up."));
}

// clang-format off
/// Lines that are a word, or a word, a blank and a text. What is left out here does nothing in the practice dream.
constexpr Command kCommands[] = {
    {"breath",      ShowAtOwnSquare<modDreamLines::Breath>},
    {"color",       SetColors},
    {"decline",     modRequests::Decline},
    {"desc",        SetDescription},
    {"dragon",      TakePosture<3>},
    {"eagle",       TakePosture<4>},
    {"flame",       ShowAtOwnSquare<modDreamLines::Flame>},
    {"get",         Get},
    {"goalleg",     Go<modTravel::GoToAllegria>},
    {"goback",      Go<modTravel::GoBack>},
    {"gomap",       modTravel::GoToMap},
    {"gostart",     Go<modTravel::GoToStart>},
    {"gryffe",      TakePosture<5>},
    {"join",        modRequests::Join},
    {"l",           modTalk::LookAtSquare},
    {"lie",         TakePosture<2>},
    {"liedown",     TakePosture<2>},
    {"m",           Step},
    {"onln",        modTalk::AskOnline},
    {"phoenix",     TakePosture<6>},
    {"sit",         TakePosture<1>},
    {"stand",       TakePosture<0>},
    {"summon",      modRequests::Summon},
    {"use",         Use},
    {"vascodagama", Go<modTravel::FinishLoading>},
    {"wh",          modTalk::Whisper},
    {"who",         modTalk::AskWho},
    {"wings",       TakePosture<7>},
    {"<",           Turn<false>},
    {">",           Turn<true>},
};

/// Spoken texts that do something instead of being heard: these are followed by a blank and a text.
constexpr Command kSpokenCommands[] = {
    {"ROLL",        modGames::TotalDice},
    {"eject",       modTalk::Eject},
    {"emit",        modTalk::Emit},
    {"emitloud",    modTalk::EmitLoud},
    {"entrymusic",  Pass},
    {"entrytext",   modTalk::SetEntryText},
    {"give-cookie", modGames::GiveCookie},
    {"look",        modTalk::LookAtFurre},
    {"make-cookie", modGames::MakeCookie},
    {"roll",        modGames::RollDice},
    {"share",       modTalk::Share},
    {"unshare",     modTalk::Unshare},
};

/// And these stand alone.
constexpr Command kSpokenWords[] = {
    {"=event",         Pass},
    {"=news",          Pass},
    {"desctags",       Pass},
    {"eat-cookie",     modGames::EatCookie},
    {"pads-all",       Pass},
    {"pads-owner",     Pass},
    {"pads-shared",    Pass},
    {"time",           modTalk::AskTime},
    {"uploads-all",    Pass},
    {"uploads-owner",  Pass},
    {"uploads-shared", Pass},
};

/// Lines known by their first character, the text following at once.
constexpr Command kPrefixes[] = {
    {"-", modTalk::Shout},
    {":", modTalk::Emote},
};
// clang-format on

template <std::size_t Count>
const Command* FindCommand(const Command (&commands)[Count], std::string_view word) {
    const auto found = std::find_if(std::begin(commands), std::end(commands),
                                    [&](const Command& command) { return command.word == word; });
    return found == std::end(commands) ? nullptr : &*found;
}

void Speak(World& world, Guest& guest, std::string_view text) {
    const std::size_t blank = text.find(' ');
    const bool hasText = blank != std::string_view::npos && blank + 1 < text.size();
    const Command* const command =
        hasText ? FindCommand(kSpokenCommands, text.substr(0, blank)) : FindCommand(kSpokenWords, text);
    if (!command) return modTalk::Say(world, guest, text);
    command->carryOut(world, guest, hasText ? text.substr(blank + 1) : std::string_view());
}

}  // namespace

void CarryOut(World& world, Guest& guest, std::string_view line) {
    if (line.empty()) return;
    if (line.front() == '"') return Speak(world, guest, line.substr(1));
    if (const Command* const command = FindCommand(kPrefixes, line.substr(0, 1))) {
        return command->carryOut(world, guest, line.substr(1));
    }
    const std::size_t blank = std::min(line.find(' '), line.size());
    const Command* const command = FindCommand(kCommands, line.substr(0, blank));
    if (command) command->carryOut(world, guest, line.substr(std::min(blank + 1, line.size())));
}
