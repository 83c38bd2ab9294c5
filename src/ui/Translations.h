#pragma once

#include <QString>

class QApplication;

/// Gives the application its texts in a language, as far as there is a translation: its own from ":/i18n", Qt's from
/// where Qt is installed.
/// @param language  such as "de"; when empty, the desktop's
void LoadTranslations(QApplication& application, const QString& language);
