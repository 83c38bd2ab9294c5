// A script, walked by the dispatcher and by the slow walker of the tests. Both must do the same, event by event and
// fault by fault.
#include <cstdlib>
#include <vector>

#include "engine/Dispatcher.h"
#include "engine/SlowWalker.h"
#include "fuzz/FuzzBot.h"

namespace {

class Subject : public FuzzBot {
  public:
    explicit Subject(const std::string& script) {
        host.SetServerConnected(true);
        bot.script = std::make_shared<Script>(script);
        bot.variables.Set("[n]", "7");
        bot.variables.Set("(1:125", "(1:27");  // names without brackets stand for any text
        bot.state.map = "Acropolis";
        bot.state.message = "hello there";
        bot.state.player.name = "Ann";
        bot.state.dice = {2, 6, 8};
        bot.state.dieValues = {3, 5};
    }

    /// Everything to be seen of one event, one line each.
    std::vector<std::string> Outcome(void (*walk)(Bot&, GameEvent), GameEvent event) {
        faulted_ = !Handle([&] { walk(bot, event); });
        std::vector<std::string> outcome = TakeTold();
        outcome.push_back("event " + std::to_string(bot.currentEvent));
        if (faulted_) outcome.push_back("fault at line " + std::to_string(bot.place.line));
        return outcome;
    }

    bool HasFaulted() const { return faulted_; }

  private:
    bool faulted_ = false;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string script = ScriptTextFromFile(std::string(kScriptHeader) + "\r\n" + InputText(data, size));
    Subject fast(script), slow(script);
    for (GameEvent event = 0; event < 52 && !fast.HasFaulted(); ++event) {
        if (fast.Outcome(RunScript, event) != slow.Outcome(WalkSlowly, event)) std::abort();
    }
    return 0;
}
