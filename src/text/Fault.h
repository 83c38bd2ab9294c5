#pragma once

#include <exception>
#include <string>
#include <string_view>

/// The kinds of run-time fault. One that is raised ends the program after it has been shown; see RuntimeFault.
enum class FaultKind {
    Overflow,              ///< a number left the 16-bit range, or the range of a double
    TypeMismatch,          ///< a text that must be a number is none
    DivisionByZero,        ///<
    SubscriptOutOfRange,   ///< a list has no entry of that number
    InvalidProcedureCall,  ///< a cut with a negative length, a line too short, a code no character has
    FileNotFound,          ///<
    PathOrFileAccess,      ///< a file that can't be opened, read or written
    OutOfMemory,           ///< a text longer than kLongestText, or no memory left
    Internal,              ///< what only a mistake of the program can bring about
};

/// The only exception the core throws. It is caught where a loop begins: a program names it to the user, puts unsaved
/// work aside and leaves; a rehearsal gives it as what has ended the session; the practice dream goes on with the next
/// line. What can be gone on from elsewhere is no exception but an Outcome that holds one of these.
class RuntimeFault : public std::exception {
  public:
    /// @param detail  what it happened to, such as a file's path (UTF-8); never a secret. May be empty.
    explicit RuntimeFault(FaultKind kind, std::string detail = {});

    FaultKind Kind() const { return kind_; }

    /// The fault's name as shown to the user, such as "Overflow".
    std::string_view Name() const;

    const std::string& Detail() const { return detail_; }

    const char* what() const noexcept override;

  private:
    FaultKind kind_;
    std::string detail_;
};

/// The fault that an exception amounts to: itself when it is one, OutOfMemory when memory was refused, otherwise
/// Internal, with what the exception says as its detail.
RuntimeFault AsFault(const std::exception& exception);
