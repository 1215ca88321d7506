// SPDX-License-Identifier: MIT
#pragma once

#include "platform/date_time.h"

namespace rbt {

/// The one source of the current date and time.
DateTime Now();

/// The system's time, unless `RBK_CLOCK` ("2026-11-21T09:00:00") fixes it; one that cannot be read throws
/// `type mismatch`.
DateTime SystemClock();

}  // namespace rbt
