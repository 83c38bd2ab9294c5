#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

    /// Whether a walk reads the same from a command when its variables have been replaced, as long as all their names
    /// are simple: the first one stands behind the number.
    bool keepsItsReading;
};

/// The interval of a cause that is tried on a tick, in seconds: the first number in its text, behind its first blank; 0
/// when there is none or it exceeds 16 bits, so that it never divides the elapsed seconds.
std::int16_t TimerInterval(std::string_view cause);
