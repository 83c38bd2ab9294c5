#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What the triggers of a script ask of a line of speech before they answer it.
struct TriggerKind {
    std::string_view name;
    std::string_view before;  ///< cause and conditions, up to the text that is compared
    std::string_view text;    ///< that text; "@" stands for the trigger's number
    bool answers = true;      ///< otherwise its cause never happens, and one trigger more gives the answers
};

/// @param name  "equal", "contains", "pattern", "owner" or "other cause"
/// @throws std::runtime_error when there is no such kind
const TriggerKind& KindNamed(std::string_view name);

/// What the game sends.
enum class Lines {
    Mixed,       ///< lines of a busy place: nearly half are speech, the others moves, looks, emotes and more
    Speech,      ///< nothing but speech
    AllAnswered  ///< speech that is answered, each line; of the others it is the last one of a hundred
};

/// A hundred lines, and what has to come back for them.
struct Batch {
    std::string lines, answers;
};

inline constexpr int kLinesPerBatch = 100;
inline constexpr std::string_view kAsker = "Ann";  // an owner, as the triggers that ask for one want it

/// The message that the trigger of that number answers, and its words.
std::string Question(int trigger);
std::string Answer(int trigger);

/// @param triggers  how many; with none the script is a header and nothing else
std::string ScriptOf(const TriggerKind& kind, int triggers);

/// Some batches, alike in every run, which ask the triggers of the script in turn.
std::vector<Batch> BatchesFor(const TriggerKind& kind, int triggers, Lines lines);

/// One line that the script answers, and its answer.
Batch OneQuestion(const TriggerKind& kind, int triggers);
