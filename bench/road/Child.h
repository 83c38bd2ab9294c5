#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

/// A program at work beside this one, and what it takes of the computer. It is asked to end when this goes.
class Child {
  public:
    /// Its standard input is empty, and its standard output is dropped.
    /// @param command  its path, and its arguments
    /// @throws std::runtime_error when it can't be started
    explicit Child(const std::vector<std::string>& command);
    ~Child() { End(); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Asks it to end, and waits until it has.
    void End();

    /// Of all its threads, in the program and in the system.
    double CpuSeconds() const;

    /// Memory that is not a file's, such as heap and stack.
    long AnonymousKib() const;

    /// How often its first thread has gone to sleep, and so has woken up.
    long Sleeps() const;

  private:
    pid_t id_ = 0;

    /// The number behind a word in what the system says of it.
    long Status(const std::string& word) const;
};
