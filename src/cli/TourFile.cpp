#include "cli/TourFile.h"

#include "platform/DiskFiles.h"
#include "text/Fault.h"

TourReading ReadTourFile(const std::string& path) {
    if (path.empty()) return {};
    try {
        return ReadTour(DiskFiles().Read(path), path);
    } catch (const RuntimeFault& fault) {
        return {{}, path + ": " + std::string(fault.Name())};
    }
}
