// SPDX-License-Identifier: MIT
#include "session/planning/plan_request.h"

#include <algorithm>
#include <utility>

#include "planning/input/make_problem.h"
#include "planning/input/scopes.h"
#include "planning/input/site_schedule.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/engine/stock_engine.h"
#include "tally/rows/bulk_statement.h"
#include "tally/rows/bulk_tally.h"
#include "tally/selection.h"

namespace rbt {

int DefaultPlus() { return std::max<int>(0, ReadPlus()); }

planning::Problem SiteProblem(const PlanRequest& request) {
  const planning::SiteSchedule schedule =
      planning::ReadSiteSchedule(*SiteContext.WorkDatabase, BulkStatement(Selection, RunState.HasHoopRows),
                                 BulkRowRules(Selection), BulkClosingRules());
  planning::SiteLengths lengths;
  lengths.limits = GetStockLengthLimits();
  lengths.use_13m = schedule.closing.sum_13m_column;
  lengths.of_rows = planning::LengthsOfRows(schedule);
  return planning::MakeProblem(schedule, lengths, request.offer,
                               planning::Scopes::Of(request.options.scope).value(), request.options);
}

}  // namespace rbt
