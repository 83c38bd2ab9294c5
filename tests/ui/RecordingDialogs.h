#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <ostream>
#include <utility>

#include "ui/Dialogs.h"

inline std::ostream& operator<<(std::ostream& out, const QString& text) { return out << text.toStdString(); }

/// Stands in for the user: notes what was asked, "kind [title] text", and gives the answers that were laid out. A
/// question without an answer fails the test.
class RecordingDialogs final : public Dialogs {
  public:
    std::deque<Answer> answers;
    std::deque<std::optional<QString>> texts;  ///< typed texts and chosen files

    /// What was told and asked since the last call.
    QStringList Take() { return std::exchange(told_, {}); }

    void ShowMessage(QWidget*, const QString& text, const QString& title, Icon icon) override {
        constexpr const char* kKinds[] = {"message", "information", "critical"};
        Note(kKinds[static_cast<int>(icon)], title, text);
    }
    Answer Ask(QWidget*, const QString& text, const QString& title, bool offersCancel) override {
        Note(offersCancel ? "yes-no-cancel" : "yes-no", title, text);
        return Next(answers, Answer::Cancel);
    }
    std::optional<QString> AskText(QWidget*, const QString& prompt, const QString& title) override {
        Note("text", title, prompt);
        return Next(texts, {});
    }
    std::optional<QString> AskOpenFile(QWidget*, const QString& title, const QString& filter,
                                       const QString& folder) override {
        Note("open", title, filter + " in " + folder);
        return Next(texts, {});
    }
    std::optional<QString> AskSaveFile(QWidget*, const QString& title, const QString& filter, const QString&) override {
        Note("save", title, filter);
        return Next(texts, {});
    }

  private:
    QStringList told_;

    void Note(const char* kind, const QString& title, const QString& text) {
        told_ << QStringLiteral("%1 [%2] %3").arg(kind, title, text);
    }
    template <typename Value>
    Value Next(std::deque<Value>& from, Value without) {
        if (from.empty()) ADD_FAILURE() << "nobody answers: " << told_.last();
        if (from.empty()) return without;
        Value value = std::move(from.front());
        from.pop_front();
        return value;
    }
};
