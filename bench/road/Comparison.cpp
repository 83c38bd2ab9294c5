#include "road/Comparison.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "road/TextFile.h"

namespace {

/// A folder that goes with all that is in it.
class PassingFolder {
  public:
    PassingFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "vorel-bench-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("there is no place for temporary files");
        path_ = path;
    }
    ~PassingFolder() { std::filesystem::remove_all(path_); }
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;
    std::string Path(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

/// The files of a bot, and how to start it.
class WrittenBot {
  public:
    WrittenBot(const Plan& plan, const TriggerKind& kind, int triggers) : plan_(plan) {
        WriteTextFile(folder_.Path("bot.vs"), ScriptOf(kind, triggers));
        WriteTextFile(folder_.Path("bot.ini"),
                      "Name=Greeter\r\nPassword=x\r\nDesc=A bot.\r\nColors=w#3#3#3#3#\r\nSpec=121\r\n");
        WriteTextFile(folder_.Path("bot.tvm"),
                      "[General]\r\nFurcadiaCharacter=bot.ini\r\nOwners=" + std::string(kAsker) +
                          "\r\nMaps=Furrabian Nights\r\nScript=bot.vs\r\n");
    }

    std::vector<std::string> CommandFor(int port) const {
        std::vector<std::string> command{plan_.programs + "/vorel", "run", folder_.Path("bot.tvm")};
        for (const char* word : {"--server", "127.0.0.1", "--brake", "0", "--quiet", "--keep-split-lines", "--folder"})
            command.emplace_back(word);
        command.insert(command.end(), {folder_.Path(""), "--port", std::to_string(port)});
        command.insert(command.end(), plan_.options.begin(), plan_.options.end());
        return command;
    }

  private:
    const Plan& plan_;
    PassingFolder folder_;
};

Figures MeasureCommand(const Plan& plan, const Task& task, const CommandFor& command) {
    return MeasureLoad(command, BatchesFor(*task.kind, task.triggers, task.lines),
                       OneQuestion(*task.kind, task.triggers), plan.effort);
}

Figures MeasureBot(const Plan& plan, const Task& task) {
    const WrittenBot bot(plan, *task.kind, task.triggers);
    return MeasureCommand(plan, task, [&](int port) { return bot.CommandFor(port); });
}

Figures MeasureBareLoop(const Plan& plan, const Task& task) {
    return MeasureCommand(plan, task, [&](int port) {
        return std::vector{plan.programs + "/bare_loop", std::to_string(port), std::to_string(task.triggers)};
    });
}

void Tell(const Task& task, const Figures& bot, const Figures& bare) {
    std::fprintf(stderr, "%-12s %5d: %9.0f lines/s (bare %9.0f)  CPU %7.3f us (%.3f)  round trip %6.1f us (%.1f)\n",
                 std::string(task.kind->name).c_str(), task.triggers, bot.linesPerSecond, bare.linesPerSecond,
                 bot.cpuMicroseconds, bare.cpuMicroseconds, bot.roundTripMicroseconds, bare.roundTripMicroseconds);
}

}  // namespace

AllResults Compare(const Plan& plan, const std::vector<Task>& tasks) {
    AllResults results;
    for (int i = 0; i < plan.repetitions; ++i) {
        std::map<std::pair<int, Lines>, Figures> bare;  // the same for all kinds of triggers
        for (const Task& task : tasks) {
            const std::pair same(task.triggers, task.lines);
            if (!bare.contains(same)) bare[same] = MeasureBareLoop(plan, task);
            results[task].bare.push_back(bare[same]);
            results[task].bot.push_back(MeasureBot(plan, task));
            Tell(task, results[task].bot.back(), bare[same]);
        }
    }
    return results;
}

Idleness MeasureIdleBot(const Plan& plan) {
    constexpr int kSeconds = 3;
    const TriggerKind& kind = KindNamed("equal");
    const int triggers = *std::min_element(plan.triggers.begin(), plan.triggers.end());
    const WrittenBot bot(plan, kind, triggers);
    return MeasureIdleness([&](int port) { return bot.CommandFor(port); }, OneQuestion(kind, triggers), kSeconds);
}
