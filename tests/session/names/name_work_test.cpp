// SPDX-License-Identifier: MIT
#include "session/names/name_work.h"

#include <gtest/gtest.h>

#include "session/names/name_site.h"
#include "session/panels/site_head.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/names/name_list.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

class NameWork : public testing::Test {
 protected:
  void Load() {
    NameSite::Load();
    BindChosenSite();
  }
  bool HasTable(const char* name) const {
    return Database::OpenReadOnly(site_.Data(kScheduleFile)).FindTable(name) != nullptr;
  }

  NameSite site_;
};

TEST_F(NameWork, WeighsTheNamesAndTakesTheMarksOfTheLoadAway) {
  Load();
  EXPECT_EQ(site_.Rows(kCompanionFile, "SELECT * FROM 登録名 WHERE 表示番号=1").size(), 3U);
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 0|4=0 135 135|");
}

TEST_F(NameWork, LeavesTheSumsByDiameterAloneBehind) {
  Load();
  OpenNameWork();
  EXPECT_TRUE(HasTable("WorkTable"));
  EXPECT_TRUE(HasTable("WorkSumResultsTable"));
  CloseNameWork();
  EXPECT_FALSE(HasTable("WorkTable"));
  EXPECT_FALSE(HasTable("WorkSumResultsTable"));
  EXPECT_TRUE(HasTable("WorkSumTable"));
  EXPECT_EQ(SiteContext.NameDatabase, nullptr);
  CloseNameWork();
}

TEST_F(NameWork, KeepsTheMarksAtItsEnd) {
  Load();
  OpenNameWork();
  MarkNames(*SiteContext.NameDatabase, std::vector<std::int32_t>{2}, true);
  CloseNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=1 0 0|4=0 135 135|");
}

TEST_F(NameWork, TakesTheSettingsOf13MetresAndOfTheCap) {
  Cells long_bar = TenBarsOf(2);
  long_bar.emplace_back("伸定尺", 13.0);  // ten bars of 29.2 kg, installed 135 kg
  site_.AddRow(long_bar);
  Load();
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 135|4=0 135 135|");
  Settings.CapInstalledWeight = 1;
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 0|4=0 135 135|");
  Settings.Use13mColumn = 1;
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 292 135|4=0 135 135|");
}

TEST_F(NameWork, WritesNothingOfASiteThatIsOnlyRead) {
  StartOptions options;
  options.prepare = false;
  LoadSite(options);
  ActivateMenu(options);
  const auto file = [&] { return site_.Rows(kCompanionFile, "SELECT * FROM 登録名"); };
  const auto before = file();
  OpenNameWork();
  const auto names = ReadNames(*SiteContext.NameDatabase, NameOrder::by_number);
  EXPECT_EQ(names.at(0).stock, Currency::FromInteger(270));
  EXPECT_EQ(file(), before);
  EXPECT_FALSE(HasTable("WorkSumTable"));
  CloseNameWork();
}

TEST_F(NameWork, LeavesAnAccumulationOfTheMenuAlone) {
  site_.Root().Put("DATA/hozon.MDB", "");
  LoadSiteForNames(TraitsOfStartMode(4));
  EXPECT_TRUE(std::filesystem::exists(site_.Data("hozon.MDB")));
  EXPECT_EQ(Selection.StartMode, TraitsOfStartMode(4));
  EXPECT_EQ(SiteContext.SelectedDbName, kScheduleFile);
}

TEST_F(NameWork, WithoutWeightsTakesThoseOfFormerRowsAway) {
  Load();
  OpenNameWork();
  MarkNames(*SiteContext.NameDatabase, std::vector<std::int32_t>{2}, true);
  OpenNameWorkWithoutWeights();
  EXPECT_EQ(site_.Names(), "1=0 0 0|2=0 0 0|4=0 0 0|");
}

}  // namespace
}  // namespace rbt::test
