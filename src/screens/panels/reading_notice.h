// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/long_reading.h"

namespace rbt {

/// For `Services.OnLongReading`: tells which file is being read, in the middle of the window in front, or in
/// the notice of a start before there is one, until the action that reads it has ended. No event is looked at
/// for it: one of them could use the file in the midst.
LongReadingHook ShowLongReadings();

}  // namespace rbt
