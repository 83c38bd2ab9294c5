#include "cli/Report.h"

#include "text/Text.h"

std::string DescribeFault(const RuntimeFault& fault, const Bot& bot) {
    std::string text(fault.Name());
    if (!fault.Detail().empty()) text += ": " + fault.Detail();
    if (!bot.place.file.empty()) text += ", at " + bot.place.file + " line " + std::to_string(bot.place.line);
    return text;
}

std::string MissingScript(const std::string& profilePath, const ProfileLoad& load) {
    return profilePath + ": there is no script " + ToUtf8(load.missingScript) + "; the bot runs without one";
}
