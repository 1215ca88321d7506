// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace rbt::planning {

/// A plan that cannot be made; the message, one line, says why and stands alone.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace rbt::planning
