// SPDX-License-Identifier: MIT
#include "tally/rows/row_fold.h"

#include <string>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "data/parts.h"
#include "platform/numbers/number_words.h"
#include "tally/count_cells.h"

namespace rbt {
namespace {

/// Metres of installed bar in a row; a null factor makes none.
double InstalledMetres(const BarRow& row) {
  if (!row.cut_length_mm || !row.pieces) return 0.0;
  return *row.cut_length_mm / 1000.0 * *row.pieces;
}

/// The hoops that are left out of bars, lengths and welds.
bool IsLeftOut(const BarRow& row, const RowRules& rules) {
  return rules.hoops == ShapeFilter::left_out && row.IsHoop();
}

/// A weld between two diameters counts at the thicker.
int WeldRow(const BarRow& row, int d) {
  const bool welded_to_thicker = row.weld_diameter_code && *row.diameter_code < *row.weld_diameter_code;
  return welded_to_thicker ? DiameterIndex(*row.weld_diameter_code) : d;
}

template <int N>
void AddWelds(CheckedArray<std::int32_t, N>& welds, int index, const BarRow& row, const RowRules& rules) {
  if (IsLeftOut(row, rules)) return;
  if (row.IsHoop() && !rules.count_hoop_welds) return;
  AddCount(welds, index, row.welds, "圧接");
}

/// A cut of the part whose bars end in a weld is made at the diameter that they are welded to.
int CutRow(const BarRow& row, int d) {
  const bool at_weld = row.part == kCutPart && row.weld_diameter_code.value_or(0) != 0;
  return at_weld ? DiameterIndex(*row.weld_diameter_code) : d;
}

void AddThreadsPlatesCuts(TallyTable& table, int d, const BarRow& row, bool threads_count) {
  if (threads_count) AddCount(table.ThreadCount, d, row.threads, "ネジ数");
  AddCount(table.PlateCount, d, row.plates, "定着板数");
  const int cut_row = CutRow(row, d);
  if (cut_row < 0) return;  // a cut at a 圧接太さ that is no deformed diameter is passed over
  AddCount(table.CutCount, cut_row, row.cuts, "切断");
}

void CountHighStrength(TallyTable& table, const BarRow& row) {
  if (!row.IsOf(MaterialKind::high_strength)) return;
  table.HighStrengthRowCount = AddInt32(table.HighStrengthRowCount, 1, "予備2");
}

void FoldDeformed(TallyTable& table, int d, int l, const BarRow& row, const RowRules& rules) {
  if (!IsLeftOut(row, rules)) {
    AddCount(table.BarCount[d], l, row.stock_bars, "伸総計");
    table.StockWeight[d][l] += Currency::FromDouble(BarWeight(d, l) * row.stock_bars.value_or(0));
    table.CutLengthM[d][l] += InstalledMetres(row);
  }
  AddWelds(table.WeldCount, WeldRow(row, d), row, rules);
  AddThreadsPlatesCuts(table, d, row, row.IsOf(MaterialKind::threaded));
  CountHighStrength(table, row);
}

void FoldUlbon(TallyTable& table, const BarRow& row, bool weight_from_all_metres, const RowRules& rules) {
  if (IsLeftOut(row, rules)) return;
  const int u = UlbonIndex(*row.diameter_code);
  table.UlbonLengthM[u] += InstalledMetres(row);
  AddWelds(table.UlbonWeldCount, u, row, rules);
  if (weight_from_all_metres) {
    table.UlbonWeight[u] = table.UlbonLengthM[u] * UnitWeight(u);
  } else {
    table.UlbonWeight[u] += InstalledMetres(row) * UnitWeight(u);
  }
}

bool CountsWithoutColumn(const BarRow& row, const RowRules& rules) {
  if (!rules.counts_without_column_by_choice) return true;
  const bool high_strength = row.IsOf(MaterialKind::high_strength);
  const bool plain = row.kind.value_or(0) < static_cast<std::int32_t>(MaterialKind::ulbon);
  switch (*rules.counts_without_column_by_choice) {
    case CalcChoice::without_high_strength:
      return plain;
    case CalcChoice::high_strength_alone:
      return high_strength;
    case CalcChoice::high_strength_with_others:
      return plain || high_strength;
  }
  return false;
}

void FoldDeformedWithoutColumn(TallyTable& table, int d, const BarRow& row, const RowRules& rules) {
  if (CountsWithoutColumn(row, rules)) {
    AddWelds(table.WeldCount, WeldRow(row, d), row, rules);
    AddThreadsPlatesCuts(table, d, row, true);
  }
  CountHighStrength(table, row);
  if (!rules.length_without_column_in_first_cell) table.LengthWithoutColumnM[d] += InstalledMetres(row);
}

std::string StockWarning(const BarRow& row) {
  return " " + NumberText(row.page) + "頁の" + NumberText(row.line) + "行目" + "の定尺を確認";
}

void FoldWithoutColumn(TallyTable& table, int d, bool deformed, const BarRow& row, const RowRules& rules) {
  if (*row.diameter_code > 0) {
    if (deformed) {
      FoldDeformedWithoutColumn(table, d, row, rules);
    } else {
      FoldUlbon(table, row, rules.ulbon_weight_from_all_metres, rules);
    }
  }
  table.StockWarningText = StockWarning(row);
  if (rules.length_without_column_in_first_cell && !row.IsOf(MaterialKind::ulbon)) {
    table.CutLengthM[d][0] += InstalledMetres(row);
  }
}

void FoldPlacedRow(TallyTable& table, const BarRow& row, const RowRules& rules) {
  if (!row.diameter_code) return;
  const int d = DiameterIndex(*row.diameter_code);
  const bool deformed = !row.IsOf(MaterialKind::ulbon) && d >= 0;
  const int l = row.stock_length_m ? StockIndex(*row.stock_length_m) : -1;
  if (l < 0 || *row.diameter_code == 0) {
    FoldWithoutColumn(table, d, deformed, row, rules);
  } else if (deformed) {
    FoldDeformed(table, d, l, row, rules);
  } else if (rules.include_ulbon) {
    FoldUlbon(table, row, true, rules);
  }
}

}  // namespace

void FoldRow(TallyTable& table, const BarRow& row, const RowRules& rules) {
  At([&] { return PlaceOf(row); }, [&] { FoldPlacedRow(table, row, rules); });
}

}  // namespace rbt
