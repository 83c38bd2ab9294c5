#include "cli/Report.h"

#include <algorithm>

#include "net/Passwords.h"
#include "text/Text.h"

std::string DescribeFault(const RuntimeFault& fault, const Bot& bot) {
    std::string text(fault.Name());
    if (!fault.Detail().empty()) text += ": " + fault.Detail();
    if (!bot.place.file.empty()) text += ", at " + bot.place.file;
    if (bot.place.line > 0) text += " line " + std::to_string(bot.place.line);
    return WithoutPasswords(bot, text);
}

std::string MissingScript(const std::string& profilePath, const ProfileLoad& load) {
    return profilePath + ": there is no script " + ToUtf8(load.missingScript) + "; the bot runs without one";
}

std::string Printable(std::string_view text) {
    std::string printable(text);
    const auto isControl = [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F; };
    std::replace_if(printable.begin(), printable.end(), isControl, ' ');
    return ToUtf8(printable);
}
