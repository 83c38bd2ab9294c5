#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/ScriptLine.h"
#include "engine/TriggerIndex.h"

/// A script, read once. Its text never changes: another text is another Script.
class Script {
  public:
    /// @param text  lines joined with CR LF, Windows-1252
    /// @param file  where it came from (UTF-8), for naming the place of a fault; may be empty
    explicit Script(std::string text, std::string file = {});
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    const std::string& Text() const { return text_; }
    const std::string& File() const { return file_; }

    /// The lines counted from 0; line 0 is the header.
    const std::vector<ScriptLine>& Lines() const { return lines_; }

    /// Has the header line and at least one line more. A script without is passed over in silence.
    bool IsValid() const { return isValid_; }

    /// Of the lines of a valid script.
    const TriggerIndex& Triggers() const { return triggers_; }

  private:
    std::string text_, file_;
    std::vector<ScriptLine> lines_;
    bool isValid_ = false;
    TriggerIndex triggers_;
};

inline constexpr char kScriptHeader[] = "VSPK 01.00 Vorel";

/// What the editor starts a new script with: header, an empty line, terminator.
inline constexpr char kNewScript[] = "VSPK 01.00 Vorel\r\n\r\n*Endtriggers* 9999 *Endtriggers*\r\n";

/// A script file's bytes to script text: lines joined with CR LF, none behind the last.
std::string ScriptTextFromFile(std::string_view bytes);

/// Script text to a script file's bytes: every piece between CR LFs, each followed by CR LF.
std::string ScriptTextToFile(std::string_view text);
