#include "road/Child.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>

Child::Child(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const int fault = posix_spawn(&id_, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) throw std::runtime_error(command.front() + " can't be started");
}

void Child::End() {
    if (id_ == 0) return;
    kill(id_, SIGTERM);
    waitpid(id_, nullptr, 0);
    id_ = 0;
}

double Child::CpuSeconds() const {
    clockid_t clock = 0;
    timespec time{};
    if (clock_getcpuclockid(id_, &clock) != 0 || clock_gettime(clock, &time) != 0) return 0;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

long Child::AnonymousKib() const { return Status("RssAnon:"); }

long Child::Sleeps() const { return Status("voluntary_ctxt_switches:"); }

long Child::Status(const std::string& word) const {
    std::ifstream status("/proc/" + std::to_string(id_) + "/status");
    std::string found;
    while (status >> found) {
        long number = 0;
        if (found == word && status >> number) return number;
    }
    throw std::runtime_error("the program has ended before its time");
}
