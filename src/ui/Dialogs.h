#pragma once

#include <QString>
#include <optional>

class QWidget;

/// What a form asks or tells the user in windows of its own. Forms go through this, so that their doing can be tested
/// without anybody there to answer.
class Dialogs {
  public:
    enum class Icon { None, Information, Critical };
    enum class Answer { Yes, No, Cancel };

    virtual ~Dialogs() = default;

    virtual void ShowMessage(QWidget* parent, const QString& text, const QString& title, Icon icon = Icon::None) = 0;

    /// Asks with Yes and No, and with Cancel too when that is offered; otherwise one of the two must be chosen.
    virtual Answer Ask(QWidget* parent, const QString& text, const QString& title, bool offersCancel = false) = 0;

    /// @return what was typed; nothing when cancelled
    virtual std::optional<QString> AskText(QWidget* parent, const QString& prompt, const QString& title) = 0;

    /// @param filter  such as "VorelSpeak Script (*.vs) | *.vs": a description, "|", and the patterns
    /// @return the chosen path; nothing when cancelled
    virtual std::optional<QString> AskOpenFile(QWidget* parent, const QString& title, const QString& filter,
                                               const QString& folder) = 0;
    virtual std::optional<QString> AskSaveFile(QWidget* parent, const QString& title, const QString& filter,
                                               const QString& folder) = 0;
};

/// Asks where to save. A name without the extension gets it; when only that leads to a file that exists, the user is
/// asked whether it may be replaced, as for other files the window for choosing does.
/// @return the path with its extension; nothing when cancelled
std::optional<QString> AskSaveName(Dialogs& dialogs, QWidget* parent, const QString& title, const QString& filter,
                                   const QString& folder, const QString& extension);

/// The real ones.
class QtDialogs final : public Dialogs {
  public:
    void ShowMessage(QWidget* parent, const QString& text, const QString& title, Icon icon) override;
    Answer Ask(QWidget* parent, const QString& text, const QString& title, bool offersCancel) override;
    std::optional<QString> AskText(QWidget* parent, const QString& prompt, const QString& title) override;
    std::optional<QString> AskOpenFile(QWidget* parent, const QString& title, const QString& filter,
                                       const QString& folder) override;
    std::optional<QString> AskSaveFile(QWidget* parent, const QString& title, const QString& filter,
                                       const QString& folder) override;
};
