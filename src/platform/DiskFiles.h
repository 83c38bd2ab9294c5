#pragma once

#include "engine/Files.h"

/// The computer's own file system. Files are written beside their place, flushed, and renamed over the old ones.
class DiskFiles final : public Files {
  public:
    std::string Read(const std::string& path) const override;
    void Write(const std::string& path, std::string_view bytes) override;
    std::optional<std::string> Find(const std::string& path) const override;
    std::string Absolute(const std::string& path) const override;
};
