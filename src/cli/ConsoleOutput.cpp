#include "cli/ConsoleOutput.h"

#include <iostream>

#include "cli/Report.h"

std::string ConsoleOutput::LogTo(const std::string& path) {
    std::string refused = "the log " + path + " can't be written";
    switch (log_.Open(path)) {
        case ConsoleLog::Refusal::None:
            return "";
        case ConsoleLog::Refusal::CantBeWritten:
            return refused;
        case ConsoleLog::Refusal::NoOrdinaryFile:
            return refused + ": it is not an ordinary file";
        case ConsoleLog::Refusal::HoldsOther:
            return refused + ": the file holds something that is no log. Name a new one";
    }
    return refused;
}

void ConsoleOutput::Show(const std::string& label, std::string_view line) {
    std::string shown = Printable(line);
    if (!label.empty()) shown.insert(0, "[" + label + "] ");
    if (!quiet_) std::cout << shown + '\n';  // not flushed: the run does so when it has nothing else to do
    Log(shown);
}

void ConsoleOutput::Log(const std::string& line) {
    if (!log_.Append(line)) std::cerr << "vorel run: the log can't be written any more" << std::endl;
}
