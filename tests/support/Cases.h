#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "text/Fault.h"

/// Names a test after its case's rule: for tables whose rows begin with a `name`.
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
