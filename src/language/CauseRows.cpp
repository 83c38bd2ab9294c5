#include "language/CommandRows.h"

namespace {

/// A cause is of use in the event that it answers alone.
template <std::size_t Count>
constexpr std::array<Command, Count> AnsweringTheirEvents(std::array<Command, Count> causes) {
    for (Command& cause : causes) cause.scope = OnlyIn({EventOf(cause.number)});
    return causes;
}

// No text may hold a digit: on a timer tick the first number in any cause's text is taken for an interval.
// clang-format off
constexpr auto kCauses = AnsweringTheirEvents(InCategory(kCauseLine, {
    {.number = 0, .text = "When this script is loaded,",
     .explanation =
         "The script was opened or saved in the editor, or loaded together with the bot's profile. A good place for "
         "giving your variables their first values. The bot need not be connected yet, and what it would send then "
         "is lost.",
     .trigger =
         "(0:0) When this script is loaded,\n"
         "     (5:68) take the variable {guests} and store {0} in it."},
    {.number = 1, .text = "When you are connected to the game,",
     .explanation = "The bot has reached the game server, and has logged in unless a linked client does that."},
    {.number = 2, .text = "When your connection to the game has ended,",
     .explanation =
         "The game server closed the connection, or the bot was disconnected by you, by an effect, by the game or by "
         "a whisper of a keeper of the game.",
     .trigger =
         "(0:2) When your connection to the game has ended,\n"
         "     (5:0) connect to the game again."},
    {.number = 3, .text = "When someone says something,",
     .explanation = "Another furre has spoken aloud where the bot can hear it."},
    {.number = 4, .text = "When someone shouts something,", .explanation = "A furre has shouted."},
    {.number = 5, .text = "When someone emotes something,",
     .explanation =
         "Another furre does something in words, such as \"Ann waves\". Every text line of the game that is nothing "
         "else counts as an emote, its first word as the furre."},
    {.number = 6, .text = "When someone whispers something to you,",
     .explanation =
         "A furre has whispered to the bot. Some whispers never get here, because the program answers them by "
         "itself: \"botstat\", \"tandry vorel\", \"vorel-help\" and \"shut down\".",
     .trigger =
         "(0:6) When someone whispers something to you,\n"
         " (1:6) and they said something with {hello} in it,\n"
         "     (5:12) whisper {Hello, [player]!} to them."},
    {.number = 7, .text = "When you say something,",
     .explanation = "The game confirms that the bot has spoken. Mind the circle when this makes the bot speak again."},
    {.number = 8, .text = "When you shout something,", .explanation = "The game confirms that the bot has shouted."},
    {.number = 9, .text = "When you emote something,", .explanation = "The game confirms an emote of the bot."},
    {.number = 10, .text = "When you whisper something to someone,",
     .explanation = "The game confirms that the bot has whispered; [player] is the furre it whispered to."},
    {.number = 11, .text = "When a notice marked with # arrives,",
     .explanation = "The game or the dream has sent a notice of this kind; [message] is what it says."},
    {.number = 12, .text = "When you look at someone and see their looks,",
     .explanation =
         "The game answers a look with the furre's name, colours, gender, species and markings. Description and "
         "badge follow a moment later, with (0:13)."},
    {.number = 13, .text = "When the description of the one you look at arrives,",
     .explanation = "The second answer to a look: description and badge."},
    {.number = 14, .text = "When someone moves or appears,",
     .explanation =
         "A furre has moved, turned or come into sight, the bot included. The game does not tell its name; it is "
         "known by its colour code alone."},
    {.number = 15, .text = "When you enter Acropolis,",
     .explanation = "The bot has come to this map. (0:19) follows at once."},
    {.number = 16, .text = "When you enter Allegria Island,",
     .explanation = "The bot has come to this map. (0:19) follows at once."},
    {.number = 17, .text = "When you enter Furrabian Nights,",
     .explanation = "The bot has come to this map. (0:19) follows at once."},
    {.number = 18, .text = "When you enter the Imaginarium,",
     .explanation = "The bot has come to this map. (0:19) follows at once."},
    {.number = 19, .text = "When you enter any map or dream,",
     .explanation = "The bot has come to a map or dream, whichever it is; [map] is its name."},
    {.number = 20, .text = "When a visitor has arrived,",
     .explanation =
         "A list of visitors has come that holds a name which the list before it lacked; once for each such name, "
         "the bot's own included. The game sends the list only when it is asked, see (5:21).",
     .trigger =
         "(0:45) Every {15} seconds,\n"
         "     (5:21) ask who is here.\n"
         "(0:20) When a visitor has arrived,\n"
         " (1:1) and they are not called {[vorel.name]},\n"
         "     (5:8) say {Welcome, [player]!}."},
    {.number = 21, .text = "When a visitor is still here,",
     .explanation =
         "A list of visitors has come that holds a name which the list before it held as well; once for each such "
         "name."},
    {.number = 22, .text = "When a visitor has left,",
     .explanation =
         "A list of visitors has come that lacks a name which the list before it held; once for each such name."},
    {.number = 23, .text = "When the list of visitors is up to date,",
     .explanation = "A list of visitors has come, and all that arrived, stayed or left has been told."},
    {.number = 24, .text = "When someone uses their breath,",
     .explanation = "A breath is to be seen; [breath.x] and [breath.y] are its square."},
    {.number = 25, .text = "When someone uses their flame,",
     .explanation = "A flame is to be seen; [flame.x] and [flame.y] are its square."},
    {.number = 26, .text = "When someone asks to join you,",
     .explanation = "A furre asks to come to where the bot is. Summoning it lets it come.",
     .trigger =
         "(0:26) When someone asks to join you,\n"
         "     (5:47) summon them."},
    {.number = 27, .text = "When someone asks you to join them,",
     .explanation = "A furre asks the bot to come to where it is. Joining it accepts.",
     .trigger =
         "(0:27) When someone asks you to join them,\n"
         " (1:127) and {[player]} is one of your owners,\n"
         "     (5:45) join them."},
    {.number = 28, .text = "When someone joins you,", .explanation = "A furre has come to where the bot is."},
    {.number = 29, .text = "When someone summons you,", .explanation = "A furre has brought the bot to where it is."},
    {.number = 30, .text = "When a system notice that begins with You arrives,",
     .explanation =
         "The game says something about what the bot did; [player] is the last word of it, which in most of these "
         "notices is a name. \"You cannot summon yourself.\" is passed over."},
    {.number = 31, .text = "When a notice that begins with Your arrives,",
     .explanation = "The game says something about a request of the bot; [player] is the last word of it."},
    {.number = 32, .text = "When someone summons you after accepting your request,",
     .explanation =
         "As (0:29), which comes just before, and only when a notice said before that a request was accepted."},
    {.number = 33, .text = "When someone joins you after accepting your request,",
     .explanation =
         "As (0:28), which comes just before, and only when a notice said before that a request was accepted."},
    {.number = 34, .text = "When a system notice about a player arrives,",
     .explanation =
         "The game says something about a player, in most cases that there is nobody of this name here. [player] is "
         "the name."},
    {.number = 35, .text = "When you hear that someone is online,",
     .explanation = "The answer to (5:43): the furre is in the game."},
    {.number = 36, .text = "When you hear that someone is not online,",
     .explanation = "The answer to (5:43): the furre is not in the game."},
    {.number = 37, .text = "When the dream reports a trigger that you set off,",
     .explanation =
         "The dream's DragonSpeak reports a trigger of the first kind, with seven numbers: where the furre came "
         "from, where it went, and which trigger lies where. Several triggers in one report raise the event once "
         "each."},
    {.number = 38, .text = "When the dream reports a trigger that someone set off,",
     .explanation = "The same for a trigger of the second kind."},
    {.number = 39, .text = "When someone gives a cookie to someone else,",
     .explanation = "The bot sees a cookie change hands; [player] gives it, [cookiename] gets it."},
    {.number = 40, .text = "When you give someone a cookie,",
     .explanation = "The bot has given a cookie; [player] got it, [cookiename] is the bot."},
    {.number = 41, .text = "When someone gives you a cookie,",
     .explanation = "The bot has got a cookie; [player] gave it, [cookiename] is the bot.",
     .trigger =
         "(0:41) When someone gives you a cookie,\n"
         "     (5:67) eat your cookie.\n"
         "     (5:12) whisper {Thank you, [player]!} to them."},
    {.number = 42, .text = "When the game tells its time,",
     .explanation = "The answer to (5:50). [fst] is the game's own time, the Furcadia Standard Time."},
    {.number = 43, .text = "When dice are rolled and only their sum is told,",
     .explanation =
         "A furre has rolled dice in the way that tells the sum alone, see (5:53). Each of [die1], [die2] and so on "
         "is then the sum, too."},
    {.number = 44, .text = "When dice are rolled and each of them is told,",
     .explanation = "A furre has rolled dice in the way that tells each of them, see (5:54)."},
    {.number = 45, .text = "Every {seconds} seconds,", .filled = {"15"},
     .explanation =
         "The bot's clock starts at zero with each connection and jumps back to zero each full hour; whenever it is "
         "a multiple of the number, the trigger fires. It counts from zero, so {15} means 15, 30, 45 and so on, and "
         "{2000} fires twice an hour. The number may be a variable. The rule is in truth simpler: on each tick of "
         "the clock every cause with a number behind its first blank is a timer, and that number is its interval. So "
         "write digits into the text of no other cause.",
     .trigger =
         "(0:45) Every {60} seconds,\n"
         "     (5:50) ask for the game's time."},
    {.number = 46, .text = "When a command with & is typed for you,",
     .explanation =
         "On the console or in the linked client somebody typed a line that begins with \"& (a quotation mark and an "
         "ampersand; the client puts the quotation mark in front of all that is said). The line is not spoken in the "
         "game; [message] is what stands behind the ampersand."},
    {.number = 47, .text = "When a dream appears on the map,",
     .explanation = "Someone has opened a dream. Walks of the bot avoid its square from now on."},
    {.number = 48, .text = "When a dream vanishes from the map,",
     .explanation = "A dream has closed; its square can be walked on again."},
}));
// clang-format on

static_assert(HasARowForEach(kCauseNumbers, kCauses));

}  // namespace

std::span<const Command> CauseRows() { return kCauses; }
