#include "ui/Tools.h"

#include <QProcess>

#include "bot/ProfilePaths.h"
#include "platform/QtHost.h"
#include "ui/ShownText.h"

namespace {

/// For a program that starts in another folder; as the profile has it when there is no such file.
QString CharacterFile(QtHost& host) {
    const Bot& bot = host.bot();
    const auto found = FindProfileFile(bot, bot.profile.characterPath);
    const bool named = !found || FitsCodePage(host.Disk().Absolute(*found));
    return named ? Shown(bot.profile.characterPath) : ShownPath(host.Disk().Absolute(*found));
}

}  // namespace

QString StartTool(QtHost& host, Tool tool) {
    const std::string folder = host.CurrentFolder();
    const bool playerEditor = tool == Tool::PlayerEditor;
    const auto program = host.Disk().Find(JoinPath(folder, playerEditor ? "FurEd.exe" : "config.exe"));
    if (!program) return {};
    // A bare name would be looked for along the search path.
    const QString absolute = ShownPath(host.Disk().Absolute(*program));
    const QStringList arguments = playerEditor ? QStringList{CharacterFile(host)} : QStringList();
    return QProcess::startDetached(absolute, arguments, ShownPath(folder)) ? QString() : absolute;
}
