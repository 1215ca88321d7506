// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_tally.h"

#include <utility>

#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/floorpart/add_share.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_statement.h"
#include "tally/floorpart/part_sums.h"
#include "tally/floorpart/share_walk.h"
#include "tally/rows/row_walk.h"
#include "tally/selection.h"

namespace rbt {
namespace {

FilteredStatement PartStatement(Database& site, const PartScope& scope, const SelectionData& selection) {
  return FilterShapes(PartStatementSoFar(scope, selection.MaterialFormMask, selection.MaterialKindMask),
                      selection.HoopMode, selection.AnchorPlateMode, kPartShapeFilters,
                      [&](const std::string& statement) { return site.HasRows(statement); });
}

ShareTaker PartTaker(PartTables& tables) {
  return [&tables](const RowShare& share, const std::optional<std::int32_t>& /*floor*/) {
    AddShare(tables, share, CellWeight::stock);
  };
}

PartRules PartRulesOf(const SelectionData& selection) {
  PartRules rules;
  rules.rows = {selection.HoopMode, ReadCountHoopWelds()};
  rules.uplift = selection.BuiUwanoseRitu;
  rules.columns = ColumnsInUse(Settings.Use13mColumn == 1);
  return rules;
}

}  // namespace

void FoldPartRow(PartTables& tables, const BarRow& row, const PartRules& rules) {
  TakeShare(row, std::nullopt, rules.rows, PartTaker(tables));
}

void ClosePartTally(PartTables& tables, const PartRules& rules) {
  if (rules.uplift != 0.0) RaiseParts(tables, rules.uplift, rules.columns);
  ClosePartSums(tables, rules.columns);
}

void Bui_Jyuuryo_Syukei(std::int16_t start, std::int16_t end, std::int16_t hasPH, std::int16_t hasR,
                        std::int16_t hasNone) {
  PartTally = PartTables();
  const PartRules rules = PartRulesOf(Selection);
  const PartScope scope{start, end, Selection.KaiStart == 0,
                        SpecialMask::OfTicks({hasR != 0, hasPH != 0, hasNone != 0})};
  Database& site = *SiteContext.WorkDatabase;
  PartTables tables;
  const FilteredStatement statement = PartStatement(site, scope, Selection);
  tables.HoopAri = statement.HoopAri;
  tables.TeiAri = statement.TeiAri;
  WalkShares(site, statement.text, rules.rows, ReadFloors::no, PartTaker(tables));
  ClosePartTally(tables, rules);
  ListParts(tables, Selection.UlbonOnly);
  PartTally = std::move(tables);
}

void Bui_Jyuuryo_Syukei_Load() {
  PartTables tables = std::exchange(PartTally, PartTables());
  tables.HoopAri = false;
  tables.TeiAri = false;
  ClosePartSums(tables, ColumnsInUse(Settings.Use13mColumn == 1));
  ListParts(tables, Selection.UlbonOnly);
  PartTally = std::move(tables);
}

}  // namespace rbt
