#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "text/Text.h"

/// The bot's 8-bit text for a window, and what was typed there for the bot: what its code page lacks becomes "?".
inline QString Shown(std::string_view botText) { return QString::fromStdString(ToUtf8(botText)); }
inline std::string Typed(const QString& text) { return FromUtf8(text.toStdString()); }

/// Paths are UTF-8 inside.
inline QString ShownPath(const std::string& path) { return QString::fromStdString(path); }
inline std::string TypedPath(const QString& path) { return path.toStdString(); }
