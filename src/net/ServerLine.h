#pragma once

#include <string>
#include <string_view>

#include "game/Furre.h"

/// A colour code, by which the game tells furres apart where it gives no name, has so many characters.
inline constexpr std::ptrdiff_t kColorsLength = 10;

/// One received line, without its line end. Positions count from 1, as everywhere in this protocol; docs/protocol.md
/// has a table of them for each kind of line, under the names that the readers' constants have.
class ServerLine {
  public:
    explicit ServerLine(std::string_view line) : line_(line) {}

    std::string_view Whole() const { return line_; }
    std::size_t Length() const { return line_.size(); }

    // Tests: a line too short for one simply does not pass it.

    bool HasAt(std::size_t position, std::string_view marker) const {
        return line_.size() >= position - 1 && line_.substr(position - 1).starts_with(marker);
    }

    // Fields: a line too short for one raises RuntimeFault InvalidProcedureCall, as does a negative length.

    std::string_view Text(std::size_t position, std::ptrdiff_t length) const;
    std::string Char(std::size_t position) const { return std::string(Text(position, 1)); }

    /// Looks: the colour code, then one character each for gender, species and markings.
    Appearance LooksAt(std::size_t position) const;

    /// From a position to the end.
    std::string_view RestFrom(std::size_t position) const;

    /// From a position up to the next blank, or to the end when there is none.
    std::string_view WordAt(std::size_t position) const;

    /// What follows the blank behind the word at a position; empty when there is none.
    std::string_view BehindWordAt(std::size_t position) const;

    /// What follows the last blank; the whole line when there is none.
    std::string_view LastWord() const { return line_.substr(line_.rfind(' ') + 1); }

  private:
    std::string_view line_;
};

/// The text without its last characters.
/// @throws RuntimeFault InvalidProcedureCall, when it has fewer
std::string_view WithoutLast(std::string_view text, std::size_t count);

/// The characters from one index up to another, as found by searching: counted from 0, npos when not found.
/// @throws RuntimeFault InvalidProcedureCall, when one was not found or they stand the wrong way round
std::string_view CutBetween(std::string_view text, std::size_t begin, std::size_t end);
