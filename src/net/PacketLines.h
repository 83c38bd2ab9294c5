#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Cuts what arrives on a socket into lines. The protocol reader takes a packet as a whole: what follows the last
/// line feed of a packet is dropped, unless it is to be kept for the next one. Carriage returns stay.
class PacketLines {
  public:
    void KeepSplitLines(bool keep) { keep_ = keep; }

    /// The ended lines of a packet, without their line feeds.
    std::vector<std::string> Take(std::string_view packet);

    /// Forgets what was kept; for a new connection.
    void Clear() { kept_.clear(); }

  private:
    /// No line of the game comes near this; more without a line feed is not worth keeping.
    static constexpr std::size_t kLongestLine = std::size_t{64} * 1024;

    bool keep_ = false;
    std::string kept_;
};
