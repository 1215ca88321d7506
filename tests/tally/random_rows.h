// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <random>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "support/schedule_site.h"
#include "tally/rows/bar_row.h"

namespace rbt::test {

/// Rows of a schedule with nulls and odd codes in them; every diameter belongs to its kind.
class RandomRows {
 public:
  explicit RandomRows(unsigned seed) : random_(seed) {}

  int Pick(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  std::optional<std::int32_t> PickOrNull(int low, int high) {
    if (Pick(0, 9) == 0) return std::nullopt;
    return Pick(low, high);
  }

  BarRow Next() {
    BarRow row;
    row.page = Pick(1, 50);
    row.line = Pick(1, 30);
    row.part = PickOrNull(0, 11);
    const bool ulbon = Pick(0, 4) == 0;
    row.kind = ulbon ? std::optional<std::int32_t>(2) : AnyKindButUlbon();
    row.diameter_code = DiameterCode(ulbon ? Pick(12, 17) : Pick(0, 11));
    if (Pick(0, 4) == 0) row.weld_diameter_code = Pick(0, 1) == 0 ? 0 : DiameterCode(Pick(0, 11));
    constexpr int kShapes[] = {1, 2, 87, 87, 138, 143, 161, 177};
    row.shape = Pick(0, 9) == 0 ? std::nullopt : std::optional<std::int32_t>(kShapes[Pick(0, 7)]);
    row.pieces = PickOrNull(1, 500);
    row.cut_length_mm = PickOrNull(200, 12000);
    row.stock_length_m = Pick(0, 9) == 0 ? 12.5 : StockMetres(Pick(0, 18));
    row.stock_bars = PickOrNull(1, 300);
    row.welds = PickOrNull(0, 20);
    row.threads = PickOrNull(0, 20);
    row.plates = PickOrNull(0, 20);
    row.cuts = PickOrNull(0, 20);
    return row;
  }

  std::vector<BarRow> Many(int count) {
    std::vector<BarRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) rows.push_back(Next());
    return rows;
  }

  std::mt19937& Engine() { return random_; }

 private:
  std::optional<std::int32_t> AnyKindButUlbon() {
    constexpr int kKinds[] = {0, 1, 1, 3, 4, 5};
    return Pick(0, 9) == 0 ? std::nullopt : std::optional<std::int32_t>(kKinds[Pick(0, 5)]);
  }

  std::mt19937 random_;
};

inline Value OrNull(const std::optional<std::int32_t>& number) { return number ? Number(*number) : kNull; }

inline Fields FieldsOf(const BarRow& row) {
  return {{"頁", OrNull(row.page)},
          {"行", OrNull(row.line)},
          {"部位", OrNull(row.part)},
          {"太さ", OrNull(row.diameter_code)},
          {"圧接太さ", OrNull(row.weld_diameter_code)},
          {"形状No", OrNull(row.shape)},
          {"合計", OrNull(row.pieces)},
          {"伸切寸", OrNull(row.cut_length_mm)},
          {"伸定尺", Value{*row.stock_length_m}},
          {"伸総計", OrNull(row.stock_bars)},
          {"圧接", OrNull(row.welds)},
          {"ネジ数", OrNull(row.threads)},
          {"定着板数", OrNull(row.plates)},
          {"切断", OrNull(row.cuts)},
          {"予備2", OrNull(row.kind)}};
}

/// With a line number the row stands on page 1 at that line instead of its own.
inline void AddRow(ScheduleSite& site, BarRow row, std::optional<std::int32_t> line = std::nullopt) {
  if (line) row.page = 1;
  if (line) row.line = line;
  site.AddRow(FieldsOf(row));
}

}  // namespace rbt::test
