// The least that a bot can be: one connection, one epoll loop, and the answers in a hash map. It has no script, no
// console and no state, so nothing that answers the same lines can be much faster.
//
// Usage: bare_loop PORT TRIGGERS
#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <unordered_map>

#include "road/Talk.h"

namespace {

struct HashOfView {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

class BareBot {
  public:
    explicit BareBot(int triggers) {
        for (int i = 0; i < triggers; ++i) answers_.emplace(Question(i), Answer(i));
    }

    /// Takes what has been received, and gives what is to be sent.
    const std::string& Hear(std::string_view bytes) {
        out_.clear();
        rest_.append(bytes);
        std::size_t from = 0;
        for (std::size_t end = 0; (end = rest_.find('\n', from)) != std::string::npos; from = end + 1)
            HearLine(std::string_view(rest_).substr(from, end - from));
        rest_.erase(0, from);
        return out_;
    }

  private:
    std::unordered_map<std::string, std::string, HashOfView, std::equal_to<>> answers_;
    std::string rest_, out_;

    void HearLine(std::string_view line) {
        const std::size_t colon = line.find(": ");
        if (!line.starts_with('(') || colon == line.npos) return;
        const auto answer = answers_.find(line.substr(colon + 2));
        if (answer == answers_.end()) return;
        out_.append("wh ").append(line.substr(1, colon - 1)).append(" ").append(answer->second).append("\n");
    }
};

int ConnectTo(int port) {
    const int server = socket(AF_INET, SOCK_STREAM, 0), now = 1;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(server, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) return -1;
    setsockopt(server, IPPROTO_TCP, TCP_NODELAY, &now, sizeof now);
    return server;
}

bool SendAll(int server, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(server, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: bare_loop PORT TRIGGERS\n", stderr);
        return 64;
    }
    BareBot bot(std::atoi(argv[2]));
    const int server = ConnectTo(std::atoi(argv[1])), loop = epoll_create1(0);
    epoll_event event{};
    event.events = EPOLLIN;
    if (server < 0 || epoll_ctl(loop, EPOLL_CTL_ADD, server, &event) != 0) return 69;
    if (!SendAll(server, "login\n")) return 69;
    while (epoll_wait(loop, &event, 1, -1) == 1) {
        char bytes[65536];
        const ssize_t size = recv(server, bytes, sizeof bytes, 0);
        if (size <= 0 || !SendAll(server, bot.Hear({bytes, static_cast<std::size_t>(size)}))) break;
    }
}
