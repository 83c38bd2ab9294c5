#include "text/Fault.h"

#include <array>
#include <new>
#include <stdexcept>
#include <utility>

namespace {
constexpr std::array<std::string_view, 9> kNames = {"Overflow",
                                                    "Type mismatch",
                                                    "Division by zero",
                                                    "Subscript out of range",
                                                    "Invalid procedure call",
                                                    "File not found",
                                                    "Path or file access error",
                                                    "Out of memory",
                                                    "Internal error"};
}  // namespace

RuntimeFault::RuntimeFault(FaultKind kind, std::string detail) : kind_(kind), detail_(std::move(detail)) {}

std::string_view RuntimeFault::Name() const { return kNames[static_cast<std::size_t>(kind_)]; }

const char* RuntimeFault::what() const noexcept { return kNames[static_cast<std::size_t>(kind_)].data(); }

RuntimeFault AsFault(const std::exception& exception) {
    if (const auto* const fault = dynamic_cast<const RuntimeFault*>(&exception)) return *fault;
    // A length that no memory could ever hold is refused before the memory is asked for.
    const bool memory = dynamic_cast<const std::bad_alloc*>(&exception) != nullptr ||
                        dynamic_cast<const std::length_error*>(&exception) != nullptr;
    return memory ? RuntimeFault(FaultKind::OutOfMemory) : RuntimeFault(FaultKind::Internal, exception.what());
}
