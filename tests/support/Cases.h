#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "text/Fault.h"

/// What a row of a table begins with: what its test is called, in short.
struct Row {
    const char* name;
};
inline std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }

/// Names a test after its row.
inline constexpr auto kCaseName = [](const auto& info) { return std::string(info.param.name); };

/// The kind of fault that an action raises; nothing when it raises none.
template <typename Action>
std::optional<FaultKind> FaultOf(Action action) {
    try {
        action();
    } catch (const RuntimeFault& fault) {
        return fault.Kind();
    }
    return std::nullopt;
}
