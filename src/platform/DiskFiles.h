#pragma once

#include "engine/Files.h"

/// The computer's own file system. Files are written by WholeFile, which tells what becomes of links, modes and what
/// may not be written; a fault of writing names the file and the reason.
class DiskFiles final : public Files {
  public:
    std::string Read(const std::string& path) const override;
    void Write(const std::string& path, std::string_view bytes) override;
    std::optional<std::string> Find(const std::string& path) const override;
    std::string Absolute(const std::string& path) const override;
};
