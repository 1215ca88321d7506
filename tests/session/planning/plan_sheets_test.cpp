// SPDX-License-Identifier: MIT
#include "session/planning/plan_sheets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/panels/site_head.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt {
namespace {

using ::testing::EndsWith;

TEST(PlanHeadOfSite, TellsNothingLeftOutWhereTheSelectionTakesAll) {
  const test::SiteFixture site;
  BindChosenSite();
  EXPECT_EQ(PlanHeadOfSite().selection, "");
  EXPECT_EQ(PlanSubjectOfSite(), PlanHeadOfSite().project);
  EXPECT_NE(PlanSubjectOfSite(), "");
}

TEST(PlanHeadOfSite, TellsWhatTheSelectionTakesWhereItLeavesOut) {
  const test::SiteFixture site;
  BindChosenSite();
  Selection.MaterialKindMask = KindMask::Of({MaterialKind::deformed, MaterialKind::threaded});
  Selection.MaterialFormMask = FormMask::Of({MaterialForm::cut});
  Selection.HoopMode = ShapeFilter::left_out;
  Selection.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_EQ(PlanHeadOfSite().selection, "材質 異形･ネジ  材料 切断  溶接フープ 含まず  定着板 のみ");
  EXPECT_THAT(PlanSubjectOfSite(), EndsWith("（材質 異形･ネジ  材料 切断  溶接フープ 含まず  定着板 のみ）"));
}

}  // namespace
}  // namespace rbt
