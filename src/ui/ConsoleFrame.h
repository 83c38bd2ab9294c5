#pragma once

#include <QGroupBox>

#include "platform/ConsoleLog.h"

class ConsoleView;
class Dialogs;
class InputLine;
class Options;
class QAction;
class QLineEdit;
class QMenu;

/// The frame "Console": the game's lines, the chosen one whole, the input line and the emoticons; and the menu of what
/// can be done with the lines.
class ConsoleFrame final : public QGroupBox {
    Q_OBJECT

  public:
    ConsoleFrame(Options& options, Dialogs& dialogs, QWidget* parent = nullptr);

    /// Shows a line, and logs it.
    void Append(const QString& line);

    /// Empties the console, but for what is to be shown then.
    void Clear();

    /// Keeps a line that would be missed to be shown when the console is cleared the next time, as a session begins.
    void ShowWhenCleared(const QString& line);

    /// Goes on with the log of the last time, or says why it can't.
    void ResumeLog();

    void FillMenu(QMenu& menu);

  signals:
    void LineTyped(const QString& line);
    void HelpAsked();

    /// A search has found nothing.
    void NotFound(const QString& text);

  private:
    Options& options_;
    Dialogs& dialogs_;
    ConsoleLog log_;
    QString sought_;
    QStringList whenCleared_;
    ConsoleView* lstView_;
    QLineEdit* txtView_;
    InputLine* txtSend_;
    QAction* mnuLog_ = nullptr;

    QWidget* BuildInput();
    void Find(bool ask);
    void Save();
    void ChooseLog(bool on);
    bool OpenLog(const QString& path);
    void ChooseScrollBack();
};
