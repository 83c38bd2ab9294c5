#pragma once

#include <QMenu>

class Options;

/// The menu "Language": keeps the chosen one in the options, for the next start.
class LanguageMenu final : public QMenu {
    Q_OBJECT

  public:
    LanguageMenu(Options& options, QWidget* parent);

  signals:
    void Chosen();

  private:
    void AddLanguage(Options& options, QActionGroup& group, const QString& code, const QString& name);
};
