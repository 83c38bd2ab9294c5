#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "practice/World.h"

/// The practice dream: a small game world that speaks the game's text protocol, without sockets. Lines are 8-bit
/// text without their line feed. What the dream has to say waits in TakeDeliveries, to be called after each of the
/// other operations. Nothing here throws on account of what a line holds.
class Dream {
  public:
    explicit Dream(DreamPorts ports) : world_(std::move(ports)) {}

    /// Somebody has connected; its "connect NAME PASSWORD" line is still to come.
    /// @return its number; nothing when the dream is full (kMostFurres)
    std::optional<FurreId> Connect();

    /// A furre without a connection of its own arrives: a scripted visitor, or the person at the keyboard.
    /// @return its number; nothing when the name is taken or no good, or the dream is full
    std::optional<FurreId> Arrive(std::string_view name, std::string_view badge = {});

    /// One command line. Its control characters are left out, and what is longer than kLongestLine is cut.
    void Hear(FurreId furre, std::string_view line);

    /// The furre is gone; a number that isn't here is fine.
    void Leave(FurreId furre);

    /// Throws a furre out, as the game's keepers do; false when nobody has that name.
    bool Boot(std::string_view name);

    /// Any line of the protocol to one furre; false when nobody has that name.
    bool Tell(std::string_view name, std::string_view line);

    void Notice(std::string_view text);  ///< a "#" notice to everybody
    bool OpenDream(std::string_view name, Square at);
    bool CloseDream(std::string_view name);

    /// nullptr when nobody has that name.
    const Guest* Find(std::string_view name);

    /// The first furre with a client of its own; nullptr while none is in.
    const Guest* FirstClient() const;

    /// What has been said since the last call, in order.
    std::vector<Delivery> TakeDeliveries();

  private:
    Guest* AddGuest();
    void LogIn(Guest& guest, std::string_view nameAndPassword);
    void TurnAway(Guest& guest, std::string_view why);

    World world_;
    FurreId lastId_ = 0;
};

/// A thousand bots and their visitors; each that comes is shown to all that are there.
inline constexpr std::size_t kMostFurres = 2000;
inline constexpr std::size_t kLongestLine = 2000;

/// 1 to 40 characters: letters and digits of the code page, "|", "-", "_", "'" and ".", and none of the words that
/// the protocol uses where a name could stand.
bool IsFurreName(std::string_view name);
