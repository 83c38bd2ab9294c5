#pragma once

#include <string>

struct Bot;
class RuntimeFault;

/// A fault in words for the maker: its name, what it happened to, the file and line or the line that was heard, and why
/// that can't be done. UTF-8, in one line; a long line is shortened, and a login's password put out of sight.
std::string DescribeFault(const RuntimeFault& fault, const Bot& bot);

/// The same for a fault that came about in no bot.
std::string DescribeFault(const RuntimeFault& fault);

/// Whether it was a line of the game that could not be read, so that a line which the network has split may be the
/// reason.
bool MayComeOfASplitLine(const Bot& bot);
