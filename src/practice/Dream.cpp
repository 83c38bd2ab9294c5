#include "practice/Dream.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "game/Compare.h"
#include "practice/GameCommands.h"
#include "practice/modDreamLines.h"
#include "practice/modRequests.h"
#include "practice/modTravel.h"
#include "text/Text.h"

namespace {

constexpr std::size_t kLongestName = 40;

bool IsControl(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

bool MayStandInName(char c) {
    const auto code = static_cast<unsigned char>(c);
    return std::isdigit(code) || (code < 0x80 && std::isalpha(code)) || code >= 0xC0 ||
           std::string_view("|-_'.").find(c) != std::string_view::npos;
}

/// Clients know furres by their colours alone, so every furre without a client of its own gets colours of its own.
Appearance LooksOfNumber(FurreId id) {
    std::string colors = "t!!!!!!!!!";
    colors[1] = static_cast<char>('!' + id % 90);
    colors[2] = static_cast<char>('!' + id / 90 % 90);
    return {colors, std::string(1, static_cast<char>(' ' + id % 3)), "!", " "};
}

/// Without control characters, which would run wild in terminals, and not longer than a line may be.
std::string Cleaned(std::string_view line) {
    std::string text(line.substr(0, kLongestLine));
    std::erase_if(text, IsControl);
    return text;
}

}  // namespace

bool IsFurreName(std::string_view name) {
    const bool isReserved = LooseEquals(name, "You") || LooseEquals(name, "Your");
    return !name.empty() && name.size() <= kLongestName && !isReserved &&
           std::all_of(name.begin(), name.end(), MayStandInName);
}

Guest* Dream::AddGuest() {
    if (world_.guests.size() >= kMostFurres) return nullptr;
    Guest& guest = world_.guests[++lastId_];
    guest.id = lastId_;
    guest.who.looks = LooksOfNumber(guest.id);
    return &guest;
}

std::optional<FurreId> Dream::Connect() {
    Guest* const guest = AddGuest();
    if (!guest) return std::nullopt;
    guest->hasClient = true;
    return guest->id;
}

std::optional<FurreId> Dream::Arrive(std::string_view name, std::string_view badge) {
    if (!IsFurreName(name) || FindGuest(world_, name)) return std::nullopt;
    Guest* const guest = AddGuest();
    if (!guest) return std::nullopt;
    LetIn(world_, *guest, name);
    guest->who.badge = badge;
    guest->who.desc = "A visitor of the practice dream.";
    modTravel::EnterMap(world_, *guest, guest->map);
    return guest->id;
}

void Dream::Hear(FurreId furre, std::string_view line) {
    const auto found = world_.guests.find(furre);
    if (found == world_.guests.end()) return;
    Guest& guest = found->second;
    const std::string text = Cleaned(line);
    if (guest.IsIn()) return CarryOut(world_, guest, text);
    constexpr std::string_view kConnect = "connect ";
    if (text.starts_with(kConnect)) LogIn(guest, std::string_view(text).substr(kConnect.size()));
}

/// The password is not even looked at: everybody may practise.
void Dream::LogIn(Guest& guest, std::string_view nameAndPassword) {
    const std::string_view name = nameAndPassword.substr(0, nameAndPassword.find(' '));
    if (!IsFurreName(name)) return TurnAway(guest, "This name can't be used here.");
    if (FindGuest(world_, name)) return TurnAway(guest, "A furre of this name is in the dream already.");
    LetIn(world_, guest, name);
    world_.Send(guest, modDreamLines::Welcome(name));
    modTravel::EnterMap(world_, guest, guest.map);
}

void Dream::TurnAway(Guest& guest, std::string_view why) {
    world_.Send(guest, modDreamLines::Remark(why));
    world_.deliveries.back().last = true;
}

void Dream::Leave(FurreId furre) {
    modRequests::ForgetRequestsOf(world_, furre);  // a request is answered without looking whether its sender is here
    RemoveGuest(world_, furre);
}

bool Dream::Boot(std::string_view name) {
    const Guest* const guest = FindGuest(world_, name);
    if (!guest) return false;
    const FurreId id = guest->id;
    world_.Send(*guest, modDreamLines::Booted());
    world_.deliveries.back().last = true;
    Leave(id);
    return true;
}

bool Dream::Tell(std::string_view name, std::string_view line) {
    const Guest* const guest = FindGuest(world_, name);
    if (guest) world_.Send(*guest, std::string(line));
    return guest;
}

void Dream::Notice(std::string_view text) {
    for (const auto& [id, guest] : world_.guests) {
        if (guest.IsIn()) world_.Send(guest, modDreamLines::HashNotice(text));
    }
}

bool Dream::OpenDream(std::string_view name, Square at) { return modTravel::OpenDream(world_, name, at); }
bool Dream::CloseDream(std::string_view name) { return modTravel::CloseDream(world_, name); }

const Guest* Dream::Find(std::string_view name) { return FindGuest(world_, name); }

const Guest* Dream::FirstClient() const {
    const auto found = std::find_if(world_.guests.begin(), world_.guests.end(),
                                    [](const auto& entry) { return entry.second.hasClient && entry.second.IsIn(); });
    return found == world_.guests.end() ? nullptr : &found->second;
}

std::vector<Delivery> Dream::TakeDeliveries() { return std::exchange(world_.deliveries, {}); }
