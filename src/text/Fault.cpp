#include "text/Fault.h"

#include <array>
#include <utility>

namespace {
constexpr std::array<std::string_view, 7> kNames = {"Overflow",
                                                    "Type mismatch",
                                                    "Division by zero",
                                                    "Subscript out of range",
                                                    "Invalid procedure call",
                                                    "File not found",
                                                    "Path or file access error"};
}  // namespace

RuntimeFault::RuntimeFault(FaultKind kind, std::string detail) : kind_(kind), detail_(std::move(detail)) {}

std::string_view RuntimeFault::Name() const { return kNames[static_cast<std::size_t>(kind_)]; }

const char* RuntimeFault::what() const noexcept { return kNames[static_cast<std::size_t>(kind_)].data(); }
