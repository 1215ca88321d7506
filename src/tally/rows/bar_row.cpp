// SPDX-License-Identifier: MIT
#include "tally/rows/bar_row.h"

namespace rbt {

std::string NumberText(const std::optional<std::int32_t>& number) {
  return number ? std::to_string(*number) : "";
}

std::string PlaceOf(const BarRow& row) {
  return "加工テーブル " + NumberText(row.page) + "頁 " + NumberText(row.line) + "行";
}

}  // namespace rbt
