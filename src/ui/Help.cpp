#include "ui/Help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

/// Where the guide and the reference lie: installed, beside the source, or else with whoever gave the program away.
QString DocumentsFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* const place : {"../share/doc/tandry-vorel/docs", "../../docs"}) {
        if (const QFileInfo folder(program.filePath(place)); folder.isDir()) return folder.canonicalFilePath();
    }
    return "docs";
}

}  // namespace

QString HelpText(const QString& folder) {
    return QCoreApplication::translate(
               "Help",
               "How to make a bot is told in guide.md, and every command in language.md, both in %1. Other makers are "
               "glad to help in the game's own bot-making dreams.\n\nSettings and data files are kept in %2.")
        .arg(DocumentsFolder(), folder);
}
