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
constexpr auto kConditions = InCategory(kConditionLine, {
    // The furre of the event, and what was said
    {.number = 0, .text = "and they are called {name},", .filled = {"Ann"}, .scope = kNamed, .reads = "[player.name]",
     .explanation =
         "The furre of the event has this name, letter case apart. Write | or a blank for a blank in the name."},
    {.number = 1, .text = "and they are not called {name},", .filled = {"Ann"}, .scope = kNamed,
     .reads = "[player.name]", .explanation = "The furre of the event has another name."},
    {.number = 2, .text = "and they said {text},", .filled = {"hello"}, .scope = kMessages, .reads = "[message]",
     .explanation = "The message is this text from beginning to end, letter case apart; | counts as a blank."},
    {.number = 3, .text = "and they said something other than {text},", .filled = {"hello"}, .scope = kMessages,
     .reads = "[message]", .explanation = "The message is any other text."},
    {.number = 4, .text = "and they said something like {pattern},", .filled = {"remember *"}, .scope = kMessages,
     .reads = "[message]",
     .explanation =
         "The whole message fits the pattern, letter case apart; | counts as a blank. * stands for any characters or "
         "none, ? for one character, # for one digit, [abc] or [a-c] for one of the characters listed, [!abc] for "
         "one not listed."},
    {.number = 5, .text = "and they said nothing like {pattern},", .filled = {"remember *"}, .scope = kMessages,
     .reads = "[message]", .explanation = "The message does not fit the pattern."},
    {.number = 6, .text = "and they said something with {text} in it,", .filled = {"hello"}, .scope = kMessages,
     .reads = "[message]",
     .explanation = "The message has this text somewhere, letter case apart. Here | is only a |."},
    {.number = 7, .text = "and they said something without {text} in it,", .filled = {"hello"}, .scope = kMessages,
     .reads = "[message]", .explanation = "The message has this text nowhere."},
    {.number = 8, .text = "and the description reads {text},", .filled = {"A friendly wolf."}, .scope = kDescriptions,
     .reads = "[look.desc]",
     .explanation =
         "The description of the furre last looked at is this text, letter case apart; | counts as a blank."},
    {.number = 9, .text = "and the description does not read {text},", .filled = {"A friendly wolf."},
     .scope = kDescriptions, .reads = "[look.desc]", .explanation = "The description is any other text."},
    {.number = 10, .text = "and the description is like {pattern},", .filled = {"*wolf*"}, .scope = kDescriptions,
     .reads = "[look.desc]",
     .explanation = "The whole description fits the pattern; the wildcards are those of (1:4)."},
    {.number = 11, .text = "and the description is not like {pattern},", .filled = {"*wolf*"}, .scope = kDescriptions,
     .reads = "[look.desc]", .explanation = "The description does not fit the pattern."},
    {.number = 12, .text = "and the description has {text} in it,", .filled = {"wolf"}, .scope = kDescriptions,
     .reads = "[look.desc]",
     .explanation = "The description has this text somewhere, letter case apart. Here | is only a |."},
    {.number = 13, .text = "and the description does not have {text} in it,", .filled = {"wolf"},
     .scope = kDescriptions, .reads = "[look.desc]", .explanation = "The description has this text nowhere."},

    // Its looks, by the game's codes
    {.number = 14, .text = "and their species code is #,", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 15, .text = "and their species code is not #,", .scope = kLooks, .reads = kSpecies,
     .explanation = kNotCode},
    {.number = 16, .text = "and their markings code is 5,", .scope = kLooks, .reads = kMarkings, .explanation = kCode},
    {.number = 17, .text = "and their markings code is not 5,", .scope = kLooks, .reads = kMarkings,
     .explanation = kNotCode},
    {.number = 18, .text = "and their species code is !,", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 19, .text = "and their species code is not !,", .scope = kLooks, .reads = kSpecies,
     .explanation = kNotCode},
    {.number = 20, .text = "and their species code is ],", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 21, .text = "and their markings code is not ],", .scope = kLooks, .reads = kMarkings,
     .explanation =
         "Not the opposite of (1:20), though its number suggests it: this one looks at the markings, not at the "
         "species."},
    {.number = 22, .text = "and their species code is \",", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 23, .text = "and their species code is not \",", .scope = kLooks, .reads = kSpecies,
     .explanation = kNotCode},
    {.number = 24, .text = "and their species code is %,", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 25, .text = "and their species code is not %,", .scope = kLooks, .reads = kSpecies,
     .explanation = kNotCode},
    {.number = 26, .text = "and their species code is $,", .scope = kLooks, .reads = kSpecies,
     .explanation =
         "The furre that spoke, or that is looked at, has just this code. There is no condition for the opposite; "
         "the number 27 was never given out, and a line with it never holds."},
    {.number = 28, .text = "and their species code is ?,", .scope = kLooks, .reads = kSpecies, .explanation = kCode},
    {.number = 29, .text = "and their markings code is not ?,", .scope = kLooks, .reads = kMarkings,
     .explanation =
         "Not the opposite of (1:28), though its number suggests it: this one looks at the markings, not at the "
         "species."},
    {.number = 30, .text = "and their gender code is !,", .scope = kLooks, .reads = kGender, .explanation = kCode},
    {.number = 31, .text = "and their gender code is not !,", .scope = kLooks, .reads = kGender,
     .explanation = kNotCode},
    {.number = 32, .text = "and their gender code is a blank,", .scope = kLooks, .reads = kGender,
     .explanation = kCode},
    {.number = 33, .text = "and their gender code is not a blank,", .scope = kLooks, .reads = kGender,
     .explanation = kNotCode},
    {.number = 34, .text = "and their gender code is \",", .scope = kLooks, .reads = kGender, .explanation = kCode},
    {.number = 35, .text = "and their gender code is not \",", .scope = kLooks, .reads = kGender,
     .explanation = kNotCode},
    {.number = 36, .text = "and they have a badge,", .scope = kLooks, .reads = kBadge,
     .explanation =
         "The furre that spoke has a badge; at (0:12) the badge of the look before, since a look's own badge comes "
         "later, with the description at (0:13). When the game tells a speaker's looks but sends no line for the "
         "badge, that counts as a badge."},
    {.number = 37, .text = "and they have no badge,", .scope = kLooks, .reads = kBadge,
     .explanation = "The furre that spoke has no badge; at (0:12), the furre looked at before it."},
    {.number = 38, .text = "and their badge code is i or I,", .scope = kLooks, .reads = kBadge,
     .explanation =
         "The badge of the furre that spoke is this letter, large or small; at (0:12), the badge of the look before."},
    {.number = 39, .text = "and their badge code is neither i nor I,", .scope = kLooks, .reads = kBadge,
     .explanation =
         "The badge of the furre that spoke is anything else, or it has none; at (0:12), that of the look before."},
    {.number = 40, .text = "and their badge code is one of Q R S T,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 41, .text = "and their badge code is none of Q R S T,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 42, .text = "and their badge code is one of E F G H,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 43, .text = "and their badge code is none of E F G H,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 44, .text = "and their badge code is j,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 45, .text = "and their badge code is not j,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 46, .text = "and their badge code is one of ] ^ _ `,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 47, .text = "and their badge code is none of ] ^ _ `,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 48, .text = "and their badge code is one of A B C D,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 49, .text = "and their badge code is none of A B C D,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 50, .text = "and their badge code is one of I J K L,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 51, .text = "and their badge code is none of I J K L,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 52, .text = "and their badge code is one of e f g h,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 53, .text = "and their badge code is none of e f g h,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 54, .text = "and their badge code is one of U V W X,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 55, .text = "and their badge code is none of U V W X,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 56, .text = "and their badge code is one of M N O P,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 57, .text = "and their badge code is none of M N O P,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 58, .text = "and their badge code is one of a b c d,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 59, .text = "and their badge code is none of a b c d,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 60, .text = "and their badge code is one of Y Z [ \\,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeIn},
    {.number = 61, .text = "and their badge code is none of Y Z [ \\,", .scope = kBadgeGroups, .reads = kBadge,
     .explanation = kBadgeNotIn},
    {.number = 62, .text = "and their badge code is one of A E I M Q U Y ] a e,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeIn},
    {.number = 63, .text = "and their badge code is none of A E I M Q U Y ] a e,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeNotIn},
    {.number = 64, .text = "and their badge code is one of B F J N R V Z ^ b f,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeIn},
    {.number = 65, .text = "and their badge code is none of B F J N R V Z ^ b f,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeNotIn},
    {.number = 66, .text = "and their badge code is one of C G K O S W [ _ c g,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeIn},
    {.number = 67, .text = "and their badge code is none of C G K O S W [ _ c g,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeNotIn},
    {.number = 68, .text = "and their badge code is one of D H L P T X \\ ` d h,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeIn},
    {.number = 69, .text = "and their badge code is none of D H L P T X \\ ` d h,", .scope = kBadgeGroups,
     .reads = kBadge, .explanation = kBadgeNotIn},

    // Maps, visitors and the game's time
    {.number = 70, .text = "and you are on the map {map},", .filled = {"Acropolis"}, .reads = "[map]",
     .explanation = "The map or dream where the bot is has this name, letter case apart; | counts as a blank."},
    {.number = 71, .text = "and you are not on the map {map},", .filled = {"Acropolis"}, .reads = "[map]",
     .explanation = "The map or dream where the bot is has another name, or is not known yet."},
    {.number = 72, .text = "and you came from the map {map},", .filled = {"Chess Island"}, .reads = "[previousmap]",
     .explanation = "The map or dream where the bot was before has this name, letter case apart; | counts as a blank."},
    {.number = 73, .text = "and you did not come from the map {map},", .filled = {"Chess Island"},
     .reads = "[previousmap]",
     .explanation = "The map or dream where the bot was before has another name, or there was none."},
    {.number = 74, .text = "and {name} is among the visitors,", .filled = {"Ann"}, .reads = "[visitors]",
     .explanation = "The last list of visitors has this name, letter case apart; | counts as a blank."},
    {.number = 75, .text = "and {name} is not among the visitors,", .filled = {"Ann"}, .reads = "[visitors]",
     .explanation = "The last list of visitors lacks this name, or there was no list yet."},
    {.number = 76, .text = "and the game's hour is {hour},", .filled = {"7"}, .scope = kTime, .reads = "[fst.hour]",
     .explanation = "The hour of the game's own time, from 1 to 12, as last told."},
    {.number = 77, .text = "and the game's hour is not {hour},", .filled = {"7"}, .scope = kTime, .reads = "[fst.hour]",
     .explanation = "The hour of the game's own time, as last told, is another one."},
    {.number = 78, .text = "and the game's minute is {minute},", .filled = {"5"}, .scope = kTime,
     .reads = "[fst.minute]", .explanation = "The minute of the game's own time, as last told."},
    {.number = 79, .text = "and the game's minute is not {minute},", .filled = {"5"}, .scope = kTime,
     .reads = "[fst.minute]", .explanation = "The minute of the game's own time, as last told, is another one."},
    {.number = 80, .text = "and the game's second is {second},", .filled = {"9"}, .scope = kTime,
     .reads = "[fst.second]", .explanation = "The second of the game's own time, as last told."},
    {.number = 81, .text = "and the game's second is not {second},", .filled = {"9"}, .scope = kTime,
     .reads = "[fst.second]", .explanation = "The second of the game's own time, as last told, is another one."},
    {.number = 82, .text = "and the game's time is AM,", .scope = kTime, .reads = "[fst.median]",
     .explanation =
         "The game's own time was before noon when it was last told; never, as long as it has not been told."},
    {.number = 83, .text = "and the game's time is PM,", .scope = kTime, .reads = "[fst.median]",
     .explanation =
         "The game's own time was after noon when it was last told; never, as long as it has not been told."},

    // Moves
    {.number = 84, .text = "and the one who spoke, moved or was looked at has the colour code {colors},",
     .filled = {"x%4%4%4%4%"}, .scope = kLooksAndMoves, .reads = kMoverColors,
     .explanation =
         "The furre that spoke, moved or is looked at has this colour code, letter case apart. With {[vorel.colors]} "
         "at (0:14) it tells the bot's own moves from all others."},
    {.number = 85, .text = "and the one who spoke or was looked at does not have the colour code {colors},",
     .filled = {"x%4%4%4%4%"}, .scope = kLooks, .reads = kColors,
     .explanation =
         "The furre that spoke or is looked at has another colour code. Not the whole opposite of (1:84): at (0:14), "
         "when a furre has moved, it never holds."},
    {.number = 86, .text = "and they came from column {x} and row {y},", .filled = {"22", "19"}, .scope = kMoves,
     .reads = kMoveFrom, .explanation = kPlaceOf},
    {.number = 87, .text = "and they did not come from column {x} and row {y},", .filled = {"22", "19"},
     .scope = kMoves, .reads = kMoveFrom, .explanation = kNotPlaceOf},
    {.number = 88, .text = "and they moved to column {x} and row {y},", .filled = {"24", "20"}, .scope = kMoves,
     .reads = kMoveInto, .explanation = kPlaceOf},
    {.number = 89, .text = "and they did not move to column {x} and row {y},", .filled = {"24", "20"}, .scope = kMoves,
     .reads = kMoveInto, .explanation = kNotPlaceOf},
    {.number = 90, .text = "and they now stand at column {x} and row {y},", .filled = {"24", "20"}, .scope = kMoves,
     .reads = kMove,
     .explanation =
         "The square where the furre is after its move; when it has only turned, that is where it was. Both numbers "
         "must be right. A line with a single number takes it for both."},
    {.number = 91, .text = "and they do not stand at column {x} and row {y},", .filled = {"24", "20"}, .scope = kMoves,
     .reads = kMove, .explanation = "After its move the furre is in another column or row."},

    // DragonSpeak triggers
    {.number = 92, .text = "and whoever set it off came from column {x} and row {y},", .filled = {"22", "19"},
     .scope = kTriggers, .reads = kTriggerFrom, .explanation = kPlaceOf},
    {.number = 93, .text = "and whoever set it off did not come from column {x} and row {y},", .filled = {"22", "19"},
     .scope = kTriggers, .reads = kTriggerFrom, .explanation = kNotPlaceOf},
    {.number = 94, .text = "and whoever set it off went to column {x} and row {y},", .filled = {"24", "20"},
     .scope = kTriggers, .reads = kTriggerInto, .explanation = kPlaceOf},
    {.number = 95, .text = "and whoever set it off did not go to column {x} and row {y},", .filled = {"24", "20"},
     .scope = kTriggers, .reads = kTriggerInto, .explanation = kNotPlaceOf},
    {.number = 96, .text = "and the trigger has the number {number},", .filled = {"7"}, .scope = kTriggers,
     .reads = kTriggerNumber, .explanation = "The number of the DragonSpeak trigger that the dream reports."},
    {.number = 97, .text = "and the trigger does not have the number {number},", .filled = {"7"}, .scope = kTriggers,
     .reads = kTriggerNumber, .explanation = "The DragonSpeak trigger that the dream reports has another number."},
    {.number = 98, .text = "and the trigger lies at column {x} and row {y},", .filled = {"26", "21"},
     .scope = kTriggers, .reads = kTriggerAt, .explanation = kPlaceOf},
    {.number = 99, .text = "and the trigger does not lie at column {x} and row {y},", .filled = {"26", "21"},
     .scope = kTriggers, .reads = kTriggerAt, .explanation = kNotPlaceOf},

    // Dice
    {.number = 100, .text = "and the number of dice is {number},", .filled = {"2"}, .scope = kDice,
     .reads = "[dice.amount]", .explanation = "So many dice were rolled last."},
    {.number = 101, .text = "and the number of sides is {number},", .filled = {"6"}, .scope = kDice,
     .reads = "[dice.sides]", .explanation = "The dice that were rolled last have so many sides."},
    {.number = 102, .text = "and die {die} shows less than {number},", .filled = {"2", "5"}, .scope = kSingleDice,
     .reads = kDie, .explanation = kOneDie},
    {.number = 103, .text = "and die {die} shows at most {number},", .filled = {"2", "5"}, .scope = kSingleDice,
     .reads = kDie, .explanation = kOneDie},
    {.number = 104, .text = "and die {die} shows exactly {number},", .filled = {"2", "5"}, .scope = kSingleDice,
     .reads = kDie, .explanation = kOneDie},
    {.number = 105, .text = "and die {die} shows at least {number},", .filled = {"2", "5"}, .scope = kSingleDice,
     .reads = kDie, .explanation = kOneDie},
    {.number = 106, .text = "and die {die} shows more than {number},", .filled = {"2", "5"}, .scope = kSingleDice,
     .reads = kDie, .explanation = kOneDie},
    {.number = 107, .text = "and the dice total is less than {number},", .filled = {"9"}, .scope = kDice,
     .reads = "[dice.total]", .explanation = kTotal},
    {.number = 108, .text = "and the dice total is at most {number},", .filled = {"9"}, .scope = kDice,
     .reads = "[dice.total]", .explanation = kTotal},
    {.number = 109, .text = "and the dice total is exactly {number},", .filled = {"9"}, .scope = kDice,
     .reads = "[dice.total]", .explanation = kTotal},
    {.number = 110, .text = "and the dice total is at least {number},", .filled = {"9"}, .scope = kDice,
     .reads = "[dice.total]", .explanation = kTotal},
    {.number = 111, .text = "and the dice total is more than {number},", .filled = {"9"}, .scope = kDice,
     .reads = "[dice.total]", .explanation = kTotal},

    // Any numbers and texts
    {.number = 112, .text = "and the number {number} is less than {limit},", .filled = {"[count]", "10"},
     .explanation = kTwoNumbers},
    {.number = 113, .text = "and the number {number} is at most {limit},", .filled = {"[count]", "10"},
     .explanation = kTwoNumbers},
    {.number = 114, .text = "and the number {number} equals {limit},", .filled = {"[count]", "10"},
     .explanation = kTwoNumbers},
    {.number = 115, .text = "and the number {number} is more than {limit},", .filled = {"[count]", "10"},
     .explanation = kTwoNumbers},
    {.number = 116, .text = "and the number {number} is at least {limit},", .filled = {"[count]", "10"},
     .explanation = kTwoNumbers},
    {.number = 117, .text = "and the text {text} is exactly {other},", .filled = {"[word1]", "tea"},
     .explanation = kExact},
    {.number = 118, .text = "and the text {text} is like {pattern},", .filled = {"[word1]", "t*"},
     .explanation =
         "The whole text fits the pattern; the wildcards are those of (1:4). Capitals and small letters are told "
         "apart, and | is not a blank here."},
    {.number = 119, .text = "and the text {text} ends with {ending},", .filled = {"[word1]", "ea"},
     .explanation =
         "The second text is looked for in the first, but both keep their closing brace, and so it is found only at "
         "the very end. {hello world} ends with {world}; {hello} is not found in it. Capitals and small letters are "
         "told apart. For a text anywhere in the message take (1:6)."},
    {.number = 120, .text = "and the text {text} is not exactly {other},", .filled = {"[word1]", "tea"},
     .explanation = "The opposite of (1:117): one letter is another one, or large instead of small, or missing."},
    {.number = 121, .text = "and the text {text} is not like {pattern},", .filled = {"[word1]", "t*"},
     .explanation = "The opposite of (1:118)."},
    {.number = 122, .text = "and the text {text} does not end with {ending},", .filled = {"[word1]", "ea"},
     .explanation =
         "The opposite of (1:119), so it holds even when the second text stands in the first, but not at its end."},

    // Data files, the bot's profile and dreams
    {.number = 123, .text = "and the line {line} stands in the section {section} of the data file {file},",
     .filled = {"[player]", "guests", "diner"}, .reads = "the data file",
     .explanation =
         "The file has this whole line, letter case apart, | read as a blank, in a section of this name. Mind the "
         "order: line, section, file. Good for lists made with (5:76).",
     .trigger =
         "(0:6) When someone whispers something to you,\n"
         " (1:124) and the line {[player]} does not stand in the section {guests} of the data file {diner},\n"
         "     (5:76) write the line {[player]} into the section {guests} of the data file {diner}.\n"
         "     (5:12) whisper {I will know you from now on.} to them."},
    {.number = 124, .text = "and the line {line} does not stand in the section {section} of the data file {file},",
     .filled = {"[player]", "guests", "diner"}, .reads = "the data file",
     .explanation = "The file has no such line in a section of this name, or there is no such file."},
    {.number = 125, .text = "and you connect without a client,", .reads = "the profile",
     .explanation = "The profile says that no game client is to be linked; see (5:80)."},
    {.number = 126, .text = "and you connect through a client,", .reads = "the profile",
     .explanation = "The profile says that a game client is to be linked; see (5:81)."},
    {.number = 127, .text = "and {name} is one of your owners,", .filled = {"[player]"}, .reads = "[vorel.owners]",
     .explanation = "The profile's list of owners has this name, letter case apart; | counts as a blank."},
    {.number = 128, .text = "and {name} is none of your owners,", .filled = {"[player]"}, .reads = "[vorel.owners]",
     .explanation = "The profile's list of owners lacks this name."},
    {.number = 129, .text = "and you may speak on the map {map},", .filled = {"[map]"}, .reads = "the profile's maps",
     .explanation =
         "The profile's list of maps has this name, letter case apart; | counts as a blank. On all other maps the "
         "effects that speak do nothing."},
    {.number = 130, .text = "and you may not speak on the map {map},", .filled = {"[map]"},
     .reads = "the profile's maps", .explanation = "The profile's list of maps lacks this name."},
    {.number = 131, .text = "and the dream's name is {dream},", .filled = {"Small|Pond"}, .scope = kDreamNames,
     .reads = "[dream.name]",
     .explanation =
         "The dream that appeared last has this name, letter case apart; | counts as a blank. A dream that vanishes "
         "does not tell its name."},
    {.number = 132, .text = "and the dream's name is not {dream},", .filled = {"Small|Pond"}, .scope = kDreamNames,
     .reads = "[dream.name]", .explanation = "The dream that appeared last has another name."},
    {.number = 133, .text = "and the dream lies at column {x} and row {y},", .filled = {"20", "8"}, .scope = kDreams,
     .reads = kDream, .explanation = kPlaceOf},
    {.number = 134, .text = "and the dream does not lie at column {x} and row {y},", .filled = {"20", "8"},
     .scope = kDreams, .reads = kDream, .explanation = kNotPlaceOf},
});
// clang-format on

static_assert(HasARowForEach(kConditionNumbers, kConditions));

}  // namespace

std::span<const Command> ConditionRows() { return kConditions; }
