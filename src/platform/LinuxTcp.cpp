#include "platform/LinuxTcp.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace {

struct Option {
    int level, name, value;
};

// 60 + 4 * 15 seconds: two minutes either way.
constexpr Option kKeepAlive[] = {
    {SOL_SOCKET, SO_KEEPALIVE, 1},
    {IPPROTO_TCP, TCP_KEEPIDLE, 60},           // seconds of silence before the first question
    {IPPROTO_TCP, TCP_KEEPINTVL, 15},          // seconds between one question and the next
    {IPPROTO_TCP, TCP_KEEPCNT, 4},             // questions without an answer
    {IPPROTO_TCP, TCP_USER_TIMEOUT, 120'000},  // milliseconds for which what was sent may stay unconfirmed
};

}  // namespace

void KeepAlive(qintptr descriptor) {
    // A system that lacks one of these does without.
    for (const auto& [level, name, value] : kKeepAlive) {
        ::setsockopt(static_cast<int>(descriptor), level, name, &value, sizeof value);
    }
}

qint64 WaitingBytes(qintptr descriptor) {
    int bytes = 0;
    return ::ioctl(static_cast<int>(descriptor), FIONREAD, &bytes) == 0 ? bytes : 0;
}
