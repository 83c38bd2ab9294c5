#pragma once

#include <Qsci/qscilexercustom.h>

/// Colours a script by kind of line, and arguments and variables within a line, in colours that suit the desktop's
/// palette.
class VorelSpeakLexer final : public QsciLexerCustom {
    Q_OBJECT

  public:
    explicit VorelSpeakLexer(QObject* parent = nullptr);

    const char* language() const override { return "VorelSpeak"; }
    QString description(int style) const override;
    void styleText(int start, int end) override;

    /// Takes the colours anew from a palette.
    void FollowPalette(const QPalette& palette);

  private:
    enum Style { Remark, Frame, Cause, Condition, Effect, Argument, Variable, StyleCount };

    static Style StyleOfLine(const QByteArray& line);
    void StyleLine(const QByteArray& line);
};
