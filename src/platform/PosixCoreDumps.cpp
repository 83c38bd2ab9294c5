#include <sys/resource.h>

#include <algorithm>

#include "platform/CoreDumps.h"

void TurnOffCoreDumps() {
    // One byte: too little for a file, and the one limit that a handler which is given the image by a pipe heeds, for
    // Linux calls it at a limit of 0 too. A process that can't be traced would do as well, but for leak checkers.
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) != 0) return;
    limit.rlim_cur = limit.rlim_max = std::min<rlim_t>(1, limit.rlim_max);
    ::setrlimit(RLIMIT_CORE, &limit);
}
