#pragma once

#include <memory>
#include <streambuf>

#include "cli/LineWriter.h"

/// While it lives, what a verb prints on std::cout and std::cerr, and what Qt has to say, goes line by line through
/// LineWriters: a terminal stopped with Ctrl+S or a pipe that nobody reads must not stop the bot. Where standard output
/// and standard error lead to the same place their lines keep their order; where they don't, the one still comes
/// through when the other is stuck. What is printed without a flush may wait for the next one; Leave is one, too.
class Printing {
  public:
    Printing();
    ~Printing();
    Printing(const Printing&) = delete;
    Printing& operator=(const Printing&) = delete;

    /// The last that a verb does: gives what is still to be printed up to half a second, and leaves the program on the
    /// spot when that isn't enough.
    /// @return the status
    int Leave(int status);

  private:
    /// Hands a stream's text over in whole lines.
    class Lines final : public std::streambuf {
      public:
        explicit Lines(LineWriter& writer) : writer_(writer) {}

      protected:
        int_type overflow(int_type character) override;
        std::streamsize xsputn(const char* text, std::streamsize count) override;
        int sync() override;

      private:
        LineWriter& writer_;
        std::string unfinished_;

        void HandOver();
    };

    LineWriter output_;
    std::unique_ptr<LineWriter> ownErrors_;  ///< none where standard error leads to the same place
    LineWriter& errors_;
    Lines outputLines_, errorLines_;
    std::streambuf* const plainOutput_;
    std::streambuf* const plainErrors_;
};
