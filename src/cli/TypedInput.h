#pragma once

#include <QSocketNotifier>
#include <functional>
#include <string>

#include "net/PacketLines.h"

/// Lines typed on standard input, handed over from the event loop as Windows-1252 without their line end. At the end
/// of the input it falls silent; a last line without an end still counts.
class TypedInput {
  public:
    explicit TypedInput(std::function<void(const std::string& line)> onLine);

  private:
    void Read();
    void HandOver(std::string_view line);

    std::function<void(const std::string&)> onLine_;
    QSocketNotifier notifier_;
    PacketLines lines_;
};
