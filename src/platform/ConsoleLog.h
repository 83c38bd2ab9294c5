#pragma once

#include <QByteArray>
#include <QFile>
#include <string>
#include <string_view>

/// A continuous log of a console: every line, with its time, appended to a file as it comes.
class ConsoleLog {
  public:
    enum class Refusal {
        None,
        CantBeWritten,   ///< the system says so
        NoOrdinaryFile,  ///< a folder, a device, a pipe
        HoldsOther,      ///< something that is no log, and is to stay as it is
    };

    /// Begins a log that its owner only can read, or goes on with one: what holds anything must begin with the time of
    /// a log's line, so that no other file of the user's is ever written to.
    Refusal Open(const std::string& path);
    void Close() { file_.close(); }
    bool IsOpen() const { return file_.isOpen(); }

    /// Control characters of the line become blanks: each line of the file is one of the console.
    /// @param line  UTF-8
    /// @return false the first time that it can't be written, to be told once
    bool Append(std::string_view line);

  private:
    QFile file_;
    bool broken_ = false;
    qint64 second_ = -1;
    QByteArray time_;  ///< of that second

    const QByteArray& Time();
};
