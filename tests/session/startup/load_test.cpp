// SPDX-License-Identifier: MIT
#include <chrono>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/accumulation/hozon.h"
#include "archive/check_jsyukei.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/profile/registry.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "support/looking_only.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Load : public testing::Test {
 protected:
  LoadResult Run() { return LoadSite(options_); }
  std::string FaultOfRun() {
    try {
      Run();
    } catch (const Fault& fault) {
      return fault.what();
    }
    return "no fault";
  }
  std::vector<std::string> Marks() const {
    std::vector<std::string> marks;
    for (const auto& row : site_.Rows(kCompanionFile, "SELECT 表示番号 FROM 登録名")) {
      marks.push_back(Shown(row.front()));
    }
    return marks;
  }
  void SetVersion(const char* version) {
    site_.Add(kScheduleFile, "データーベースバージョン", {{"バージョン", version}});
    site_.PutProgram("DATA/rbtallyS.exe");
  }

  SiteFixture site_;
  StartOptions options_;
};

TEST_F(Load, BindsTheSiteThatSteelIniNames) {
  Run();
  EXPECT_EQ(SiteContext.SelectedDbName, "GENBA001.MDB");
  EXPECT_EQ(SiteContext.SiteNumberText, "001");
  EXPECT_EQ(SiteContext.LongSiteName, "");
  EXPECT_EQ(SiteContext.MakerNumber, 0);
  EXPECT_EQ(SiteContext.GradeNames[1], "SD1");
  EXPECT_EQ(SiteContext.GradeNames[10], "SD10");
  EXPECT_EQ(RunState.RunDate, "20261121");
  EXPECT_EQ(RunState.RunTime, "090000");
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(Load, LeavesTheMasterDatabaseOpenAndTheSiteClosed) {
  Run();
  EXPECT_NE(SiteContext.MasterDatabase, nullptr);
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  EXPECT_EQ(SiteContext.FixedStockDatabase, nullptr);
}

TEST_F(Load, WithoutSteelIniFaultsWithTheFilesName) {
  std::filesystem::remove(site_.Data(kSteelFile));
  EXPECT_THAT(FaultOfRun(), HasSubstr("STEEL.INI: the file does not exist"));
}

TEST_F(Load, WithoutASelectedSiteFaultsWithTheKeysName) {
  site_.SetIni(kSteelFile, "データ", "選択ＤＢ名", "");
  EXPECT_THAT(FaultOfRun(), HasSubstr("STEEL.INI: no site: [データ] 選択ＤＢ名 is empty"));
}

TEST_F(Load, WithoutTheSiteDatabaseFaultsWithItsName) {
  site_.SetIni(kSteelFile, "データ", "選択ＤＢ名", "GENBA007.MDB");
  EXPECT_THAT(FaultOfRun(), HasSubstr("GENBA007.MDB: the file does not exist"));
}

TEST_F(Load, WithoutTheMasterDatabaseFaultsWithItsName) {
  std::filesystem::remove(site_.Data(kMasterFile));
  EXPECT_THAT(FaultOfRun(), HasSubstr("SORANO.MDB"));
}

TEST_F(Load, WithoutTheCompanionFileFaultsWithItsNameInEveryStartMode) {
  std::filesystem::remove(site_.Data(kCompanionFile));
  for (const std::int32_t mode : {-1, 2}) {
    options_.start_mode = TraitsOfStartMode(mode);
    EXPECT_THAT(FaultOfRun(), HasSubstr("HIROI001.mdb"));
  }
}

TEST_F(Load, ASiteThatTheMasterDatabaseDoesNotKnowFaults) {
  site_.Execute(kMasterFile, "DELETE * FROM 工事テーブル");
  EXPECT_THAT(FaultOfRun(), HasSubstr("GENBA001.MDB"));
}

TEST_F(Load, AShortFileNameGivesTheCompanionFileAShortNumber) {
  std::filesystem::copy_file(site_.Data(kScheduleFile), site_.Data("GENBA1"));
  std::filesystem::copy_file(site_.Data(kCompanionFile), site_.Data("HIROI1.mdb"));
  site_.Add(kMasterFile, "工事テーブル", {{"番号", 2}, {"データパス", "GENBA1"}});
  site_.SetIni(kSteelFile, "データ", "選択ＤＢ名", "GENBA1");
  Run();
  EXPECT_EQ(SiteContext.SiteNumberText, "1");
}

TEST_F(Load, TakesTheSiteOfTheOptionsInPlaceOfTheSelectedOne) {
  std::filesystem::rename(site_.Data(kScheduleFile), site_.Data("GENBA002.MDB"));
  std::filesystem::rename(site_.Data(kCompanionFile), site_.Data("HIROI002.mdb"));
  site_.Add(kMasterFile, "工事テーブル", {{"番号", 2}, {"データパス", "GENBA002.MDB"}, {"メーカーNo", 3}});
  options_.site = "GENBA002.MDB";
  Run();
  EXPECT_EQ(SiteContext.SiteNumberText, "002");
  EXPECT_EQ(SiteContext.MakerNumber, 3);
}

TEST_F(Load, WritesTheWidthThatALongNameLacks) {
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET 長い工事名 = '長い名前の工事'");
  Run();
  EXPECT_EQ(SiteContext.LongSiteName, "長い名前の工事");
  EXPECT_EQ(SiteContext.LongSiteNameWidth, 50);
  EXPECT_THAT(site_.Rows(kMasterFile, "SELECT 工事名区切り文字数 FROM 工事テーブル"),
              ElementsAre(ElementsAre(Value{std::int64_t{50}})));
}

TEST_F(Load, ClassifiesTheScheduleByTheStartMode) {
  site_.AddRow({{"太さ", 19}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}});
  Run();
  EXPECT_THAT(site_.Column("予備3"), ElementsAre("1"));
  options_.start_mode = TraitsOfStartMode(4);
  Run();
  EXPECT_EQ(Selection.StartMode, TraitsOfStartMode(4));
  EXPECT_THAT(site_.Column("予備3"), ElementsAre("2"));
}

TEST_F(Load, WithoutPreparationTheScheduleStaysAsItIs) {
  site_.AddRow({{"太さ", 6}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}});
  options_.prepare = false;
  Run();
  EXPECT_THAT(site_.Column("予備3"), ElementsAre("null"));
  EXPECT_THAT(site_.Column("予備2"), ElementsAre("null"));
}

TEST_F(Load, MakesAnUnusedArchiveAnewFromTheTemplate) {
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計名称");
  site_.Execute(kScheduleFile, "DROP TABLE 階別重量集計");
  Run();
  Database schedule = Database::Open(site_.Data(kScheduleFile));
  EXPECT_TRUE(Table_Exists("重量集計名称", schedule));
  EXPECT_TRUE(Table_Exists("階別重量集計", schedule));
}

TEST_F(Load, GoesOnWithoutTheArchiveTemplate) {
  std::filesystem::remove(site_.Data(kTemplateFile));
  Run();
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages().front().title, "ファイル無し");
  EXPECT_EQ(RunState.RunDate, "20261121");
}

TEST_F(Load, EveryRegisteredNameStartsOutAsSelected) {
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 2}, {"表示番号", 0}});
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}});
  site_.Add(kCompanionFile, "登録名", {{"登録名", "番号なし"}, {"表示番号", 0}});
  Run();
  EXPECT_THAT(Marks(), ElementsAre("1", "1", "0"));
}

TEST_F(Load, MarksTheRegisteredNamesBeforeItAsksTheMasterDatabase) {
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
  site_.Execute(kMasterFile, "DELETE * FROM 工事テーブル");
  EXPECT_THAT(FaultOfRun(), HasSubstr("工事テーブル"));
  EXPECT_THAT(Marks(), ElementsAre("1"));
}

TEST_F(Load, StartModes2And3LeaveTheRegisteredNamesAsTheyAre) {
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
  for (const std::int32_t mode : {2, 3}) {
    options_.start_mode = TraitsOfStartMode(mode);
    Run();
    EXPECT_THAT(Marks(), Each("0"));
  }
}

TEST_F(Load, SelectedNamesAreNotWrittenAgain) {
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 1}});
  const std::string bytes = ReadFileBytes(site_.Data(kCompanionFile));
  Run();
  EXPECT_EQ(ReadFileBytes(site_.Data(kCompanionFile)), bytes);
}

TEST_F(Load, AGradeWithoutARowIsToldAndTheLoadGoesOn) {
  site_.Execute(kMasterFile, "DELETE * FROM T_SD WHERE SDコード = 4");
  Run();
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages().front().text, "ＳＤ名が登録されていません。");
  EXPECT_EQ(SiteContext.GradeNames[4], "");
  EXPECT_EQ(SiteContext.GradeNames[5], "SD5");
}

TEST_F(Load, CopiesTheFixedStockTableWhereItIsMissing) {
  std::filesystem::remove(site_.Data(kFixedStockFile));
  Run();
  EXPECT_TRUE(std::filesystem::exists(site_.Data(kFixedStockFile)));
  EXPECT_EQ(SiteContext.FixedStockDatabase, nullptr);
}

TEST_F(Load, OpensTheFixedStockTableForTheRunWhenItIsUsed) {
  SetRegistryText("Kakou", "定尺", "テーブル有無", "1");
  Run();
  EXPECT_NE(SiteContext.FixedStockDatabase, nullptr);
}

TEST_F(Load, LeavesTheFixedStockTableShutForAnyOtherSetting) {
  for (const char* setting : {"0", "2", "-1"}) {
    SetRegistryText("Kakou", "定尺", "テーブル有無", setting);
    Run();
    EXPECT_EQ(SiteContext.FixedStockDatabase, nullptr) << setting;
  }
}

TEST_F(Load, ClearsWhatAProgramThatWasKilledADayAgoHasLeft) {
  for (const bool only_looks : {true, false}) {
    const std::filesystem::path left[] = {site_.Data(".rbk-write-1-0"), site_.Data("../.rbk-import-1-0")};
    for (const auto& file : left) {
      std::ofstream(file) << "half";
      std::filesystem::last_write_time(
          file, std::filesystem::file_time_type::clock::now() - std::chrono::hours(25));
    }
    std::ofstream(site_.Data(".rbk-write-2-0")) << "in work";
    options_.prepare = !only_looks;
    Run();
    for (const auto& file : left) EXPECT_EQ(std::filesystem::exists(file), only_looks) << file;
    EXPECT_TRUE(std::filesystem::exists(site_.Data(".rbk-write-2-0")));
  }
}

TEST_F(Load, EndsAnAccumulationThatWasUnderWay) {
  RunState.AccumulateFlag = 1;
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  site_.PutProgram("DATA/hozon.MDB");
  Run();
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(RegistryText("Kakou", "集計保存", "フラグ"), "0");
  EXPECT_FALSE(std::filesystem::exists(site_.Data("hozon.MDB")));
}

TEST_F(Load, DropsTheSumOfAnAddingStepThatWasKilledWithItsJournal) {
  TallyTable sum;
  sum.BarCount[3][5] = 10;
  Save_Hozon(sum);
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  site_.PutProgram("DATA/hozon.MDB-journal");
  Run();
  EXPECT_EQ(RegistryText("Kakou", "集計保存", "フラグ"), "0");
  EXPECT_FALSE(std::filesystem::exists(site_.Data("hozon.MDB")));
  EXPECT_FALSE(std::filesystem::exists(site_.Data("hozon.MDB-journal")));
  EXPECT_EQ(Load_Hozon(), TallyTable());
}

TEST_F(Load, ForWhichAMenuWaitsLeavesItsAccumulationAloneAndIsElseThatOfAMenu) {
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  site_.PutProgram("DATA/hozon.MDB");
  options_.keep_accumulation = true;
  Run();
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(RegistryText("Kakou", "集計保存", "フラグ"), "1");
  EXPECT_TRUE(std::filesystem::exists(site_.Data("hozon.MDB")));
  SetVersion("6.1");
  EXPECT_EQ(Run().hand_over_to, "\\rbk\\rbtally1S.exe");
}

TEST_F(Load, OfTheCommandLineLeavesAnAccumulationAlone) {
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  site_.PutProgram("DATA/hozon.MDB");
  options_.command_line = true;
  Run();
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(RegistryText("Kakou", "集計保存", "フラグ"), "1");
  EXPECT_TRUE(std::filesystem::exists(site_.Data("hozon.MDB")));
}

TEST_F(Load, HandsASiteOfANewerFormatOverToTheProgramThatReadsIt) {
  SetVersion("6.1");
  EXPECT_EQ(Run().hand_over_to, "\\rbk\\rbtally1S.exe");
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
  EXPECT_THAT(site_.Launches(), IsEmpty());
}

TEST_F(Load, KeepsASiteOfThisFormat) {
  SetVersion("6.0");
  EXPECT_FALSE(Run().hand_over_to);
}

TEST_F(Load, KeepsANewerSiteWhenNoOtherProgramIsInstalled) {
  SetVersion("6.1");
  std::filesystem::remove(site_.Data("rbtallyS.exe"));
  EXPECT_FALSE(Run().hand_over_to);
}

TEST_F(Load, OfTheCommandLineKeepsANewerSite) {
  SetVersion("6.1");
  options_.command_line = true;
  EXPECT_FALSE(Run().hand_over_to);
  EXPECT_EQ(RunState.RunDate, "20261121");
}

TEST_F(Load, PassesOverTablesThatOlderSitesLack) {
  site_.PutProgram("DATA/rbtallyS.exe");
  site_.Execute(kScheduleFile, "DROP TABLE データーベースバージョン");
  site_.Execute(kScheduleFile, "DROP TABLE 形状テーブル");
  EXPECT_FALSE(Run().hand_over_to);
}

TEST_F(Load, PassesOverAVersionThatIsNotTold) {
  site_.PutProgram("DATA/rbtallyS.exe");
  EXPECT_FALSE(Run().hand_over_to) << "no row";
  site_.Add(kScheduleFile, "データーベースバージョン", {});
  EXPECT_FALSE(Run().hand_over_to) << "a null version";
}

TEST_F(Load, TellsWhatTheSiteHolds) {
  Run();
  EXPECT_FALSE(RunState.HasAnchorPlateRows);
  EXPECT_FALSE(RunState.HasHoopRows);
  site_.AddRow({{"太さ", 19}, {"形状No", 176}});
  site_.AddRow({{"太さ", 13}, {"形状No", 87}});
  Run();
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
  EXPECT_TRUE(RunState.HasHoopRows);
}

TEST_F(Load, TellsWhichSiblingsAreOnDisk) {
  site_.PutProgram("KAKOU/RBWELDCNT.EXE");
  site_.PutProgram("KAKOU/rbplateprt.exe");
  const LoadResult result = Run();
  EXPECT_TRUE(RunState.HasWeldCounter);
  EXPECT_FALSE(RunState.HasJoinCounter);
  EXPECT_FALSE(RunState.HasPlateCounter);
  EXPECT_TRUE(result.shows_plate_sheet);
}

TEST_F(Load, ReadsTheSettings) {
  site_.SetIni(kSteelFile, "加工帳", "文字の色", "255");
  SetRegistryText("Jyuryo", "定尺", "定尺13有無", "1");
  SetRegistryText("Kakou", "出荷日設定", "出荷日", "2");
  Run();
  EXPECT_EQ(Settings.GridRowBackColor, 16777152);
  EXPECT_EQ(Settings.GridRowForeColor, 255);
  EXPECT_EQ(Settings.Use13mColumn, 1);
  EXPECT_EQ(Settings.ShippingDate, 2);
}

TEST_F(Load, LetsPendingEventsRunBetweenItsSteps) {
  int times = 0;
  Services.PendingEvents = [&] { ++times; };
  Run();
  EXPECT_GT(times, 10);
}

TEST_F(Load, CanBeRepeatedOnTheSameSite) {
  site_.AddRow({{"太さ", 19}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}, {"本数", 2}, {"ヶ所", 3}});
  Run();
  const auto first = site_.Rows(kScheduleFile, "SELECT * FROM 加工テーブル");
  Run();
  EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT * FROM 加工テーブル"), first);
}

TEST_F(Load, TellsSettingsOfLooksThatCannotBeReadInOneNoticeAndTakesTheirDefaults) {
  site_.SetIni(kSteelFile, "加工帳", "行の背景色", "99999999999");
  SetRegistryText("Kakou", "重量集計", "一行おきの色分け", "はい");
  SetRegistryText("Kakou", "自社名登録", "自社名印刷", "x");
  Run();
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  const std::string text = site_.Messages()[0].text;
  EXPECT_THAT(text, HasSubstr("初めの値を使います"));
  EXPECT_THAT(text, HasSubstr("行の背景色 \"99999999999\""));
  EXPECT_THAT(text, HasSubstr("一行おきの色分け \"はい\""));
  EXPECT_THAT(text, HasSubstr("自社名印刷 \"x\""));
  EXPECT_EQ(Settings.GridRowBackColor, 16777152);
  EXPECT_EQ(Settings.AlternateRowColours, 1);
}

TEST_F(Load, ANumberThatFiguresDependOnIsATypeMismatch) {
  SetRegistryText("Jyuryo", "定尺", "定尺13有無", "有");
  EXPECT_THAT(FaultOfRun(), HasSubstr("type mismatch: Jyuryo\\定尺\\定尺13有無 \"有\""));
}

TEST_F(Load, OfWhatMayNotBeWrittenLooksAtItAndSaysSoOnce) {
  site_.AddRow({{"太さ", 6}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}});
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  const std::string before = ReadFileBytes(site_.Data(kScheduleFile));
  {
    const LookingOnly looking{site_.Root().Path(), site_.Root().SettingsFile().parent_path()};
    Run();
    ActivateMenu(options_);
    HoldClassifiedSchedule(options_.start_mode);
    EXPECT_TRUE(SiteContext.WorkDatabase->IsPrivateCopy());
    EXPECT_FALSE(HandOverMayBeWritten());
    SiteContext.WorkDatabase.reset();
    SiteContext.MasterDatabase.reset();
  }
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_THAT(site_.Messages()[0].text, HasSubstr("読むだけにします"));
  EXPECT_THAT(site_.Messages()[0].text, HasSubstr("GENBA001.MDB"));
  EXPECT_THAT(site_.Messages()[0].text, HasSubstr("settings.ini"));
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), before);
  EXPECT_EQ(RunState.AccumulateFlag, 0);
}

TEST_F(Load, SaysNothingOfRightsWhereEverythingMayBeWritten) {
  Run();
  EXPECT_THAT(site_.Messages(), IsEmpty());
  EXPECT_TRUE(HandOverMayBeWritten());
}

/// What each step leaves, in the order in which it can be seen.
class Seen {
 public:
  void Watch(std::string name, std::function<bool()> is_there) {
    watched_.emplace_back(std::move(name), std::move(is_there));
  }
  void Look() {
    for (auto& [name, is_there] : watched_) {
      if (!is_there || !is_there()) continue;
      order.push_back(name);
      is_there = nullptr;
    }
  }
  std::vector<std::string> order;

 private:
  std::vector<std::pair<std::string, std::function<bool()>>> watched_;
};

TEST_F(Load, TakesItsStepsInTheirOrder) {
  site_.AddRow({{"太さ", 19}, {"形状No", 87}, {"伸切寸", 7000}, {"伸本定", 1}});
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET 長い工事名 = '長い名前', メーカーNo = 3");
  site_.SetIni(kSteelFile, "加工帳", "行の背景色", "255");
  SetRegistryText("Jyuryo", "定尺", "定尺13有無", "1");
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  SetRegistryText("Kakou", "出荷日設定", "出荷日", "2");
  SetRegistryText("Kakou", "定尺", "テーブル有無", "1");
  site_.PutProgram("KAKOU/rbweldcnt.exe");
  RunState.AccumulateFlag = 1;
  Seen seen;
  // Watched backwards: two that come at once would stand the wrong way round.
  seen.Watch("date of the load", [] { return !RunState.RunDate.empty(); });
  seen.Watch("counters", [] { return RunState.HasWeldCounter; });
  seen.Watch("hoops", [] { return RunState.HasHoopRows; });
  seen.Watch("other settings", [] { return Settings.ShippingDate == 2; });
  seen.Watch("accumulation ended", [] { return RunState.AccumulateFlag == 0; });
  seen.Watch("grades", [] { return SiteContext.GradeNames[10] == "SD10"; });
  seen.Watch("maker", [] { return SiteContext.MakerNumber == 3; });
  seen.Watch("long name", [] { return SiteContext.LongSiteName == "長い名前"; });
  seen.Watch("names selected", [this] { return Marks() == std::vector<std::string>{"1"}; });
  seen.Watch("master file", [] { return SiteContext.MasterDatabase != nullptr; });
  seen.Watch("classified", [this] { return site_.Column("予備3") == std::vector<std::string>{"2"}; });
  seen.Watch("site", [] { return SiteContext.WorkDatabase != nullptr; });
  seen.Watch("stock table", [] { return SiteContext.FixedStockDatabase != nullptr; });
  seen.Watch("tally settings", [] { return Settings.Use13mColumn == 1; });
  seen.Watch("colours", [] { return Settings.GridRowBackColor == 255; });
  Services.PendingEvents = [&] { seen.Look(); };
  Run();
  seen.Look();
  EXPECT_THAT(seen.order,
              ElementsAre("colours", "tally settings", "stock table", "site", "classified", "master file",
                          "names selected", "long name", "maker", "grades", "accumulation ended",
                          "other settings", "hoops", "counters", "date of the load"));
}

}  // namespace
}  // namespace rbt::test
