// SPDX-License-Identifier: MIT
#include "platform/system/interrupt.h"

#include <ctime>

namespace rbt {
namespace {

sigset_t InterruptAlone() {
  sigset_t set{};
  sigemptyset(&set);
  sigaddset(&set, SIGINT);
  return set;
}

/// Takes a signal that waits; false when none does.
bool TakeInterrupt() {
  const sigset_t interrupt = InterruptAlone();
  const timespec at_once{};
  return sigtimedwait(&interrupt, nullptr, &at_once) == SIGINT;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  const sigset_t interrupt = InterruptAlone();
  pthread_sigmask(SIG_BLOCK, &interrupt, &mask_before_);
  // A signal that is ignored does not wait; shells start what runs in the background so.
  struct sigaction waits {};
  waits.sa_handler = SIG_DFL;
  sigaction(SIGINT, &waits, &action_before_);
}

InterruptWatch::~InterruptWatch() {
  while (TakeInterrupt()) {
  }
  sigaction(SIGINT, &action_before_, nullptr);
  pthread_sigmask(SIG_SETMASK, &mask_before_, nullptr);
}

bool InterruptWatch::Requested() {
  requested_ = requested_ || TakeInterrupt();
  return requested_;
}

}  // namespace rbt
