#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTranslator>

#include "Version.h"
#include "language/Commands.h"
#include "ui/CommandList.h"
#include "ui/Dialogs.h"
#include "ui/Options.h"
#include "ui/ShownText.h"
#include "ui/frmVorel.h"

namespace {

/// The program's own folder: that of the executable when it can be written, so that a copy on a stick keeps its things
/// together; otherwise the user's data folder for the program.
QString ProgramFolder() {
    QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside).isWritable() && !beside.startsWith("/usr")) return beside;
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return folder;
}

/// The command list is looked for in the program's folder; where it is missing, the installed one is put there, and
/// where that is missing too, the one that the program was built with.
void ProvideCommandList(const QString& folder) {
    const QString list = QDir(folder).filePath(kCommandList);
    if (QFileInfo::exists(list)) return;
    const QDir beside(QCoreApplication::applicationDirPath());
    for (const QString& place : {beside.filePath("../share/tvorel"), beside.filePath("../../share")}) {
        if (QFile::copy(QDir(place).filePath(kCommandList), list)) return;
    }
    QSaveFile file(list);
    if (file.open(QIODevice::WriteOnly) && file.write(QByteArray::fromStdString(CommandListFile())) > 0) file.commit();
}

/// Texts in the language that was chosen, or else in the desktop's, as far as there is a translation.
void LoadTranslations(QApplication& application, const QString& folder) {
    const QString chosen = Options(QDir(folder).filePath("tvorel-options.ini")).Language();
    const QLocale locale = chosen.isEmpty() ? QLocale::system() : QLocale(chosen);
    const auto load = [&](const QString& file, const QString& place) {
        auto* const translator = new QTranslator(&application);
        if (translator->load(locale, file, "_", place)) QApplication::installTranslator(translator);
    };
    load("qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load("tvorel", ":/i18n");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("tvorel");
    QApplication::setApplicationVersion(kProductVersion);
    QApplication::setDesktopFileName("org.tandryvorel.tvorel");
    QApplication::setQuitOnLastWindowClosed(false);

    const QString folder = ProgramFolder();
    ProvideCommandList(folder);
    LoadTranslations(application, folder);
    QtDialogs dialogs;
    frmVorel window(dialogs, folder);
    window.Start();
    window.show();
    for (const QString& document : QApplication::arguments().mid(1)) window.OpenDocument(TypedPath(document));
    return QApplication::exec();
}
