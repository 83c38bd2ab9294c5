#pragma once

#include <QtWidgets>
#include <memory>

#include "support/BotFiles.h"
#include "support/GameServer.h"
#include "ui/ConsoleView.h"
#include "ui/ProgramFolder.h"
#include "ui/RecordingDialogs.h"
#include "ui/frmGS.h"
#include "ui/frmVorel.h"

/// Brings a window to the front, with the keyboard.
inline void Front(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// The program in a folder of its own, with nobody but the test to answer its questions. In the folder lies the bot
/// "bot", which shows "ready" when it is loaded; its server is the practice dream.
class Desk : public testing::Test, public BotFiles {
  public:
    Desk() {
        WriteBot("bot", "(0:0) loaded,\r\n(5:2) show {ready}", "[Ignores]\nMean One\n");
        Options(OptionsFile(Path())).Set(option::kServerAddress, QString(kPracticeAddress));
    }

    RecordingDialogs dialogs;
    std::unique_ptr<frmVorel> window;

    /// Starts the program; one that ran before gets no chance to do anything. Like the next ones it takes the answers
    /// to what is asked, and returns what was told and asked.
    QString Start(const QStringList& answers = {}) {
        window.reset();
        window = std::make_unique<frmVorel>(dialogs, Path());
        return dialogs.During(answers, [this] { window->Start(); });
    }
    QString Open(const QString& file, const QStringList& answers = {}) {
        return dialogs.During(answers, [&] { window->OpenDocument(Path(file).toStdString()); });
    }
    QString Close(const QStringList& answers = {}) {
        return dialogs.During(answers, [this] { window->close(); });
    }
    QString Choose(const QString& item, const QStringList& answers = {}) {
        return dialogs.During(answers, [&] { dialogs.Choose(*window, item); });
    }
    QString ChooseInEditor(const QString& item, const QStringList& answers = {}) {
        return dialogs.During(answers, [&] { dialogs.Choose(Editor(), item); });
    }
    void StartWithBot() {
        Start();
        Open("bot.tvm");
        Front(*window);
    }

    template <typename Control = QWidget>
    Control& The(const QString& name) const {
        return Named<Control>(*window, name);
    }
    frmGS& Editor() const { return window->editor(); }
    void TypeInEditor(const QString& text) const { QTest::keyClicks(&Named(Editor(), "txtScript"), text); }
    Bot& bot() const { return window->host().bot(); }

    QString ConsoleText() const {
        auto& lines = The<ConsoleView>("lstView").Lines();
        lines.Flush();
        return lines.AllText();
    }
};
