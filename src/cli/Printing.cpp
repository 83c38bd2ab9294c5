#include "cli/Printing.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <utility>

namespace {

/// How long the end of the program waits for who reads its output, for standard output and standard error together.
constexpr std::chrono::milliseconds kPatience{500};

bool LeadToTheSamePlace(int one, int other) {
    struct stat first {
    }, second{};
    return ::fstat(one, &first) == 0 && ::fstat(other, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

/// Two threads that write to one place would mix up the order of the lines.
std::unique_ptr<LineWriter> OwnErrors() {
    if (LeadToTheSamePlace(STDOUT_FILENO, STDERR_FILENO)) return nullptr;
    return std::make_unique<LineWriter>(STDERR_FILENO);
}

void PrintQtMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    std::cerr << message.toStdString() << std::endl;
}

}  // namespace

Printing::Printing()
    : output_(STDOUT_FILENO),
      ownErrors_(OwnErrors()),
      errors_(ownErrors_ ? *ownErrors_ : output_),
      outputLines_(output_),
      errorLines_(errors_),
      plainOutput_(std::cout.rdbuf(&outputLines_)),
      plainErrors_(std::cerr.rdbuf(&errorLines_)) {
    // A pipe whose reader has gone is told by write.
    std::signal(SIGPIPE, SIG_IGN);
    qInstallMessageHandler(PrintQtMessage);
}

Printing::~Printing() {
    qInstallMessageHandler(nullptr);
    std::cout.rdbuf(plainOutput_);
    std::cerr.rdbuf(plainErrors_);
}

int Printing::Leave(int status) {
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    // Errors first: they are few, and must not miss their time because of the output.
    for (LineWriter* const writer : {&errors_, &output_}) {
        const auto left = deadline - std::chrono::steady_clock::now();
        if (!writer->Finish(std::chrono::duration_cast<std::chrono::milliseconds>(left))) std::_Exit(status);
    }
    return status;
}

Printing::Lines::int_type Printing::Lines::overflow(int_type character) {
    if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
    const char text = traits_type::to_char_type(character);
    xsputn(&text, 1);
    return character;
}

std::streamsize Printing::Lines::xsputn(const char* text, std::streamsize count) {
    unfinished_.append(text, static_cast<std::size_t>(count));
    if (unfinished_.ends_with('\n')) HandOver();
    return count;
}

int Printing::Lines::sync() {
    writer_.WakeUp();
    return 0;
}

void Printing::Lines::HandOver() { writer_.Put(std::exchange(unfinished_, {})); }
