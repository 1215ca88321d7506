// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/numbers/currency.h"
#include "store/grouped_rows.h"

namespace rbt {

/// Rows of 加工テーブル with equal pieces, as a grouping statement gives them, with the sums over the rows.
struct BarGroup {
  std::int32_t diameter_code = 0;                  ///< 太さ
  std::optional<std::int32_t> weld_diameter_code;  ///< 圧接太さ
  std::int32_t shape = 0;                          ///< 形状No
  std::optional<std::int32_t> cut_length_mm;       ///< 伸切寸
  std::optional<std::string> dimensions;           ///< 予備5
  double stock_length_m = 0.0;                     ///< 伸定尺; 0 where the statement does not ask for it
  Currency pieces;                                 ///< 合計本数, a whole number
  std::optional<double> welds;                     ///< 合計圧接, of any size: not all that are read count
  std::optional<std::int32_t> threads;             ///< 合計ネジ数
  std::optional<std::int32_t> plates;              ///< 合計定着板数
};

/// "加工テーブル 太さ 19 形状No 1 伸切寸 3000".
std::string PlaceOf(const BarGroup& group);

/// Reads `BarGroup`s from a grouping statement; columns are resolved once.
class BarGroupReader {
 public:
  explicit BarGroupReader(const GroupedRows& groups);
  BarGroup Read(const GroupedRows& groups) const;

 private:
  FieldHandle diameter_, weld_diameter_, shape_, cut_length_, dimensions_, pieces_, welds_, threads_, plates_;
  std::optional<FieldHandle> stock_length_;
};

}  // namespace rbt
