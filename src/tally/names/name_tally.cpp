// SPDX-License-Identifier: MIT
#include "tally/names/name_tally.h"

#include <string>
#include <utility>
#include <vector>

#include "data/shapes.h"
#include "platform/system/process.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/closing_sums.h"
#include "tally/names/name_list.h"
#include "tally/names/name_statements.h"
#include "tally/rows/page_tally.h"
#include "tally/rows/row_walk.h"

namespace rbt {

namespace {

std::vector<std::int32_t> MarkedNumbersOfSite() {
  if (SiteContext.NameDatabase) return MarkedNumbers(*SiteContext.NameDatabase);
  Database companion = OpenCompanionForReading();
  return MarkedNumbers(companion);
}

/// What one block has is there for all of them. Hoops are asked for in every start mode, plates are not.
void ProbePresence(Database& site, std::span<const std::int32_t> block) {
  const std::string so_far = NameStatementSoFar(Selection, block);
  if (site.HasRows(so_far + " AND (形状No=87)")) RunState.HasHoopRows = true;
  if (!Selection.StartMode.probes_plates_of_names) return;
  if (site.HasRows(so_far + std::string(kAnchorPlateClause))) RunState.HasAnchorPlateRows = true;
}

}  // namespace

void Touroku_Jyuuryo_Syukei() {
  TallyGrid = TallyTable();
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = false;
  const RowRules rules = PageRowRules(Selection);
  Database& site = *SiteContext.WorkDatabase;
  const std::vector<std::int32_t> numbers = MarkedNumbersOfSite();
  TallyTable table;
  for (const auto block : BlocksOf(numbers)) {
    ProbePresence(site, block);
    RunPendingEvents();
    FoldRows(table, site, NameStatement(Selection, block), rules);
  }
  RunPendingEvents();
  CloseSums(table, {});
  TallyGrid = std::move(table);
}

}  // namespace rbt
