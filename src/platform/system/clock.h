// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/date_time.h"

namespace rbt {

/// The one source of the current date and time; `RBK_CLOCK` ("2026-11-21T09:00:00") or a test may fix it.
DateTime Now();
/// Fixes `Now` until it is called again with nothing.
void SetClock(std::optional<DateTime> fixed);

}  // namespace rbt
