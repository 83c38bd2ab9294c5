#pragma once

#include <cstdint>
#include <filesystem>

/// Mounts a small disk in memory that only this process and what it starts can see; gone with them.
/// @return false when that may not be done here, with the reason in errno
bool MountSmallDisk(const std::filesystem::path& place);

/// Fills the disk that a file is on by that file, but for so many bytes.
void FillUp(const std::filesystem::path& ballast, std::uintmax_t room);
