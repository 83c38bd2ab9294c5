#pragma once

#include <string>

/// The language reference, docs/language.md: how scripts are written and run, all variables, events and commands.
/// Markdown in UTF-8, lines end with LF.
std::string LanguageReference();
