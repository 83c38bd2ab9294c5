#include "ui/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "language/Commands.h"
#include "platform/DiskFiles.h"
#include "ui/CommandList.h"

namespace {

constexpr char kOwnFolder[] = "tvorel.own";

Outcome<std::string> InstalledCommandList(const Files& disk) {
    const QDir beside(QCoreApplication::applicationDirPath());
    for (const QString& place : {beside.filePath("../share/tvorel"), beside.filePath("../../share")}) {
        if (const auto list = disk.Find(QDir(place).filePath(kCommandList).toStdString())) return disk.Read(*list);
    }
    return CommandListFile();
}

}  // namespace

QString FindProgramFolder() {
    QString beside = QCoreApplication::applicationDirPath();
    // Root can write below /usr, but nobody's profile belongs there.
    if (QFileInfo(beside).isWritable() && !beside.startsWith("/usr")) return beside;
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return folder;
}

QString OwnFolder(const QString& programFolder) {
    // Where it can't be made, writing into it says so.
    QDir(programFolder).mkdir(kOwnFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QDir(programFolder).filePath(kOwnFolder);
}

QString OptionsFile(const QString& programFolder) { return QDir(OwnFolder(programFolder)).filePath("options.json"); }

std::string ProvideCommandList(const QString& programFolder) {
    DiskFiles disk;
    const std::string list = QDir(programFolder).filePath(kCommandList).toStdString();
    if (disk.Find(list)) return {};
    const auto installed = InstalledCommandList(disk);
    const auto written = installed ? disk.Write(list, *installed) : installed.Fault();
    return written ? std::string() : written.Fault().Detail();
}
