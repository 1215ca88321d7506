// SPDX-License-Identifier: MIT
#include "reports/detail/meisai.h"

#include <gtest/gtest.h>

#include "reports/detail/detail_sheets.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

class Meisai : public ::testing::Test {
 protected:
  Meisai() {
    SelectSite(test::kScheduleFile);
    OpenMasterDatabase();
    Settings = {};
    result_.tables = test::TableOf(2);
  }
  ~Meisai() override { Settings = {}; }

  void Draw() { Meisai_A4Y(page_.Printer, arguments_, result_); }

  test::SiteFixture root_;
  TallyResult result_;
  ReportArguments arguments_{"", "2026", "1", "2", 1, 0};
  test::DrawnPage page_;
};

TEST_F(Meisai, TheSettingChoosesTheTitle) {
  Draw();
  EXPECT_TRUE(page_.Has("合  計  数  量  表"));
  Settings.ReportTitleChoice = 2;
  Draw();
  EXPECT_TRUE(page_.Has("材  料  明  細  表"));
  Settings.ReportTitleChoice = 3;
  Settings.ReportTitleText = "躯体数量";
  Draw();
  EXPECT_EQ(page_.TextAt(6500, 500), "躯");
  Settings.ReportTitleChoice = 0;
  Draw();
  EXPECT_TRUE(page_.Has("合  計  数  量  表"));
}

TEST_F(Meisai, TheSettingsDecideAbout13MetresAndEmptyDiameters) {
  Draw();
  EXPECT_FALSE(page_.Has("13.0"));
  EXPECT_FALSE(page_.Has("D 16"));
  Settings.Use13mColumn = 1;
  Settings.PrintEmptyDiameters = 1;
  Draw();
  EXPECT_TRUE(page_.Has("13.0"));
  EXPECT_TRUE(page_.Has("D 16"));
  Settings.Use13mColumn = 2;
  Settings.PrintEmptyDiameters = 2;
  Draw();
  EXPECT_FALSE(page_.Has("13.0"));
  EXPECT_FALSE(page_.Has("D 16"));
}

TEST_F(Meisai, EachRoutineDrawsItsOwnForm) {
  Draw();
  EXPECT_TRUE(page_.Has("重 量"));
  Meisai_A4Y_Count(page_.Printer, arguments_, result_);
  EXPECT_TRUE(page_.Has("本 数"));
  EXPECT_FALSE(page_.Has("重 量"));
  Meisai_A4T(page_.Printer, arguments_, result_);
  EXPECT_TRUE(page_.Has("重　量"));
  Meisai_A4T_Count(page_.Printer, arguments_, result_);
  EXPECT_TRUE(page_.Has("本　数"));
  EXPECT_FALSE(page_.Has("重　量"));
}

TEST_F(Meisai, TheFormsAtFirstAreAsTheSettingsHaveThem) {
  DetailArguments arguments = DetailArgumentsOf(Settings);
  EXPECT_EQ(arguments.MemoPosition, MemoPlace::below);
  EXPECT_FALSE(arguments.Installed);
  EXPECT_EQ(arguments.DatePosition, DatePlace::centre);
  Settings.MemoPosition = Settings.DetailPrint = Settings.DetailDatePosition = 1;
  arguments = DetailArgumentsOf(Settings);
  EXPECT_EQ(arguments.MemoPosition, MemoPlace::above);
  EXPECT_TRUE(arguments.Installed);
  EXPECT_EQ(arguments.DatePosition, DatePlace::right);
}

}  // namespace
}  // namespace rbt
