#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "Version.h"
#include "language/Commands.h"
#include "ui/CommandList.h"
#include "ui/Dialogs.h"
#include "ui/Options.h"
#include "ui/ShownText.h"
#include "ui/Translations.h"
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

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("tvorel");
    QApplication::setApplicationVersion(kProductVersion);
    QApplication::setDesktopFileName("org.tandryvorel.tvorel");
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser arguments;
    arguments.setApplicationDescription("Makes bots for the online game Furcadia.");
    const QCommandLineOption practice("practice", "Connect to the practice dream on this computer at once.");
    arguments.addOption(practice);
    arguments.addPositionalArgument("document", "Profiles (.tvm) and scripts (.vs) to open.", "[document...]");
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.process(application);
    std::vector<std::string> documents;
    for (const QString& document : arguments.positionalArguments()) documents.push_back(TypedPath(document));

    const QString folder = ProgramFolder();
    ProvideCommandList(folder);
    LoadTranslations(application, Options(QDir(folder).filePath("tvorel-options.ini")).Language());
    QtDialogs dialogs;
    frmVorel window(dialogs, folder);
    window.Start(documents, arguments.isSet(practice));
    window.show();
    return QApplication::exec();
}
