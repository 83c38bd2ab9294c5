#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bot/Events.h"
#include "text/Fault.h"

/// What one of the dispatcher's walks takes a line for.
struct LineReading {
    enum class Kind {
        NoCommand,  ///< passed over
        Command,    ///< (category:number)
        Fault,      ///< a category or number that can't be read; raised when a walk gets here
    };
    Kind kind = Kind::NoCommand;
    std::int16_t category = -1, number = -1;
    FaultKind fault = FaultKind::TypeMismatch;

    bool IsCommand(std::int16_t wantedCategory) const { return kind == Kind::Command && category == wantedCategory; }

    /// @throws RuntimeFault when the reading is one
    void RaiseFault() const {
        if (kind == Kind::Fault) throw RuntimeFault(fault);
    }
};

/// The categories of line that mean something; lines of the others are passed over.
inline constexpr std::int16_t kCauseLine = 0;
inline constexpr std::int16_t kConditionLine = 1;
inline constexpr std::int16_t kEffectLine = 5;

/// One line of a script, read the way each of the three walks reads it. The three differ, and scripts in use count on
/// each: the walk for causes wants "(c:n) " with a blank behind; the one for conditions wants just "(" and digits; the
/// one for effects takes what it finds for a number, so that a remark in parentheses counts as category 0.
struct ScriptLine {
    explicit ScriptLine(std::string_view asItStands);

    std::string text;            ///< without blanks at both ends
    bool endsScript;             ///< is the terminator line, "*Endtriggers* … *Endtriggers*", as it stands
    bool endsScriptWhenTrimmed;  ///< is it without the blanks at both ends
    LineReading asCondition, asCause, asEffect;
};

/// A script, read once. Its text never changes: another text is another Script.
class Script {
  public:
    /// @param text  lines joined with CR LF, Windows-1252
    /// @param file  where it came from (UTF-8), for naming the place of a fault; may be empty
    explicit Script(std::string text, std::string file = {});

    const std::string& Text() const { return text_; }
    const std::string& File() const { return file_; }

    /// The lines counted from 0; line 0 is the header.
    const std::vector<ScriptLine>& Lines() const { return lines_; }

    /// Has the header line and at least one line more. A script without is passed over in silence.
    bool IsValid() const { return isValid_; }

    /// The first line at or after a line at which the walk for causes has something to do for an event: a cause that
    /// may answer it, a line that faults, or the terminator. The number of lines when there is none.
    std::size_t NextStop(GameEvent event, std::size_t from) const;

  private:
    std::string text_, file_;
    std::vector<ScriptLine> lines_;
    bool isValid_ = false;

    // Line numbers in rising order.
    std::vector<std::size_t> causes_;
    std::map<std::int16_t, std::vector<std::size_t>> causesByNumber_;
    std::vector<std::size_t> stops_;  ///< faults and terminators

    void BuildIndex();
};

inline constexpr char kScriptHeader[] = "VSPK 01.00 Vorel";

/// What the editor starts a new script with: header, an empty line, terminator.
inline constexpr char kNewScript[] = "VSPK 01.00 Vorel\r\n\r\n*Endtriggers* 9999 *Endtriggers*\r\n";

/// A script file's bytes to script text: lines joined with CR LF, none behind the last.
std::string ScriptTextFromFile(std::string_view bytes);

/// Script text to a script file's bytes: every piece between CR LFs, each followed by CR LF.
std::string ScriptTextToFile(std::string_view text);
