#include "cli/TypedInput.h"

#include <unistd.h>

#include <array>
#include <utility>

#include "text/Text.h"

TypedInput::TypedInput(std::function<void(const std::string& line)> onLine)
    : onLine_(std::move(onLine)), notifier_(STDIN_FILENO, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { Read(); });
}

void TypedInput::Read() {
    std::array<char, 4096> bytes;
    const auto count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count <= 0) {
        notifier_.setEnabled(false);
        if (!unfinished_.isEmpty()) HandOver(std::exchange(unfinished_, {}));
        return;
    }
    QList<QByteArray> lines = (unfinished_ + QByteArray(bytes.data(), count)).split('\n');
    unfinished_ = lines.takeLast();
    for (const QByteArray& line : lines) HandOver(line);
}

void TypedInput::HandOver(const QByteArray& line) {
    std::string text = FromUtf8(line.toStdString());
    if (text.ends_with('\r')) text.pop_back();
    onLine_(text);
}
