// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// Which tally is at work, by the number that saved tallies and the menu know it by.
enum class TallyKind : std::int32_t {
  bulk = 0,        ///< the whole site, 一括集計
  shape = 1,       ///< a range of shapes, 形状別 一括集計
  page = 2,        ///< a range of pages and lines, 頁行別集計
  page_shape = 3,  ///< shapes of a range of pages and lines, 形状別 頁行別集計
  floor = 4,       ///< 階別集計
  part = 5,        ///< 部位別集計
  names = 6,       ///< the marked registered names, 登録名集計
};

}  // namespace rbt
