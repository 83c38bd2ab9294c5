#include "bot/Bot.h"
#include "engine/Conditions.h"
#include "language/GreeterBench.h"

namespace {

/// The characters that stand on the list of a badge condition are the ones it takes, told by the texts themselves.
TEST(ConditionsOfTheLanguage, BadgeTextsNameTheBadgesTheyTake) {
    GreeterBench greeter;
    greeter.bot.currentEvent = EventSpeech;
    for (std::int16_t number = 38; number < 70; ++number) {
        const Command& command = *FindCommand(kConditionLine, number);
        const std::string words = ReplaceAll(command.text, ",", " ");
        for (char badge = '!'; badge <= '~'; ++badge) {
            greeter.bot.state.playerTag = std::string(1, badge);
            const std::string line = ExampleLine(command);
            const bool isNamed = words.find(" " + greeter.bot.state.playerTag + " ") != words.npos;
            EXPECT_EQ(EvaluateCondition(greeter.bot, line, number), isNamed == (number % 2 == 0)) << line << badge;
        }
    }
}

/// Gives every furre and every notice the same to tell.
void Tell(BotState& state, const std::string& code, bool asInExamples) {
    const std::string name = asInExamples ? "Ann" : "Zoe";
    state.player.name = state.look.name = state.arrived = state.present = state.departed = name;
    state.requester = state.onlineName = name;
    state.player.looks = state.look.looks = {asInExamples ? "x%4%4%4%4%" : "", code, code, code};
    state.move.colors = state.look.looks.colors;
    state.playerTag = state.look.badge = code;
    state.ds = state.dsbot = asInExamples ? DragonSpeakNotice{{22, 19}, {24, 20}, 7, {26, 21}} : DragonSpeakNotice{};
}

bool CanHold(const Command& command, GameEvent event) {
    GreeterBench greeter;
    greeter.bot.currentEvent = event;
    for (const char code : std::string_view(" !\"#$%5?ijQE]AIeUMaYBCD")) {
        for (const bool asInExamples : {true, false}) {
            Tell(greeter.bot.state, std::string(1, code), asInExamples);
            if (code == ' ' && !asInExamples) greeter.bot.state.playerTag = greeter.bot.state.look.badge = "";
            const std::string line = ExampleLine(command);
            if (EvaluateCondition(greeter.bot, line, command.number)) return true;
        }
    }
    return false;
}

TEST(ConditionsOfTheLanguage, HoldsInNoOtherEventsThanTheTableSays) {
    for (const Command& command : CommandsOf(kConditionLine)) {
        if (!command.scope.neverElsewhere) continue;
        for (GameEvent event = kFirstEvent; event <= kLastEvent; ++event) {
            EXPECT_EQ(CanHold(command, event), command.scope.events.Holds(event)) << ListLine(command) << event;
        }
    }
}

}  // namespace
