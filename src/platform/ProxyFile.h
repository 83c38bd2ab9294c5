#pragma once

#include <string>
#include <string_view>

#include "bot/Files.h"

/// The small file that tells the game's client where to connect, for as long as a session needs it. A file of the
/// user's that stands in its place is kept beside it, and put back as it was; after a crash the next session does so.
/// Bots that share the client's folder leave each other's alone.
class ProxyFile {
  public:
    explicit ProxyFile(Files& disk) : disk_(disk) {}
    ~ProxyFile() { TakeAway(); }
    ProxyFile(const ProxyFile&) = delete;
    ProxyFile& operator=(const ProxyFile&) = delete;

    /// @param path  UTF-8
    /// @throws RuntimeFault PathOrFileAccess
    void Write(const std::string& path, std::string_view text);

    /// Takes it away, if it is still this bot's; nothing happens when there is none.
    void TakeAway();

  private:
    Files& disk_;
    std::string path_, text_;  ///< what this bot has written, and where; empty when nothing

    std::string Kept() const { return path_ + ".kept-by-vorel"; }       ///< the user's file, while ours is there
    std::string Marker() const { return path_ + ".written-by-vorel"; }  ///< what was written last, by any bot
    void KeepUsersFile();
};
