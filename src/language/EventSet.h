#pragma once

#include <cstdint>
#include <initializer_list>

#include "bot/Events.h"

inline constexpr GameEvent kFirstEvent = EventScriptLoaded;
inline constexpr GameEvent kLastEvent = EventDreamListT;

/// Some of the game's events.
class EventSet {
  public:
    constexpr EventSet() = default;
    constexpr EventSet(std::initializer_list<GameEvent> events) {
        for (const GameEvent event : events) bits_ |= Bit(event);
    }

    /// All events from one code to another, both counted in.
    static constexpr EventSet Range(GameEvent first, GameEvent last) {
        EventSet set;
        for (int event = first; event <= last; ++event) set.bits_ |= Bit(event);
        return set;
    }
    static constexpr EventSet All() { return Range(kFirstEvent, kLastEvent); }

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
