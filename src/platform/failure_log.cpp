// SPDX-License-Identifier: MIT
#include "platform/failure_log.h"

#include <atomic>
#include <cstdio>

namespace rbt {

namespace {

std::atomic<std::int64_t> logged_failures = 0;

}  // namespace

void LogFailure(std::string_view what) noexcept {
  ++logged_failures;
  std::fprintf(stderr, "%.*s\n", static_cast<int>(what.size()), what.data());
}

std::int64_t LoggedFailures() { return logged_failures; }

}  // namespace rbt
