// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "planning/problem/refusal.h"

namespace rbt::planning::test {

/// The words of the refusal that an action ends with; none when it comes to its end.
inline std::string RefusalOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
  return "";
}

}  // namespace rbt::planning::test
