// Saves one kind of file as the program with windows does, with nobody there, and says what the user is told:
//
//   tvorel_saves KIND FOLDER FILE     FOLDER holds program/ and bot/bot.tvm; FILE is where the save goes, if asked for
//   tvorel_saves start FOLDER         only starts with the bot, and ends
//
// It leaves with 1 when something was told. System calls are let fail only while it saves; see Inject.cpp.

#include <dlfcn.h>

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <iostream>
#include <map>

#include "engine/Script.h"
#include "ui/ConsoleView.h"
#include "ui/Dialogs.h"
#include "ui/ProgramFolder.h"
#include "ui/ShownText.h"
#include "ui/UpdateCheck.h"
#include "ui/frmGS.h"
#include "ui/frmVorel.h"

namespace {

constexpr int kManyLines = 1000;  // of text: more than a page of memory, less than what is told apart by buffers

/// A user who saves where it was decided before, and takes nothing back.
class Somebody final : public Dialogs {
  public:
    QString file, told;

    void Tell(const QString& text) { told += text + "\n"; }
    void ShowMessage(QWidget*, const QString& text, const QString&, Icon) override { Tell(text); }
    Answer Ask(QWidget*, const QString&, const QString&, bool) override { return Answer::No; }
    std::optional<QString> AskText(QWidget*, const QString&, const QString&) override { return std::nullopt; }
    std::optional<QString> AskOpenFile(QWidget*, const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::optional<QString> AskSaveFile(QWidget*, const QString&, const QString&, const QString&) override {
        return file;
    }
};

/// System calls fail while it is alive.
class Armed {
  public:
    Armed() { Arm(true); }
    ~Armed() { Arm(false); }
    Armed(const Armed&) = delete;
    Armed& operator=(const Armed&) = delete;

  private:
    static void Arm(bool armed) {
        using Switch = void (*)(bool);
        if (const auto arm = reinterpret_cast<Switch>(dlsym(RTLD_DEFAULT, "TvorelArmFaults"))) arm(armed);
    }
};

struct Desk {
    Somebody& user;
    const QString folder, program = folder + "/program";
    frmVorel window{user, program};

    Bot& bot() { return window.host().bot(); }

    void Choose(QObject& form, const char* item) const {
        const Armed armed;
        form.findChild<QAction*>(item)->trigger();
    }
    void Type() { window.editor().RestoreText(window.editor().Path(), kNewScript + std::string(kManyLines * 20, 'x')); }

    /// What stands in the console, but for the lines that were put there.
    QString Console() {
        auto& lines = window.findChild<ConsoleView*>("lstView")->Lines();
        lines.Flush();
        return lines.AllText().remove(QRegularExpression("^line .*\n", QRegularExpression::MultilineOption));
    }
};

void SaveProfile(Desk& desk) {
    desk.bot().profile.owners = "Eve";
    desk.Choose(desk.window, "mnuSaveAs");
}

void SaveScript(Desk& desk) {
    desk.Type();
    desk.Choose(desk.window.editor(), "mnuSaveAs");
}

void SaveSettings(Desk& desk) {
    const Armed armed;
    desk.window.close();
}

void SaveOptions(Desk& desk) { desk.Choose(desk.window, "mnuMonospaced"); }

void KeepUnsaved(Desk& desk) {
    const Armed armed;
    QMetaObject::invokeMethod(desk.window.findChild<QTimer*>("tmrKeepUnsaved"), "timeout");
}

void KeepUnsavedScript(Desk& desk) {
    desk.Type();
    KeepUnsaved(desk);
}

void KeepUnsavedProfile(Desk& desk) {
    desk.bot().profile.owners = "Eve";
    desk.bot().profile.dirty = true;
    KeepUnsaved(desk);
}

void WriteProxy(Desk& desk) {
    desk.bot().profile.connectClient = 1;
    desk.bot().profile.clientPath = Typed(desk.folder + "/client/client");
    const Armed armed;
    desk.window.host().RunHandler([&] { desk.window.host().Connect(); });
}

void SaveConsole(Desk& desk) {
    for (int line = 0; line < kManyLines; ++line) desk.window.ShowConsoleLine("line " + std::to_string(line));
    desk.Choose(desk.window, "mnuSaveConsole");
}

void FetchArchive(Desk& desk) {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server] {
        QTcpSocket* const socket = server.nextPendingConnection();
        // In one piece, so that it is written by the same calls each time.
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            socket->readAll();
            const QByteArray archive(kManyLines * 10, 'z');
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(archive.size()) + "\r\n\r\n" +
                          archive);
        });
    });
    const Armed armed;  // until the archive is let go of
    UpdateCheck check(QUrl(QString("http://127.0.0.1:%1").arg(server.serverPort())));
    QEventLoop done;
    bool isDone = false;
    QObject::connect(&check, &UpdateCheck::ArchiveDone, &done, [&](const QString& why) {
        if (!why.isEmpty()) desk.user.Tell(why);
        isDone = true;
        done.quit();
    });
    check.FetchArchive(desk.user.file);
    if (!isDone) done.exec();
}

void WriteCommandList(Desk& desk) {
    const Armed armed;
    if (const std::string why = ProvideCommandList(desk.program); !why.empty()) desk.user.Tell(ShownPath(why));
}

const std::map<std::string, void (*)(Desk&)> kSaves = {
    {"profile", SaveProfile},
    {"script", SaveScript},
    {"settings", SaveSettings},
    {"options", SaveOptions},
    {"unsaved-script", KeepUnsavedScript},
    {"unsaved-profile", KeepUnsavedProfile},
    {"proxy.ini", WriteProxy},
    {"console", SaveConsole},
    {"archive", FetchArchive},
    {"command-list", WriteCommandList},
    {"start", [](Desk&) {}},
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc < 3 || !kSaves.contains(argv[1])) return 2;
    Somebody user;
    if (argc > 3) user.file = argv[3];
    {
        Desk desk{user, argv[2]};
        desk.window.Start({TypedPath(desk.folder + "/bot/bot.tvm")});
        kSaves.at(argv[1])(desk);
        user.told += desk.Console();
    }
    std::cerr << user.told.toStdString();
    return user.told.isEmpty() ? 0 : 1;
}
