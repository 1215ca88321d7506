// SPDX-License-Identifier: MIT
#pragma once

#include <tuple>
#include <utility>

#include "platform/fault.h"

namespace rbt {

/// Runs an action. Where its user stops it, each `state` is as it was before.
template <typename Action, typename... State>
void OrAsBefore(Action&& action, State&... state) {
  std::tuple<State...> before(state...);
  try {
    action();
  } catch (const Fault& fault) {
    if (fault.Kind() == FaultKind::stopped) std::tie(state...) = std::move(before);
    throw;
  }
}

}  // namespace rbt
