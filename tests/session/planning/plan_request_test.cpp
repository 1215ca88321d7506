// SPDX-License-Identifier: MIT
#include "session/planning/plan_request.h"

#include <gtest/gtest.h>

#include "shell/config/settings.h"
#include "support/schedule_site.h"
#include "tally/rows/bulk_tally.h"
#include "tally/tally_grid.h"

namespace rbt {
namespace {

using test::Number;
using test::ScheduleSite;

TEST(SiteProblem, TakesTheTallysRowsAndClosesAsTheTallyDoes) {
  ScheduleSite site;
  site.AddRow();
  site.AddRow(
      {{"太さ", Number(25)}, {"伸定尺", Value{12.0}}, {"伸切寸", Number(11800)}, {"合計", Number(0)}});
  site.AddRow({{"太さ", Number(9)}, {"予備2", Number(2)}});
  Jyuuryo_Syukei();
  const planning::Problem problem = SiteProblem({});
  ASSERT_EQ(problem.groups.size(), 1u);
  EXPECT_EQ(problem.groups[0].cuts[0].count, 4);
  ASSERT_EQ(problem.kept.size(), 1u);
  EXPECT_EQ(problem.kept[0].reason, planning::KeptReason::empty);
  ASSERT_TRUE(problem.site_tally);
  EXPECT_EQ(problem.site_tally->schedule.TotalStockWeight, TallyGrid.TotalStockWeight);
  EXPECT_EQ(problem.site_tally->schedule.TotalInstalledWeight, TallyGrid.TotalInstalledWeight);
  EXPECT_EQ(problem.site_tally->schedule.LossRatePercent, TallyGrid.LossRatePercent);
}

}  // namespace
}  // namespace rbt
