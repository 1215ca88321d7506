// SPDX-License-Identifier: MIT
#include "tally/groups/shape_tally.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "data/bar_tables.h"
#include "data/shapes.h"
#include "platform/system/process.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/closing_sums.h"
#include "tally/count_cells.h"
#include "tally/groups/group_statements.h"
#include "tally/groups/group_walk.h"
#include "tally/groups/stock_chooser.h"
#include "tally/rows/row_walk.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {
namespace {

/// The screen counts the high-strength rows of its range before it asks for the tally.
TallyTable ClearedTable() {
  const std::int32_t high_strength_rows = TallyGrid.HighStrengthRowCount;
  TallyGrid = TallyTable();
  TallyGrid.HighStrengthRowCount = high_strength_rows;
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = false;
  return TallyGrid;
}

GroupRules RulesOfTally(double (*bar_weight)(int d, int l)) {
  GroupRules rules;
  rules.count_hoop_welds = ReadCountHoopWelds();
  rules.keep_schedule_stock = Settings.StockCheck != 0;
  rules.choose_stock = StockChooser(rules.keep_schedule_stock);
  rules.bar_weight = bar_weight;
  return rules;
}

void RequireNumbersOfShapes(Database& site) {
  constexpr std::string_view kRows = "WHERE 太さ > 0 AND 合計 > 0";
  constexpr std::array<std::string_view, 6> kColumns = {"形状No",          kColumnsOfRows[0],
                                                        kColumnsOfRows[1], kColumnsOfRows[2],
                                                        kColumnsOfRows[3], kColumnsOfRows[4]};
  if (!MayHoldTexts(site, kColumns, kRows)) return;
  // A text lies in no range of shapes.
  RequireNumbers(site, std::span(kColumns).first(1), kRows);
  RequireNumbers(site, kColumnsOfRows, ShapeRows(Selection));
}

void ProbeShapes(Database& site) {
  if (!Selection.StartMode.probes_presence) return;
  const std::string probe = ShapeProbeStatement(Selection);
  RunState.HasHoopRows = site.HasRows(probe + std::string(kShapeHoopProbe));
  RunState.HasAnchorPlateRows = site.HasRows(probe + std::string(kAnchorPlateClause));
}

void ProbePageShapes(Database& site, const LineRange& lines) {
  if (!Selection.StartMode.probes_presence) return;
  const std::string probe = PageShapeStatementsSoFar(Selection, lines).main;
  const auto has_rows = [&](std::string_view clause) {
    return site.HasRows(std::string(probe).append(clause).append(kGroupByPieces));
  };
  RunState.HasHoopRows = has_rows(kPageShapeHoopProbe);
  RunState.HasAnchorPlateRows = has_rows(kPageShapePlateProbe);
}

void FoldAndClose(TallyTable& table, Database& site, const GroupStatements& statements,
                  const GroupRules& rules) {
  FoldGroups(table, site, statements.main, rules);
  RunPendingEvents();
  FoldCuts(table, site, statements.cuts);
  RunPendingEvents();
  CloseSums(table, {});
  TallyGrid = std::move(table);
}

double WeightFromPageTable(int d, int l) {
  return Get_BarWeightTbl(static_cast<std::int16_t>(d), static_cast<std::int16_t>(l));
}

}  // namespace

void Keijou_Jyuuryo_Syukei() {
  TallyTable table = ClearedTable();
  Database& site = *SiteContext.WorkDatabase;
  const GroupRules rules = RulesOfTally(BarWeight);
  if (site.HasRows("SELECT * FROM 加工テーブル WHERE 予備2=3")) ++table.HighStrengthRowCount;
  GetStockLengthLimits();  // a limit that is no stock length faults here, even when the schedule's stock is
                           // kept
  JoinDimensions();
  RunPendingEvents();
  RequireNumbersOfShapes(site);
  FoldUlbonGroups(table, site, ShapeUlbonStatement(Selection), rules.count_hoop_welds);
  RunPendingEvents();
  ProbeShapes(site);
  RunPendingEvents();
  FoldAndClose(table, site, ShapeStatements(Selection, RunState.HasHoopRows, RunState.HasAnchorPlateRows),
               rules);
}

void PKeijou_Jyuuryo_Syukei(std::int32_t startPage, std::int32_t startLine, std::int32_t endPage,
                            std::int32_t endLine) {
  TallyTable table = ClearedTable();
  Database& site = *SiteContext.WorkDatabase;
  ReadPlus();
  const GroupRules rules = RulesOfTally(WeightFromPageTable);
  const LineRange lines = LinesBetween(site, {{startPage, startLine}, {endPage, endLine}});
  const std::string rows = PageShapeRows(lines);
  if (MayHoldTexts(site, kColumnsOfRows, rows)) RequireNumbers(site, kColumnsOfRows, rows);
  FoldUlbonGroups(table, site, PageShapeUlbonStatement(Selection, lines), rules.count_hoop_welds);
  RunPendingEvents();
  ProbePageShapes(site, lines);
  RunPendingEvents();
  FoldAndClose(table, site, PageShapeStatements(Selection, lines), rules);
}

}  // namespace rbt
