#include "ui/LanguageMenu.h"

#include <QActionGroup>

#include "ui/Options.h"

LanguageMenu::LanguageMenu(Options& options, QWidget* parent) : QMenu(tr("&Language"), parent) {
    setObjectName("mnuLanguage");
    auto* const group = new QActionGroup(this);
    // Each language by its own name; the empty code is the desktop's language.
    AddLanguage(options, *group, "", tr("&The desktop's"));
    AddLanguage(options, *group, "en", "&English");
    AddLanguage(options, *group, "de", "&Deutsch");
}

void LanguageMenu::AddLanguage(Options& options, QActionGroup& group, const QString& code, const QString& name) {
    QAction* const action = group.addAction(name);
    action->setCheckable(true);
    action->setChecked(options.Get(option::kLanguage) == code);
    addAction(action);
    connect(action, &QAction::triggered, this, [this, &options, code] {
        options.Set(option::kLanguage, code);
        emit Chosen();
    });
}
