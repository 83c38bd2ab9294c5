#include "language/EventTable.h"
#include "language/GreeterBench.h"
#include "language/VariableTable.h"

using testing::Contains;
using testing::ElementsAreArray;

namespace {

class EventOfTheLanguage : public testing::TestWithParam<EventDescription> {
  protected:
    const EventDescription& event = GetParam();
    GreeterBench greeter;

    void SetUp() override {
        if (event.code != EventConnected) greeter.Play("connect");
    }
};

TEST_P(EventOfTheLanguage, IsRaisedByItsExampleAndAnsweredByItsCause) {
    std::vector<std::string> lines;
    for (const EventDescription& other : AllEvents()) {
        lines.push_back(CauseLine(other.code));
        lines.push_back("(5:2) show the note {cause " + std::to_string(CauseOf(other.code)) + "}.");
    }
    greeter.SetScript(lines);
    EXPECT_THAT(greeter.PlayAndListen(std::string(event.session)),
                Contains("console cause " + std::to_string(CauseOf(event.code))));

    const std::string raiser(event.session.substr(event.session.rfind('\n') + 1));
    const bool isLine = raiser.starts_with("server ") || raiser.starts_with("type ");
    const auto& starts = FactsOf(event.code).lines;
    EXPECT_EQ(isLine, std::any_of(starts.begin(), starts.end(),
                                  [&](std::string_view line) {
                                      return !line.empty() && raiser.substr(raiser.find(' ') + 1).starts_with(line);
                                  }))
        << raiser;
}

/// Exactly the variables that the table says are there when the event is over, and were not before.
TEST_P(EventOfTheLanguage, FillsItsVariables) {
    std::vector<std::string> lines = {CauseLine(event.code)};
    std::vector<std::string> expected, before, filled;
    for (const VariableDescription& variable : AllVariables()) {
        const std::string name = ReplaceAll(variable.name, "N]", "1]");
        before.push_back(ExpandVariables(greeter.bot, name));
        lines.push_back("(5:2) show the note {" + name + "}.");
        if (variable.filledBy.Holds(event.code)) expected.push_back(name);
    }
    greeter.SetScript(lines);
    std::vector<std::string> told = greeter.PlayAndListen(std::string(event.session));
    std::erase_if(told, [](const std::string& line) { return !line.starts_with("console "); });
    ASSERT_GE(told.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::string name = ReplaceAll(AllVariables()[i].name, "N]", "1]"), value = told[i].substr(8);
        if (!value.empty() && value != "0" && value != name && value != before[i]) filled.push_back(name);
    }
    EXPECT_THAT(filled, ElementsAreArray(expected));
}
INSTANTIATE_TEST_SUITE_P(Language, EventOfTheLanguage, testing::ValuesIn(AllEvents()),
                         [](const auto& row) { return "Event" + std::to_string(row.param.code); });

/// What the list holds, and the same with the examples' arguments: how often each cause fires in an hour of ticks.
TEST(TimerTick, FiresNoCauseButTheTimer) {
    GreeterBench greeter;
    greeter.Play("connect");
    std::vector<std::string> lines;
    for (const Command& cause : CommandsOf(kCauseLine)) {
        for (const std::string& line : {ListLine(cause), ExampleLine(cause)}) {
            lines.push_back(line);
            lines.push_back("(5:2) show the note {" + line.substr(0, line.find(' ')) + "}.");
        }
    }
    greeter.SetScript(lines);
    greeter.TakeTold();
    greeter.Play("tick 3600");
    EXPECT_EQ(greeter.TakeTold(), std::vector<std::string>(3600 / 15, "console (0:45)"));
}

}  // namespace
