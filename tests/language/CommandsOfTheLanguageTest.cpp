#include <map>
#include <set>

#include "bot/Bot.h"
#include "language/GreeterBench.h"
#include "support/Written.h"

// Plays the cases in the files beside this one, a file for each family of commands. A case is commands as the editor
// inserts them, filled in, then instructions of a written session, and behind each of these, after ">", what the bot
// did and what it has changed; a condition that holds shows its number. A block that begins with a cause is no case: it
// is the script before those that follow, which hang on its last cause, and the instructions of those without any.

namespace {

using Changeable = std::map<std::string, std::string>;

bool IsCommand(const std::string& line) { return line.starts_with('('); }
bool IsOutcome(const std::string& line) { return line.starts_with("> "); }
bool IsInstruction(const std::string& line) { return !IsCommand(line) && !IsOutcome(line); }
bool IsSetting(const Block& block) { return block.front().starts_with("(0:"); }

/// The bot of the examples, at a place from which it walks, with something in each of the things that it can change.
class BusyGreeter : public GreeterBench {
  public:
    BusyGreeter(const Block& script, const std::string& mapFile) {
        files.contents["folder/scores.ini"] = "[points]\r\nAnn=7\r\nBob=3\r\n[words]\r\ntea\r\nmilk\r\n";
        bot.profile.connectClient = 2;  // neither on nor off, so that both are a change
        bot.variables.Set("[count]", "4");
        bot.variables.Set("[other]", "x");
        SetScript(script);
        Play("connect\nevent 1\nserver ;" + mapFile);
        TakeTold();
    }

    /// What an instruction makes the bot do and change, as the outcome of a case.
    Block Outcome(const std::string& instruction) {
        const Changeable before = Belongings();
        Play(instruction);
        Block outcome = TakeTold();
        std::erase(outcome, ReplaceAll(instruction, "server (", "console "));
        for (const auto& [what, value] : Belongings()) {
            if (!before.contains(what) || before.at(what) != value) outcome.push_back(what + "=" + value);
        }
        for (const auto& [what, value] : before) {
            if (!Belongings().contains(what)) outcome.push_back(what + " gone");
        }
        for (std::string& line : outcome) line.insert(0, "> ");
        return outcome;
    }

  private:
    Changeable Belongings() {
        const Walk& walk = bot.walk;
        const std::string target = std::to_string(walk.target.x) + "," + std::to_string(walk.target.y);
        Changeable all = {
            {"client", std::to_string(bot.profile.connectClient)},
            {"connected", host.IsServerConnected() ? "yes" : "no"},
            {"connecting", session.status().canDisconnect && !host.IsServerConnected() ? "yes" : "no"},
            {"maps", bot.profile.maps.Text()},
            {"owners", bot.profile.owners.Text()},
            {"walk", host.IsMovementTimerEnabled() ? target : "none"},
        };
        for (const auto& [rank, variable] : bot.variables.Rows()) all[variable.name] = variable.value;
        for (const auto& [path, bytes] : files.contents) all[path] = ReplaceAll(bytes, "\r\n", "/");
        return all;
    }
};

/// A case as it comes out.
Block Replay(const Block& setting, const Block& written, const std::string& mapFile = "acropoli.map") {
    Block script, replayed;
    std::copy_if(setting.begin(), setting.end(), std::back_inserter(script), IsCommand);
    const std::string cause = script.back();
    for (const std::string& line : written) {
        if (!IsCommand(line)) continue;
        script.insert(script.end(), {cause, "     " + line});
        if (line.starts_with("(1:")) script.push_back("(5:2) show the note {" + line.substr(0, line.find(' ')) + "}.");
        replayed.push_back(line);
    }
    BusyGreeter greeter(script, mapFile);
    const bool hasInstructions = std::any_of(written.begin(), written.end(), IsInstruction);
    for (const std::string& line : hasInstructions ? written : setting) {
        if (!IsInstruction(line)) continue;
        if (hasInstructions) replayed.push_back(line);
        const Block outcome = greeter.Outcome(line);
        replayed.insert(replayed.end(), outcome.begin(), outcome.end());
    }
    return replayed;
}

std::string FileOf(const std::string& family) { return "tests/language/" + family + ".txt"; }

class FamilyOfCommands : public testing::TestWithParam<std::string> {};

TEST_P(FamilyOfCommands, DoesWhatItsTextsSay) {
    Block setting;
    for (const Block& block : BlocksOf(FileOf(GetParam()))) {
        if (IsSetting(block)) {
            setting = block;
            continue;
        }
        EXPECT_EQ(Join(Replay(setting, block), "\n"), Join(block, "\n"));
        if (block.front().starts_with("(1:")) continue;
        const Command& effect = *FindCommand(kEffectLine, ScriptLine(block.front()).asEffect.number);
        const Block elsewhere = Replay(setting, block, "chess.map");
        EXPECT_EQ(std::none_of(elsewhere.begin(), elsewhere.end(), IsOutcome), Speaks(effect)) << block.front();
    }
}
INSTANTIATE_TEST_SUITE_P(Language, FamilyOfCommands, testing::ValuesIn(NamesIn("tests/language", ".txt")),
                         [](const auto& family) { return family.param; });

TEST(FamiliesOfCommands, HaveACaseForEachLineOfTheList) {
    std::set<std::string> written, listed;
    for (const std::string& family : NamesIn("tests/language", ".txt")) {
        for (const Block& block : BlocksOf(FileOf(family))) {
            if (IsSetting(block)) continue;
            for (const std::string& line : block) {
                if (IsCommand(line) || line.starts_with("> console (1:")) written.insert(line);
            }
        }
    }
    for (const std::int16_t category : {kConditionLine, kEffectLine}) {
        for (const Command& command : CommandsOf(category)) {
            const std::string line = ListLine(command);
            std::string named, found;
            for (const ArgumentName* const argument : ArgumentsOf(command)) named += std::string(argument->name) + " ";
            const Arguments arguments = FindArguments(line, FormOf(command)).value();
            for (const std::string_view text : arguments) found += ReplaceAll(text, "}", "") + " ";
            EXPECT_EQ(Trim(named), Trim(found)) << "by the engine";
            EXPECT_EQ(command.text.back(), category == kEffectLine ? '.' : ',') << command.text;
            listed.insert(ExampleLine(command));
            if (category == kConditionLine) listed.insert("> console (1:" + std::to_string(command.number) + ")");
        }
    }
    EXPECT_EQ(written, listed);
}

}  // namespace
