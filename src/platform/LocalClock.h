#pragma once

#include <QString>
#include <string>

#include "bot/Host.h"

// The computer's clock, and how its user writes what it shows.

LocalTime LocalNow();

/// A text of the system's as Windows-1252. Locales write some blanks as characters that it lacks; they become ordinary
/// ones.
std::string ToBotText(QString text);

std::string LocalShortDate(const LocalTime& time);
std::string LocalLongTime(const LocalTime& time);
