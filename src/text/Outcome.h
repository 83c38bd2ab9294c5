#pragma once

#include <utility>
#include <variant>

#include "text/Fault.h"

/// The value of what only has to be done.
struct Done {};

/// What comes of something that may well fail, such as reading a file: its value, or the fault that the failure is for
/// those who have no other way. They say ValueOrFault; everybody else looks.
template <typename T>
class [[nodiscard]] Outcome {
  public:
    Outcome(T value) : outcome_(std::move(value)) {}
    Outcome(RuntimeFault fault) : outcome_(std::move(fault)) {}

    /// Whether there is a value.
    explicit operator bool() const { return std::holds_alternative<T>(outcome_); }

    /// The value; only where there is one.
    const T& operator*() const& { return std::get<T>(outcome_); }
    T operator*() && { return std::get<T>(std::move(outcome_)); }

    /// Why there is none; only where that is so.
    const RuntimeFault& Fault() const { return std::get<RuntimeFault>(outcome_); }

  private:
    std::variant<T, RuntimeFault> outcome_;
};

/// The value of an outcome.
/// @throws RuntimeFault the outcome's, when there is none
template <typename T>
T ValueOrFault(Outcome<T> outcome) {
    if (!outcome) throw outcome.Fault();
    return *std::move(outcome);
}
