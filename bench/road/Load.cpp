#include "road/Load.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "road/Child.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRoundTrips = 200;
constexpr auto kPauseBeforeRoundTrip = std::chrono::microseconds(500);
constexpr timeval kPatience{30, 0};  // what has not come by then is missing
constexpr double kKibPerMib = 1024;

double SecondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

/// A socket that is closed when it goes.
class Socket {
  public:
    explicit Socket(int descriptor) : descriptor_(descriptor) {
        if (descriptor < 0) throw std::runtime_error("there is no connection");
        setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
    }
    ~Socket() { close(descriptor_); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    int Get() const { return descriptor_; }

  private:
    int descriptor_;
};

/// Where a program is to connect.
class Door {
  public:
    Door() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* const any = reinterpret_cast<sockaddr*>(&address);
        socklen_t size = sizeof address;
        if (bind(socket_.Get(), any, size) != 0 || listen(socket_.Get(), 1) != 0 ||
            getsockname(socket_.Get(), any, &size) != 0)
            throw std::runtime_error("there is no free port");
        port_ = ntohs(address.sin_port);
    }
    int Port() const { return port_; }
    int Accept() const { return accept(socket_.Get(), nullptr, nullptr); }

  private:
    Socket socket_;
    int port_ = 0;
};

/// The connection to a program that answers.
class Game {
  public:
    explicit Game(const CommandFor& command) : child_(command(door_.Port())), socket_(door_.Accept()) {
        const int now = 1;
        setsockopt(socket_.Get(), IPPROTO_TCP, TCP_NODELAY, &now, sizeof now);
    }
    /// Before the connection is closed: a bot that loses its game has something to say.
    ~Game() { child_.End(); }
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    const Child& Program() const { return child_; }

    /// Waits for the login, lets the bot onto its map, and waits until it answers.
    void LetIn(const Batch& question) {
        HearMore();
        Send(";furn.map\n" + question.lines);
        while (!heard_.ends_with(question.answers)) HearMore();
        heard_.clear();
    }

    void Ask(const Batch& batch) {
        Send(batch.lines);
        awaited_ += batch.answers;
    }

    /// Waits until as many bytes of answers are still to come, or fewer.
    void HearUntil(std::size_t missing) {
        while (awaited_.size() > missing) {
            HearMore();
            if (!awaited_.starts_with(heard_)) throw std::runtime_error("a wrong answer: " + heard_);
            awaited_.erase(0, heard_.size());
            heard_.clear();
        }
    }

  private:
    Door door_;
    Child child_;
    Socket socket_;
    std::string heard_, awaited_;

    void Send(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t sent = send(socket_.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent <= 0) throw std::runtime_error("the program has closed its connection");
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
    }

    void HearMore() {
        char bytes[65536];
        const ssize_t size = recv(socket_.Get(), bytes, sizeof bytes, 0);
        if (size == 0) throw std::runtime_error("the program has closed its connection");
        if (size < 0) throw std::runtime_error("an answer is missing");
        heard_.append(bytes, static_cast<std::size_t>(size));
    }
};

/// Keeps the program busy, and gives the number of lines.
long SendFor(Game& game, const std::vector<Batch>& batches, Effort effort) {
    const std::size_t atOnce = static_cast<std::size_t>(effort.batchesAtOnce - 1) * batches.front().answers.size();
    const auto start = Clock::now();
    long sent = 0;
    while (SecondsSince(start) < effort.seconds) {
        game.Ask(batches[static_cast<std::size_t>(sent++) % batches.size()]);
        game.HearUntil(atOnce);
    }
    game.HearUntil(0);
    return sent * kLinesPerBatch;
}

double RoundTrip(Game& game, const Batch& question) {
    std::vector<double> seconds(kRoundTrips);
    for (double& each : seconds) {
        std::this_thread::sleep_for(kPauseBeforeRoundTrip);
        const auto start = Clock::now();
        game.Ask(question);
        game.HearUntil(0);
        each = SecondsSince(start);
    }
    std::nth_element(seconds.begin(), seconds.begin() + kRoundTrips / 2, seconds.end());
    return seconds[kRoundTrips / 2];
}

}  // namespace

Figures MeasureLoad(const CommandFor& command, const std::vector<Batch>& batches, const Batch& question,
                    Effort effort) {
    Figures figures;
    const auto begin = Clock::now();
    Game game(command);
    figures.startMs = SecondsSince(begin) * 1e3;
    game.LetIn(question);
    SendFor(game, batches, {effort.seconds / 4, effort.batchesAtOnce});  // until caches and buffers are warm
    const double cpu = game.Program().CpuSeconds();
    const auto start = Clock::now();
    const auto lines = static_cast<double>(SendFor(game, batches, effort));
    figures.linesPerSecond = lines / SecondsSince(start);
    figures.cpuMicroseconds = (game.Program().CpuSeconds() - cpu) / lines * 1e6;
    figures.roundTripMicroseconds = RoundTrip(game, question) * 1e6;
    figures.anonymousMib = static_cast<double>(game.Program().AnonymousKib()) / kKibPerMib;
    return figures;
}

Idleness MeasureIdleness(const CommandFor& command, const Batch& question, int seconds) {
    Game game(command);
    game.LetIn(question);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));  // until it sleeps after its answer
    const long sleeps = game.Program().Sleeps();
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    return {static_cast<double>(game.Program().Sleeps() - sleeps) / seconds,
            static_cast<double>(game.Program().AnonymousKib()) / kKibPerMib};
}
