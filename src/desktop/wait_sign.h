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

/// The work waits for the user: no sign and no panel as long as it lives, and again the sign that was behind
/// it. The time that work may take before it shows is counted anew.
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
