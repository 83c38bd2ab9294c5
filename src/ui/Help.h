#pragma once

#include <QString>

/// Where to find help, and where the program keeps its files.
/// @param folder  the program's own
QString HelpText(const QString& folder);
