// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "store/database.h"
#include "tally/closing_sums.h"
#include "tally/rows/row_fold.h"
#include "tally/tally_grid.h"

namespace rbt::planning {

/// A row that the bulk tally counts as steel: a deformed bar, and no hoop where hoops are left out.
struct SteelRow {
  std::optional<int> page;
  std::optional<int> line;
  int floor = 0;     ///< 階; null is no floor
  int diameter = 0;  ///< deformed diameter code
  int kind = 1;      ///< 予備2, at least 1
  bool hoop = false;
  double stock_m = 0.0;                       ///< 伸定尺
  std::int32_t stock_bars = 0;                ///< 伸総計; null is 0
  std::optional<std::int32_t> pieces;         ///< 合計
  std::optional<std::int32_t> cut_length_mm;  ///< 伸切寸
  bool welded = false;                        ///< 圧接 above 0
};

/// The rows of a bulk tally, in table order, and what the tally makes of them.
struct SiteSchedule {
  std::vector<SteelRow> rows;
  TallyTable table;  ///< all rows folded, not closed
  ClosingRules closing;
};

/// Walks the rows of a statement over 加工テーブル as the bulk tally does. Faults: those of the tally.
SiteSchedule ReadSiteSchedule(Database& site, std::string_view statement, const RowRules& rules,
                              const ClosingRules& closing);

}  // namespace rbt::planning
