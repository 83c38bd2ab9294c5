#include "engine/HeldTexts.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace {
constexpr std::size_t kPlacesForEach = 32, kFewestPlaces = 1024;
constexpr std::size_t kFiledBy = 64;  // so many characters of a text are enough to tell it from others
}  // namespace

HeldTexts::HeldTexts(std::vector<std::pair<std::string, LineNumbers>> texts) : texts_(std::move(texts)) {
    std::unordered_map<std::uint64_t, std::size_t> shared;
    const auto headOf = [](const std::string& text) { return std::string_view(text).substr(0, kFiledBy); };
    const auto lengthFor = [](const std::string& text) { return std::min(text.size(), kLongestGram); };
    for (const auto& [text, lines] : texts_) {
        ForEachGram(headOf(text), lengthFor(text), [&](std::uint64_t gram, std::size_t) { ++shared[gram]; });
    }

    for (std::size_t i = 0; i < texts_.size(); ++i) {
        std::uint64_t rarest = 0;
        Filed entry{.text = i, .gramAt = 0};
        std::size_t fewest = std::numeric_limits<std::size_t>::max();
        ForEachGram(headOf(texts_[i].first), lengthFor(texts_[i].first), [&](std::uint64_t gram, std::size_t at) {
            if (shared[gram] >= fewest) return;
            fewest = shared[gram];
            rarest = gram;
            entry.gramAt = at;
        });
        filed_[rarest].push_back(entry);
        const std::size_t length = lengthFor(texts_[i].first);
        if (std::find(lengths_.begin(), lengths_.end(), length) == lengths_.end()) lengths_.push_back(length);
    }

    seen_.resize(std::bit_ceil(std::max(filed_.size() * kPlacesForEach, kFewestPlaces)));
    for (const auto& [gram, entries] : filed_) seen_[SeenAt(gram)] = true;
}
