#include "ui/VorelSpeakLexer.h"

#include <Qsci/qsciscintilla.h>

#include <QFontDatabase>
#include <QPalette>

#include "engine/Script.h"
#include "text/Text.h"

namespace {
struct Colors {
    const char *light, *dark;
};
// Remark, frame, cause, condition, effect, argument, variable.
constexpr Colors kColors[] = {{"#6a737d", "#9aa5b1"}, {"#8a5a00", "#e0b050"}, {"#a01860", "#ff8fc0"},
                              {"#00637c", "#6fd3ea"}, {"#1d6b1d", "#8fdc8f"}, {"#8a3b00", "#ffb27a"},
                              {"#4a3fb0", "#b9b0ff"}};
}  // namespace

VorelSpeakLexer::VorelSpeakLexer(QObject* parent) : QsciLexerCustom(parent) {
    setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    FollowPalette(QPalette());
}

QString VorelSpeakLexer::description(int style) const {
    static const char* const kNames[] = {"Remark", "Header and end", "Cause",   "Condition",
                                         "Effect", "Argument",       "Variable"};
    return style >= 0 && style < StyleCount ? QString(kNames[style]) : QString();
}

void VorelSpeakLexer::FollowPalette(const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Base);
    const bool dark = paper.lightness() < 128;
    setDefaultPaper(paper);
    setDefaultColor(palette.color(QPalette::Text));
    for (int style = 0; style < StyleCount; ++style) {
        setPaper(paper, style);
        setColor(QColor(dark ? kColors[style].dark : kColors[style].light), style);
        setFont(defaultFont(), style);
    }
}

VorelSpeakLexer::Style VorelSpeakLexer::StyleOfLine(const QByteArray& line) {
    // Of its readings the one for conditions: it also takes a command behind which nothing is typed yet.
    const ScriptLine read(std::string_view(line.constData(), static_cast<std::size_t>(line.size())));
    if (read.endsScript || UpperCase(read.text) == UpperCase(kScriptHeader)) return Frame;
    if (read.asCondition.IsCommand(kCauseLine)) return Cause;
    if (read.asCondition.IsCommand(kConditionLine)) return Condition;
    return read.asCondition.IsCommand(kEffectLine) ? Effect : Remark;
}

void VorelSpeakLexer::styleText(int start, int end) {
    if (!editor()) return;
    startStyling(start);
    // The last of the bytes is a zero that is not in the text.
    const QByteArray bytes = editor()->bytes(start, end).first(end - start);
    for (qsizetype from = 0; from < bytes.size();) {
        const qsizetype feed = bytes.indexOf('\n', from);
        const qsizetype next = feed < 0 ? bytes.size() : feed + 1;
        StyleLine(bytes.mid(from, next - from));
        from = next;
    }
}

void VorelSpeakLexer::StyleLine(const QByteArray& line) {
    const Style style = StyleOfLine(line.trimmed());
    if (style == Remark || style == Frame) {
        setStyling(static_cast<int>(line.size()), style);
        return;
    }
    int braces = 0;
    int brackets = 0;
    for (const char c : line) {
        braces += c == '{' ? 1 : 0;
        brackets += c == '[' ? 1 : 0;
        setStyling(1, brackets > 0 ? Variable : braces > 0 ? Argument : style);
        if (c == '}' && braces > 0) --braces;
        if (c == ']' && brackets > 0) --brackets;
    }
}
