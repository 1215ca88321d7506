// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt::test {

/// The kind of the fault that an action ends with; nothing when it comes to its end.
inline std::optional<FaultKind> FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Kind();
  }
  return std::nullopt;
}

/// The message of the fault that an action ends with; an action that comes to its end fails the test.
inline std::string FaultTextOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.what();
  }
  ADD_FAILURE() << "no fault";
  return "";
}

}  // namespace rbt::test
