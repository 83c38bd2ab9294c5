#include "rehearsal/RehearsalHost.h"

#include <ctime>
#include <utility>

#include "net/PacketLines.h"
#include "net/Passwords.h"
#include "net/Session.h"

namespace {

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

RehearsalHost::RehearsalHost(Files& disk, std::string folder, std::function<void(const std::string&)> tell)
    : disk_(disk), folder_(std::move(folder)), tell_(std::move(tell)) {}

void RehearsalHost::Tell(std::string_view what, std::string_view text) {
    tell_(std::string(what).append(" ").append(text));
}

std::optional<std::string> RehearsalHost::OldestUnclaimed() const {
    return unclaimed_.empty() ? std::nullopt : std::optional(unclaimed_.front());
}

void RehearsalHost::WriteToServer(std::string_view bytes) {
    for (std::string& line : WrittenLines(bytes)) {
        Tell("sent", hidesPasswords_ ? WithoutPassword(line) : line);
        unclaimed_.push_back(std::move(line));
    }
}

void RehearsalHost::WriteToClient(std::string_view bytes) {
    for (const std::string& line : WrittenLines(bytes)) Tell("client", line);
}

void RehearsalHost::Connect() { session_->Connect(); }
void RehearsalHost::Disconnect() { session_->Disconnect(); }

void RehearsalHost::ShowMessage(std::string_view title, std::string_view text) {
    Tell("box", std::string(title).append(": ").append(text));
}

LocalTime RehearsalHost::Now() const {
    if (frozenNow_) return *frozenNow_;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

// A rehearsal must come out the same on every computer, so it has formats of its own.
std::string RehearsalHost::ShortDate(const LocalTime& time) const {
    return std::to_string(time.month) + "/" + std::to_string(time.day) + "/" + std::to_string(time.year);
}

std::string RehearsalHost::LongTime(const LocalTime& time) const {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return std::to_string(hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second) +
           (time.hour < 12 ? " AM" : " PM");
}

// The generator draws 32 bits; divided by their number the result stays below 1.
double RehearsalHost::Random() { return static_cast<double>(random_()) / 4294967296.0; }
