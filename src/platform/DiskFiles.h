#pragma once

#include "bot/Files.h"
#include "platform/PosixDataFolder.h"

/// The computer's own file system. Files are written by WholeFile, which tells what becomes of links, modes and what
/// may not be written.
class DiskFiles final : public Files {
  public:
    Outcome<std::string> Read(const std::string& path) const override;
    Outcome<Done> Write(const std::string& path, std::string_view bytes) override;
    std::optional<std::string> Find(const std::string& path) const override;
    std::string Absolute(const std::string& path) const override;
    std::string DataPath(const std::string& folder, const std::string& name) const override {
        return modDataFolder::PathOf(folder, name);
    }
    Outcome<std::optional<std::string>> ReadData(const std::string& path) const override {
        return modDataFolder::Read(path);
    }
    bool LeadToSameFile(const std::string& a, const std::string& b) const override {
        return modDataFolder::LeadToSameFile(a, b);
    }
    Outcome<std::unique_ptr<Lock>> LockFolder(const std::string& folder) override {
        return modDataFolder::LockFolder(folder, modDataFolder::kPatience);
    }
};
