#include "net/SendBrake.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kSecondMs = 1000;
}

void SendBrake::SetRate(int linesPerSecond) {
    rate_ = std::clamp(linesPerSecond, 0, kHighestRate);
    tokens_ = Burst();
}

std::string SendBrake::Take(std::string_view bytes, const Place& from, std::int64_t now) {
    if (rate_ == 0 && queue_.empty()) return std::string(bytes);
    Fill(now);
    for (std::size_t end = bytes.find('\n'); !bytes.empty(); end = bytes.find('\n')) {
        const std::string_view line = bytes.substr(0, end == bytes.npos ? end : end + 1);
        queue_.emplace_back(line);
        queuedBytes_ += line.size();
        ++sent_[{from.file, from.line}];
        bytes.remove_prefix(line.size());
    }
    std::string passed = Pass();
    if (!queue_.empty() && !std::exchange(jamTold_, true)) Tell(News::Jam);
    if (queue_.size() > kLongestQueue || queuedBytes_ > kMostQueuedBytes) {
        Clear();
        Tell(News::Emptied);
    }
    return passed;
}

std::string SendBrake::Release(std::int64_t now) {
    Fill(now);
    return Pass();
}

std::optional<std::int64_t> SendBrake::WaitMs(std::int64_t now) const {
    if (queue_.empty()) return std::nullopt;
    if (rate_ == 0) return 0;
    const double due = static_cast<double>(filledAt_) + (1 - tokens_) * kSecondMs / rate_;
    return std::max<std::int64_t>(0, std::llround(std::ceil(due)) - now);
}

void SendBrake::Clear() {
    queue_.clear();
    queuedBytes_ = 0;
}

SendBrake::Report SendBrake::TakeReport() { return std::exchange(report_, {}); }

/// A jam is over, and who has sent most is counted anew, when a whole burst is left.
void SendBrake::Fill(std::int64_t now) {
    tokens_ = std::min(Burst(), tokens_ + static_cast<double>(now - filledAt_) * rate_ / kSecondMs);
    filledAt_ = now;
    if (tokens_ < Burst() || !queue_.empty()) return;
    sent_.clear();
    jamTold_ = false;
}

std::string SendBrake::Pass() {
    std::string passed;
    for (; !queue_.empty() && (rate_ == 0 || tokens_ >= 1); --tokens_) {
        passed += queue_.front();
        queuedBytes_ -= queue_.front().size();
        queue_.pop_front();
    }
    return passed;
}

void SendBrake::Tell(News news) {
    const auto busiest =
        std::max_element(sent_.begin(), sent_.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    report_ = {news, {busiest->first.first, busiest->first.second}};
}
