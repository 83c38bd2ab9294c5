#pragma once

#include <QString>
#include <string>

/// Tells the user why a profile can't name a file, and what to do.
/// @param path  of the file, UTF-8
QString WhyNotNamed(const std::string& path);
