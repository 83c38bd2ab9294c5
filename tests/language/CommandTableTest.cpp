#include "language/GreeterBench.h"
#include "language/VariableTable.h"

using testing::Each;
using testing::ElementsAreArray;
using testing::Not;

namespace {

std::vector<const Command*> AllCommands() {
    std::vector<const Command*> commands;
    for (const std::int16_t category : {kCauseLine, kConditionLine, kEffectLine}) {
        for (const Command& command : CommandsOf(category)) commands.push_back(&command);
    }
    return commands;
}

/// What stands between the braces, or what stands around them.
std::vector<std::string> Pieces(std::string_view text, bool arguments) {
    std::vector<std::string> pieces;
    const std::vector<std::string> all = Split(ReplaceAll(text, "}", "{"), "{");
    for (std::size_t i = arguments ? 1 : 0; i < all.size(); i += 2) pieces.push_back(all[i]);
    return pieces;
}

TEST(CommandTable, HasEveryNumberInUseInOrder) {
    const auto expectNumbers = [](std::int16_t category, std::int16_t last, std::int16_t leftOut) {
        std::vector<std::int16_t> expected, numbers;
        for (std::int16_t n = 0; n <= last; ++n) {
            if (n != leftOut) expected.push_back(n);
        }
        for (const Command& command : CommandsOf(category)) numbers.push_back(command.number);
        EXPECT_THAT(numbers, ElementsAreArray(expected));
    };
    expectNumbers(kCauseLine, 48, -1);
    expectNumbers(kConditionLine, 134, 27);
    expectNumbers(kEffectLine, 91, 65);
    EXPECT_EQ(FindCommand(kConditionLine, 27), nullptr);
    EXPECT_EQ(FindCommand(2, 0), nullptr);
}

/// The editor's tree takes a line by its "(", ":" and ") "; the bot reads what is inserted by its own rules.
TEST(CommandTable, EveryLineIsReadByTreeAndBot) {
    for (const Command* const command : AllCommands()) {
        const std::string line = ListLine(*command);
        SCOPED_TRACE(line);
        EXPECT_EQ(line[0], '(');
        EXPECT_EQ(line[1], static_cast<char>('0' + command->category));
        EXPECT_NE(line.find(':', 2), std::string::npos);
        EXPECT_NE(line.find(") ", 4), std::string::npos);
        const ScriptLine read(std::string(static_cast<std::size_t>(command->category), ' ') + line);
        for (const LineReading& reading : {read.asCause, read.asCondition, read.asEffect}) {
            EXPECT_TRUE(reading.IsCommand(command->category));
            EXPECT_EQ(reading.number, command->number);
        }
    }
}

TEST(CommandTable, TextsKeepTheRulesOfTheLanguage) {
    for (const Command* const command : AllCommands()) {
        SCOPED_TRACE(ListLine(*command));
        EXPECT_EQ(command->text.back(), command->category == kEffectLine ? '.' : ',');
        EXPECT_THAT(ArgumentsOf(*command), Each(Not(nullptr)));
        const std::vector<std::string> arguments = Pieces(command->text, true);
        for (std::size_t i = 0; i < command->filled.size(); ++i) {
            EXPECT_EQ(command->filled[i].empty(), i >= arguments.size()) << "the example fills each argument";
        }
        for (const VariableDescription& variable : AllVariables()) {
            EXPECT_EQ(command->text.find(variable.name), std::string_view::npos) << variable.name;
        }
    }
}

/// Lines of a shown trigger are lines of the table with other arguments.
TEST(CommandTable, ShownTriggersUseTheTablesWords) {
    for (const Command* const command : AllCommands()) {
        if (command->trigger.empty()) continue;
        bool showsItself = false;
        for (const std::string& line : Split(command->trigger, "\n")) {
            const LineReading reading = ScriptLine(line).asEffect;
            const Command* const used = FindCommand(reading.category, reading.number);
            ASSERT_NE(used, nullptr) << line;
            EXPECT_THAT(Pieces(Trim(line), false), ElementsAreArray(Pieces(ListLine(*used), false)));
            showsItself = showsItself || used == command || used->number == command->number + 1;
        }
        EXPECT_TRUE(showsItself) << command->trigger;
    }
}

}  // namespace
