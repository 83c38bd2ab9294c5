#include "language/CommandRows.h"

namespace {

constexpr Scope kWithPlayer = In(EventSet::Someones());

constexpr char kPlayer[] = "[player]";
constexpr char kYours[] = "your variable";
constexpr char kDataFile[] = "the data file";
constexpr char kOwners[] = "[vorel.owners]";
constexpr char kMaps[] = "the profile's maps";

constexpr char kGameCommand[] = "Sends the game's command of this name.";

// clang-format off
constexpr auto kEffects = InCategory(kEffectLine, {
    // Connection and notes
    {.number = 0, .text = "connect to the game again.", .scope = OnlyIn({EventDisconnected}), .reads = "the profile",
     .explanation =
         "Connects as Connect in the menu does. It works under (0:2) only, and not when the game or one of its "
         "keepers has ended the session."},
    {.number = 1, .text = "disconnect from the game.",
     .explanation =
         "Ends the session. When the bot was connected, (0:2) comes at once, before the effects below this one."},
    {.number = 2, .text = "show the note {text}.", .filled = {"[player] was here."},
     .explanation =
         "Shows the text on the console, and to a linked client as well; nobody else in the game sees it. The way to "
         "find out what a variable holds."},

    // The body
    {.number = 3, .text = "sit down.", .explanation = "The bot sits."},
    {.number = 4, .text = "stand up.", .explanation = "The bot stands."},
    {.number = 5, .text = "lie down.", .explanation = "The bot lies."},
    {.number = 6, .text = "get what lies here.",
     .explanation = "The bot picks up the thing at its feet, or puts one down."},
    {.number = 7, .text = "use what you carry.",
     .explanation = "The bot uses the thing in its paws, or the one at its feet."},

    // Speaking
    {.number = 8, .text = "say {text}.", .filled = {"Hello, [player]!"},
     .explanation = "Says the text aloud. A text that is one of the game's spoken commands works as such."},
    {.number = 9, .text = "shout {text}.", .filled = {"Who wants cookies?"},
     .explanation = "Sends the text with - in front, as the game's players do for a shout."},
    {.number = 10, .text = "emote {text}.", .filled = {"waves at [player]."},
     .explanation =
         "Sends the text with : in front, as the game's players do for an emote; the game puts the bot's name before "
         "it."},
    {.number = 11, .text = "whisper {text} to {name}.", .filled = {"Ann is here", "Small Fox"},
     .explanation = "Whispers to the furre of this name. Blanks in the name are sent as |."},
    {.number = 12, .text = "whisper {text} to them.", .filled = {"Hello, [player]!"}, .scope = kWithPlayer,
     .reads = kPlayer, .explanation = "Whispers to the furre of the event."},
    {.number = 13, .text = "emit {text}.", .filled = {"A bell rings."},
     .explanation =
         "Lets a text appear without a speaker, by the game's command emit. The game must allow the bot to."},
    {.number = 14, .text = "emit {text} loudly.", .filled = {"A big bell rings."},
     .explanation = "The same by the game's command emitloud."},
    {.number = 15, .text = "describe yourself as {text}.", .filled = {"A bot that counts to [count]."},
     .explanation =
         "Sets the description that others see when they look at the bot. The program's name is added to it, in "
         "front or behind as the profile says. [vorel.desc] stays what it was at the login."},

    // Going
    {.number = 16, .text = "go to the main map *.",
     .explanation = "Sends gomap *. In the practice dream that is Acropolis."},
    {.number = 17, .text = "go to the main map #.",
     .explanation = "Sends gomap #. In the practice dream that is Allegria Island."},
    {.number = 18, .text = "go to the main map %.",
     .explanation = "Sends gomap %. In the practice dream that is Furrabian Nights."},
    {.number = 19, .text = "go to the main map (.",
     .explanation = "Sends gomap (. In the practice dream that is the Imaginarium."},
    {.number = 20, .text = "go back to the map you came from.", .explanation = "Sends goback."},
    {.number = 21, .text = "ask who is here.",
     .explanation =
         "The game answers with a list of visitors, which raises (0:20) to (0:23), or with the name of the dream, "
         "which fills [map]."},
    {.number = 22, .text = "make the moves {moves}.", .filled = {"779u"},
     .explanation =
         "One character for each move: 7 up left, 9 up right, 1 down left, 3 down right; s sit, S stand, l lie, g "
         "get, u use, b breath, f flame, w wings, d dragon, e eagle. Any other character is sent as it is: < and > "
         "turn."},
    {.number = 23, .text = "look at {name}.", .filled = {"[player]"},
     .explanation = "The game answers with (0:12) and (0:13)."},
    {.number = 24, .text = "look at column {x} and row {y}.", .filled = {"24", "20"},
     .explanation =
         "Looks at whoever stands on this square. The game answers with (0:12) and (0:13). Both numbers must be from "
         "0 up; a negative one is an error that ends the program."},

    // Running a dream
    {.number = 25, .text = "give the command shield.", .explanation = kGameCommand},
    {.number = 26, .text = "let only the owner upload here.",
     .explanation = "Says the game's spoken command uploads-owner."},
    {.number = 27, .text = "let those you share with upload here.",
     .explanation = "Says the game's spoken command uploads-shared."},
    {.number = 28, .text = "let everyone upload here.", .explanation = "Says the game's spoken command uploads-all."},
    {.number = 29, .text = "let only the owner use the pads here.",
     .explanation = "Says the game's spoken command pads-owner."},
    {.number = 30, .text = "let those you share with use the pads here.",
     .explanation = "Says the game's spoken command pads-shared."},
    {.number = 31, .text = "let everyone use the pads here.",
     .explanation = "Says the game's spoken command pads-all."},
    {.number = 32, .text = "share the dream with {name}.", .filled = {"Ann"},
     .explanation = "Gives the furre a share in running the dream."},
    {.number = 33, .text = "share the dream with them.", .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "Gives the furre of the event a share in running the dream."},
    {.number = 34, .text = "eject {name} from the dream.", .filled = {"Ann"}, .explanation = "Throws the furre out."},
    {.number = 35, .text = "eject them from the dream.", .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "Throws the furre of the event out."},
    {.number = 36, .text = "greet those who enter with {text}.", .filled = {"Welcome to the pond."},
     .explanation =
         "Sets the text that the dream shows to everyone who comes in, by the game's spoken command entrytext."},
    {.number = 37, .text = "greet those who enter with the music {number}.", .filled = {"12"},
     .explanation =
         "Sets the music that the dream plays to everyone who comes in, by the game's spoken command entrymusic."},
    {.number = 38, .text = "unload your dream.", .explanation = "Sends the game's command unload."},
    {.number = 39, .text = "unload all your dreams.", .explanation = "Sends the game's command unload all."},
    {.number = 40, .text = "unload the dream {dream}.", .filled = {"Small|Pond"},
     .explanation = "Sends the game's command unload with this name."},
    {.number = 41, .text = "stop sharing the dream with {them}.", .filled = {"them"}, .scope = kWithPlayer,
     .reads = kPlayer,
     .explanation =
         "Takes its share from the furre of the event. The braces must be there, but what they hold does not matter. "
         "For another furre take (5:42)."},
    {.number = 42, .text = "stop sharing the dream with the furre {name}.", .filled = {"Ann"},
     .explanation = "Takes its share from this furre."},

    // Company
    {.number = 43, .text = "ask whether {name} is online.", .filled = {"Ann"},
     .explanation = "The game answers with (0:35) or (0:36)."},
    {.number = 44, .text = "join {name}.", .filled = {"Ann"},
     .explanation = "Goes to the furre when it has asked for that, and asks it otherwise."},
    {.number = 45, .text = "join them.", .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "The same for the furre of the event. The answer to (0:27)."},
    {.number = 46, .text = "summon {name}.", .filled = {"Ann"},
     .explanation = "Brings the furre here when it has asked for that, and asks it otherwise."},
    {.number = 47, .text = "summon them.", .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "The same for the furre of the event. The answer to (0:26)."},

    // Other commands of the game
    {.number = 48, .text = "give the command parental.", .explanation = kGameCommand},
    {.number = 49, .text = "ask for the description tags.", .explanation = "Says the game's spoken command desctags."},
    {.number = 50, .text = "ask for the game's time.", .explanation = "The game answers with (0:42)."},
    {.number = 51, .text = "ask for the news.", .explanation = "Says the game's spoken command =news."},
    {.number = 52, .text = "ask for the events.", .explanation = "Says the game's spoken command =event."},
    {.number = 53, .text = "roll {number} dice of {sides} sides for their sum.", .filled = {"2", "6"},
     .explanation =
         "Rolls dice so that only their sum is told, and (0:43) raised. Does nothing when one of the numbers is 0."},
    {.number = 54, .text = "roll {number} dice of {sides} sides one by one.", .filled = {"2", "6"},
     .explanation =
         "Rolls dice so that each of them is told, and (0:44) raised. Does nothing when one of the numbers is 0."},
    {.number = 55, .text = "give the command dragon.", .explanation = kGameCommand},
    {.number = 56, .text = "give the command phoenix.", .explanation = kGameCommand},
    {.number = 57, .text = "give the command gryffe.", .explanation = kGameCommand},
    {.number = 58, .text = "give the command eagle.", .explanation = kGameCommand},
    {.number = 59, .text = "use your breath.",
     .explanation = "Sends the game's command breath; all who see it get (0:24)."},
    {.number = 60, .text = "use your flame.",
     .explanation = "Sends the game's command flame; all who see it get (0:25)."},

    // Cookies
    {.number = 61, .text = "make a cookie for them.", .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "Makes a cookie for the furre of the event."},
    {.number = 62, .text = "make a cookie for {name}.", .filled = {"Ann"},
     .explanation = "Makes a cookie for this furre."},
    {.number = 63, .text = "make a cookie with the words {text} for them.", .filled = {"Enjoy it!"},
     .scope = kWithPlayer, .reads = kPlayer,
     .explanation = "Makes a cookie with a message in it for the furre of the event."},
    {.number = 64, .text = "make out a cookie with the words {text} to {name}.", .filled = {"Enjoy it!", "Ann"},
     .explanation =
         "Makes a cookie with a message in it for this furre. The message keeps its closing brace: {Enjoy it!} "
         "arrives as Enjoy it!}"},
    {.number = 66, .text = "give your cookie to {name}.", .filled = {"Ann"},
     .explanation = "Passes on a cookie that the bot has."},
    {.number = 67, .text = "eat your cookie.", .explanation = "Eats a cookie that the bot has."},

    // Variables
    {.number = 68, .text = "take the variable {variable} and store {value} in it.", .filled = {"guest", "[player]"},
     .changes = kYours,
     .explanation =
         "Gives a variable of yours a value, and makes the variable when it is new. Keep the words between the two "
         "braces as they are. From then on [guest] stands for the value everywhere. Variables are kept as long as "
         "the program runs, and are gone after it; data files keep things longer. Write the variable's name without "
         "brackets: with them its value would stand there before the effect gets to see the name."},
    {.number = 69, .text = "add to the variable {variable} the number {number}.", .filled = {"count", "1"},
     .reads = kYours, .changes = kYours,
     .explanation =
         "Adds a number, with decimals if you like. A variable that is new starts from 0. Write the variable's name "
         "without brackets."},
    {.number = 70, .text = "subtract from the variable {variable} the number {number}.", .filled = {"count", "1"},
     .reads = kYours, .changes = kYours,
     .explanation =
         "Subtracts a number. A variable that is new starts from 0. Write the variable's name without brackets."},
    {.number = 71, .text = "multiply the variable {variable} by the number {number}.", .filled = {"count", "3"},
     .reads = kYours, .changes = kYours,
     .explanation =
         "Multiplies by a number. A variable that is new becomes 0. Write the variable's name without brackets."},
    {.number = 72, .text = "divide the variable {variable} by the number {number}.", .filled = {"count", "8"},
     .reads = kYours, .changes = kYours,
     .explanation =
         "Divides by a number, decimals included. A variable that is new becomes 0. Dividing an existing variable by "
         "0 is an error that ends the program. Write the variable's name without brackets."},

    // Data files
    {.number = 73, .text = "in the section {section} of the data file {file} set the entry {key} to the value {value}.",
     .filled = {"points", "scores", "[player]", "8"}, .reads = kDataFile, .changes = kDataFile,
     .explanation =
         "Writes key=value into a file that stays. Section and file are made when there are none yet; an entry with "
         "the same key, letter case apart, is replaced. The file lies in the program's folder and ends in \".ini\"; "
         "characters that no file name may hold become _."},
    {.number = 74,
     .text =
         "in the section {section} of the data file {file} find the entry {key} and keep its value in the variable "
         "{variable}.",
     .filled = {"points", "scores", "[player]", "points"}, .reads = kDataFile, .changes = kYours,
     .explanation =
         "Reads the value of an entry. Without such a file, section or entry the variable stays as it is, so store a "
         "first value in it before. Write the variable's name without brackets.",
     .trigger =
         "(0:6) When someone whispers something to you,\n"
         " (1:2) and they said {score},\n"
         "     (5:68) take the variable {points} and store {0} in it.\n"
         "     (5:74) in the section {points} of the data file {scores} find the entry {[player]} and keep its value "
         "in the variable {points}.\n"
         "     (5:12) whisper {You have [points] points.} to them."},
    {.number = 75, .text = "in the section {section} of the data file {file} delete the entry {key}.",
     .filled = {"points", "scores", "[player]"}, .reads = kDataFile, .changes = kDataFile,
     .explanation = "Removes the entry with this key. Without such a file, section or entry nothing happens."},
    {.number = 76, .text = "write the line {line} into the section {section} of the data file {file}.",
     .filled = {"honey", "words", "scores"}, .reads = kDataFile, .changes = kDataFile,
     .explanation =
         "Adds a line to a list. Section and file are made when there are none yet. A line that is there already is "
         "written once more; (1:124) tells beforehand."},
    {.number = 77,
     .text = "from the section {section} of the data file {file} read all lines into the variable {variable}.",
     .filled = {"words", "scores", "list"}, .reads = kDataFile, .changes = kYours,
     .explanation =
         "Puts the lines of a list into a variable, a comma and a blank between them. Write the variable's name "
         "without brackets. Without such a file the variable stays as it is; without such a section it becomes empty."},
    {.number = 78, .text = "delete the line {line} from the section {section} of the data file {file}.",
     .filled = {"tea", "words", "scores"}, .reads = kDataFile, .changes = kDataFile,
     .explanation = "Removes all lines that are this text, letter case apart, | read as a blank."},
    {.number = 79, .text = "delete the section {section} from the data file {file}.", .filled = {"words", "scores"},
     .reads = kDataFile, .changes = kDataFile, .explanation = "Removes the section and all its lines."},

    // The profile
    {.number = 80, .text = "connect without a client from now on.", .changes = "the profile",
     .explanation =
         "The next connection links no game client. A change of the profile lasts until the program ends, unless you "
         "save the profile; this is so for the next five effects, too."},
    {.number = 81, .text = "connect through a client from now on.", .changes = "the profile",
     .explanation = "The next connection links the game client that the profile names."},
    {.number = 82, .text = "make {name} one of your owners.", .filled = {"Zoe"}, .reads = kOwners, .changes = kOwners,
     .explanation = "Adds the furre to the list of owners, even when it stands there already."},
    {.number = 83, .text = "no longer have {name} as your owner.", .filled = {"bob"}, .reads = kOwners,
     .changes = kOwners,
     .explanation = "Takes the furre out of the list of owners, letter case apart, | read as a blank."},
    {.number = 84, .text = "from now on speak on the map {map}.", .filled = {"[map]"}, .reads = kMaps, .changes = kMaps,
     .explanation = "Adds the map to the profile's list of maps, on which alone the effects that speak work."},
    {.number = 85, .text = "no longer speak on the map {map}.", .filled = {"acropolis"}, .reads = kMaps,
     .changes = kMaps,
     .explanation = "Takes the map out of the profile's list of maps, letter case apart, | read as a blank."},

    // Walking
    {.number = 86, .text = "walk to column {x} and row {y}.", .filled = {"13", "20"}, .reads = "[vorel.into]",
     .explanation =
         "Starts a walk, one step every 675 thousandths of a second, round the squares on which dreams lie. Columns "
         "are counted by twos: an odd number means the next column. Effects below this one do not wait for the bot "
         "to get there; take (0:14) for that."},
    {.number = 87, .text = "stop walking.", .explanation = "Ends the walk where the bot is."},

    // All variables
    {.number = 88, .text = "set all variables to 0.", .changes = kYours,
     .explanation = "Every variable of yours becomes 0."},
    {.number = 89, .text = "delete all variables.", .changes = kYours,
     .explanation = "Removes all variables of yours."},
    {.number = 90, .text = "delete the variable {variable}.", .filled = {"count"}, .changes = kYours,
     .explanation =
         "Removes a variable of yours; its name in brackets then stays in texts as it is written. Write the "
         "variable's name without brackets."},
    {.number = 91,
     .text = "from the section {section} of the data file {file} read a random line into the variable {variable}.",
     .filled = {"words", "scores", "word"}, .reads = kDataFile, .changes = kYours,
     .explanation =
         "Draws one line of a list. Without such a file or section, or when the section is empty, the variable stays "
         "as it is. Write the variable's name without brackets.",
     .trigger =
         "(0:3) When someone says something,\n"
         " (1:6) and they said something with {joke} in it,\n"
         "     (5:91) from the section {jokes} of the data file {fun} read a random line into the variable {joke}.\n"
         "     (5:8) say {[joke]}."},
});
// clang-format on

static_assert(HasARowForEach(kEffectNumbers, kEffects));

}  // namespace

std::span<const Command> EffectRows() { return kEffects; }
