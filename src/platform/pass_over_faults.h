// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/fault.h"

namespace rbt {

/// Runs an action that the rules guard: a fault ends it and nothing else. Returns the fault that was passed
/// over.
template <typename Action>
std::optional<Fault> PassOverFaults(Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault;
  }
  return std::nullopt;
}

/// The same for faults of one kind; all others pass through.
template <typename Action>
std::optional<Fault> PassOverFaults(FaultKind kind, Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    if (fault.Kind() != kind) throw;
    return fault;
  }
  return std::nullopt;
}

/// The same for faults that lie in what was read; a broken disk, a full one, a lock pass through.
template <typename Action>
std::optional<Fault> PassOverFaultsOfContent(Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    if (fault.Kind() == FaultKind::storage || fault.Kind() == FaultKind::locked) throw;
    return fault;
  }
  return std::nullopt;
}

}  // namespace rbt
