#pragma once

#include <string>
#include <string_view>

#include "game/LocalTime.h"

class Files;

/// All that a script may ask of the world around its bot. Texts are Windows-1252. A host translates and decides
/// nothing.
class Host {
  public:
    virtual ~Host() = default;

    virtual bool IsServerConnected() const = 0;
    virtual bool IsClientConnected() const = 0;

    /// Sends bytes as they stand; called while connected only.
    virtual void WriteToServer(std::string_view bytes) = 0;
    virtual void WriteToClient(std::string_view bytes) = 0;

    /// The connect and disconnect routines of the bot's session. The host may let a bot wait that connects again and
    /// again.
    virtual void Connect() = 0;
    virtual void Disconnect() = 0;

    /// Whether anybody reads the console. Who makes a line of it for each line of the game asks first.
    virtual bool IsConsoleRead() const { return true; }

    /// Appends a line to the console.
    virtual void ShowConsoleLine(std::string_view line) = 0;

    /// Switches the movement timer, whose every tick is modMovement::Tick, on or off.
    virtual void SwitchMovementTimer(bool enabled) = 0;

    virtual LocalTime Now() const = 0;

    /// Today's date in the user's short format, and the time in the user's long format.
    virtual std::string ShortDate(const LocalTime& time) const = 0;
    virtual std::string LongTime(const LocalTime& time) const = 0;

    /// A uniform draw, at least 0 and below 1.
    virtual double Random() = 0;

    virtual Files& Disk() = 0;

    /// The program's own folder (UTF-8), where data files live.
    virtual std::string ProgramFolder() const = 0;
};
