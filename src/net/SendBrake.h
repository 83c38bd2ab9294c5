#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "bot/Bot.h"

/// Keeps what a script sends to so many lines a second. A burst of ten times as many passes at once; what is more
/// waits in order. It knows no clock: every call is told the time, in milliseconds from any beginning.
class SendBrake {
  public:
    static constexpr int kUsualRate = 20, kHighestRate = 1000;
    /// More lines than so many, or more bytes, don't wait: they would be answers to what nobody remembers.
    static constexpr std::size_t kLongestQueue = 1000, kMostQueuedBytes = std::size_t{1024} * 1024;

    /// @param linesPerSecond  0 for no brake
    void SetRate(int linesPerSecond);

    /// Takes what the script sends, each line with its line feed.
    /// @param from  the script's line that sends it
    /// @return what may go at once
    std::string Take(std::string_view bytes, const Place& from, std::int64_t now);

    /// @return what may go by now of what waits
    std::string Release(std::int64_t now);

    /// @return how long until something may go that waits; nothing when nothing waits
    std::optional<std::int64_t> WaitMs(std::int64_t now) const;

    /// Drops what waits.
    void Clear();

    /// What is to be told since the last call, once a jam, and who has sent most in it.
    enum class News { None, Jam, Emptied };
    struct Report {
        News news = News::None;
        Place busiest;
    };
    Report TakeReport();

  private:
    using Sender = std::pair<std::string, std::size_t>;  ///< file and line

    static constexpr int kBurstSeconds = 10;

    int rate_ = kUsualRate;
    double tokens_ = kUsualRate * kBurstSeconds;  ///< so many lines may go at once
    std::int64_t filledAt_ = 0;
    std::deque<std::string> queue_;
    std::size_t queuedBytes_ = 0;
    std::map<Sender, std::size_t> sent_;  ///< how many lines by each since a whole burst was left the last time
    bool jamTold_ = false;
    Report report_;

    double Burst() const { return static_cast<double>(rate_) * kBurstSeconds; }
    void Fill(std::int64_t now);
    std::string Pass();
    void Tell(News news);
};
