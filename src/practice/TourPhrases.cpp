#include "practice/TourPhrases.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

#include "game/Compare.h"
#include "practice/modGames.h"
#include "text/Text.h"

namespace {

std::string_view FirstWord(std::string_view text) { return text.substr(0, text.find(' ')); }
std::string_view AfterFirstWord(std::string_view text) { return Trim(text.substr(FirstWord(text).size())); }

// ---- reading: what may follow the words of a phrase ----

std::string ReadNothing(TourStep& step) { return step.text.empty() ? "" : "nothing can follow these words"; }

std::string ReadText(TourStep& step) { return step.text.empty() ? "something has to follow these words" : ""; }

std::string ReadOtherAndText(TourStep& step) {
    step.namesFurre = true;
    return IsFurreName(FirstWord(step.text)) ? "" : "the name of a furre has to follow, \"|\" in it for a blank";
}

std::string ReadOther(TourStep& step) {
    if (!AfterFirstWord(step.text).empty()) return "one name has to follow, \"|\" in it for a blank";
    return ReadOtherAndText(step);
}

/// For phrases that begin with their words: the furre they are about follows.
std::string ReadOwnNameAndText(TourStep& step) {
    step.name = FirstWord(step.text);
    step.text = AfterFirstWord(step.text);
    return IsFurreName(step.name) ? "" : "a name has to follow, \"|\" in it for a blank";
}

std::string ReadOwnName(TourStep& step) {
    const std::string fault = ReadOwnNameAndText(step);
    return fault.empty() ? ReadNothing(step) : fault;
}

std::string ReadDice(TourStep& step) {
    return ReadDiceWord(step.text) ? "" : "dice are written like 2d6, up to 30 dice of up to 1000 sides";
}

std::string ReadDirections(TourStep& step) {
    const bool areDirections = !step.text.empty() && step.text.find_first_not_of("1379") == std::string::npos;
    return areDirections ? ""
                         : "directions are 7 (up left), 9 (up right), 1 (down left) and 3 (down right), such as 993";
}

std::string ReadMap(TourStep& step) {
    for (const DreamMap& map : AllDreamMaps()) {
        if (map.way.empty() || !LooseEquals(map.name, step.text)) continue;
        step.text = map.way;
        return {};
    }
    return "there is no way to a map of this name";
}

std::string ReadBadge(TourStep& step) {
    constexpr std::string_view kWords = "with badge ";
    if (step.text.empty()) return {};
    const bool hasBadge = step.text.starts_with(kWords) && step.text.find(' ', kWords.size()) == std::string::npos;
    step.text = step.text.substr(std::min(kWords.size(), step.text.size()));
    // Three, for a badge may be written as a character's code.
    return hasBadge && step.text.size() <= 3 ? "" : "after \"arrives\" can come \"with badge\" and up to 3 characters";
}

std::optional<std::int16_t> ReadCoordinate(std::string_view text) {
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isCoordinate = error == std::errc() && end == text.data() + text.size() && number >= 0;
    return isCoordinate ? std::optional(number) : std::nullopt;
}

/// "NAME at X Y"
std::string ReadDreamAndSquare(TourStep& step) {
    const auto words = Split(step.text, " ");
    const auto x = words.size() == 4 && words[1] == "at" ? ReadCoordinate(words[2]) : std::nullopt;
    const auto y = x ? ReadCoordinate(words[3]) : std::nullopt;
    if (!y || *x > kMapWidth || *y > kMapHeight || *x % 2 != 0 || !IsFurreName(words[0])) {
        return "this is written like: open dream Small|Pond at 20 10 (the first number even, up to 58; the second up "
               "to 40)";
    }
    step.text = words[0];
    step.at = {*x, *y};
    return {};
}

// ---- playing ----

/// "Bot" is whatever bot is there, unless somebody is called so.
std::string RealName(Dream& dream, std::string_view name) {
    const Guest* const bot = LooseEquals(name, "Bot") && !dream.Find(name) ? dream.FirstClient() : nullptr;
    return bot ? bot->who.name : std::string(name);
}

const Guest* Actor(Dream& dream, const TourStep& step) { return dream.Find(RealName(dream, step.name)); }

std::string RealText(Dream& dream, const TourStep& step) {
    if (!step.namesFurre) return step.text;
    const std::string_view other = FirstWord(step.text);
    return RealName(dream, other) + step.text.substr(other.size());
}

bool Pause(Dream&, const TourStep&) { return true; }

/// A furre that has left meanwhile, booted say, does nothing more; the tour goes on without it.
bool Do(Dream& dream, const TourStep& step) {
    if (const Guest* const actor = Actor(dream, step)) {
        dream.Hear(actor->id, std::string(step.command) + RealText(dream, step));
    }
    return true;
}

bool Walk(Dream& dream, const TourStep& step) {
    for (const char direction : step.text) {
        if (const Guest* const actor = Actor(dream, step)) dream.Hear(actor->id, std::string("m ") + direction);
    }
    return true;
}

bool Arrive(Dream& dream, const TourStep& step) {
    dream.Arrive(step.name, step.text);
    return true;
}

bool Leave(Dream& dream, const TourStep& step) {
    if (const Guest* const actor = Actor(dream, step)) dream.Leave(actor->id);
    return true;
}

bool WaitFor(Dream& dream, const TourStep& step) {
    const Guest* const awaited = Actor(dream, step);
    return awaited && awaited->loaded;
}

bool Boot(Dream& dream, const TourStep& step) {
    dream.Boot(RealName(dream, step.name));
    return true;
}

bool Tell(Dream& dream, const TourStep& step) {
    dream.Tell(RealName(dream, step.name), step.text);
    return true;
}

bool Notice(Dream& dream, const TourStep& step) {
    dream.Notice(step.text);
    return true;
}

bool OpenDream(Dream& dream, const TourStep& step) {
    dream.OpenDream(step.text, step.at);
    return true;
}

bool CloseDream(Dream& dream, const TourStep& step) {
    dream.CloseDream(step.text);
    return true;
}

// clang-format off
// In both tables: of two phrases that begin alike the longer one stands first, for the first that fits is taken.

/// Lines that begin with these words.
constexpr TourPhrase kStagePhrases[] = {
    {"boot",        ReadOwnName,        Boot,       "", Presence::Ends},
    {"close dream", ReadOther,          CloseDream, "", Presence::Nothing},
    {"notice",      ReadText,           Notice,     "", Presence::Nothing},
    {"open dream",  ReadDreamAndSquare, OpenDream,  "", Presence::Nothing},
    {"pause",       ReadNothing,        Pause,      "", Presence::Nothing},
    {"tell",        ReadOwnNameAndText, Tell,       "", Presence::Needed},
    {"wait for",    ReadOwnName,        WaitFor,    "", Presence::Begins},
};

/// Lines that begin with a furre's name.
constexpr TourPhrase kDeeds[] = {
    {"arrives",             ReadBadge,        Arrive, "",              Presence::Begins},
    {"asks for",            ReadOther,        Do,     "onln "},
    {"asks the time",       ReadNothing,      Do,     "\"time"},
    {"asks who is here",    ReadNothing,      Do,     "who"},
    {"breathes",            ReadNothing,      Do,     "breath"},
    {"declines",            ReadOther,        Do,     "decline "},
    {"eats a cookie",       ReadNothing,      Do,     "\"eat-cookie"},
    {"emotes",              ReadText,         Do,     ":"},
    {"flames",              ReadNothing,      Do,     "flame"},
    {"gets",                ReadNothing,      Do,     "get"},
    {"gives a cookie to",   ReadOther,        Do,     "\"give-cookie "},
    {"goes back",           ReadNothing,      Do,     "goback"},
    {"goes to the start",   ReadNothing,      Do,     "gostart"},
    {"goes to",             ReadMap,          Do,     "gomap "},
    {"invites",             ReadOther,        Do,     "summon "},
    {"joins",               ReadOther,        Do,     "join "},
    {"leaves",              ReadNothing,      Leave,  "",              Presence::Ends},
    {"lies down",           ReadNothing,      Do,     "lie"},
    {"looks at",            ReadOther,        Do,     "\"look "},
    {"makes a cookie for",  ReadOtherAndText, Do,     "\"make-cookie "},
    {"moves",               ReadDirections,   Walk,   ""},
    {"requests to join",    ReadOther,        Do,     "join "},
    {"rolls the sum of",    ReadDice,         Do,     "\"ROLL "},
    {"rolls",               ReadDice,         Do,     "\"roll "},
    {"says",                ReadText,         Do,     "\""},
    {"sends",               ReadText,         Do,     ""},
    {"shouts",              ReadText,         Do,     "-"},
    {"sits",                ReadNothing,      Do,     "sit"},
    {"stands",              ReadNothing,      Do,     "stand"},
    {"summons",             ReadOther,        Do,     "summon "},
    {"turns left",          ReadNothing,      Do,     "<"},
    {"turns right",         ReadNothing,      Do,     ">"},
    {"uses",                ReadNothing,      Do,     "use"},
    {"whispers to",         ReadOtherAndText, Do,     "wh "},
};
// clang-format on

bool BeginsWith(std::string_view line, std::string_view words) {
    return line.starts_with(words) && (line.size() == words.size() || line[words.size()] == ' ');
}

template <std::size_t Count>
const TourPhrase* FindIn(const TourPhrase (&phrases)[Count], std::string_view line, TourStep& step) {
    const auto found = std::find_if(std::begin(phrases), std::end(phrases),
                                    [&](const TourPhrase& phrase) { return BeginsWith(line, phrase.words); });
    if (found == std::end(phrases)) return nullptr;
    step.text = Trim(line.substr(found->words.size()));
    step.command = found->command;
    step.act = found->act;
    return &*found;
}

}  // namespace

const TourPhrase* FindTourPhrase(std::string_view line, TourStep& step) {
    if (const TourPhrase* const phrase = FindIn(kStagePhrases, line, step)) return phrase;
    step.name = FirstWord(line);
    return FindIn(kDeeds, AfterFirstWord(line), step);
}
