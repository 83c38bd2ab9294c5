#pragma once

#include <map>
#include <string>

#include "bot/Files.h"
#include "text/Text.h"

/// Files that live in memory. A path marked unwritable can't be written, one marked unreadable no script can open; the
/// current folder counts for Absolute only.
class MemoryFiles final : public Files {
  public:
    std::map<std::string, std::string> contents;
    std::string unwritable, unreadable;
    std::string currentFolder;

    Outcome<std::string> Read(const std::string& path) const override {
        const auto file = contents.find(path);
        if (file == contents.end()) return RuntimeFault(FaultKind::FileNotFound, path);
        return file->second;
    }
    Outcome<Done> Write(const std::string& path, std::string_view bytes) override {
        if (path == unwritable) return RuntimeFault(FaultKind::PathOrFileAccess, path);
        contents[path] = bytes;
        return Done{};
    }
    std::optional<std::string> Find(const std::string& path) const override {
        if (contents.contains(path)) return path;
        for (const auto& [existing, bytes] : contents) {
            const bool sameName = LowerCase(FileNameOf(existing)) == LowerCase(FileNameOf(path));
            if (sameName && FolderOf(existing) == FolderOf(path)) return existing;
        }
        return std::nullopt;
    }
    std::string Absolute(const std::string& path) const override { return JoinPath(currentFolder, path); }
    std::string DataPath(const std::string& folder, const std::string& name) const override {
        const std::string path = JoinPath(folder, name);
        return Find(path).value_or(path);
    }
    Outcome<std::optional<std::string>> ReadData(const std::string& path) const override {
        if (path == unreadable) return RuntimeFault(FaultKind::PathOrFileAccess, path);
        return contents.contains(path) ? std::optional(contents.at(path)) : std::nullopt;
    }
    bool LeadToSameFile(const std::string& a, const std::string& b) const override {
        return LowerCase(Absolute(a)) == LowerCase(Absolute(b));
    }
    Outcome<std::unique_ptr<Lock>> LockFolder(const std::string&) override { return std::unique_ptr<Lock>(); }
};
