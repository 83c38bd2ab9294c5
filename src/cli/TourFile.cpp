#include "cli/TourFile.h"

#include "platform/DiskFiles.h"

TourReading ReadTourFile(const std::string& path) {
    if (path.empty()) return {};
    const auto bytes = DiskFiles().Read(path);
    if (!bytes) return {{}, path + ": " + std::string(bytes.Fault().Name())};
    return ReadTour(*bytes, path);
}
