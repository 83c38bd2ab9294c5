#pragma once

#include <QFile>
#include <optional>
#include <string>

/// The file of a recording. It never takes the place of another one.
class RecordingFile {
  public:
    RecordingFile() = default;
    ~RecordingFile();
    RecordingFile(const RecordingFile&) = delete;
    RecordingFile& operator=(const RecordingFile&) = delete;

    /// Opens the file, or where it holds something the first of NAME-2.txt, NAME-3.txt and so on that holds nothing. A
    /// new one can be read by its owner only, and goes away again when nothing comes to be written.
    /// @return the path that was opened; nothing when none can be written
    std::optional<std::string> Open(const std::string& path);

    /// @return false the first time that it can't be written, to be told once
    bool Write(const std::string& lines);

  private:
    QFile file_;
    bool isNew_ = false, broken_ = false;

    bool OpenNew();
    bool OpenEmpty();
};
