#include "platform/StartedProgram.h"

#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>

namespace {

struct Origin {
    std::int64_t parent = 0, session = 0;  ///< 0 when the process is gone
};

Origin OriginOf(std::int64_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string line;
    std::getline(file, line);
    // The name stands in parentheses and may hold anything. Behind it: state, parent, process group, session.
    std::istringstream fields(line.substr(line.rfind(')') + 1));
    Origin origin;
    std::string state;
    std::int64_t group = 0;
    fields >> state >> origin.parent >> group >> origin.session;
    return origin;
}

}  // namespace

StartedProgram::StartedProgram(std::int64_t process) : process_(process), session_(OriginOf(process).session) {
    // A program started apart has a session of its own, which outlives the tree: what a launcher leaves behind when it
    // ends still tells by it where it came from.
    if (session_ == OriginOf(getpid()).session) session_ = 0;
}

bool StartedProgram::Includes(std::int64_t process) const {
    if (process_ == 0) return false;
    while (process > 1) {
        if (process == process_) return true;
        const Origin origin = OriginOf(process);
        if (session_ != 0 && origin.session == session_) return true;
        process = origin.parent;
    }
    return false;
}
