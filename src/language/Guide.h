#pragma once

#include <string_view>

/// The part of the language reference that is not made from the tables: how scripts are written and run. Markdown.
std::string_view LanguageGuide();
