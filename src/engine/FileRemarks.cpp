#include "engine/FileRemarks.h"

#include <algorithm>
#include <iterator>

#include "engine/Script.h"
#include "text/Text.h"

namespace {

/// By its mark, or by the zero that each of the first letters has beside it.
bool IsUtf16(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
           bytes.substr(0, 4).find('\0') != bytes.npos;
}

bool HasMark(std::string_view bytes) { return bytes.starts_with("\xEF\xBB\xBF"); }

bool EndsLinesWithCR(std::string_view bytes) {
    return bytes.find('\n') == bytes.npos && bytes.find('\r') != bytes.npos;
}

std::string FirstLine(std::string_view bytes) {
    const std::vector<std::string> lines = FileLines(bytes);
    return lines.empty() ? std::string() : lines.front();
}

bool IsHeader(std::string_view line) { return UpperCase(line) == UpperCase(kScriptHeader); }

bool HasBlanksAroundHeader(std::string_view bytes) {
    std::string line = FirstLine(bytes);
    std::replace(line.begin(), line.end(), '\t', ' ');  // they spoil it as well, and Trim lets them stand
    return !IsHeader(FirstLine(bytes)) && IsHeader(Trim(line));
}

bool HasHeaderOnly(std::string_view bytes) { return IsHeader(FirstLine(bytes)) && FileLines(bytes).size() == 1; }

bool HasNoHeader(std::string_view bytes) { return !bytes.empty() && !IsHeader(FirstLine(bytes)); }

/// What may be the matter with a file, in the order in which it is looked for, and what to do about it.
struct Row {
    bool (*applies)(std::string_view bytes);
    std::string_view matter, cure;
    bool scriptsOnly = false;
    bool keepsFromRunning = true;  ///< a script
};

constexpr Row kRows[] = {
    {.applies = IsUtf16,
     .matter = "it is written in UTF-16, of which nothing can be read",
     .cure = "Save it as Windows-1252, which editors also call ANSI or Western."},
    {.applies = HasMark,
     .matter = "it begins with a byte-order mark, which spoils its first line",
     .cure = "Save it as Windows-1252, which editors also call ANSI or Western, or without the mark."},
    {.applies = EndsLinesWithCR,
     .matter = "its lines end with CR alone, so that all of it is one line",
     .cure = "Save it with the line ends of Windows or of Unix."},
    {.applies = HasBlanksAroundHeader,
     .matter = "blanks stand before or behind its header",
     .cure = "Take them out of its first line.",
     .scriptsOnly = true},
    {.applies = HasHeaderOnly,
     .matter = "there is nothing behind its header",
     .cure = "Write some triggers.",
     .scriptsOnly = true},
    {.applies = HasNoHeader,
     .matter = "its first line is not its header",
     .cure = "Put the line \"VSPK 01.00 Vorel\" before all others.",
     .scriptsOnly = true},
    {.applies = HoldsUtf8,
     .matter = "it is written in UTF-8, so that letters beyond the English ones are taken for several others",
     .cure = "Save it as Windows-1252, which editors also call ANSI or Western.",
     .keepsFromRunning = false},
};

}  // namespace

std::optional<std::string> FileRemark(FileKind kind, const std::string& path, std::string_view bytes) {
    const bool script = kind == FileKind::Script;
    const auto* const row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& candidate) {
        return (script || !candidate.scriptsOnly) && candidate.applies(bytes);
    });
    if (row == std::end(kRows)) return std::nullopt;
    return path + ": " + (script && row->keepsFromRunning ? "the script can't run, for " : "") +
           std::string(row->matter) + ". " + std::string(row->cure);
}
