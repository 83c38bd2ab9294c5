#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The lines of what is written in one piece, without their line feeds; what follows the last one counts only when
/// there is something.
std::vector<std::string> WrittenLines(std::string_view bytes);

/// Cuts what arrives on a socket into lines. The protocol reader takes a packet as a whole. Kept on purpose: what
/// follows the last line feed of a packet is dropped, unless it is to be kept for the next one (`--keep-split-lines`).
/// Carriage returns stay.
class PacketLines {
  public:
    /// No line of the game comes near this: a longer one is nobody's command, and is dropped up to its line feed.
    static constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;

    void KeepSplitLines(bool keep) { keep_ = keep; }

    /// The ended lines of a packet, without their line feeds: views of the packet or, when its first line began in
    /// the one before, of the room.
    /// @param goesOn  more of this packet is already there and comes with the next call, so that its end is no end
    std::vector<std::string_view> Take(std::string_view packet, bool goesOn, std::string& room);

    /// How many lines were dropped for their length since the last call.
    std::size_t TakeDropped() { return std::exchange(dropped_, 0); }

    /// What was kept of a line that has not ended, when nothing comes any more.
    std::string TakeRest() { return std::exchange(kept_, {}); }

    /// Forgets what was kept; for a new connection.
    void Clear();

  private:
    bool keep_ = false;
    bool skips_ = false;  ///< up to the end of a line that is too long
    std::size_t dropped_ = 0;
    std::string kept_;
};
