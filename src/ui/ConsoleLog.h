#pragma once

#include <QFile>
#include <QString>

/// A continuous log of the console: every line, with its time, appended to a file as it comes.
class ConsoleLog {
  public:
    /// @return false when the file can't be opened
    bool Open(const QString& path);
    void Close() { file_.close(); }
    bool IsOpen() const { return file_.isOpen(); }

    void Append(const QString& line);

  private:
    QFile file_;
};
