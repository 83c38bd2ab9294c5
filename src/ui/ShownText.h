#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "text/Fault.h"
#include "text/Text.h"

/// The bot's 8-bit text for a window, and what was typed there for the bot: what its code page lacks becomes "?".
inline QString Shown(std::string_view botText) { return QString::fromStdString(ToUtf8(botText)); }
inline std::string Typed(const QString& text) { return FromUtf8(text.toStdString()); }

/// Paths are UTF-8 inside.
inline QString ShownPath(const std::string& path) { return QString::fromStdString(path); }
inline std::string TypedPath(const QString& path) { return path.toStdString(); }

/// Tells the user why a profile can't name a file, and what to do.
/// @param path  of the file, UTF-8
QString WhyNotNamed(const std::string& path);

/// A fault by its name, and what it happened to and why, where that is known.
inline QString ShownFault(const RuntimeFault& fault) {
    const QString name = QString::fromStdString(std::string(fault.Name()));
    return fault.Detail().empty() ? name : name + ": " + ShownPath(fault.Detail());
}
