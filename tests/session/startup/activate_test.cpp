// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/profile/registry.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Activate : public testing::Test {
 protected:
  MenuState LoadAndActivate() {
    LoadSite(options_);
    return ActivateMenu(options_);
  }

  /// GENBA002.MDB with the rows of the first site, a companion and a row of its own in the master file.
  void SelectAnotherSite() {
    std::filesystem::copy_file(site_.Data(kScheduleFile), site_.Data("GENBA002.MDB"));
    std::filesystem::copy_file(site_.Data(kCompanionFile), site_.Data("HIROI002.mdb"));
    site_.Add(kMasterFile, "工事テーブル",
              {{"番号", std::int64_t{2}},
               {"工事名", std::string("次の現場")},
               {"データパス", std::string("GENBA002.MDB")},
               {"長い工事名", std::string("次の長い現場名")},
               {"工事名区切り文字数", std::int64_t{4}},
               {"メーカーNo", std::int64_t{7}}});
    site_.SetIni(kSteelFile, "データ", "選択ＤＢ名", "GENBA002.MDB");
  }

  SiteFixture site_;
  StartOptions options_;
};

TEST_F(Activate, LeavesTheSiteDatabaseOpen) {
  LoadAndActivate();
  ASSERT_NE(SiteContext.WorkDatabase, nullptr);
  EXPECT_EQ(SiteContext.WorkDatabase->File().filename(), "GENBA001.MDB");
}

TEST_F(Activate, RefreshesTheScheduleEachTime) {
  site_.AddRow({{"太さ", 19}, {"予備2", 2}, {"形状No", 143}, {"本数", 2}, {"ヶ所", 3}});
  LoadAndActivate();
  EXPECT_THAT(site_.Column("定着板数"), ElementsAre("12"));
  site_.Execute(kScheduleFile, "UPDATE 加工テーブル SET 定着板数 = 1, 予備2 = 2");
  ActivateMenu(options_);
  EXPECT_THAT(site_.Column("定着板数"), ElementsAre("12"));
  EXPECT_THAT(site_.Column("予備2"), ElementsAre("1"));
}

TEST_F(Activate, AgainOnTheSameSiteLeavesTheFileUntouched) {
  site_.AddRow({{"太さ", 6}, {"部位", 3}, {"名称", "縦ｽﾘｯﾄ筋　"}, {"形状No", 143}, {"本数", 2}, {"ヶ所", 3}});
  LoadAndActivate();
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  ActivateMenu(options_);
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
}

TEST_F(Activate, WithoutPreparationTheScheduleStaysAsItIs) {
  site_.AddRow({{"太さ", 19}, {"予備2", 2}, {"形状No", 143}, {"本数", 2}, {"ヶ所", 3}});
  options_.prepare = false;
  LoadAndActivate();
  EXPECT_THAT(site_.Column("定着板数"), ElementsAre("null"));
  EXPECT_THAT(site_.Column("予備2"), ElementsAre("2"));
}

TEST_F(Activate, FollowsTheSelectedSite) {
  LoadSite(options_);
  SelectAnotherSite();
  ActivateMenu(options_);
  EXPECT_EQ(SiteContext.SelectedDbName, "GENBA002.MDB");
  EXPECT_EQ(SiteContext.WorkDatabase->File().filename(), "GENBA002.MDB");
}

TEST_F(Activate, BindsAnotherSiteWhole) {
  site_.Execute(kMasterFile,
                "UPDATE 工事テーブル SET 長い工事名 = '初めの現場', 工事名区切り文字数 = 3, メーカーNo = 5");
  EXPECT_EQ(LoadAndActivate().site, "001　試験工事");
  SelectAnotherSite();
  site_.Execute(
      "GENBA002.MDB",
      "INSERT INTO 加工テーブル (行No, 頁, 行, 太さ, 形状No, 伸切寸) VALUES (1, 1, 1, 19, 138, 7100)");
  site_.Execute(kMasterFile, "UPDATE T_SD SET SD名 = 'SD490' WHERE SDコード = 1");
  EXPECT_EQ(ActivateMenu(options_).site, "002　次の現場");
  EXPECT_EQ(SiteContext.SiteNumberText, "002");
  EXPECT_EQ(SiteContext.LongSiteName, "次の長い現場名");
  EXPECT_EQ(SiteContext.LongSiteNameWidth, 4);
  EXPECT_EQ(SiteContext.MakerNumber, 7);
  EXPECT_EQ(SiteContext.GradeNames[1], "SD490");
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
  // Classified as at a load: the form of a bar of 7.1 m.
  EXPECT_EQ(Shown(site_.Rows("GENBA002.MDB", "SELECT 予備3 FROM 加工テーブル")[0][0]), "3");
}

TEST_F(Activate, ThatStumblesOverAnotherSiteBindsItWholeTheNextTime) {
  LoadAndActivate();
  SelectAnotherSite();
  const std::filesystem::path companion = site_.Data("HIROI002.mdb");
  const std::filesystem::path away = site_.Data("away");
  std::filesystem::rename(companion, away);
  EXPECT_EQ(FaultOf([&] { ActivateMenu(options_); }), FaultKind::file);
  std::filesystem::rename(away, companion);
  ActivateMenu(options_);
  EXPECT_EQ(SiteContext.SelectedDbName, "GENBA002.MDB");
  EXPECT_EQ(SiteContext.LongSiteName, "次の長い現場名");
  EXPECT_EQ(SiteContext.MakerNumber, 7);
}

TEST_F(Activate, HandsAnotherSiteOfANewerFormatOver) {
  LoadAndActivate();
  SelectAnotherSite();
  site_.Add("GENBA002.MDB", "データーベースバージョン", {{"バージョン", "7.0"}});
  site_.PutProgram("DATA/rbtallyS.exe");
  EXPECT_EQ(ActivateMenu(options_).hand_over_to, "\\rbk\\rbtally1S.exe");
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
}

TEST_F(Activate, OnASiteThatHasGoneFaultsWithItsName) {
  LoadSite(options_);
  std::filesystem::remove(site_.Data(kScheduleFile));
  try {
    ActivateMenu(options_);
    FAIL() << "the site database is missing";
  } catch (const Fault& fault) {
    EXPECT_THAT(fault.what(), HasSubstr("GENBA001.MDB"));
  }
}

TEST_F(Activate, RereadsTheTitleOfTheReports) {
  site_.SetIni(kSteelFile, "加工帳", "数量表印字タイトル", "数量");
  LoadAndActivate();
  EXPECT_EQ(Settings.ReportTitleText, "");
  SetRegistryText("Kakou", "重量集計", "数量表タイトル", "3");
  SetRegistryText("Kakou", "重量集計", "明細画面重量表示", "1");
  ActivateMenu(options_);
  EXPECT_EQ(Settings.ReportTitleText, "数量");
  EXPECT_EQ(Settings.DetailShowsWeight, 1);
}

TEST_F(Activate, ReadiesTheSelectionForANewTally) {
  LoadSite(options_);
  Selection.MaterialCalcChoice = CalcChoice::without_high_strength;
  Selection.MaterialFormMask = FormMask(3);
  Selection.MaterialKindMask = KindMask(1);
  Selection.HoopMode = ShapeFilter::alone;
  ActivateMenu(options_);
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_with_others);
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(15));
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(1)) << "the result forms set it when they load";
}

TEST_F(Activate, ForgetsTheHoopsOfTheLastTallyAndKeepsItsAnchorPlates) {
  LoadSite(options_);
  RunState.HasHoopRows = true;
  RunState.HasAnchorPlateRows = true;
  ActivateMenu(options_);
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
}

TEST_F(Activate, KeepsTheSelectionWhileAnAccumulationRuns) {
  LoadSite(options_);
  RunState.AccumulateFlag = 1;
  Selection.MaterialCalcChoice = CalcChoice::without_high_strength;
  Selection.MaterialFormMask = FormMask(3);
  Selection.HoopMode = ShapeFilter::alone;
  ActivateMenu(options_);
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::without_high_strength);
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(3));
  EXPECT_EQ(Selection.HoopMode, ShapeFilter::with_others);
}

TEST_F(Activate, ReadsTheCallersMarkEachTime) {
  EXPECT_TRUE(LoadAndActivate().Shows("cmdTouroS"));
  site_.SetIni(kNextPrgFile, "データ", "重量集計", "j");
  EXPECT_FALSE(ActivateMenu(options_).Shows("cmdTouroS"));
  site_.SetIni(kNextPrgFile, "データ", "重量集計", "");
  EXPECT_TRUE(ActivateMenu(options_).Shows("cmdTouroS"));
}

TEST_F(Activate, GoesOnWithoutTheHandOverFile) {
  std::filesystem::remove(site_.Data(kNextPrgFile));
  EXPECT_TRUE(LoadAndActivate().Shows("cmdTouroS"));
}

TEST_F(Activate, PassThroughModesPrepareTheDataAndAskForTheCompanion) {
  site_.AddRow({{"太さ", 19}, {"形状No", 143}, {"本数", 2}, {"ヶ所", 3}, {"伸切寸", 7100}});
  options_.start_mode = TraitsOfStartMode(2);
  const MenuState menu = LoadAndActivate();
  EXPECT_TRUE(menu.minimised);
  EXPECT_EQ(menu.pass_on_to, "\\rbk\\rbtally2.exe 2");
  EXPECT_THAT(site_.Column("定着板数"), ElementsAre("12"));
  EXPECT_THAT(site_.Column("予備3"), ElementsAre("3"));
}

TEST_F(Activate, OfTheCommandLineAsksForNoSibling) {
  options_.command_line = true;
  for (const std::int32_t mode : {2, 3}) {
    options_.start_mode = TraitsOfStartMode(mode);
    EXPECT_FALSE(LoadAndActivate().pass_on_to) << mode;
  }
  EXPECT_THAT(site_.Launches(), IsEmpty());
}

}  // namespace
}  // namespace rbt::test
