#include "language/GreeterBench.h"
#include "language/Reference.h"
#include "language/VariableTable.h"
#include "support/Written.h"

namespace {

TEST(CommandTable, YieldsTheGeneratedFiles) {
    EXPECT_TRUE(CommandListFile() == ReadSource("share/vslist.vs")) << "out of date: run scripts/language";
    EXPECT_TRUE(LanguageReference() == ReadSource("docs/language.md")) << "out of date: run scripts/language";
}

TEST(VariableTable, DescribesAllThatTheBotReplaces) {
    std::vector<std::string_view> described;
    for (const VariableDescription& variable : AllVariables()) described.push_back(variable.name);
    EXPECT_THAT(described, testing::UnorderedElementsAreArray(VariableNames()));
}

TEST(CommandTable, KnowsNothingElse) {
    EXPECT_EQ(FindCommand(kConditionLine, 27), nullptr);
    EXPECT_EQ(FindCommand(2, 0), nullptr);
}

/// The words around the braces.
std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    const std::vector<std::string> pieces = Split(ReplaceAll(Trim(line), "}", "{"), "{");
    for (std::size_t i = 0; i < pieces.size(); i += 2) words.push_back(pieces[i]);
    return words;
}

/// Lines of a shown trigger are lines of the table with other arguments.
TEST(CommandTable, ShownTriggersUseTheTablesWords) {
    for (const std::int16_t category : {kCauseLine, kConditionLine, kEffectLine}) {
        for (const Command& command : CommandsOf(category)) {
            if (command.trigger.empty()) continue;
            bool showsItself = false;
            for (const std::string& line : Split(command.trigger, "\n")) {
                const LineReading reading = ScriptLine(line).asEffect;
                const Command* const used = FindCommand(reading.category, reading.number);
                ASSERT_NE(used, nullptr) << line;
                EXPECT_EQ(WordsOf(line), WordsOf(ListLine(*used)));
                showsItself = showsItself || used == &command || used->number == command.number + 1;
            }
            EXPECT_TRUE(showsItself) << command.trigger;
        }
    }
}

}  // namespace
