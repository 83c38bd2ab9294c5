#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "FaultCases.h"

/// How a process has ended, and what it has said.
struct Outcome {
    bool killed = false;  ///< as by SIGKILL
    int status = -1;      ///< -1 when it was ended by anything else
    std::string told;
};

/// A folder with a bot and what belongs to it, in which one kind of file is saved over and over again.
class Bench {
  public:
    /// @param folder  absolute; made here, gone with the bench
    /// @param notes   the beginning of the names of files for what the processes say, outside of it
    /// @param isOld   whether the file is there before it is saved
    Bench(std::filesystem::path folder, std::string notes, const Kind& kind, bool isOld);
    ~Bench();
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    /// Lays everything out anew.
    void Lay() const;

    /// Saves in a process of its own.
    /// @param plan  what is to happen, as TVOREL_FAULT_PLAN wants it
    Outcome Save(const std::string& plan = {}) const;

    /// The calls of a save without any fault, in order.
    std::vector<std::string> Calls() const;

    /// What clears what a killed process has left: a start, or for some kinds the next save.
    Outcome StartAgain() const;

    /// Whether a status says that all went well.
    bool IsSuccess(const Outcome& outcome) const;

    bool IsTakenAway() const { return kind_.isTakenAway; }

    const std::filesystem::path& File() const { return file_; }

    /// What the file holds, with its mode in front; "absent" when there is none. Numbers of chance are made equal.
    std::string Content() const;

    /// Temporaries, and whatever else nobody has asked for, in the file's folder.
    std::vector<std::string> Leftovers() const;

  private:
    std::filesystem::path folder_, file_;
    std::string notes_;
    const Kind& kind_;
    bool isOld_;

    std::vector<std::string> Command(bool starts) const;
    Outcome Run(const std::vector<std::string>& command, const std::vector<std::string>& settings) const;
};
