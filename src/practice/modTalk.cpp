#include "practice/modTalk.h"

#include <algorithm>

#include "game/Base95.h"
#include "practice/modDreamLines.h"
#include "practice/modTravel.h"
#include "text/Text.h"

namespace {

using namespace modDreamLines;

/// A line about a furre, with what it looks like in front: that is how listeners know the speaker's looks.
void SendAbout(World& world, const Guest& to, const Furre& about, std::string line) {
    world.Send(to, LooksOf(about));
    world.Send(to, BadgeOf(about));
    world.Send(to, std::move(line));
}

void SendToEveryone(World& world, const std::string& line) {
    for (const auto& [id, guest] : world.guests) {
        if (guest.IsIn()) world.Send(guest, line);
    }
}

bool IsPrintable(char c) { return c >= ' ' && c <= '~'; }

}  // namespace

namespace modTalk {

void Say(World& world, Guest& guest, std::string_view text) {
    if (text.empty()) return;
    ForEachOnMapOf(world, guest, [&](const Guest& other) {
        if (other.id == guest.id) return world.Send(guest, OwnSpeech(text));
        SendAbout(world, other, guest.who, Speech(guest.who.name, text));
    });
}

void Shout(World& world, Guest& guest, std::string_view text) {
    if (text.empty()) return;
    for (const auto& [id, other] : world.guests) {
        if (!other.IsIn()) continue;
        if (id == guest.id) {
            world.Send(guest, OwnShout(text));
        } else {
            SendAbout(world, other, guest.who, modDreamLines::Shout(guest.who.name, text));
        }
    }
}

void Emote(World& world, Guest& guest, std::string_view text) {
    if (text.empty()) return;
    ForEachOnMapOf(world, guest, [&](const Guest& other) {
        SendAbout(world, other, guest.who, modDreamLines::Emote(guest.who.name, text));
    });
}

void Emit(World& world, Guest& guest, std::string_view text) {
    ForEachOnMapOf(world, guest, [&](const Guest& other) { world.Send(other, HashNotice(text)); });
}

void EmitLoud(World& world, Guest&, std::string_view text) { SendToEveryone(world, HashNotice(text)); }

void Whisper(World& world, Guest& guest, std::string_view nameAndText) {
    const std::size_t blank = nameAndText.find(' ');
    if (blank == std::string_view::npos || blank + 1 == nameAndText.size()) return;
    const std::string_view text = nameAndText.substr(blank + 1);
    const Guest* const to = FindGuestFor(world, guest, nameAndText.substr(0, blank));
    if (!to) return;
    SendAbout(world, guest, to->who, OwnWhisper(to->who.name, text));
    SendAbout(world, *to, guest.who, modDreamLines::Whisper(guest.who.name, text));
}

void LookAtFurre(World& world, Guest& guest, std::string_view name) {
    const Guest* const seen = FindGuestFor(world, guest, name);
    if (!seen) return;
    world.Send(guest, LookResult(seen->who));
    world.Send(guest, LookDescription(seen->who));
}

void LookAtSquare(World& world, Guest& guest, std::string_view square) {
    if (square.size() != 4 || !std::all_of(square.begin(), square.end(), IsPrintable)) return;
    const Square at{DecodeBase95Pair(square.substr(0, 2), 2), DecodeBase95Pair(square.substr(2), 1)};
    const Guest* seen = nullptr;
    ForEachOnMapOf(world, guest, [&](const Guest& other) {
        // Others before oneself: furres may share a square.
        if (other.at == at && (!seen || seen->id == guest.id)) seen = &other;
    });
    if (seen) return LookAtFurre(world, guest, seen->who.name);
    world.Send(guest, Remark("There is nobody to look at."));
}

void AskWho(World& world, Guest& guest, std::string_view) {
    std::vector<std::string> names;
    ForEachOnMapOf(world, guest, [&](const Guest& other) { names.push_back(other.who.name); });
    world.Send(guest, Visitors(names));
    world.Send(guest, VisitorCount(names.size(), world.MapOf(guest).name));
}

void AskOnline(World& world, Guest& guest, std::string_view name) {
    const Guest* const found = FindGuest(world, name);
    world.Send(guest, OnlineAnswer(found, found ? found->who.name : BlanksToBars(name)));
}

void AskTime(World& world, Guest& guest, std::string_view) { world.Send(guest, TimeOfDay(world.ports.now())); }

void Share(World& world, Guest& guest, std::string_view name) {
    const Guest* const other = FindGuestFor(world, guest, name);
    if (other) world.Send(guest, YouNotice("share your dream with", other->who.name));
}

void Unshare(World& world, Guest& guest, std::string_view name) {
    const Guest* const other = FindGuestFor(world, guest, name);
    if (other) world.Send(guest, YouNotice("no longer share your dream with", other->who.name));
}

void Eject(World& world, Guest& guest, std::string_view name) {
    Guest* const other = FindGuestFor(world, guest, name);
    if (!other) return;
    world.Send(*other, Remark("Out of the dream with you, says " + BarsToBlanks(guest.who.name) + "."));
    modTravel::GoToAllegria(world, *other);
}

void SetEntryText(World& world, Guest& guest, std::string_view text) {
    world.MapOf(guest).entryText = text;
    world.Send(guest, Remark("Whoever enters will now read: " + std::string(text)));
}

}  // namespace modTalk
