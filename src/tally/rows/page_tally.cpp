// SPDX-License-Identifier: MIT
#include "tally/rows/page_tally.h"

#include <utility>

#include <fmt/format.h>

#include "data/shapes.h"
#include "platform/system/process.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/clauses.h"
#include "tally/closing_sums.h"
#include "tally/rows/row_walk.h"
#include "tally/schedule_positions.h"

namespace rbt {
namespace {

constexpr std::string_view kHoopClause = " AND 形状No=87";

void ProbePresence(Database& site, const LineRange& lines) {
  if (!Selection.StartMode.probes_presence) return;
  const std::string so_far = PageStatementSoFar(Selection, lines);
  RunState.HasAnchorPlateRows = site.HasRows(so_far + std::string(kAnchorPlateClause));
  RunState.HasHoopRows = site.HasRows(so_far + std::string(kHoopClause));
}

}  // namespace

RowRules PageRowRules(const SelectionData& selection) {
  RowRules rules;
  rules.hoops = selection.HoopMode;
  rules.count_hoop_welds = ReadCountHoopWelds();
  rules.include_ulbon = selection.IncludeUlbon;
  rules.length_without_column_in_first_cell = false;
  rules.ulbon_weight_from_all_metres = false;
  return rules;
}

std::string PageStatementSoFar(const SelectionData& selection, LineRange lines) {
  std::string statement = fmt::format(
      "SELECT * "
      "FROM 加工テーブル "
      "WHERE 太さ is not NULL AND 伸定尺 is not NULL AND 本数 is not NULL "
      "AND 行No Between {} AND {} ",
      lines.first, lines.last);
  statement += FormClause(selection.MaterialFormMask);
  statement += KindClause(selection.MaterialKindMask);
  return statement;
}

std::string PageStatement(const SelectionData& selection, LineRange lines, bool has_hoop_rows,
                          bool has_anchor_plate_rows) {
  std::string statement = PageStatementSoFar(selection, lines);
  if (has_hoop_rows && selection.HoopMode == ShapeFilter::alone) statement += kHoopClause;
  if (has_anchor_plate_rows) statement += AnchorPlateClause(selection.AnchorPlateMode);
  return statement;
}

void PG_Jyuuryo_Syukei(std::int16_t startPage, std::int16_t startLine, std::int16_t endPage,
                       std::int16_t endLine) {
  TallyGrid = TallyTable();
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = false;
  const RowRules rules = PageRowRules(Selection);
  Database& site = *SiteContext.WorkDatabase;
  const LineRange lines = LinesBetween(site, {{startPage, startLine}, {endPage, endLine}});
  ProbePresence(site, lines);
  RunPendingEvents();
  TallyTable table;
  FoldRows(table, site, PageStatement(Selection, lines, RunState.HasHoopRows, RunState.HasAnchorPlateRows),
           rules);
  RunPendingEvents();
  CloseSums(table, {});
  TallyGrid = std::move(table);
}

}  // namespace rbt
