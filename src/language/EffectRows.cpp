#include "language/CommandRows.h"

namespace {

/// The events in which "[player]" stands for a furre.
constexpr Scope kWithPlayer = In(EventSet::Where([](const EventFacts& event) { return event.IsSomeones(); }));

constexpr bool kSpeaks = true;
constexpr char kPlayer[] = "[player]";
constexpr char kYours[] = "your variable";
constexpr char kDataFile[] = "the data file";
constexpr char kOwners[] = "[vorel.owners]";
constexpr char kMaps[] = "the profile's maps";

constexpr char kGameCommand[] = "Sends the game's command of this name.";

// clang-format off
constexpr Command kEffects[] = {
    // Connection and notes
    {5, 0, "connect to the game again.", {}, OnlyIn({EventDisconnected}), "the profile", "",
     "Connects as Connect in the menu does. It works under (0:2) only, and not when the game or one of its keepers has "
     "ended the session."},
    {5, 1, "disconnect from the game.", {}, kEverywhere, "", "",
     "Ends the session. When the bot was connected, (0:2) comes at once, before the effects below this one."},
    {5, 2, "show the note {text}.", {"[player] was here."}, kEverywhere, "", "",
     "Shows the text on the console, and to a linked client as well; nobody else in the game sees it. The way to find "
     "out what a variable holds."},

    // The body
    {5, 3, "sit down.", {}, kEverywhere, "", "", "The bot sits."},
    {5, 4, "stand up.", {}, kEverywhere, "", "", "The bot stands."},
    {5, 5, "lie down.", {}, kEverywhere, "", "", "The bot lies."},
    {5, 6, "get what lies here.", {}, kEverywhere, "", "", "The bot picks up the thing at its feet, or puts one down."},
    {5, 7, "use what you carry.", {}, kEverywhere, "", "",
     "The bot uses the thing in its paws, or the one at its feet."},

    // Speaking
    {5, 8, "say {text}.", {"Hello, [player]!"}, kEverywhere, "", "",
     "Says the text aloud. A text that is one of the game's spoken commands works as such.", kSpeaks},
    {5, 9, "shout {text}.", {"Who wants cookies?"}, kEverywhere, "", "",
     "Sends the text with - in front, as the game's players do for a shout.", kSpeaks},
    {5, 10, "emote {text}.", {"waves at [player]."}, kEverywhere, "", "",
     "Sends the text with : in front, as the game's players do for an emote; the game puts the bot's name before "
     "it.", kSpeaks},
    {5, 11, "whisper {text} to {name}.", {"Ann is here", "Small Fox"}, kEverywhere, "", "",
     "Whispers to the furre of this name. Blanks in the name are sent as |.", kSpeaks},
    {5, 12, "whisper {text} to them.", {"Hello, [player]!"}, kWithPlayer, kPlayer, "",
     "Whispers to the furre of the event.", kSpeaks},
    {5, 13, "emit {text}.", {"A bell rings."}, kEverywhere, "", "",
     "Lets a text appear without a speaker, by the game's command emit. The game must allow the bot to.", kSpeaks},
    {5, 14, "emit {text} loudly.", {"A big bell rings."}, kEverywhere, "", "",
     "The same by the game's command emitloud.", kSpeaks},
    {5, 15, "describe yourself as {text}.", {"A bot that counts to [count]."}, kEverywhere, "", "",
     "Sets the description that others see when they look at the bot. The program's name is added to it, in front or "
     "behind as the profile says. [vorel.desc] stays what it was at the login."},

    // Going
    {5, 16, "go to the main map *.", {}, kEverywhere, "", "",
     "Sends gomap *. In the practice dream that is Acropolis."},
    {5, 17, "go to the main map #.", {}, kEverywhere, "", "",
     "Sends gomap #. In the practice dream that is Allegria Island."},
    {5, 18, "go to the main map %.", {}, kEverywhere, "", "",
     "Sends gomap %. In the practice dream that is Furrabian Nights."},
    {5, 19, "go to the main map (.", {}, kEverywhere, "", "",
     "Sends gomap (. In the practice dream that is the Imaginarium."},
    {5, 20, "go back to the map you came from.", {}, kEverywhere, "", "", "Sends goback."},
    {5, 21, "ask who is here.", {}, kEverywhere, "", "",
     "The game answers with a list of visitors, which raises (0:20) to (0:23), or with the name of the dream, which "
     "fills [map]."},
    {5, 22, "make the moves {moves}.", {"779u"}, kEverywhere, "", "",
     "One character for each move: 7 up left, 9 up right, 1 down left, 3 down right; s sit, S stand, l lie, g get, u "
     "use, b breath, f flame, w wings, d dragon, e eagle. Any other character is sent as it is: < and > turn."},
    {5, 23, "look at {name}.", {"[player]"}, kEverywhere, "", "", "The game answers with (0:12) and (0:13)."},
    {5, 24, "look at column {x} and row {y}.", {"24", "20"}, kEverywhere, "", "",
     "Looks at whoever stands on this square. The game answers with (0:12) and (0:13). Both numbers must be from 0 up; "
     "a negative one is an error that ends the program."},

    // Running a dream
    {5, 25, "give the command shield.", {}, kEverywhere, "", "", kGameCommand},
    {5, 26, "let only the owner upload here.", {}, kEverywhere, "", "",
     "Says the game's spoken command uploads-owner."},
    {5, 27, "let those you share with upload here.", {}, kEverywhere, "", "",
     "Says the game's spoken command uploads-shared."},
    {5, 28, "let everyone upload here.", {}, kEverywhere, "", "", "Says the game's spoken command uploads-all."},
    {5, 29, "let only the owner use the pads here.", {}, kEverywhere, "", "",
     "Says the game's spoken command pads-owner."},
    {5, 30, "let those you share with use the pads here.", {}, kEverywhere, "", "",
     "Says the game's spoken command pads-shared."},
    {5, 31, "let everyone use the pads here.", {}, kEverywhere, "", "", "Says the game's spoken command pads-all."},
    {5, 32, "share the dream with {name}.", {"Ann"}, kEverywhere, "", "",
     "Gives the furre a share in running the dream."},
    {5, 33, "share the dream with them.", {}, kWithPlayer, kPlayer, "",
     "Gives the furre of the event a share in running the dream."},
    {5, 34, "eject {name} from the dream.", {"Ann"}, kEverywhere, "", "", "Throws the furre out."},
    {5, 35, "eject them from the dream.", {}, kWithPlayer, kPlayer, "", "Throws the furre of the event out."},
    {5, 36, "greet those who enter with {text}.", {"Welcome to the pond."}, kEverywhere, "", "",
     "Sets the text that the dream shows to everyone who comes in, by the game's spoken command entrytext."},
    {5, 37, "greet those who enter with the music {number}.", {"12"}, kEverywhere, "", "",
     "Sets the music that the dream plays to everyone who comes in, by the game's spoken command entrymusic."},
    {5, 38, "unload your dream.", {}, kEverywhere, "", "", "Sends the game's command unload."},
    {5, 39, "unload all your dreams.", {}, kEverywhere, "", "", "Sends the game's command unload all."},
    {5, 40, "unload the dream {dream}.", {"Small|Pond"}, kEverywhere, "", "",
     "Sends the game's command unload with this name."},
    {5, 41, "stop sharing the dream with {them}.", {"them"}, kWithPlayer, kPlayer, "",
     "Takes its share from the furre of the event. The braces must be there, but what they hold does not matter. For "
     "another furre take (5:42)."},
    {5, 42, "stop sharing the dream with the furre {name}.", {"Ann"}, kEverywhere, "", "",
     "Takes its share from this furre."},

    // Company
    {5, 43, "ask whether {name} is online.", {"Ann"}, kEverywhere, "", "", "The game answers with (0:35) or (0:36)."},
    {5, 44, "join {name}.", {"Ann"}, kEverywhere, "", "",
     "Goes to the furre when it has asked for that, and asks it otherwise."},
    {5, 45, "join them.", {}, kWithPlayer, kPlayer, "", "The same for the furre of the event. The answer to (0:27)."},
    {5, 46, "summon {name}.", {"Ann"}, kEverywhere, "", "",
     "Brings the furre here when it has asked for that, and asks it otherwise."},
    {5, 47, "summon them.", {}, kWithPlayer, kPlayer, "", "The same for the furre of the event. The answer to (0:26)."},

    // Other commands of the game
    {5, 48, "give the command parental.", {}, kEverywhere, "", "", kGameCommand},
    {5, 49, "ask for the description tags.", {}, kEverywhere, "", "", "Says the game's spoken command desctags."},
    {5, 50, "ask for the game's time.", {}, kEverywhere, "", "", "The game answers with (0:42)."},
    {5, 51, "ask for the news.", {}, kEverywhere, "", "", "Says the game's spoken command =news."},
    {5, 52, "ask for the events.", {}, kEverywhere, "", "", "Says the game's spoken command =event."},
    {5, 53, "roll {number} dice of {sides} sides for their sum.", {"2", "6"}, kEverywhere, "", "",
     "Rolls dice so that only their sum is told, and (0:43) raised. Does nothing when one of the numbers is 0.",
     kSpeaks},
    {5, 54, "roll {number} dice of {sides} sides one by one.", {"2", "6"}, kEverywhere, "", "",
     "Rolls dice so that each of them is told, and (0:44) raised. Does nothing when one of the numbers is 0.", kSpeaks},
    {5, 55, "give the command dragon.", {}, kEverywhere, "", "", kGameCommand},
    {5, 56, "give the command phoenix.", {}, kEverywhere, "", "", kGameCommand},
    {5, 57, "give the command gryffe.", {}, kEverywhere, "", "", kGameCommand},
    {5, 58, "give the command eagle.", {}, kEverywhere, "", "", kGameCommand},
    {5, 59, "use your breath.", {}, kEverywhere, "", "", "Sends the game's command breath; all who see it get (0:24)."},
    {5, 60, "use your flame.", {}, kEverywhere, "", "", "Sends the game's command flame; all who see it get (0:25)."},

    // Cookies
    {5, 61, "make a cookie for them.", {}, kWithPlayer, kPlayer, "", "Makes a cookie for the furre of the event.",
     kSpeaks},
    {5, 62, "make a cookie for {name}.", {"Ann"}, kEverywhere, "", "", "Makes a cookie for this furre.", kSpeaks},
    {5, 63, "make a cookie with the words {text} for them.", {"Enjoy it!"}, kWithPlayer, kPlayer, "",
     "Makes a cookie with a message in it for the furre of the event.", kSpeaks},
    {5, 64, "make out a cookie with the words {text} to {name}.", {"Enjoy it!", "Ann"}, kEverywhere, "", "",
     "Makes a cookie with a message in it for this furre. The message keeps its closing brace: {Enjoy it!} arrives as "
     "Enjoy it!}", kSpeaks},
    {5, 66, "give your cookie to {name}.", {"Ann"}, kEverywhere, "", "", "Passes on a cookie that the bot has.",
     kSpeaks},
    {5, 67, "eat your cookie.", {}, kEverywhere, "", "", "Eats a cookie that the bot has."},

    // Variables
    {5, 68, "take the variable {variable} and store {value} in it.", {"guest", "[player]"}, kEverywhere, "", kYours,
     "Gives a variable of yours a value, and makes the variable when it is new. Keep the words between the two braces "
     "as they are. From then on [guest] stands for the value everywhere. Variables are kept as long as the program "
     "runs, and are gone after it; data files keep things longer. Write the variable's name without brackets: with "
     "them its value would stand there before the effect gets to see the name."},
    {5, 69, "add to the variable {variable} the number {number}.", {"count", "1"}, kEverywhere, kYours, kYours,
     "Adds a number, with decimals if you like. A variable that is new starts from 0. Write the variable's name "
     "without brackets."},
    {5, 70, "subtract from the variable {variable} the number {number}.", {"count", "1"}, kEverywhere, kYours, kYours,
     "Subtracts a number. A variable that is new starts from 0. Write the variable's name without brackets."},
    {5, 71, "multiply the variable {variable} by the number {number}.", {"count", "3"}, kEverywhere, kYours, kYours,
     "Multiplies by a number. A variable that is new becomes 0. Write the variable's name without brackets."},
    {5, 72, "divide the variable {variable} by the number {number}.", {"count", "8"}, kEverywhere, kYours, kYours,
     "Divides by a number, decimals included. A variable that is new becomes 0. Dividing an existing variable by 0 is "
     "an error that ends the program. Write the variable's name without brackets."},

    // Data files
    {5, 73, "in the section {section} of the data file {file} set the entry {key} to the value {value}.",
     {"points", "scores", "[player]", "8"}, kEverywhere, kDataFile, kDataFile,
     "Writes key=value into a file that stays. Section and file are made when there are none yet; an entry with the "
     "same key, letter case apart, is replaced. The file lies in the program's folder and ends in \".ini\"; characters "
     "that no file name may hold become _."},
    {5, 74,
     "in the section {section} of the data file {file} find the entry {key} and keep its value in the variable "
     "{variable}.", {"points", "scores", "[player]", "points"}, kEverywhere, kDataFile, kYours,
     "Reads the value of an entry. Without such a file, section or entry the variable stays as it is, so store a first "
     "value in it before. Write the variable's name without brackets.", false,
     "(0:6) When someone whispers something to you,\n"
     " (1:2) and they said {score},\n"
     "     (5:68) take the variable {points} and store {0} in it.\n"
     "     (5:74) in the section {points} of the data file {scores} find the entry {[player]} and keep its value in "
     "the variable {points}.\n"
     "     (5:12) whisper {You have [points] points.} to them."},
    {5, 75, "in the section {section} of the data file {file} delete the entry {key}.",
     {"points", "scores", "[player]"}, kEverywhere, kDataFile, kDataFile,
     "Removes the entry with this key. Without such a file, section or entry nothing happens."},
    {5, 76, "write the line {line} into the section {section} of the data file {file}.", {"honey", "words", "scores"},
     kEverywhere, kDataFile, kDataFile,
     "Adds a line to a list. Section and file are made when there are none yet. A line that is there already is "
     "written once more; (1:124) tells beforehand."},
    {5, 77, "from the section {section} of the data file {file} read all lines into the variable {variable}.",
     {"words", "scores", "list"}, kEverywhere, kDataFile, kYours,
     "Puts the lines of a list into a variable, a comma and a blank between them. Write the variable's name without "
     "brackets. Without such a file the variable stays as it is; without such a section it becomes empty."},
    {5, 78, "delete the line {line} from the section {section} of the data file {file}.", {"tea", "words", "scores"},
     kEverywhere, kDataFile, kDataFile,
     "Removes all lines that are this text, letter case apart, | read as a blank."},
    {5, 79, "delete the section {section} from the data file {file}.", {"words", "scores"}, kEverywhere, kDataFile,
     kDataFile,
     "Removes the section and all its lines."},

    // The profile
    {5, 80, "connect without a client from now on.", {}, kEverywhere, "", "the profile",
     "The next connection links no game client. A change of the profile lasts until the program ends, unless you save "
     "the profile; this is so for the next five effects, too."},
    {5, 81, "connect through a client from now on.", {}, kEverywhere, "", "the profile",
     "The next connection links the game client that the profile names."},
    {5, 82, "make {name} one of your owners.", {"Zoe"}, kEverywhere, kOwners, kOwners,
     "Adds the furre to the list of owners, even when it stands there already."},
    {5, 83, "no longer have {name} as your owner.", {"bob"}, kEverywhere, kOwners, kOwners,
     "Takes the furre out of the list of owners, letter case apart, | read as a blank."},
    {5, 84, "from now on speak on the map {map}.", {"[map]"}, kEverywhere, kMaps, kMaps,
     "Adds the map to the profile's list of maps, on which alone the effects that speak work."},
    {5, 85, "no longer speak on the map {map}.", {"acropolis"}, kEverywhere, kMaps, kMaps,
     "Takes the map out of the profile's list of maps, letter case apart, | read as a blank."},

    // Walking
    {5, 86, "walk to column {x} and row {y}.", {"13", "20"}, kEverywhere, "[vorel.into]", "",
     "Starts a walk, one step every 675 thousandths of a second, round the squares on which dreams lie. Columns are "
     "counted by twos: an odd number means the next column. Effects below this one do not wait for the bot to get "
     "there; take (0:14) for that."},
    {5, 87, "stop walking.", {}, kEverywhere, "", "", "Ends the walk where the bot is."},

    // All variables
    {5, 88, "set all variables to 0.", {}, kEverywhere, "", kYours, "Every variable of yours becomes 0."},
    {5, 89, "delete all variables.", {}, kEverywhere, "", kYours, "Removes all variables of yours."},
    {5, 90, "delete the variable {variable}.", {"count"}, kEverywhere, "", kYours,
     "Removes a variable of yours; its name in brackets then stays in texts as it is written. Write the variable's "
     "name without brackets."},
    {5, 91, "from the section {section} of the data file {file} read a random line into the variable {variable}.",
     {"words", "scores", "word"}, kEverywhere, kDataFile, kYours,
     "Draws one line of a list. Without such a file or section, or when the section is empty, the variable stays as it "
     "is. Write the variable's name without brackets.", false,
     "(0:3) When someone says something,\n"
     " (1:6) and they said something with {joke} in it,\n"
     "     (5:91) from the section {jokes} of the data file {fun} read a random line into the variable {joke}.\n"
     "     (5:8) say {[joke]}."},
};
// clang-format on

}  // namespace

std::span<const Command> EffectRows() { return kEffects; }
