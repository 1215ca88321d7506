// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/store/recordset.h"

namespace rbt {

/// 形状No of the welded closed hoop, 溶接閉鎖型フープ.
inline constexpr std::int32_t kHoopShape = 87;
/// 部位 whose cuts belong to the diameter that the bar is welded to.
inline constexpr std::int32_t kPartCutAtWeldDiameter = 2;
/// Codes of 予備2, the material kind; null, 0 and 1 are deformed bars.
inline constexpr std::int32_t kKindUlbon = 2;
inline constexpr std::int32_t kKindHighStrength = 3;
inline constexpr std::int32_t kKindThreaded = 4;

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

  bool IsHoop() const { return shape == kHoopShape; }
};

/// The digits of a number, empty for null.
std::string NumberText(const std::optional<std::int32_t>& number);
/// "加工テーブル 3頁 12行"; empty numbers where they are null.
std::string PlaceOf(const BarRow& row);

/// Reads `BarRow`s from a snapshot over 加工テーブル; columns are resolved once. Files of older versions may
/// lack 圧接太さ, ネジ数, 定着板数 and 切断: those read as null; any other that is missing throws `field not
/// found`.
class BarRowReader {
 public:
  /// The columns to narrow the snapshot to.
  static std::span<const std::string_view> Columns();

  explicit BarRowReader(const Recordset& rows);

  /// The current row. A fault names the row's page and line.
  BarRow Read(const Recordset& rows) const;

 private:
  std::array<std::optional<FieldHandle>, 15> fields_;
};

}  // namespace rbt
