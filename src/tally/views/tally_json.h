// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "tally/engine/stock_engine.h"
#include "tally/tally_grid.h"

namespace rbt {

/// The table as one JSON object, one field a line, closed by a line feed. `kind` is "bulk", "shape", "page",
/// "page-shape" or "names". Weights in Currency have at most four decimals, doubles 17 significant digits.
/// Two-dimensional tables list their cells other than 0 as [d, l, value].
std::string TallyJson(const TallyTable& table, std::string_view kind, bool has_hoop_rows,
                      bool has_anchor_plate_rows);
/// The stock of one group as one JSON object on one line.
std::string StockJson(const StockResult& stock);

}  // namespace rbt
