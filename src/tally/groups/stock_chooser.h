// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "tally/engine/stock_engine.h"
#include "tally/groups/bar_group.h"

namespace rbt {

/// Stock and bars of a group for one tally, left in `EngineState.TeijyakuResult` too. With
/// `keep_schedule_stock` by the group's own stock length and the `Plus` that was last read, else by the
/// engine, whose settings are read with the first group and fixed stock lengths looked up once for each cut
/// length and diameter.
std::function<StockResult(const BarGroup& group)> StockChooser(bool keep_schedule_stock);

}  // namespace rbt
