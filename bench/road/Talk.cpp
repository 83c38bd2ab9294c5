#include "road/Talk.h"

#include <random>
#include <stdexcept>

namespace {

const TriggerKind kTriggerKinds[] = {
    {"equal", "(0:3) When somebody speaks,\r\n (1:2) and the message is {", "where is item @, please?"},
    {"contains", "(0:3) When somebody speaks,\r\n (1:6) and the message has in it {", "item @"},
    {"pattern", "(0:3) When somebody speaks,\r\n (1:4) and the message looks like {", "where is item @*"},
    {"owner",
     "(0:3) When somebody speaks,\r\n (1:127) and {[player]} is one of the owners,\r\n (1:2) and the message is {",
     "where is item @, please?"},
    {"other cause", "(0:6) When somebody whispers,\r\n (1:2) and the message is {", "where is item @, please?", false},
};

constexpr int kBatches = 64;

std::string FourDigits(int number) {
    const std::string digits = std::to_string(number);
    return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

std::string Trigger(const TriggerKind& kind, int number) {
    std::string text(kind.text);
    text.replace(text.find('@'), 1, FourDigits(number));
    return std::string(kind.before) + text + "},\r\n     (5:12) whisper back {" + Answer(number) + "}.\r\n\r\n";
}

void Ask(Batch& batch, int trigger) {
    batch.lines.append("(").append(kAsker).append(": ").append(Question(trigger)).append("\n");
    batch.answers.append("wh ").append(kAsker).append(" ").append(Answer(trigger)).append("\n");
}

/// The trigger that has its turn in the batch of that number.
int Asked(const TriggerKind& kind, int triggers, int batch) {
    // Not one after the other: neighbours in the script would be found in the processor's caches.
    return kind.answers ? static_cast<int>(batch * 7919LL % triggers) : triggers / 2;
}

/// Lines that no trigger answers.
class Chatter {
  public:
    std::string Speech() {
        static constexpr const char* kSayings[] = {
            "hello there, how is everybody today?",
            "where is my other boot?",
            "has anybody seen Greeter in the last hour or so",
            "*grins* that is what you said the last time, and the time before that",
            "brb",
            "where is item nine, please?",
            "I think we should all go over to the pond and sit there until somebody comes along with a cake",
            "no way!",
        };
        return "(" + Name() + ": " + kSayings[Draw(8)] + "\n";
    }

    std::string AnyLine() {
        const std::string name = Name(), from = Square(), into = Square();
        switch (Draw(20)) {
            case 0:
            case 1:
            case 2:
            case 3:
                return "/w#3#3#3#3#" + into + " *" + from + "\n";
            case 4:
                return "<x%4%4%4%4%" + into + " *\n";
            case 5:
                return "]-#Ax%4%4%4%4%!#5\n";
            case 6:
                return "]-#BA\n";
            case 7:
                return "]fx%4%4%4%4%!#5" + name + "\n";
            case 8:
                return "(#BA A friendly wolf called " + name + ".\n";
            case 9:
                return "(" + name + " waves happily to everybody around\n";
            case 10:
                return "({S} " + name + " shouts: who wants cookies?\n";
            case 11:
                return "7" + from + into + "! " + into + "\n";
            default:
                return Speech();
        }
    }

  private:
    std::mt19937 random_{20};

    int Draw(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::string Name() { return "Furre" + std::to_string(Draw(500)); }
    std::string Square() { return {' ', static_cast<char>(' ' + Draw(40)), ' ', static_cast<char>(' ' + Draw(40))}; }
};

}  // namespace

const TriggerKind& KindNamed(std::string_view name) {
    for (const TriggerKind& kind : kTriggerKinds)
        if (kind.name == name) return kind;
    throw std::runtime_error("there are no triggers of the kind " + std::string(name));
}

std::string Question(int trigger) { return "where is item " + FourDigits(trigger) + ", please?"; }

std::string Answer(int trigger) { return "Item " + FourDigits(trigger) + " is on the third shelf from the left."; }

std::string ScriptOf(const TriggerKind& kind, int triggers) {
    std::string script = "VSPK 01.00 Vorel\r\n";
    for (int i = 0; i < triggers; ++i) {
        script += Trigger(kind, i);
        if (!kind.answers && i == triggers / 2) script += Trigger(KindNamed("equal"), i);
    }
    return script + "*Endtriggers* 9999 *Endtriggers*\r\n";
}

std::vector<Batch> BatchesFor(const TriggerKind& kind, int triggers, Lines lines) {
    std::vector<Batch> batches(kBatches);
    Chatter chatter;
    for (int i = 0; i < kBatches; ++i) {
        Batch& batch = batches[static_cast<std::size_t>(i)];
        for (int line = 1; line < kLinesPerBatch; ++line) {
            if (lines == Lines::AllAnswered) {
                Ask(batch, Asked(kind, triggers, i * kLinesPerBatch + line));
            } else {
                batch.lines += lines == Lines::Mixed ? chatter.AnyLine() : chatter.Speech();
            }
        }
        Ask(batch, Asked(kind, triggers, i * kLinesPerBatch));
    }
    return batches;
}

Batch OneQuestion(const TriggerKind& kind, int triggers) {
    Batch batch;
    Ask(batch, Asked(kind, triggers, triggers / 2));
    return batch;
}
