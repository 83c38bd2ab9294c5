#include "language/CommandRows.h"

namespace {

constexpr Scope On(GameEvent event) { return OnlyIn({event}); }

// No text may hold a digit: on a timer tick the first number in any cause's text is taken for an interval.
// clang-format off
constexpr Command kCauses[] = {
    {0, 0, "When this script is loaded,", {}, On(EventScriptLoaded), "", "",
     "The script was opened or saved in the editor, or loaded together with the bot's profile. A good place for giving "
     "your variables their first values. The bot need not be connected yet, and what it would send then is lost.", false,
     "(0:0) When this script is loaded,\n"
     "     (5:68) take the variable {guests} and store {0} in it."},
    {0, 1, "When you are connected to the game,", {}, On(EventConnected), "", "",
     "The bot has reached the game server, and has logged in unless a linked client does that."},
    {0, 2, "When your connection to the game has ended,", {}, On(EventDisconnected), "", "",
     "The game server closed the connection, or the bot was disconnected by you, by an effect, by the game or by a "
     "whisper of a keeper of the game.", false,
     "(0:2) When your connection to the game has ended,\n"
     "     (5:0) connect to the game again."},
    {0, 3, "When someone says something,", {}, On(EventSpeech), "", "",
     "Another furre has spoken aloud where the bot can hear it."},
    {0, 4, "When someone shouts something,", {}, On(EventShout), "", "",
     "A furre has shouted."},
    {0, 5, "When someone emotes something,", {}, On(EventEmote), "", "",
     "Another furre does something in words, such as \"Ann waves\". Every text line of the game that is nothing else "
     "counts as an emote, its first word as the furre."},
    {0, 6, "When someone whispers something to you,", {}, On(EventWhisper), "", "",
     "A furre has whispered to the bot. Some whispers never get here, because the program answers them by itself: "
     "\"botstat\", \"tandry vorel\", \"vorel-help\" and \"shut down\".", false,
     "(0:6) When someone whispers something to you,\n"
     " (1:6) and they said something with {hello} in it,\n"
     "     (5:12) whisper {Hello, [player]!} to them."},
    {0, 7, "When you say something,", {}, On(EventSelfSpeech), "", "",
     "The game confirms that the bot has spoken. Mind the circle when this makes the bot speak again."},
    {0, 8, "When you shout something,", {}, On(EventSelfShout), "", "",
     "The game confirms that the bot has shouted."},
    {0, 9, "When you emote something,", {}, On(EventSelfEmote), "", "",
     "The game confirms an emote of the bot."},
    {0, 10, "When you whisper something to someone,", {}, On(EventSelfWhisper), "", "",
     "The game confirms that the bot has whispered; [player] is the furre it whispered to."},
    {0, 11, "When a notice marked with # arrives,", {}, On(EventHashNotice), "", "",
     "The game or the dream has sent a notice of this kind; [message] is what it says."},
    {0, 12, "When you look at someone and see their looks,", {}, On(EventLookResult), "", "",
     "The game answers a look with the furre's name, colours, gender, species and markings. Description and badge "
     "follow a moment later, with (0:13)."},
    {0, 13, "When the description of the one you look at arrives,", {}, On(EventLookDescription), "", "",
     "The second answer to a look: description and badge."},
    {0, 14, "When someone moves or appears,", {}, On(EventFurreMoved), "", "",
     "A furre has moved, turned or come into sight, the bot included. The game does not tell its name; it is known by "
     "its colour code alone."},
    {0, 15, "When you enter Acropolis,", {}, On(EventEnterAcropolis), "", "",
     "The bot has come to this map. (0:19) follows at once."},
    {0, 16, "When you enter Allegria Island,", {}, On(EventEnterAllegria), "", "",
     "The bot has come to this map. (0:19) follows at once."},
    {0, 17, "When you enter Furrabian Nights,", {}, On(EventEnterFurrabianNights), "", "",
     "The bot has come to this map. (0:19) follows at once."},
    {0, 18, "When you enter the Imaginarium,", {}, On(EventEnterImaginarium), "", "",
     "The bot has come to this map. (0:19) follows at once."},
    {0, 19, "When you enter any map or dream,", {}, On(EventEnterDream), "", "",
     "The bot has come to a map or dream, whichever it is; [map] is its name."},
    {0, 20, "When a visitor has arrived,", {}, On(EventVisitorArrived), "", "",
     "A list of visitors has come that holds a name which the list before it lacked; once for each such name, the "
     "bot's own included. The game sends the list only when it is asked, see (5:21).", false,
     "(0:45) Every {15} seconds,\n"
     "     (5:21) ask who is here.\n"
     "(0:20) When a visitor has arrived,\n"
     " (1:1) and they are not called {[vorel.name]},\n"
     "     (5:8) say {Welcome, [player]!}."},
    {0, 21, "When a visitor is still here,", {}, On(EventVisitorPresent), "", "",
     "A list of visitors has come that holds a name which the list before it held as well; once for each such name."},
    {0, 22, "When a visitor has left,", {}, On(EventVisitorLeft), "", "",
     "A list of visitors has come that lacks a name which the list before it held; once for each such name."},
    {0, 23, "When the list of visitors is up to date,", {}, On(EventVisitorsUpdated), "", "",
     "A list of visitors has come, and all that arrived, stayed or left has been told."},
    {0, 24, "When someone uses their breath,", {}, On(EventBreath), "", "",
     "A breath is to be seen; [breath.x] and [breath.y] are its square."},
    {0, 25, "When someone uses their flame,", {}, On(EventFlame), "", "",
     "A flame is to be seen; [flame.x] and [flame.y] are its square."},
    {0, 26, "When someone asks to join you,", {}, On(EventJoinRequest), "", "",
     "A furre asks to come to where the bot is. Summoning it lets it come.", false,
     "(0:26) When someone asks to join you,\n"
     "     (5:47) summon them."},
    {0, 27, "When someone asks you to join them,", {}, On(EventJoinInvite), "", "",
     "A furre asks the bot to come to where it is. Joining it accepts.", false,
     "(0:27) When someone asks you to join them,\n"
     " (1:127) and {[player]} is one of your owners,\n"
     "     (5:45) join them."},
    {0, 28, "When someone joins you,", {}, On(EventJoined), "", "",
     "A furre has come to where the bot is."},
    {0, 29, "When someone summons you,", {}, On(EventSummoned), "", "",
     "A furre has brought the bot to where it is."},
    {0, 30, "When a system notice that begins with You arrives,", {}, On(EventYouNotice), "", "",
     "The game says something about what the bot did; [player] is the last word of it, which in most of these notices "
     "is a name. \"You cannot summon yourself.\" is passed over."},
    {0, 31, "When a notice that begins with Your arrives,", {}, On(EventYourNotice), "", "",
     "The game says something about a request of the bot; [player] is the last word of it."},
    {0, 32, "When someone summons you after accepting your request,", {}, On(EventSummonedAfterAccept), "", "",
     "As (0:29), which comes just before, and only when a notice said before that a request was accepted."},
    {0, 33, "When someone joins you after accepting your request,", {}, On(EventJoinedAfterAccept), "", "",
     "As (0:28), which comes just before, and only when a notice said before that a request was accepted."},
    {0, 34, "When a system notice about a player arrives,", {}, On(EventPlayerNotice), "", "",
     "The game says something about a player, in most cases that there is nobody of this name here. [player] is the "
     "name."},
    {0, 35, "When you hear that someone is online,", {}, On(EventPlayerOnline), "", "",
     "The answer to (5:43): the furre is in the game."},
    {0, 36, "When you hear that someone is not online,", {}, On(EventPlayerOffline), "", "",
     "The answer to (5:43): the furre is not in the game."},
    {0, 37, "When the dream reports a trigger that you set off,", {}, On(EventDsBotTrigger), "", "",
     "The dream's DragonSpeak reports a trigger of the first kind, with seven numbers: where the furre came from, "
     "where it went, and which trigger lies where. Several triggers in one report raise the event once each."},
    {0, 38, "When the dream reports a trigger that someone set off,", {}, On(EventDsTrigger), "", "",
     "The same for a trigger of the second kind."},
    {0, 39, "When someone gives a cookie to someone else,", {}, On(EventCookieSeen), "", "",
     "The bot sees a cookie change hands; [player] gives it, [cookiename] gets it."},
    {0, 40, "When you give someone a cookie,", {}, On(EventCookieGiven), "", "",
     "The bot has given a cookie; [player] got it, [cookiename] is the bot."},
    {0, 41, "When someone gives you a cookie,", {}, On(EventCookieReceived), "", "",
     "The bot has got a cookie; [player] gave it, [cookiename] is the bot.", false,
     "(0:41) When someone gives you a cookie,\n"
     "     (5:67) eat your cookie.\n"
     "     (5:12) whisper {Thank you, [player]!} to them."},
    {0, 42, "When the game tells its time,", {}, On(EventTimeOfDay), "", "",
     "The answer to (5:50). [fst] is the game's own time, the Furcadia Standard Time."},
    {0, 43, "When dice are rolled and only their sum is told,", {}, On(EventDiceTotal), "", "",
     "A furre has rolled dice in the way that tells the sum alone, see (5:53). Each of [die1], [die2] and so on is "
     "then the sum, too."},
    {0, 44, "When dice are rolled and each of them is told,", {}, On(EventDiceRoll), "", "",
     "A furre has rolled dice in the way that tells each of them, see (5:54)."},
    {0, 45, "Every {seconds} seconds,", {"15"}, On(EventTimerTick), "", "",
     "The bot's clock starts at zero with each connection and jumps back to zero each full hour; whenever it is a "
     "multiple of the number, the trigger fires. It counts from zero, so {15} means 15, 30, 45 and so on, and {2000} "
     "fires twice an hour. The number may be a variable. The rule is in truth simpler: on each tick of the clock every "
     "cause with a number behind its first blank is a timer, and that number is its interval. So write digits into the "
     "text of no other cause.", false,
     "(0:45) Every {60} seconds,\n"
     "     (5:50) ask for the game's time."},
    {0, 46, "When a command with & is typed for you,", {}, On(EventClientCommand), "", "",
     "On the console or in the linked client somebody typed a line that begins with \"& (a quotation mark and an "
     "ampersand; the client puts the quotation mark in front of all that is said). The line is not spoken in the game; "
     "[message] is what stands behind the ampersand."},
    {0, 47, "When a dream appears on the map,", {}, On(EventDreamListS), "", "",
     "Someone has opened a dream. Walks of the bot avoid its square from now on."},
    {0, 48, "When a dream vanishes from the map,", {}, On(EventDreamListT), "", "",
     "A dream has closed; its square can be walked on again."},
};
// clang-format on

}  // namespace

std::span<const Command> CauseRows() { return kCauses; }
