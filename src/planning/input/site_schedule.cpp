// SPDX-License-Identifier: MIT
#include "planning/input/site_schedule.h"

#include <algorithm>
#include <string_view>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "data/floors.h"
#include "data/materials.h"
#include "store/row_walk.h"
#include "tally/rows/bar_row_reader.h"

namespace rbt::planning {
namespace {

constexpr std::string_view kFloorColumn = "階";

bool CountsAsSteel(const BarRow& row, const RowRules& rules) {
  const bool deformed = !row.IsOf(MaterialKind::ulbon) && DiameterIndex(row.diameter_code.value_or(0)) >= 0;
  return deformed && !(rules.hoops == ShapeFilter::left_out && row.IsHoop());
}

SteelRow SteelRowOf(const BarRow& row, std::optional<std::int32_t> floor) {
  SteelRow steel;
  steel.page = row.page;
  steel.line = row.line;
  steel.floor = floor.value_or(kNoFloor);
  steel.diameter = *row.diameter_code;
  steel.kind = std::max(static_cast<int>(MaterialKind::deformed), row.kind.value_or(0));
  steel.hoop = row.IsHoop();
  steel.stock_m = row.stock_length_m.value_or(0.0);
  steel.stock_bars = row.stock_bars.value_or(0);
  steel.pieces = row.pieces;
  steel.cut_length_mm = row.cut_length_mm;
  steel.welded = row.welds.value_or(0) > 0;
  return steel;
}

}  // namespace

SiteSchedule ReadSiteSchedule(Database& site, std::string_view statement, const RowRules& rules,
                              const ClosingRules& closing) {
  SiteSchedule schedule;
  schedule.closing = closing;
  std::vector<std::string_view> columns(BarRowReader::Columns().begin(), BarRowReader::Columns().end());
  columns.push_back(kFloorColumn);
  RowWalk rows(site, statement, columns);
  const BarRowReader reader(rows);
  const std::optional<FieldHandle> floor = rows.FindField(kFloorColumn);
  rows.Run([&](const WalkedRow& found) {
    const BarRow row = reader.Read(found);
    FoldRow(schedule.table, row, rules);
    if (!CountsAsSteel(row, rules)) return;
    schedule.rows.push_back(SteelRowOf(row, floor ? found.Int32(*floor) : std::nullopt));
  });
  return schedule;
}

}  // namespace rbt::planning
