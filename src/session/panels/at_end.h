// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace rbt {

/// Calls a function when the scope is left, whatever ends it. The function throws nothing.
class AtEnd {
 public:
  explicit AtEnd(std::function<void()> call) : call_(std::move(call)) {}
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;
  ~AtEnd() { call_(); }

 private:
  std::function<void()> call_;
};

}  // namespace rbt
