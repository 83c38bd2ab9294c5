#pragma once

#include <QAction>
#include <QDir>
#include <QMenu>
#include <memory>

#include "support/BotFiles.h"
#include "support/GameServer.h"
#include "ui/ConsoleView.h"
#include "ui/RecordingDialogs.h"
#include "ui/frmGS.h"
#include "ui/frmVorel.h"

/// A control of a window by its name; without it the test ends.
template <typename Control = QWidget>
Control& Named(const QObject& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    if (!control) throw std::runtime_error("no control " + name.toStdString());
    return *control;
}

/// Brings a window to the front, with the keyboard.
inline void Front(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// The program in a folder of its own, with nobody but the test to answer its questions. In the folder lies the bot
/// "bot", which shows "ready" when it is loaded; its server is the practice dream.
class Desk : public BotFiles {
  public:
    RecordingDialogs dialogs;
    std::unique_ptr<frmVorel> window;

    Desk() {
        WriteBot("bot", "(0:0) loaded,\r\n(5:2) show {ready}", "[Ignores]\nMean One\n");
        Options(Path("tvorel-options.ini")).Set("connection/address", QString(kPracticeAddress));
    }

    /// Starts the program; one that ran before gets no chance to do anything.
    void Start() {
        window.reset();
        window = std::make_unique<frmVorel>(dialogs, Path());
        window->Start();
    }
    void StartWithBot() {
        Start();
        Open("bot.tvm");
        Front(*window);
    }
    void Open(const QString& file) const { window->OpenDocument(Path(file).toStdString()); }

    template <typename Control = QWidget>
    Control& The(const QString& name) const {
        return Named<Control>(*window, name);
    }
    void Choose(const QString& menuItem) const { The<QAction>(menuItem).trigger(); }

    frmGS& Editor() const { return window->editor(); }
    void TypeInEditor(const QString& text) const { QTest::keyClicks(&Named(Editor(), "txtScript"), text); }
    Bot& bot() const { return window->host().bot(); }

    QString Console() const {
        auto& lines = The<ConsoleView>("lstView").Lines();
        lines.Flush();
        return lines.AllText();
    }
};
