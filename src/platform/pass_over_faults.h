// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "platform/fault.h"

namespace rbt {

/// Runs an action that the rules guard: a fault of which `guards` says true ends it and nothing else. Returns
/// the fault that was passed over; all others pass through. A user who has stopped the work has stopped all
/// of it: that fault is never passed over.
template <typename Guards, typename Action>
std::optional<Fault> PassOverFaultsIf(const Guards& guards, Action&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    if (fault.Kind() == FaultKind::stopped || !guards(fault)) throw;
    return fault;
  }
  return std::nullopt;
}

/// Whatever its fault.
template <typename Action>
std::optional<Fault> PassOverFaults(Action&& action) {
  return PassOverFaultsIf([](const Fault&) { return true; }, std::forward<Action>(action));
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
