#pragma once

#include <cstdint>

/// The code of something that happened. A cause (0:n) answers code n + 1; the timer tick has a rule of its own.
using GameEvent = std::int16_t;

inline constexpr GameEvent EventScriptLoaded = 1;
inline constexpr GameEvent EventConnected = 2;
inline constexpr GameEvent EventDisconnected = 3;
inline constexpr GameEvent EventSpeech = 4;
inline constexpr GameEvent EventShout = 5;
inline constexpr GameEvent EventEmote = 6;
inline constexpr GameEvent EventWhisper = 7;
inline constexpr GameEvent EventSelfSpeech = 8;
inline constexpr GameEvent EventSelfShout = 9;
inline constexpr GameEvent EventSelfEmote = 10;
inline constexpr GameEvent EventSelfWhisper = 11;
inline constexpr GameEvent EventHashNotice = 12;
inline constexpr GameEvent EventLookResult = 13;
inline constexpr GameEvent EventLookDescription = 14;
inline constexpr GameEvent EventFurreMoved = 15;
inline constexpr GameEvent EventEnterAcropolis = 16;
inline constexpr GameEvent EventEnterAllegria = 17;
inline constexpr GameEvent EventEnterFurrabianNights = 18;
inline constexpr GameEvent EventEnterImaginarium = 19;
inline constexpr GameEvent EventEnterDream = 20;
inline constexpr GameEvent EventVisitorArrived = 21;
inline constexpr GameEvent EventVisitorPresent = 22;
inline constexpr GameEvent EventVisitorLeft = 23;
inline constexpr GameEvent EventVisitorsUpdated = 24;
inline constexpr GameEvent EventBreath = 25;
inline constexpr GameEvent EventFlame = 26;
inline constexpr GameEvent EventJoinRequest = 27;
inline constexpr GameEvent EventJoinInvite = 28;
inline constexpr GameEvent EventJoined = 29;
inline constexpr GameEvent EventSummoned = 30;
inline constexpr GameEvent EventYouNotice = 31;
inline constexpr GameEvent EventYourNotice = 32;
inline constexpr GameEvent EventSummonedAfterAccept = 33;
inline constexpr GameEvent EventJoinedAfterAccept = 34;
inline constexpr GameEvent EventPlayerNotice = 35;
inline constexpr GameEvent EventPlayerOnline = 36;
inline constexpr GameEvent EventPlayerOffline = 37;
inline constexpr GameEvent EventDsBotTrigger = 38;
inline constexpr GameEvent EventDsTrigger = 39;
inline constexpr GameEvent EventCookieSeen = 40;
inline constexpr GameEvent EventCookieGiven = 41;
inline constexpr GameEvent EventCookieReceived = 42;
inline constexpr GameEvent EventTimeOfDay = 43;
inline constexpr GameEvent EventDiceTotal = 44;
inline constexpr GameEvent EventDiceRoll = 45;
inline constexpr GameEvent EventTimerTick = 46;
inline constexpr GameEvent EventClientCommand = 47;
inline constexpr GameEvent EventDreamListS = 48;
inline constexpr GameEvent EventDreamListT = 49;
