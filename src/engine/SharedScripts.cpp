#include "engine/SharedScripts.h"

#include <map>
#include <utility>

#include "engine/Script.h"

std::shared_ptr<const Script> SharedScript(std::string text, const std::string& file) {
    // By file only: of a file that has changed, the newest text is the one that further bots will take up.
    static std::map<std::string, std::weak_ptr<const Script>> scripts;
    std::erase_if(scripts, [](const auto& entry) { return entry.second.expired(); });
    std::weak_ptr<const Script>& shared = scripts[file];
    std::shared_ptr<const Script> script = shared.lock();
    if (!script || script->Text() != text) shared = script = std::make_shared<const Script>(std::move(text), file);
    return script;
}
