#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/Stops.h"
#include "game/Compare.h"

/// Many short texts, each with the lines of a script that wait for a longer text to hold it, loosely. All that one
/// holds are found in one go over it: each short text is filed under four characters of its own which few of the others
/// have (or all it has), and looked at only where these four stand.
class HeldTexts {
  public:
    /// @param texts  folded, none of them empty
    explicit HeldTexts(std::vector<std::pair<std::string, LineNumbers>> texts);

    /// Calls found(lines) for each of the texts that a text holds.
    template <typename Found>
    void FindIn(std::string_view text, Found found) const {
        std::vector<bool> isFound;  // takes memory for the first one only
        for (const std::size_t length : lengths_) {
            ForEachGram(text, length, [&](std::uint64_t gram, std::size_t at) {
                if (!seen_[SeenAt(gram)]) return;
                const auto filed = filed_.find(gram);
                if (filed == filed_.end()) return;
                for (const Filed& entry : filed->second) {
                    if (!isFound.empty() && isFound[entry.text]) continue;
                    if (!IsAt(text, at, entry)) continue;
                    isFound.resize(texts_.size());
                    isFound[entry.text] = true;
                    found(texts_[entry.text].second);
                }
            });
        }
    }

  private:
    static constexpr std::size_t kLongestGram = 4;

    struct Filed {
        std::size_t text, gramAt;
    };
    std::vector<std::pair<std::string, LineNumbers>> texts_;
    std::unordered_map<std::uint64_t, std::vector<Filed>> filed_;
    std::vector<std::size_t> lengths_;  ///< of the grams
    std::vector<bool> seen_;            ///< for each gram one that is set, so that most others need not be looked up

    /// Calls each(gram, index) for every so many characters in a row, folded; no two lengths have a gram in common.
    template <typename Each>
    static void ForEachGram(std::string_view text, std::size_t length, Each each) {
        std::uint32_t last = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            last = last << 8U | static_cast<unsigned char>(Folded(text[i]));
            const std::uint32_t kept = last << (8 * (kLongestGram - length));
            if (i + 1 >= length) each(kept | std::uint64_t{length} << 32U, i + 1 - length);
        }
    }
    std::size_t SeenAt(std::uint64_t gram) const {
        return static_cast<std::size_t>((gram * 0x9E3779B97F4A7C15U) >> 32U) & (seen_.size() - 1);
    }

    bool IsAt(std::string_view text, std::size_t gramAt, const Filed& entry) const {
        if (gramAt < entry.gramAt) return false;
        const std::string& wanted = texts_[entry.text].first;
        return LooseEquals(text.substr(gramAt - entry.gramAt, wanted.size()), wanted);
    }
};
