#include "language/CommandRows.h"

namespace {

// --- where conditions are of use ---------------------------------------------------------------------------------

constexpr Scope InThoseFilling(Field field) { return In(EventSet::Filling(field)); }

/// The events of whose furre conditions know what a test of it wants.
template <typename Fact>
constexpr EventSet Comparable(Fact holds) {
    return EventSet::Where([holds](const EventFacts& event) { return event.comparable && holds(event); });
}

constexpr EventSet kTalk = Comparable([](const EventFacts& event) { return event.furre == &BotState::player; });
constexpr EventSet kDescribed = Comparable([](const EventFacts& event) { return event.furre != nullptr; });

constexpr Scope kNamed = OnlyIn(Comparable([](const EventFacts&) { return true; }));
constexpr Scope kMessages = InThoseFilling(Field::Message);
constexpr Scope kDescriptions = InThoseFilling(Field::LookDescription);
constexpr Scope kLooks = OnlyIn(kDescribed);
constexpr Scope kLooksAndMoves = OnlyIn(kDescribed | EventSet::Filling(Field::Move));
constexpr Scope kBadgeGroups = OnlyIn(kTalk | EventSet::Filling(Field::LookDescription));
constexpr Scope kMoves = InThoseFilling(Field::Move);
constexpr Scope kTriggers = OnlyIn(EventSet::Filling(Field::DsBot) | EventSet::Filling(Field::Ds));
constexpr Scope kTime = InThoseFilling(Field::StandardTime);
constexpr Scope kDice = InThoseFilling(Field::Dice);
constexpr Scope kSingleDice = InThoseFilling(Field::SingleDice);
constexpr Scope kDreamNames = InThoseFilling(Field::DreamName);
constexpr Scope kDreams = InThoseFilling(Field::Dream);

// --- what many rows read -----------------------------------------------------------------------------------------

constexpr char kSpecies[] = "[player.species], [look.species]";
constexpr char kMarkings[] = "[player.markings], [look.markings]";
constexpr char kGender[] = "[player.gender], [look.gender]";
constexpr char kColors[] = "[player.colors], [look.colors]";
constexpr char kMoverColors[] = "[player.colors], [look.colors], [move.colors]";
constexpr char kBadge[] = "the speaker's badge, [look.badge]";
constexpr char kMoveFrom[] = "[move.from.x], [move.from.y]";
constexpr char kMoveInto[] = "[move.into.x], [move.into.y]";
constexpr char kMove[] = "[move.from.x], [move.from.y], [move.into.x], [move.into.y]";
constexpr char kTriggerFrom[] = "[dsbot.from.x], [dsbot.from.y], [ds.from.x], [ds.from.y]";
constexpr char kTriggerInto[] = "[dsbot.into.x], [dsbot.into.y], [ds.into.x], [ds.into.y]";
constexpr char kTriggerNumber[] = "[dsbot.trigger], [ds.trigger]";
constexpr char kTriggerAt[] = "[dsbot.trigger.x], [dsbot.trigger.y], [ds.trigger.x], [ds.trigger.y]";
constexpr char kDie[] = "[die1], [die2] and so on";
constexpr char kDream[] = "[dream.x], [dream.y]";

// --- what many rows explain in the same words --------------------------------------------------------------------

constexpr char kCode[] =
    "The furre that spoke, or that is looked at, has just this code. What the code means is the game's affair; show "
    "the variable in a note to see it.";
constexpr char kNotCode[] = "The furre that spoke, or that is looked at, has another code than this.";
constexpr char kBadgeIn[] =
    "The badge of the furre that spoke, or that is looked at, is one of these characters and nothing else; capitals "
    "and small letters differ. After a look this is told together with the description, at (0:13), not at (0:12).";
constexpr char kBadgeNotIn[] =
    "The badge of the furre that spoke, or that is looked at, is none of these characters: another one, none at all, "
    "or more than one. After a look this is told together with the description, at (0:13), not at (0:12).";
constexpr char kPlaceOf[] = "Both numbers must be right. A line with a single number takes it for both.";
constexpr char kNotPlaceOf[] = "The column or the row is another one, or both.";
constexpr char kOneDie[] =
    "One of the dice that were rolled last, counted from 1. Asking for a die that was not rolled is an error that ends "
    "the program. A condition in front of it does not protect it, because all conditions of a trigger are tested, so "
    "use it only where you know how many dice are rolled.";
constexpr char kTotal[] = "The sum of the dice that were rolled last.";
constexpr char kTwoNumbers[] =
    "The first number is compared with the second; of use with variables. A text that does not begin with a number "
    "counts as 0.";
constexpr char kExact[] =
    "The two texts are compared letter by letter, capitals and small letters told apart, and | is not a blank here.";

// clang-format off
constexpr Command kConditions[] = {
    // The furre of the event, and what was said
    {1, 0, "and they are called {name},", {"Ann"}, kNamed, "[player.name]", "",
     "The furre of the event has this name, letter case apart. Write | or a blank for a blank in the name."},
    {1, 1, "and they are not called {name},", {"Ann"}, kNamed, "[player.name]", "",
     "The furre of the event has another name."},
    {1, 2, "and they said {text},", {"hello"}, kMessages, "[message]", "",
     "The message is this text from beginning to end, letter case apart; | counts as a blank."},
    {1, 3, "and they said something other than {text},", {"hello"}, kMessages, "[message]", "",
     "The message is any other text."},
    {1, 4, "and they said something like {pattern},", {"remember *"}, kMessages, "[message]", "",
     "The whole message fits the pattern, letter case apart; | counts as a blank. * stands for any characters or none, "
     "? for one character, # for one digit, [abc] or [a-c] for one of the characters listed, [!abc] for one not "
     "listed."},
    {1, 5, "and they said nothing like {pattern},", {"remember *"}, kMessages, "[message]", "",
     "The message does not fit the pattern."},
    {1, 6, "and they said something with {text} in it,", {"hello"}, kMessages, "[message]", "",
     "The message has this text somewhere, letter case apart. Here | is only a |."},
    {1, 7, "and they said something without {text} in it,", {"hello"}, kMessages, "[message]", "",
     "The message has this text nowhere."},
    {1, 8, "and the description reads {text},", {"A friendly wolf."}, kDescriptions, "[look.desc]", "",
     "The description of the furre last looked at is this text, letter case apart; | counts as a blank."},
    {1, 9, "and the description does not read {text},", {"A friendly wolf."}, kDescriptions, "[look.desc]", "",
     "The description is any other text."},
    {1, 10, "and the description is like {pattern},", {"*wolf*"}, kDescriptions, "[look.desc]", "",
     "The whole description fits the pattern; the wildcards are those of (1:4)."},
    {1, 11, "and the description is not like {pattern},", {"*wolf*"}, kDescriptions, "[look.desc]", "",
     "The description does not fit the pattern."},
    {1, 12, "and the description has {text} in it,", {"wolf"}, kDescriptions, "[look.desc]", "",
     "The description has this text somewhere, letter case apart. Here | is only a |."},
    {1, 13, "and the description does not have {text} in it,", {"wolf"}, kDescriptions, "[look.desc]", "",
     "The description has this text nowhere."},

    // Its looks, by the game's codes
    {1, 14, "and their species code is #,", {}, kLooks, kSpecies, "", kCode},
    {1, 15, "and their species code is not #,", {}, kLooks, kSpecies, "", kNotCode},
    {1, 16, "and their markings code is 5,", {}, kLooks, kMarkings, "", kCode},
    {1, 17, "and their markings code is not 5,", {}, kLooks, kMarkings, "", kNotCode},
    {1, 18, "and their species code is !,", {}, kLooks, kSpecies, "", kCode},
    {1, 19, "and their species code is not !,", {}, kLooks, kSpecies, "", kNotCode},
    {1, 20, "and their species code is ],", {}, kLooks, kSpecies, "", kCode},
    {1, 21, "and their markings code is not ],", {}, kLooks, kMarkings, "",
     "Not the opposite of (1:20), though its number suggests it: this one looks at the markings, not at the species."},
    {1, 22, "and their species code is \",", {}, kLooks, kSpecies, "", kCode},
    {1, 23, "and their species code is not \",", {}, kLooks, kSpecies, "", kNotCode},
    {1, 24, "and their species code is %,", {}, kLooks, kSpecies, "", kCode},
    {1, 25, "and their species code is not %,", {}, kLooks, kSpecies, "", kNotCode},
    {1, 26, "and their species code is $,", {}, kLooks, kSpecies, "",
     "The furre that spoke, or that is looked at, has just this code. There is no condition for the opposite; the "
     "number 27 was never given out, and a line with it never holds."},
    {1, 28, "and their species code is ?,", {}, kLooks, kSpecies, "", kCode},
    {1, 29, "and their markings code is not ?,", {}, kLooks, kMarkings, "",
     "Not the opposite of (1:28), though its number suggests it: this one looks at the markings, not at the species."},
    {1, 30, "and their gender code is !,", {}, kLooks, kGender, "", kCode},
    {1, 31, "and their gender code is not !,", {}, kLooks, kGender, "", kNotCode},
    {1, 32, "and their gender code is a blank,", {}, kLooks, kGender, "", kCode},
    {1, 33, "and their gender code is not a blank,", {}, kLooks, kGender, "", kNotCode},
    {1, 34, "and their gender code is \",", {}, kLooks, kGender, "", kCode},
    {1, 35, "and their gender code is not \",", {}, kLooks, kGender, "", kNotCode},
    {1, 36, "and they have a badge,", {}, kLooks, kBadge, "",
     "The furre that spoke has a badge; at (0:12) the badge of the look before, since a look's own badge comes later, "
     "with the description at (0:13). When the game tells a speaker's looks but sends no line for the badge, that "
     "counts as a badge."},
    {1, 37, "and they have no badge,", {}, kLooks, kBadge, "",
     "The furre that spoke has no badge; at (0:12), the furre looked at before it."},
    {1, 38, "and their badge code is i or I,", {}, kLooks, kBadge, "",
     "The badge of the furre that spoke is this letter, large or small; at (0:12), the badge of the look before."},
    {1, 39, "and their badge code is neither i nor I,", {}, kLooks, kBadge, "",
     "The badge of the furre that spoke is anything else, or it has none; at (0:12), that of the look before."},
    {1, 40, "and their badge code is one of Q R S T,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 41, "and their badge code is none of Q R S T,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 42, "and their badge code is one of E F G H,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 43, "and their badge code is none of E F G H,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 44, "and their badge code is j,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 45, "and their badge code is not j,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 46, "and their badge code is one of ] ^ _ `,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 47, "and their badge code is none of ] ^ _ `,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 48, "and their badge code is one of A B C D,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 49, "and their badge code is none of A B C D,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 50, "and their badge code is one of I J K L,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 51, "and their badge code is none of I J K L,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 52, "and their badge code is one of e f g h,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 53, "and their badge code is none of e f g h,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 54, "and their badge code is one of U V W X,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 55, "and their badge code is none of U V W X,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 56, "and their badge code is one of M N O P,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 57, "and their badge code is none of M N O P,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 58, "and their badge code is one of a b c d,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 59, "and their badge code is none of a b c d,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 60, "and their badge code is one of Y Z [ \\,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 61, "and their badge code is none of Y Z [ \\,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 62, "and their badge code is one of A E I M Q U Y ] a e,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 63, "and their badge code is none of A E I M Q U Y ] a e,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 64, "and their badge code is one of B F J N R V Z ^ b f,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 65, "and their badge code is none of B F J N R V Z ^ b f,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 66, "and their badge code is one of C G K O S W [ _ c g,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 67, "and their badge code is none of C G K O S W [ _ c g,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},
    {1, 68, "and their badge code is one of D H L P T X \\ ` d h,", {}, kBadgeGroups, kBadge, "", kBadgeIn},
    {1, 69, "and their badge code is none of D H L P T X \\ ` d h,", {}, kBadgeGroups, kBadge, "", kBadgeNotIn},

    // Maps, visitors and the game's time
    {1, 70, "and you are on the map {map},", {"Acropolis"}, kEverywhere, "[map]", "",
     "The map or dream where the bot is has this name, letter case apart; | counts as a blank."},
    {1, 71, "and you are not on the map {map},", {"Acropolis"}, kEverywhere, "[map]", "",
     "The map or dream where the bot is has another name, or is not known yet."},
    {1, 72, "and you came from the map {map},", {"Chess Island"}, kEverywhere, "[previousmap]", "",
     "The map or dream where the bot was before has this name, letter case apart; | counts as a blank."},
    {1, 73, "and you did not come from the map {map},", {"Chess Island"}, kEverywhere, "[previousmap]", "",
     "The map or dream where the bot was before has another name, or there was none."},
    {1, 74, "and {name} is among the visitors,", {"Ann"}, kEverywhere, "[visitors]", "",
     "The last list of visitors has this name, letter case apart; | counts as a blank."},
    {1, 75, "and {name} is not among the visitors,", {"Ann"}, kEverywhere, "[visitors]", "",
     "The last list of visitors lacks this name, or there was no list yet."},
    {1, 76, "and the game's hour is {hour},", {"7"}, kTime, "[fst.hour]", "",
     "The hour of the game's own time, from 1 to 12, as last told."},
    {1, 77, "and the game's hour is not {hour},", {"7"}, kTime, "[fst.hour]", "",
     "The hour of the game's own time, as last told, is another one."},
    {1, 78, "and the game's minute is {minute},", {"5"}, kTime, "[fst.minute]", "",
     "The minute of the game's own time, as last told."},
    {1, 79, "and the game's minute is not {minute},", {"5"}, kTime, "[fst.minute]", "",
     "The minute of the game's own time, as last told, is another one."},
    {1, 80, "and the game's second is {second},", {"9"}, kTime, "[fst.second]", "",
     "The second of the game's own time, as last told."},
    {1, 81, "and the game's second is not {second},", {"9"}, kTime, "[fst.second]", "",
     "The second of the game's own time, as last told, is another one."},
    {1, 82, "and the game's time is AM,", {}, kTime, "[fst.median]", "",
     "The game's own time was before noon when it was last told; never, as long as it has not been told."},
    {1, 83, "and the game's time is PM,", {}, kTime, "[fst.median]", "",
     "The game's own time was after noon when it was last told; never, as long as it has not been told."},

    // Moves
    {1, 84, "and the one who spoke, moved or was looked at has the colour code {colors},", {"x%4%4%4%4%"},
     kLooksAndMoves, kMoverColors, "",
     "The furre that spoke, moved or is looked at has this colour code, letter case apart. With {[vorel.colors]} at "
     "(0:14) it tells the bot's own moves from all others."},
    {1, 85, "and the one who spoke or was looked at does not have the colour code {colors},", {"x%4%4%4%4%"}, kLooks,
     kColors, "",
     "The furre that spoke or is looked at has another colour code. Not the whole opposite of (1:84): at (0:14), when "
     "a furre has moved, it never holds."},
    {1, 86, "and they came from column {x} and row {y},", {"22", "19"}, kMoves, kMoveFrom, "", kPlaceOf},
    {1, 87, "and they did not come from column {x} and row {y},", {"22", "19"}, kMoves, kMoveFrom, "", kNotPlaceOf},
    {1, 88, "and they moved to column {x} and row {y},", {"24", "20"}, kMoves, kMoveInto, "", kPlaceOf},
    {1, 89, "and they did not move to column {x} and row {y},", {"24", "20"}, kMoves, kMoveInto, "", kNotPlaceOf},
    {1, 90, "and they now stand at column {x} and row {y},", {"24", "20"}, kMoves, kMove, "",
     "The square where the furre is after its move; when it has only turned, that is where it was. Both numbers must "
     "be right. A line with a single number takes it for both."},
    {1, 91, "and they do not stand at column {x} and row {y},", {"24", "20"}, kMoves, kMove, "",
     "After its move the furre is in another column or row."},

    // DragonSpeak triggers
    {1, 92, "and whoever set it off came from column {x} and row {y},", {"22", "19"}, kTriggers, kTriggerFrom, "",
     kPlaceOf},
    {1, 93, "and whoever set it off did not come from column {x} and row {y},", {"22", "19"}, kTriggers, kTriggerFrom,
     "", kNotPlaceOf},
    {1, 94, "and whoever set it off went to column {x} and row {y},", {"24", "20"}, kTriggers, kTriggerInto, "",
     kPlaceOf},
    {1, 95, "and whoever set it off did not go to column {x} and row {y},", {"24", "20"}, kTriggers, kTriggerInto, "",
     kNotPlaceOf},
    {1, 96, "and the trigger has the number {number},", {"7"}, kTriggers, kTriggerNumber, "",
     "The number of the DragonSpeak trigger that the dream reports."},
    {1, 97, "and the trigger does not have the number {number},", {"7"}, kTriggers, kTriggerNumber, "",
     "The DragonSpeak trigger that the dream reports has another number."},
    {1, 98, "and the trigger lies at column {x} and row {y},", {"26", "21"}, kTriggers, kTriggerAt, "", kPlaceOf},
    {1, 99, "and the trigger does not lie at column {x} and row {y},", {"26", "21"}, kTriggers, kTriggerAt, "",
     kNotPlaceOf},

    // Dice
    {1, 100, "and the number of dice is {number},", {"2"}, kDice, "[dice.amount]", "",
     "So many dice were rolled last."},
    {1, 101, "and the number of sides is {number},", {"6"}, kDice, "[dice.sides]", "",
     "The dice that were rolled last have so many sides."},
    {1, 102, "and die {die} shows less than {number},", {"2", "5"}, kSingleDice, kDie, "", kOneDie},
    {1, 103, "and die {die} shows at most {number},", {"2", "5"}, kSingleDice, kDie, "", kOneDie},
    {1, 104, "and die {die} shows exactly {number},", {"2", "5"}, kSingleDice, kDie, "", kOneDie},
    {1, 105, "and die {die} shows at least {number},", {"2", "5"}, kSingleDice, kDie, "", kOneDie},
    {1, 106, "and die {die} shows more than {number},", {"2", "5"}, kSingleDice, kDie, "", kOneDie},
    {1, 107, "and the dice total is less than {number},", {"9"}, kDice, "[dice.total]", "", kTotal},
    {1, 108, "and the dice total is at most {number},", {"9"}, kDice, "[dice.total]", "", kTotal},
    {1, 109, "and the dice total is exactly {number},", {"9"}, kDice, "[dice.total]", "", kTotal},
    {1, 110, "and the dice total is at least {number},", {"9"}, kDice, "[dice.total]", "", kTotal},
    {1, 111, "and the dice total is more than {number},", {"9"}, kDice, "[dice.total]", "", kTotal},

    // Any numbers and texts
    {1, 112, "and the number {number} is less than {limit},", {"[count]", "10"}, kEverywhere, "", "", kTwoNumbers},
    {1, 113, "and the number {number} is at most {limit},", {"[count]", "10"}, kEverywhere, "", "", kTwoNumbers},
    {1, 114, "and the number {number} equals {limit},", {"[count]", "10"}, kEverywhere, "", "", kTwoNumbers},
    {1, 115, "and the number {number} is more than {limit},", {"[count]", "10"}, kEverywhere, "", "", kTwoNumbers},
    {1, 116, "and the number {number} is at least {limit},", {"[count]", "10"}, kEverywhere, "", "", kTwoNumbers},
    {1, 117, "and the text {text} is exactly {other},", {"[word1]", "tea"}, kEverywhere, "", "", kExact},
    {1, 118, "and the text {text} is like {pattern},", {"[word1]", "t*"}, kEverywhere, "", "",
     "The whole text fits the pattern; the wildcards are those of (1:4). Capitals and small letters are told apart, "
     "and | is not a blank here."},
    {1, 119, "and the text {text} ends with {ending},", {"[word1]", "ea"}, kEverywhere, "", "",
     "The second text is looked for in the first, but both keep their closing brace, and so it is found only at the "
     "very end. {hello world} ends with {world}; {hello} is not found in it. Capitals and small letters are told "
     "apart. For a text anywhere in the message take (1:6)."},
    {1, 120, "and the text {text} is not exactly {other},", {"[word1]", "tea"}, kEverywhere, "", "",
     "The opposite of (1:117): one letter is another one, or large instead of small, or missing."},
    {1, 121, "and the text {text} is not like {pattern},", {"[word1]", "t*"}, kEverywhere, "", "",
     "The opposite of (1:118)."},
    {1, 122, "and the text {text} does not end with {ending},", {"[word1]", "ea"}, kEverywhere, "", "",
     "The opposite of (1:119), so it holds even when the second text stands in the first, but not at its end."},

    // Data files, the bot's profile and dreams
    {1, 123, "and the line {line} stands in the section {section} of the data file {file},",
     {"[player]", "guests", "diner"}, kEverywhere, "the data file", "",
     "The file has this whole line, letter case apart, | read as a blank, in a section of this name. Mind the order: "
     "line, section, file. Good for lists made with (5:76).", false,
     "(0:6) When someone whispers something to you,\n"
     " (1:124) and the line {[player]} does not stand in the section {guests} of the data file {diner},\n"
     "     (5:76) write the line {[player]} into the section {guests} of the data file {diner}.\n"
     "     (5:12) whisper {I will know you from now on.} to them."},
    {1, 124, "and the line {line} does not stand in the section {section} of the data file {file},",
     {"[player]", "guests", "diner"}, kEverywhere, "the data file", "",
     "The file has no such line in a section of this name, or there is no such file."},
    {1, 125, "and you connect without a client,", {}, kEverywhere, "the profile", "",
     "The profile says that no game client is to be linked; see (5:80)."},
    {1, 126, "and you connect through a client,", {}, kEverywhere, "the profile", "",
     "The profile says that a game client is to be linked; see (5:81)."},
    {1, 127, "and {name} is one of your owners,", {"[player]"}, kEverywhere, "[vorel.owners]", "",
     "The profile's list of owners has this name, letter case apart; | counts as a blank."},
    {1, 128, "and {name} is none of your owners,", {"[player]"}, kEverywhere, "[vorel.owners]", "",
     "The profile's list of owners lacks this name."},
    {1, 129, "and you may speak on the map {map},", {"[map]"}, kEverywhere, "the profile's maps", "",
     "The profile's list of maps has this name, letter case apart; | counts as a blank. On all other maps the effects "
     "that speak do nothing."},
    {1, 130, "and you may not speak on the map {map},", {"[map]"}, kEverywhere, "the profile's maps", "",
     "The profile's list of maps lacks this name."},
    {1, 131, "and the dream's name is {dream},", {"Small|Pond"}, kDreamNames, "[dream.name]", "",
     "The dream that appeared last has this name, letter case apart; | counts as a blank. A dream that vanishes does "
     "not tell its name."},
    {1, 132, "and the dream's name is not {dream},", {"Small|Pond"}, kDreamNames, "[dream.name]", "",
     "The dream that appeared last has another name."},
    {1, 133, "and the dream lies at column {x} and row {y},", {"20", "8"}, kDreams, kDream, "", kPlaceOf},
    {1, 134, "and the dream does not lie at column {x} and row {y},", {"20", "8"}, kDreams, kDream, "", kNotPlaceOf},
};
// clang-format on

}  // namespace

std::span<const Command> ConditionRows() { return kConditions; }
