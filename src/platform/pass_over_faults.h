// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

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

/// The same for the faults of which `guards` says true; all others pass through.
template <typename Guards, typename Action>
std::optional<Fault> PassOverFaultsIf(const Guards& guards, Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    if (!guards(fault)) throw;
    return fault;
  }
  return std::nullopt;
}

/// Those of one kind.
template <typename Action>
std::optional<Fault> PassOverFaults(FaultKind kind, Action&& action) {
  return PassOverFaultsIf([kind](const Fault& fault) { return fault.Kind() == kind; },
                          std::forward<Action>(action));
}

/// Those that lie in what was read; a broken disk, a full one, a lock pass through.
template <typename Action>
std::optional<Fault> PassOverFaultsOfContent(Action&& action) {
  return PassOverFaultsIf(
      [](const Fault& fault) {
        return fault.Kind() != FaultKind::storage && fault.Kind() != FaultKind::locked;
      },
      std::forward<Action>(action));
}

}  // namespace rbt
