// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_tally.h"

#include <utility>

#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/floorpart/add_share.h"
#include "tally/floorpart/floor_statement.h"
#include "tally/floorpart/floor_sums.h"
#include "tally/floorpart/share_walk.h"
#include "tally/rows/row_walk.h"

namespace rbt {
namespace {

FilteredStatement FloorStatement(Database& site, const SelectionData& selection) {
  return FilterShapes(
      FloorStatementSoFar(FloorScopeOf(selection), selection.MaterialFormMask, selection.MaterialKindMask),
      selection.HoopMode, selection.AnchorPlateMode, kFloorShapeFilters,
      [&](const std::string& statement) { return site.HasRows(statement); });
}

int FloorOf(const std::optional<std::int32_t>& floor) {
  if (!floor) throw Fault(FaultKind::invalid_use_of_null, "階");
  return FloorIndex(*floor);
}

/// What puts a share into the tables.
ShareTaker FloorTaker(FloorTables& tables, const FloorRules& rules) {
  const CellWeight deformed = rules.installed ? CellWeight::installed : CellWeight::none;
  return [&tables, deformed](const RowShare& share, const std::optional<std::int32_t>& floor) {
    AddShare(tables, FloorOf(floor), share, deformed);
  };
}

FloorRules FloorRulesOf(const SelectionData& selection) {
  FloorRules rules;
  rules.rows = {selection.HoopMode, ReadCountHoopWelds()};
  rules.installed = ReadSetting(kFloorTallyStockKey) == 1;
  rules.uplift = selection.UwanoseRitu;
  rules.columns = ColumnsInUse(Settings.Use13mColumn == 1);
  return rules;
}

}  // namespace

void FoldFloorRow(FloorTables& tables, const BarRow& row, std::optional<std::int32_t> floor,
                  const FloorRules& rules) {
  TakeShare(row, floor, rules.rows, FloorTaker(tables, rules));
}

void CloseFloorTally(FloorTables& tables, const FloorRules& rules) {
  if (rules.uplift != 0.0) RaiseFloorBars(tables, rules.uplift, rules.columns);
  CloseFloorSums(tables, {rules.installed, rules.installed, rules.uplift, rules.columns});
}

FloorScope FloorScopeOf(const SelectionData& selection) {
  return {selection.KaiStart, selection.KaiEnd, selection.KaiMin, selection.TokubetuMask};
}

void Kai_Jyuuryo_Syukei() {
  FloorTally = FloorTables();
  const FloorRules rules = FloorRulesOf(Selection);
  Database& site = *SiteContext.WorkDatabase;
  FloorTables tables;
  const FilteredStatement statement = FloorStatement(site, Selection);
  tables.HoopAri = statement.HoopAri;
  tables.TeiAri = statement.TeiAri;
  WalkShares(site, statement.text, rules.rows, ReadFloors::yes, FloorTaker(tables, rules));
  CloseFloorTally(tables, rules);
  ListFloors(tables, ListedFloors(FloorScopeOf(Selection)));
  FloorTally = std::move(tables);
}

void Kai_Jyuuryo_Syukei_Load() {
  const FloorRules rules = FloorRulesOf(Selection);
  FloorTables tables = std::exchange(FloorTally, FloorTables());
  tables.HoopAri = false;
  tables.TeiAri = false;
  SumFloorBars(tables);
  CloseFloorSums(tables, {.installed_sums = rules.installed, .columns = rules.columns});
  ListFloors(tables, ListedFloors(FloorScopeOf(Selection)));
  FloorTally = std::move(tables);
}

}  // namespace rbt
