// A tour and, behind a line "clients", the lines of two practice clients. Nothing in the practice dream throws on
// account of what a line holds, and what it says is whole lines.
#include <cstdlib>

#include "fuzz/FuzzBot.h"
#include "practice/Tour.h"

namespace {

constexpr int kMostSeconds = 400;

/// What it has said goes nowhere; only that it is lines is looked at.
void Listen(Dream& dream) {
    for (const Delivery& delivery : dream.TakeDeliveries()) {
        if (delivery.line.find('\n') != std::string::npos) std::abort();
    }
}

void Play(Dream& dream, Tour tour) {
    TourPlayer player(std::move(tour), dream);
    for (int second = 0; second < kMostSeconds && !player.IsOver(); ++second) {
        player.PassSecond();
        Listen(dream);
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    int draws = 0;
    Dream dream({[] { return LocalTime{2024, 5, 1, 19, 5, 9}; }, [&] { return (draws++ % 10) / 10.0; }});
    const FurreId clients[] = {dream.Connect().value(), dream.Connect().value()};
    dream.Hear(clients[0], "connect Greeter secret");
    dream.Hear(clients[0], "color w#3#3#3#3#\"!\"");
    dream.Hear(clients[0], "vascodagama");

    const std::string text = InputText(data, size);
    const std::size_t end = text.find("\nclients\n");
    Play(dream, ReadTour(text.substr(0, end), "tour").tour);
    if (end == std::string::npos) return 0;
    std::size_t next = 0;
    for (const std::string& line : Split(std::string_view(text).substr(end + 9), "\n")) {
        dream.Hear(clients[next++ % 2], line);
        Listen(dream);
    }
    dream.Leave(clients[0]);
    Listen(dream);
    return 0;
}
