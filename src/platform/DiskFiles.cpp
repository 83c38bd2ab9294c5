#include "platform/DiskFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/WholeFile.h"

namespace {
QString FromPath(const std::string& path) { return QString::fromStdString(path); }
}  // namespace

Outcome<std::string> DiskFiles::Read(const std::string& path) const {
    QFile file(FromPath(path));
    if (!file.exists()) return RuntimeFault(FaultKind::FileNotFound, path);
    if (!file.open(QIODevice::ReadOnly)) return RuntimeFault(FaultKind::PathOrFileAccess, path);
    const QByteArray bytes = file.readAll();  // of what went wrong halfway it gives what was read before
    if (file.error() != QFileDevice::NoError) return RuntimeFault(FaultKind::PathOrFileAccess, path);
    return bytes.toStdString();
}

Outcome<Done> DiskFiles::Write(const std::string& path, std::string_view bytes) {
    WholeFile file(path);
    file.Append(bytes);
    return file.Commit();
}

std::optional<std::string> DiskFiles::Find(const std::string& path) const {
    const QFileInfo wanted(FromPath(path));
    if (wanted.isFile()) return path;
    if (wanted.fileName().isEmpty()) return std::nullopt;
    const QDir folder = wanted.dir();
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.compare(wanted.fileName(), Qt::CaseInsensitive) != 0) continue;
        return JoinPath(FolderOf(path), name.toStdString());
    }
    return std::nullopt;
}

std::string DiskFiles::Absolute(const std::string& path) const {
    return QFileInfo(FromPath(path)).absoluteFilePath().toStdString();
}
