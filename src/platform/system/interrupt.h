// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

namespace rbt {

/// While it lives, Ctrl-C does not end the program but is an answer to `Requested`. One at a time, on the
/// thread that made it, before others are started.
class InterruptWatch {
 public:
  InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;
  /// What was pressed meanwhile is spent: it does not end the program afterwards.
  ~InterruptWatch();

  /// True from the first Ctrl-C on.
  bool Requested();

 private:
  sigset_t mask_before_{};
  struct sigaction action_before_ {};
  bool requested_ = false;
};

}  // namespace rbt
