// SPDX-License-Identifier: MIT
#include "shell/context/reference_names.h"

#include <gtest/gtest.h>

#include "data/reference.h"
#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
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

TEST(PartNames, come_from_the_table_that_the_shipping_date_selects) {
  test::SiteFixture site;
  site.Execute(test::kMasterFile, "DELETE * FROM 部位名テーブル");
  site.Execute(test::kMasterFile, "DELETE * FROM 部位名２テーブル");
  site.Execute(test::kMasterFile, "INSERT INTO 部位名テーブル (番号, 部位名) VALUES (1, '柱')");
  site.Execute(test::kMasterFile, "INSERT INTO 部位名２テーブル (番号, 部位名) VALUES (1, '柱主筋')");
  site.Execute(test::kMasterFile, "INSERT INTO 部位名２テーブル (番号) VALUES (2)");
  OpenMasterDatabase();
  for (const int setting : {0, 1, 3}) {
    Settings.ShippingDate = setting;
    EXPECT_EQ(Get_BuiNa(1), "柱") << setting;
  }
  Settings.ShippingDate = 2;
  EXPECT_EQ(Get_BuiNa(1), "柱主筋");
  EXPECT_EQ(Get_BuiNa(2), "") << "a null name";
  EXPECT_EQ(Get_BuiNa(11), "") << "no row";
  EXPECT_EQ(NamesOfParts()[0] + NamesOfParts()[1], "柱主筋");
}

TEST(MasterDatabase, that_is_missing_faults) {
  const test::SiteFixture site;
  std::filesystem::remove(site.Data(test::kMasterFile));
  EXPECT_THROW(OpenMasterDatabase(), Fault);
}

}  // namespace
}  // namespace rbt
