#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

/// Lines of a script, counted from 0, in rising order.
using LineNumbers = std::vector<std::size_t>;

/// The lines at which a walk may have something to do, put together of lists that the script keeps.
class Stops {
  public:
    void Clear() {
        count_ = 0;
        merged_.clear();
        isMerged_ = false;
    }

    /// @param lines  stay as they are for as long as they are asked for
    void Add(const LineNumbers& lines) {
        if (lines.empty()) return;
        if (count_ < few_.size()) {
            few_[count_++] = {lines.data(), lines.data() + lines.size()};
        } else {
            merged_.insert(merged_.end(), lines.begin(), lines.end());
        }
    }

    /// The first of the lines at or after one, which is never smaller than the time before; the highest number there is
    /// when there is none.
    std::size_t NextFrom(std::size_t line) {
        std::size_t next = std::numeric_limits<std::size_t>::max();
        const auto consider = [&](Rest& rest) {
            if (rest.next != rest.end && *rest.next < line) rest.next = std::lower_bound(rest.next, rest.end, line);
            if (rest.next != rest.end) next = std::min(next, *rest.next);
        };
        for (std::size_t i = 0; i < count_; ++i) consider(few_[i]);
        if (!std::exchange(isMerged_, true)) std::sort(merged_.begin(), merged_.end());
        const auto found = std::lower_bound(merged_.begin(), merged_.end(), line);
        return found == merged_.end() ? next : std::min(next, *found);
    }

    /// What finding the lines has cost the last time that it was done closely: so many looks at something, roughly.
    void BeginEffort() { effort_ = 1; }
    void CountEffort(std::size_t looks) { effort_ += looks; }
    std::size_t Effort() const { return effort_; }

  private:
    struct Rest {
        const std::size_t *next, *end;
    };
    // Nearly always there are a few lists, for which no memory is to be taken: this is done for every line of the game.
    std::array<Rest, 12> few_;
    std::size_t count_ = 0, effort_ = 0;
    LineNumbers merged_;  ///< of all further lists
    bool isMerged_ = false;
};
