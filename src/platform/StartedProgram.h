#pragma once

#include <cstdint>

/// A program that was started, with all that it starts in turn: launchers and wrappers hand over to other programs.
class StartedProgram {
  public:
    StartedProgram() = default;
    explicit StartedProgram(std::int64_t process);

    /// Whether a running process is the program or comes from it.
    bool Includes(std::int64_t process) const;

  private:
    std::int64_t process_ = 0, session_ = 0;
};
