#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QStringList>
#include <functional>
#include <ostream>
#include <stdexcept>

#include "ui/Dialogs.h"

inline std::ostream& operator<<(std::ostream& out, const QString& text) { return out << text.toStdString(); }

/// A control of a window by its name; without it the test ends.
template <typename Control = QWidget>
Control& Named(const QObject& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    if (!control) throw std::runtime_error("no control " + name.toStdString());
    return *control;
}

/// Stands in for the user: notes what was asked, "kind [title] text", and gives the answers that were laid out. A
/// question without an answer fails the test, and so does an answer that nobody asks for.
class RecordingDialogs final : public Dialogs {
  public:
    /// Does something that tells and asks.
    /// @param answers  "Yes", "No", "Cancel", a typed text or a chosen file
    /// @return what was told and asked, "|" between
    QString During(const QStringList& answers, const std::function<void()>& doing) {
        answers_ = answers;
        told_.clear();
        doing();
        EXPECT_EQ(answers_.join('|'), "") << "not asked for";
        return told_.join('|');
    }
    /// Chooses a menu item or presses a button.
    static void Choose(const QObject& window, const QString& name) {
        auto* const action = window.findChild<QAction*>(name);
        action ? action->trigger() : Named<QAbstractButton>(window, name).click();
    }

    void ShowMessage(QWidget*, const QString& text, const QString& title, Icon icon) override {
        constexpr const char* kKinds[] = {"message", "information", "critical"};
        told_ << QStringLiteral("%1 [%2] %3").arg(kKinds[static_cast<int>(icon)], title, text);
    }
    Answer Ask(QWidget*, const QString& text, const QString& title, bool offersCancel) override {
        const auto answer = Next(offersCancel ? "yes-no-cancel" : "yes-no", title, text);
        return answer ? *answer == "Yes" ? Answer::Yes : Answer::No : Answer::Cancel;
    }
    std::optional<QString> AskText(QWidget*, const QString& prompt, const QString& title) override {
        return Next("text", title, prompt);
    }
    std::optional<QString> AskOpenFile(QWidget*, const QString& title, const QString& filter,
                                       const QString& folder) override {
        return Next("open", title, filter + " in " + folder);
    }
    std::optional<QString> AskSaveFile(QWidget*, const QString& title, const QString& filter, const QString&) override {
        return Next("save", title, filter);
    }

  private:
    QStringList answers_, told_;

    std::optional<QString> Next(const char* kind, const QString& title, const QString& text) {
        told_ << QStringLiteral("%1 [%2] %3").arg(kind, title, text);
        EXPECT_FALSE(answers_.isEmpty()) << "nobody answers: " << told_.last();
        const QString answer = answers_.isEmpty() ? "Cancel" : answers_.takeFirst();
        return answer == "Cancel" ? std::nullopt : std::optional(answer);
    }
};
