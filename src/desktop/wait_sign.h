// SPDX-License-Identifier: MIT
#pragma once

namespace rbt {

/// Tells by the pointer, in all windows, that work goes on, as long as it lives. Inside another one it does
/// nothing.
class WaitSign {
 public:
  WaitSign();
  WaitSign(const WaitSign&) = delete;
  WaitSign& operator=(const WaitSign&) = delete;
  ~WaitSign();

 private:
  bool ours_;
};

/// The work waits for the user: no sign as long as it lives, and again what was behind it.
class WorkAtRest {
 public:
  WorkAtRest();
  WorkAtRest(const WorkAtRest&) = delete;
  WorkAtRest& operator=(const WorkAtRest&) = delete;
  ~WorkAtRest();

 private:
  bool signed_;
};

}  // namespace rbt
