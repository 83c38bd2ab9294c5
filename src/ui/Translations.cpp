#include "ui/Translations.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

void LoadTranslations(QApplication& application, const QString& language) {
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    const auto load = [&](const QString& file, const QString& place) {
        auto* const translator = new QTranslator(&application);
        if (translator->load(locale, file, "_", place)) QApplication::installTranslator(translator);
    };
    load("qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load("tvorel", ":/i18n");  // last, and so the first to be asked
}
