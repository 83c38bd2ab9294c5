#include "net/SessionTexts.h"

#include "text/Text.h"

std::string_view MissingFiles(bool character, bool client) {
    if (!character && !client) return "Select a valid Furcadia client and character before attempting to connect.";
    if (!character) return "Select a valid Furcadia character before attempting to connect.";
    return client ? "" : "Select a valid Furcadia client before attempting to connect.";
}

std::string ErrorLine(std::string_view socket, const SocketError& error) {
    return std::string(socket) + " Socket Error " + std::to_string(error.number) + ": " + error.description + " (" +
           std::to_string(error.systemCode) + ": " + error.source + ")";
}

std::string SilenceLine(std::string_view address, int givenUpAfter) {
    return std::string(address) + " has not answered yet. It is given up when it has not answered within " +
           std::to_string(givenUpAfter) + " seconds.";
}

std::string NextTryLine(int seconds) {
    return "Trying again in " + std::to_string(seconds) + (seconds == 1 ? " second." : " seconds.");
}

std::string LeftOutLine(std::string_view whose) {
    return "A line of " + std::string(whose) + " was left out: it was longer than 1 MiB.";
}

std::string BrakeLine(const SendBrake::Report& report) {
    const std::string file = report.busiest.file.empty() ? "the script" : FromUtf8(report.busiest.file);
    const std::string place = "line " + std::to_string(report.busiest.line) + " of " + file;
    switch (report.news) {
        case SendBrake::News::Jam:
            return "The script sends more than the brake lets through, most of it by " + place +
                   ". What is too much waits.";
        case SendBrake::News::Emptied:
            return "More than " + std::to_string(SendBrake::kLongestQueue) +
                   " lines, or 1 MiB of them, were waiting to be sent, most of them by " + place +
                   ". They were dropped.";
        case SendBrake::News::None:
            break;
    }
    return "";
}

std::string ClientRefusedLine(const std::string& program, const StartRefusal& refusal) {
    return "The Furcadia client could not be started: " + FromUtf8(program) +
           (refusal.mayBeRun ? ": " + refusal.reason
                             : " may not be run as a program. Its file's permissions must allow that.");
}
