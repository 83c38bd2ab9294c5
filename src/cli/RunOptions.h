#pragma once

#include <string>
#include <vector>

#include "net/SendBrake.h"

/// What `vorel run` was called with. Paths are UTF-8.
struct RunOptions {
    std::vector<std::string> profiles;
    bool practice = false, quiet = false, keepSplitLines = false, stay = false;
    std::string server, log, record, tour, folder = ".";
    int port = 0, brake = SendBrake::kUsualRate;
};
