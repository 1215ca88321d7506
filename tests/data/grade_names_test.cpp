// SPDX-License-Identifier: MIT
#include "data/grade_names.h"

#include <gtest/gtest.h>

#include "data/reference.h"
#include "data/site_context.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

TEST(GradeNames, codes_without_a_name_are_empty) {
  const test::SiteFixture site;
  SiteContext.GradeNames[1] = "SD295A";
  SiteContext.GradeNames[10] = "SD785";
  EXPECT_EQ(Get_SDName(1), "SD295A");
  EXPECT_EQ(Get_SDName(10), "SD785");
  for (const std::int32_t code : {-1, 0, 11}) EXPECT_EQ(Get_SDName(code), "") << code;
}

TEST(GradeNames, each_diameter_takes_the_name_of_its_code_at_the_site) {
  test::SiteFixture site;
  site.Execute(test::kMasterFile, "UPDATE 工事テーブル SET SD10 = 2, SD51 = 4, SD13 = 0");
  SelectSite(test::kScheduleFile);
  OpenMasterDatabase();
  SiteContext.GradeNames[2] = "SD295B";
  SiteContext.GradeNames[4] = "SD390";
  const auto names = DiameterGradeNames();
  EXPECT_EQ(names.front(), "SD295B");
  EXPECT_EQ(names[1], "");
  EXPECT_EQ(names.back(), "SD390");
}

}  // namespace
}  // namespace rbt
