#pragma once

#include <cstdint>
#include <initializer_list>

#include "bot/Events.h"

/// Some of the game's events.
class EventSet {
  public:
    constexpr EventSet() = default;
    constexpr EventSet(std::initializer_list<GameEvent> events) {
        for (const GameEvent event : events) bits_ |= Bit(event);
    }

    static constexpr EventSet All() {
        EventSet set;
        for (const EventFacts& event : kEvents) set.bits_ |= Bit(event.code);
        return set;
    }

    /// The events of which a fact holds: any; that they are somebody's, for whom "[player]" stands then; that they fill
    /// a field.
    template <typename Fact>
    static constexpr EventSet Where(Fact holds) {
        EventSet set;
        for (const EventFacts& event : kEvents) {
            if (holds(event)) set.bits_ |= Bit(event.code);
        }
        return set;
    }
    static constexpr EventSet Someones() {
        return Where([](const EventFacts& event) { return event.IsSomeones(); });
    }
    static constexpr EventSet Filling(Field field) {
        return Where([field](const EventFacts& event) { return event.Fills(field); });
    }

    constexpr bool Holds(GameEvent event) const { return event >= 0 && event < 64 && (bits_ & Bit(event)) != 0; }
    constexpr bool IsEmpty() const { return bits_ == 0; }

    friend constexpr EventSet operator|(EventSet a, EventSet b) {
        a.bits_ |= b.bits_;
        return a;
    }
    friend constexpr bool operator==(EventSet, EventSet) = default;

  private:
    std::uint64_t bits_ = 0;

    static constexpr std::uint64_t Bit(int event) { return std::uint64_t{1} << event; }
};
