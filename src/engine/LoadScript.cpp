#include "engine/LoadScript.h"

#include "bot/Bot.h"
#include "bot/Files.h"
#include "bot/Host.h"
#include "engine/Dispatcher.h"
#include "engine/FileRemarks.h"
#include "engine/Script.h"
#include "engine/SharedScripts.h"

std::optional<std::string> LoadScript(Bot& bot, const std::string& path) {
    const std::string bytes = ValueOrFault(bot.host.Disk().Read(path));
    bot.script = SharedScript(ScriptTextFromFile(bytes), path);
    RunScript(bot, EventScriptLoaded);
    return FileRemark(FileKind::Script, path, bytes);
}
