#include "ui/ScriptFile.h"

#include "bot/ProfilePaths.h"
#include "engine/Script.h"
#include "platform/QtHost.h"
#include "platform/WholeFile.h"
#include "profile/ProfileFile.h"
#include "text/Text.h"

void ScriptFile::Forget() {
    path_.clear();
    unnamed_ = false;
}

void ScriptFile::TakeBotScript() {
    const std::string& file = host_.bot().script->File();
    unnamed_ = false;
    // For keeping: the next start may be from another folder.
    path_ = file.empty() ? std::string() : host_.Disk().Absolute(file);
    if (!path_.empty()) ClearUnfinished(FolderOf(path_));
}

Outcome<std::string> ScriptFile::Read(const std::string& path) {
    const auto bytes = host_.Disk().Read(path);
    if (!bytes) return bytes.Fault();
    path_ = host_.Disk().Absolute(path);
    ClearUnfinished(FolderOf(path_));
    return ScriptTextFromFile(*bytes);
}

Outcome<Done> ScriptFile::Write(const std::string& path, const std::string& script) {
    const std::string file = WithExtension(path, kScriptExtension);
    auto written = host_.Disk().Write(file, ScriptTextToFile(script));
    if (written) path_ = file;
    return written;
}

ScriptFile::Naming ScriptFile::NameInProfile() {
    Bot& bot = host_.bot();
    const std::string path = host_.Disk().Absolute(path_);
    unnamed_ = false;
    const auto named = FindProfileFile(bot, bot.profile.scriptPath);
    if (named && host_.Disk().Absolute(*named) == path) return Naming::AsBefore;
    const auto name = ::NameInProfile(bot.profile.path, FitsCodePage(path_) ? path_ : path);
    unnamed_ = !name;
    if (unnamed_) return Naming::Impossible;
    bot.profile.scriptPath = *name;
    return Naming::Anew;
}

void ScriptFile::NameFrom(const std::string& profile) {
    if (!unnamed_) return;
    const auto name = ::NameInProfile(profile, host_.Disk().Absolute(path_));
    if (name) host_.bot().profile.scriptPath = *name;
    unnamed_ = !name;
}
