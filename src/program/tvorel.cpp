#include <QApplication>
#include <QCommandLineParser>
#include <csignal>

#include "Version.h"
#include "platform/CoreDumps.h"
#include "platform/Guarded.h"
#include "ui/Dialogs.h"
#include "ui/Options.h"
#include "ui/ProgramFolder.h"
#include "ui/ShownText.h"
#include "ui/Translations.h"
#include "ui/frmVorel.h"

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a fault like a full disk, and told like one
    TurnOffCoreDumps();
    Guarded<QApplication> application(argc, argv);
    QApplication::setApplicationName("tvorel");
    QApplication::setApplicationVersion(kProductVersion);
    QApplication::setDesktopFileName("org.tandryvorel.tvorel");
    QApplication::setQuitOnLastWindowClosed(false);  // hidden behind its icon the bot goes on

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

    const QString folder = FindProgramFolder();
    // Before the first widget, which takes its texts as it is made.
    LoadTranslations(application, Options(OptionsFile(folder)).Get(option::kLanguage));
    const std::string noCommandList = ProvideCommandList(folder);
    QtDialogs dialogs;
    frmVorel window(dialogs, folder);
    const auto endWith = [&](const std::exception& exception) { window.host().EndWith(exception); };
    application.OnException(endWith);
    try {
        window.Start(documents, arguments.isSet(practice));
    } catch (const std::exception& exception) {
        endWith(exception);
    }
    window.show();
    if (!noCommandList.empty())
        window.AnnounceTrouble(
            frmVorel::tr("The list of commands can't be written, so the script editor shows none: %1")
                .arg(ShownPath(noCommandList)));
    return QApplication::exec();
}
