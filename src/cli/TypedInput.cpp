#include "cli/TypedInput.h"

#include <unistd.h>

#include <array>
#include <iostream>

#include "text/Text.h"

TypedInput::TypedInput(std::function<void(const std::string& line)> onLine)
    : onLine_(std::move(onLine)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    lines_.KeepSplitLines(true);  // unlike a packet of the game, a read may end anywhere in a line
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { Read(); });
}

void TypedInput::Read() {
    std::array<char, 4096> bytes;
    const auto count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count <= 0) {
        notifier_.setEnabled(false);
        if (const std::string rest = lines_.TakeRest(); !rest.empty()) HandOver(rest);
        return;
    }
    std::string room;
    for (const std::string_view line : lines_.Take({bytes.data(), static_cast<std::size_t>(count)}, false, room)) {
        HandOver(line);
    }
    if (lines_.TakeDropped() > 0)
        std::cerr << "vorel: a typed line was left out: it was longer than 1 MiB" << std::endl;
}

void TypedInput::HandOver(std::string_view line) {
    std::string text = FromUtf8(line);
    if (text.ends_with('\r')) text.pop_back();
    onLine_(text);
}
