// SPDX-License-Identifier: MIT
#include "tally/floorpart/row_share.h"

#include <string>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "data/parts.h"
#include "platform/fault.h"

namespace rbt {
namespace {

bool IsThin(const BarRow& row) { return row.IsOf(MaterialKind::ulbon); }

int DiameterRowOf(const BarRow& row) {
  if (!row.diameter_code) return -1;
  return IsThin(row) ? UlbonIndex(*row.diameter_code) : DiameterIndex(*row.diameter_code);
}

/// Thin bars keep no stock length: theirs of 0 is the first column. A deformed bar without one has no column.
int ColumnOf(const BarRow& row) {
  if (!row.stock_length_m) return -1;
  if (IsThin(row) && *row.stock_length_m == 0.0) return 0;
  return StockIndex(*row.stock_length_m);
}

int PartOf(const BarRow& row) {
  const std::int32_t part = row.part.value_or(kNoPart);
  if (part < kNoPart) throw Fault(FaultKind::subscript_out_of_range, "部位 " + std::to_string(part));
  return part == kNoPart || part > kLastNamedPart ? kOtherParts : part;
}

std::optional<double> InstalledKilograms(const BarRow& row, int diameter_row) {
  if (!row.pieces || !row.cut_length_mm) return std::nullopt;
  return (*row.pieces * UnitWeight(diameter_row)) * (*row.cut_length_mm / 1000.0);
}

/// A weld between two diameters counts at the thicker.
int WeldRow(const BarRow& row, int diameter_row) {
  const bool to_thicker =
      !IsThin(row) && row.weld_diameter_code && *row.diameter_code < *row.weld_diameter_code;
  return to_thicker ? DiameterIndex(*row.weld_diameter_code) : diameter_row;
}

/// A deformed bar of the part whose bars end in a weld is cut at the diameter that it is welded to.
int CutRow(const BarRow& row, int diameter_row) {
  const bool at_weld = !IsThin(row) && row.part == kCutPart && row.weld_diameter_code.value_or(0) != 0;
  return at_weld ? DiameterIndex(*row.weld_diameter_code) : diameter_row;
}

void ShareBars(RowShare& share, const BarRow& row, const ShareRules& rules) {
  share.bars = row.stock_bars;
  share.installed_kilograms = InstalledKilograms(row, share.row);
  if (row.IsHoop() && !rules.count_hoop_welds) return;
  share.welds = {WeldRow(row, share.row), row.welds};
}

}  // namespace

bool IsThinRow(int diameter_row) { return diameter_row >= kDeformedRows; }

std::optional<RowShare> ShareOf(const BarRow& row, const ShareRules& rules) {
  RowShare share;
  share.row = DiameterRowOf(row);
  share.column = ColumnOf(row);
  if (share.row < 0 || share.column < 0) return std::nullopt;
  share.part = PartOf(row);
  const bool left_out = rules.hoops == ShapeFilter::left_out && row.IsHoop();
  if (!left_out) ShareBars(share, row, rules);
  if (row.IsOf(MaterialKind::threaded)) share.threads = {share.row, row.threads};
  share.plates = {share.row, row.plates};
  share.cuts = {CutRow(row, share.row), row.cuts};
  return share;
}

}  // namespace rbt
