// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "data/materials.h"
#include "data/shapes.h"

namespace rbt {

/// What a tally by rows reads of one row of 加工テーブル. Nothing where the column is null or the file lacks
/// it.
struct BarRow {
  std::optional<std::int32_t> page;                ///< 頁
  std::optional<std::int32_t> line;                ///< 行
  std::optional<std::int32_t> part;                ///< 部位
  std::optional<std::int32_t> diameter_code;       ///< 太さ
  std::optional<std::int32_t> weld_diameter_code;  ///< 圧接太さ, 0 for the row's own
  std::optional<std::int32_t> shape;               ///< 形状No
  std::optional<std::int32_t> pieces;              ///< 合計
  std::optional<std::int32_t> cut_length_mm;       ///< 伸切寸
  std::optional<double> stock_length_m;            ///< 伸定尺
  std::optional<std::int32_t> stock_bars;          ///< 伸総計
  std::optional<std::int32_t> welds;               ///< 圧接
  std::optional<std::int32_t> threads;             ///< ネジ数
  std::optional<std::int32_t> plates;              ///< 定着板数
  std::optional<std::int32_t> cuts;                ///< 切断
  std::optional<std::int32_t> kind;                ///< 予備2

  bool IsOf(MaterialKind code) const { return kind == static_cast<std::int32_t>(code); }
  bool IsHoop() const { return shape == kWeldedHoopShape; }
};

/// The digits of a number, empty for null.
std::string NumberText(const std::optional<std::int32_t>& number);
/// "加工テーブル 3頁 12行"; empty numbers where they are null.
std::string PlaceOf(const BarRow& row);

}  // namespace rbt
