#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text inside the core is std::string in Windows-1252, the game's 8-bit code page: one character, one byte.
/// Paths are the one exception: they are UTF-8, as the file system has them (see ToUtf8).

/// Case follows the code page: "é" and "É" are a pair, "ß" has no capital.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);

/// Without the blanks (spaces only) at both ends.
std::string_view Trim(std::string_view text);

/// Every occurrence of what, left to right, replaced by with. An empty what replaces nothing.
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

/// The pieces between the separators: one more than there are separators, each possibly empty.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

std::string Join(const std::vector<std::string>& pieces, std::string_view separator);

/// In furre names "|" stands for a blank.
std::string BarsToBlanks(std::string_view text);
std::string BlanksToBars(std::string_view text);

/// Lines of a file: each ends at CR LF or at a lone LF (files from other editors); a lone CR is an ordinary
/// character. A last line without an end counts; an empty text has no lines.
std::vector<std::string> FileLines(std::string_view text);

/// The lines with CR LF behind each.
std::string JoinFileLines(const std::vector<std::string>& lines);

/// Windows-1252 to UTF-8, for windows, terminals and paths. Codes without a character there become U+FFFD.
std::string ToUtf8(std::string_view text);

/// UTF-8 to Windows-1252; what the code page lacks, and bytes that are no UTF-8, become "?".
std::string FromUtf8(std::string_view utf8);

/// Whether UTF-8 text survives the way to Windows-1252 and back.
bool FitsCodePage(std::string_view utf8);

/// Whether bytes are UTF-8 with at least one character beyond ASCII. Windows-1252 hardly ever looks like it.
bool HoldsUtf8(std::string_view bytes);
