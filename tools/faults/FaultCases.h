#pragma once

#include <string>
#include <vector>

/// A kind of file that the programs write, and how it is saved here.
struct Kind {
    enum class By {
        Windows,  ///< tvorel_saves
        Try,      ///< `vorel try`, by an effect of the script
        Run,      ///< `vorel run`, the same
    };
    const char* name;
    const char* file;        ///< in the case's folder
    const char* newFile;     ///< where a file that is not there yet goes; the same place for most
    const char* oldContent;  ///< empty when this kind never replaces a file
    By by = By::Windows;
    bool clearedByStart = true;     ///< what a killed process leaves; otherwise by the next save there
    bool hasChanceNumbers = false;  ///< in its content
    bool isTakenAway = false;       ///< at the end of the session that has written it, and the old one put back
};

extern const std::vector<Kind> kKinds;

/// What happens at the calls of one save, as TVOREL_FAULT_PLAN wants it.
struct Fault {
    std::string plan;
    bool kills = false;       ///< the process, so that it can't tell anything
    bool mustBeTold = false;  ///< the save can't have been without fault
    int error = 0;            ///< whose name is to be told
};

/// All cases for a save that makes these calls.
std::vector<Fault> FaultsFor(const std::vector<std::string>& calls);
