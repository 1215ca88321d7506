// SPDX-License-Identifier: MIT
#include "tally/floorpart/cell_weights.h"

#include "data/bar_tables.h"
#include "platform/numbers/number_words.h"

namespace rbt {

std::int32_t RaisedCount(std::int32_t count, double ratio) {
  return ToInt32(Fix(count * (ratio + 1.0) + 0.5), "raised count");
}

Currency StockKilograms(int diameter_row, int stock_column, std::int32_t bars) {
  if (bars == 0) return {};
  return WholeKilograms(Currency::FromDouble(bars * BarWeight(diameter_row, stock_column)));
}

}  // namespace rbt
