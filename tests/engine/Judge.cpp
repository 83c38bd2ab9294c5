#include "engine/Judge.h"

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <variant>

#include "bot/Bot.h"
#include "bot/Host.h"
#include "bot/Variables.h"
#include "engine/Dispatcher.h"
#include "engine/PlainRules.h"
#include "engine/Script.h"
#include "engine/SlowWalker.h"
#include "support/MemoryFiles.h"
#include "support/Source.h"

namespace {

using Pieces = std::vector<std::string>;

/// What stands in quotes in the file of pieces, by the letter in front. In a piece "~x" is any piece of x, and "~3-7;"
/// any number from 3 to 7.
const std::map<char, Pieces>& AllPieces() {
    static const std::map<char, Pieces> all = [] {
        std::map<char, Pieces> pieces;
        char letter = 0;
        for (const std::string& line : FileLines(FromUtf8(ReadSource("tests/engine/script-pieces.txt")))) {
            const std::size_t from = line.find('"');
            if (line.empty() || line.starts_with('#')) continue;
            if (from > 0) letter = line[0];
            for (std::string& piece : Split(line.substr(from + 1, line.size() - from - 2), "\" \"")) {
                pieces[letter].push_back(std::move(piece));
            }
        }
        for (const std::string_view name : VariableNames()) {
            pieces['v'].push_back(ReplaceAll(name, "N]", name.starts_with("[die") ? "2]" : "~1-3;]"));
        }
        return pieces;
    }();
    return all;
}

class CaseWriter {
  public:
    explicit CaseWriter(unsigned seed) : random_(seed) {}

    Case Write() {
        Case made{Chance(3) ? Triggers() : Script(), Chance(4) ? Script() : "", {}};
        for (int count = Chance(2) ? Below(4) : 0; count > 0; --count) made.steps.push_back("let " + Filled("~r"));
        for (int count = 32; count > 0; --count) AddFields(made);
        for (int events = 3; events > 0; --events) {
            if (Chance(2)) AddFields(made);
            made.steps.push_back("event " + Event());
        }
        return made;
    }

  private:
    std::mt19937 random_;
    bool risky_ = false, inTrigger_ = false;
    const bool themed_ = Chance(2);
    std::map<char, Pieces> chosen_, theme_;

    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool Chance(int oneIn) { return Below(oneIn) == 0; }
    void AddFields(Case& made) {
        for (std::string& step : Split(Filled("~q"), "; ")) made.steps.push_back(std::move(step));
    }
    std::string Event() { return Chance(8) ? std::to_string(Below(53) - 2) : Any('E'); }

    std::string OneOf(const Pieces& pieces) {
        return pieces[static_cast<std::size_t>(Below(static_cast<int>(pieces.size())))];
    }
    /// Any piece. Of those under a capital letter a case has but a few, so that fields and arguments often meet.
    std::string Any(char letter) {
        if (letter == 'e') return std::to_string(std::stoi(Event()) - 1);
        const Pieces& pieces = PiecesOf(letter);
        if (letter < 'A' || letter > 'Z') return Filled(OneOf(pieces));
        Pieces& chosen = chosen_[letter];
        while (chosen.size() < 2) chosen.push_back(Filled(OneOf(pieces)));
        const std::string one = OneOf(chosen);
        return letter == 'T' ? Varied(one) : one;
    }
    /// Half of the cases have a theme: a few kinds of conditions and effects, so that they often have to do with each
    /// other.
    const Pieces& PiecesOf(char letter) {
        const Pieces& pieces = AllPieces().at(letter);
        if (!themed_ || (letter != 'c' && letter != 'f')) return pieces;
        Pieces& theme = theme_[letter];
        while (theme.size() < 3) theme.push_back(OneOf(pieces));
        return Chance(4) ? pieces : theme;
    }
    std::string Filled(const std::string& piece) {
        std::string filled;
        for (std::size_t at = 0; at < piece.size(); ++at) {
            if (piece[at] != '~') {
                filled += piece[at];
            } else if (const char letter = piece[++at]; letter < '0' || letter > '9') {
                filled += Any(letter);
            } else {
                const int first = std::stoi(piece.substr(at)), last = std::stoi(piece.substr(piece.find('-', at) + 1));
                filled += std::to_string(first + Below(last - first + 1));
                at = piece.find(';', at);
            }
        }
        return filled;
    }
    /// The text, or one that nearly is the same.
    std::string Varied(const std::string& text) {
        if (!Chance(3)) return text;
        const std::size_t less = text.empty() ? 0 : 1;
        return OneOf({UpperCase(text), LowerCase(text), BarsToBlanks(text), BlanksToBars(text), BlanksToBars(text),
                      text.substr(less), text.substr(0, text.size() - less), text + "x", " " + text});
    }

    std::string Script() {
        std::string text(Chance(20) ? "vspk 01.00 VOREL" : Chance(80) ? "VSPK 01.00 Vorel " : "VSPK 01.00 Vorel");
        risky_ = Chance(3);
        for (int lines = Below(28); lines >= 0; --lines) text += "\r\n" + Blanks() + Line() + Blanks();
        return Chance(3) ? text : text + "\r\n";
    }
    /// Triggers in good order that tell when they fire, so that whether each is found can be seen.
    std::string Triggers() {
        std::string text = "VSPK 01.00 Vorel";
        for (int i = Below(Chance(8) ? 60 : 8); i >= 0; --i) {
            text += "\r\n(0:" + Any('e') + ") x\r\n" + Any('c') + "\r\n" + Any(Chance(3) ? 'c' : 'p') + "\r\n(5:2) {" +
                    std::to_string(i) + "}\r\n" + Any(Chance(3) ? 'f' : 'p');
        }
        return text + "\r\n";
    }
    std::string Blanks() { return Chance(8) ? std::string(static_cast<std::size_t>(Below(3)), ' ') : ""; }
    /// Conditions mostly follow upon a cause, and upon each other.
    std::string Line() {
        const int kind = Below(100);
        if (kind < 10) return Any('p');
        if (risky_ && kind > 95) return Any('z');
        const bool another = inTrigger_ && kind < 50;
        inTrigger_ = another || (kind >= 18 && kind < 45);
        return Any(another || kind < 18 ? 'c' : kind < 45 ? 'k' : 'f');
    }
};

using Walk = void (*)(Bot&, GameEvent);

/// A bot to play a case on, by either walk, and its world.
class Subject final : public Host {
  public:
    Subject(const Case& played, Walk walk) : other_(played.other), walk_(walk) {
        bot_.script = std::make_shared<Script>(played.script);
        bot_.profile.characterPath = "folder/secret.ini";
        files_.contents = {
            {"folder/f.ini", "[s]\r\nhello there=7\r\nhello there\r\nAnn\r\n[list]\r\nBob\r\nhello|there\r\n"},
            {"folder/secret.ini", "Name=a\r\nPassword=b\r\n"}};
        files_.unwritable = "folder/full.ini";
        files_.unreadable = "folder/bad.ini";
    }

    /// @return everything to be seen of it, one line each, when it was an event
    std::string Do(const std::string& step) {
        if (step.starts_with("event ")) return Happens(static_cast<GameEvent>(std::stoi(step.substr(6))));
        const bool isVariable = step.starts_with("let ");
        const std::size_t end = step.find('=');
        const std::string name = step.substr(isVariable ? 4 : 0, end - (isVariable ? 4 : 0)),
                          value = step.substr(end + 1);
        isVariable ? bot_.variables.Set(name, value) : SetField(name, value);
        return {};
    }
    bool HasFaulted() const { return faulted_; }
    bool HasTold() const { return told_; }

    // Host
    bool IsServerConnected() const override { return true; }  // what a script sends shall be seen
    bool IsClientConnected() const override { return true; }
    void WriteToServer(std::string_view bytes) override { Tell("sent ", bytes); }
    void WriteToClient(std::string_view bytes) override { Tell("client ", bytes); }
    void Connect() override { Tell("connect", ""); }
    void Disconnect() override {
        Tell("disconnect", "");
        if (nested_ == 3) return;
        PutScript(other_);
        ++nested_;
        walk_(bot_, EventDisconnected);
        --nested_;
    }
    void ShowConsoleLine(std::string_view line) override {
        Tell("console ", line);
        if (line == "put other") PutScript(other_);
        if (line == "put same") PutScript(bot_.script->Text());
    }
    void SwitchMovementTimer(bool enabled) override { Tell("walk ", enabled ? "on" : "off"); }
    LocalTime Now() const override { return {2026, 11, 22, 9, 30, 15}; }
    std::string ShortDate(const LocalTime&) const override { return "11/22/2026"; }
    std::string LongTime(const LocalTime&) const override { return "9:30:15 AM"; }
    double Random() override { return (++drawn_ % 8) / 8.0; }
    Files& Disk() override { return files_; }
    std::string ProgramFolder() const override { return "folder"; }

  private:
    Bot bot_{*this};
    MemoryFiles files_;
    const std::string other_;
    const Walk walk_;
    const std::vector<NamedField> fields_ = FieldsOf(bot_);
    std::string seen_;
    int nested_ = 0, drawn_ = 0;
    bool faulted_ = false, told_ = false;

    void Tell(std::string_view what, std::string_view text) {
        seen_.append(what).append(text) += '\n';
        told_ = true;
    }
    void PutScript(const std::string& text) {
        if (!text.empty()) bot_.script = std::make_shared<Script>(std::string(text));
    }
    void SetField(const std::string& name, const std::string& value) {
        if (name == "owners") bot_.profile.owners = value;
        if (name == "maps") bot_.profile.maps = value;
        if (name == "dice") {
            bot_.state.dieValues.clear();
            for (const std::string& die : Split(value, " ")) {
                bot_.state.dieValues.push_back(static_cast<std::int16_t>(std::stoi(die)));
            }
        }
        for (const NamedField& field : fields_) {
            if (field.name != name) continue;
            if (auto* const text = std::get_if<std::string*>(&field.value)) **text = value;
            if (auto* const number = std::get_if<std::int16_t*>(&field.value)) {
                **number = static_cast<std::int16_t>(std::stoi(value));
            }
        }
    }
    std::string Happens(GameEvent event) {
        try {
            walk_(bot_, event);
        } catch (const RuntimeFault& fault) {
            faulted_ = true;
            seen_.append(fault.Name()).append(" at line ") += std::to_string(bot_.place.line) + "\n";
        }
        for (const auto& [rank, row] : bot_.variables.Rows()) seen_ += row.name + "=" + row.value + "\n";
        for (const auto& [path, bytes] : files_.contents) seen_ += path + ": " + bytes;
        seen_ += "event " + std::to_string(bot_.currentEvent) + ", owners " + bot_.profile.owners.Text() + ", maps " +
                 bot_.profile.maps.Text() + ", client " + std::to_string(bot_.profile.connectClient) + ", walk to " +
                 std::to_string(bot_.walk.target.x) + "," + std::to_string(bot_.walk.target.y);
        return std::exchange(seen_, {});
    }
};

/// The case without one line of its script after the other, and then its steps, where it shows the same without.
Case Shrunk(Case large) {
    Tally tally;
    const auto drop = [&](const auto& without) {
        Case smaller = large;
        without(smaller);
        const bool shows = !Disagreement(smaller, tally).empty();
        if (shows) large = smaller;
    };
    for (std::size_t i = Split(large.script, "\r\n").size() - 1; i > 0; --i) {
        drop([i](Case& smaller) {
            Pieces lines = Split(smaller.script, "\r\n");
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
            smaller.script = Join(lines, "\r\n");
        });
    }
    for (std::size_t i = large.steps.size(); i > 0; --i) {
        drop([i](Case& smaller) { smaller.steps.erase(smaller.steps.begin() + static_cast<std::ptrdiff_t>(i - 1)); });
    }
    return large;
}

}  // namespace

std::string Case::Text() const {
    return Join(steps, "\n") + "\n\n" + script + (other.empty() ? "" : "\n\nThe other script:\n" + other) + "\n";
}

Case WriteCase(unsigned seed) { return CaseWriter(seed).Write(); }

std::string Disagreement(const Case& played, Tally& tally) {
    Subject fast(played, RunScript), slow(played, WalkSlowly);
    for (const std::string& step : played.steps) {
        const std::string expected = slow.Do(step), seen = fast.Do(step);
        if (seen != expected) return "At " + step + " expected:\n" + expected + "\n\nbut seen:\n" + seen + "\n";
        if (slow.HasFaulted()) break;
    }
    tally.told += slow.HasTold() ? 1 : 0;
    tally.faults += slow.HasFaulted() ? 1 : 0;
    return {};
}

std::string JudgeSeed(unsigned seed, Tally& tally) {
    const Case whole = WriteCase(seed);
    if (Disagreement(whole, tally).empty()) return {};
    const Case small = Shrunk(whole);
    return "The walks disagree on the case of seed " + std::to_string(seed) + ":\n" + small.Text() + "\n" +
           Disagreement(small, tally);
}
