// SPDX-License-Identifier: MIT
#include "tally/rows/bulk_tally.h"

#include <utility>

#include "data/shapes.h"
#include "platform/system/process.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "store/database.h"
#include "tally/rows/bulk_statement.h"
#include "tally/rows/row_walk.h"
#include "tally/spiral_reader.h"

namespace rbt {
namespace {

void ProbePresence(Database& site, const SelectionData& selection) {
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = false;
  if (!selection.StartMode.probes_presence) return;
  const std::string so_far = BulkStatementSoFar(selection);
  RunState.HasAnchorPlateRows = site.HasRows(so_far + std::string(kAnchorPlateClause));
  RunState.HasHoopRows = site.HasRows(so_far + " AND (形状No=87)");
}

}  // namespace

RowRules BulkRowRules(const SelectionData& selection) {
  RowRules rules;
  rules.hoops = selection.HoopMode;
  rules.count_hoop_welds = ReadCountHoopWelds();
  rules.include_ulbon = selection.IncludeUlbon;
  rules.counts_without_column_by_choice = selection.MaterialCalcChoice;
  return rules;
}

ClosingRules BulkClosingRules() { return {Settings.Use13mColumn == 1, Settings.CapInstalledWeight == 1}; }

void Jyuuryo_Syukei() {
  const RowRules rules = BulkRowRules(Selection);
  TallyTable table;
  TallyGrid = TallyTable();  // it stays empty until the end
  Database& site = *SiteContext.WorkDatabase;
  ProbePresence(site, Selection);
  RunPendingEvents();
  FoldRows(table, site, BulkStatement(Selection, RunState.HasHoopRows), rules);
  RunPendingEvents();
  if (!LeavesSpiralsOut(Selection)) {
    Database companion = OpenCompanionForReading();
    FoldSpirals(table, ReadSpirals(companion), Selection);
  }
  CloseSums(table, BulkClosingRules());
  TallyGrid = std::move(table);
}

}  // namespace rbt
