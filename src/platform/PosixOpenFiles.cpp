#include <sys/resource.h>

#include <algorithm>
#include <limits>

#include "platform/OpenFiles.h"

std::size_t AllowOpenFiles(std::size_t needed) {
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return std::numeric_limits<std::size_t>::max();
    // No more than is needed: programs that are started from here get the limit too, and some walk through all of it.
    const rlim_t before = limit.rlim_cur;
    if (before >= needed) return before;
    limit.rlim_cur = std::min<rlim_t>(needed, limit.rlim_max);
    return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 ? limit.rlim_cur : before;
}
