#include "language/Reference.h"

#include <string_view>
#include <vector>

#include "language/Commands.h"
#include "language/EventTable.h"
#include "language/Guide.h"
#include "language/VariableTable.h"
#include "text/Text.h"

namespace {

// --- Markdown ----------------------------------------------------------------------------------------------------

/// Text shown as it is typed. A text with "`" in it needs two of them around it.
std::string Code(std::string_view text) {
    const bool plain = text.find('`') == text.npos;
    return plain ? "`" + std::string(text) + "`" : "`` " + std::string(text) + " ``";
}

std::string CodeBlock(std::string_view lines) { return "\n```\n" + std::string(lines) + "\n```\n"; }

std::string Cell(std::string_view text) { return " " + ReplaceAll(text, "|", "\\|") + " |"; }

std::string Item(std::string_view title, std::string_view text) {
    return text.empty() ? "" : "- " + std::string(title) + ": " + std::string(text) + "\n";
}

// --- events and variables ----------------------------------------------------------------------------------------

std::string CauseCode(GameEvent event) { return "(0:" + std::to_string(CauseOf(event)) + ")"; }

/// "(0:3), (0:6) to (0:10)": the causes that answer the events.
std::string Causes(EventSet events) {
    std::vector<std::string> runs;
    for (GameEvent first = kFirstEvent; first <= kLastEvent; ++first) {
        if (!events.Holds(first)) continue;
        GameEvent last = first;
        while (events.Holds(static_cast<GameEvent>(last + 1))) ++last;
        runs.push_back(CauseCode(first));
        if (last == first + 1) runs.push_back(CauseCode(last));
        if (last > first + 1) runs.back() += " to " + CauseCode(last);
        first = last;
    }
    return Join(runs, ", ");
}

std::string VariablesFilledBy(GameEvent event) {
    std::vector<std::string> names;
    for (const VariableDescription& variable : AllVariables()) {
        if (variable.filledBy.Holds(event)) names.emplace_back(variable.name);
    }
    return Join(names, ", ");
}

std::string FilledBy(const VariableDescription& variable) {
    std::vector<std::string> sources;
    if (!variable.filledBy.IsEmpty()) sources.push_back(Causes(variable.filledBy));
    if (!variable.otherwise.empty()) sources.emplace_back(variable.otherwise);
    return Join(sources, "; ");
}

std::string VariableSection() {
    std::string text = "\n## All variables\n\n| variable | what it is | filled by |\n| --- | --- | --- |\n";
    for (const VariableDescription& variable : AllVariables()) {
        text += "|" + Cell(Code(variable.name)) + Cell(variable.meaning) + Cell(FilledBy(variable)) + "\n";
    }
    return text + "\nFor numbers that no event has brought yet 0 is written, for texts nothing.\n";
}

// --- commands ----------------------------------------------------------------------------------------------------

std::string Arguments(const Command& command) {
    std::vector<std::string> arguments;
    for (const ArgumentName* const argument : ArgumentsOf(command)) {
        arguments.push_back(Code("{" + std::string(argument->name) + "}") + " " + std::string(argument->meaning));
    }
    return Join(arguments, "; ");
}

std::string ScopeText(const Scope& scope) {
    if (scope.events == EventSet::All()) return "every event";
    return Causes(scope.events) + (scope.neverElsewhere ? "; in vain in all others" : "");
}

std::string Heading(const Command& command) {
    return "\n### " + Code(ListLine(command)) + "\n\n" + std::string(command.explanation) + "\n\n";
}

/// The example line, unless it is the same as the heading, and the trigger.
std::string Examples(const Command& command) {
    const std::string example = ExampleLine(command);
    std::string text = example == ListLine(command) ? "" : Item("Example", Code(example));
    if (!command.trigger.empty()) text += CodeBlock(command.trigger);
    return text;
}

std::string CauseEntry(const EventDescription& event) {
    const Command& cause = *FindCommand(kCauseLine, CauseOf(event.code));
    std::string text = Heading(cause);
    text += Item("Event", std::to_string(event.code) + ", " + std::string(FactsOf(event.code).name));
    text += Item("Arguments", Arguments(cause));
    text += Item("Raised by", event.raisedBy);
    text += Item("Fills", VariablesFilledBy(event.code));
    return text + Examples(cause) + CodeBlock(event.session);
}

std::string CommandEntry(const Command& command) {
    std::string text = Heading(command);
    text += Item("Arguments", Arguments(command));
    text += Item("Of use in", ScopeText(command.scope));
    text += Item("Reads", command.reads);
    text += Item("Changes", command.changes);
    if (Speaks(command)) text += "- Speaks: only on the maps that the profile lists\n";
    return text + Examples(command);
}

std::string CauseSection() {
    std::string text =
        "\n## Causes and their events\n\nThe last block of each entry is what raises the event, as `vorel try` takes "
        "it: `server` is followed by a line of the game, for a bot that is called Greeter.\n";
    for (const EventDescription& event : AllEvents()) text += CauseEntry(event);
    return text;
}

std::string CommandSection(std::string_view title, std::int16_t category) {
    std::string text = "\n## " + std::string(title) + "\n";
    for (const Command& command : CommandsOf(category)) text += CommandEntry(command);
    return text;
}

}  // namespace

std::string LanguageReference() {
    return std::string(LanguageGuide()) + VariableSection() + CauseSection() +
           CommandSection("Conditions", kConditionLine) + CommandSection("Effects", kEffectLine);
}
