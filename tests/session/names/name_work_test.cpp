// SPDX-License-Identifier: MIT
#include "session/names/name_work.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "platform/fault.h"
#include "platform/profile/registry.h"
#include "session/names/name_site.h"
#include "session/panels/site_head.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/jet_writer.h"
#include "support/looking_only.h"
#include "support/stopped_work.h"
#include "tally/names/name_list.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

class WorkWithNames : public testing::Test {
 protected:
  void Load() {
    NameSite::Load();
    BindChosenSite();
  }
  bool HasTable(const char* name) const { return site_.HasTable(kScheduleFile, name); }
  bool LeavesWorkTables() const { return HasTable("WorkTable") || HasTable("WorkSumResultsTable"); }

  NameSite site_;
};

TEST_F(WorkWithNames, WeighsTheNamesAndTakesTheMarksOfTheLoadAway) {
  Load();
  EXPECT_EQ(site_.Rows(kCompanionFile, "SELECT * FROM 登録名 WHERE 表示番号=1").size(), 3U);
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 0|4=0 135 135|");
}

TEST_F(WorkWithNames, LeavesTheSumsByDiameterAloneBehind) {
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

TEST_F(WorkWithNames, ThatItsUserStopsLeavesNoWorkTables) {
  Load();
  const auto failures = LoggedFailures();
  WorkStopper stopper;
  StopEverywhere(
      stopper,
      [] {
        CloseNameWork();
        SiteContext.WorkDatabase.reset();
        OpenWorkDatabase();
      },
      [] { OpenNameWork(); },
      [&] {
        EXPECT_FALSE(LeavesWorkTables());
        EXPECT_EQ(SiteContext.NameDatabase, nullptr);
        EXPECT_EQ(LoggedFailures(), failures);
      });
  CloseNameWork();
}

TEST_F(WorkWithNames, KeepsTheMarksAtItsEnd) {
  Load();
  OpenNameWork();
  MarkNames(*SiteContext.NameDatabase, std::vector<std::int32_t>{2}, true);
  CloseNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=1 0 0|4=0 135 135|");
}

TEST_F(WorkWithNames, TakesTheSettingsOf13MetresAndOfTheCap) {
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

TEST_F(WorkWithNames, WritesNothingOfASiteThatIsOnlyRead) {
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

TEST_F(WorkWithNames, LeavesAnAccumulationOfTheMenuAlone) {
  site_.Root().Put("DATA/hozon.MDB", "");
  SetRegistryText("Kakou", "集計保存", "フラグ", "1");
  EXPECT_TRUE(LoadSiteForNames(TraitsOfStartMode(4)));
  EXPECT_TRUE(std::filesystem::exists(site_.Data("hozon.MDB")));
  EXPECT_EQ(RegistryText("Kakou", "集計保存", "フラグ"), "1");
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(Selection.StartMode, TraitsOfStartMode(4));
  EXPECT_EQ(SiteContext.SelectedDbName, kScheduleFile);
}

TEST_F(WorkWithNames, ASiteOfANewerFormatIsLeftToTheProgramThatReadsIt) {
  site_.Add(kScheduleFile, "データーベースバージョン", {{"バージョン", std::string("6.1")}});
  site_.PutProgram("DATA/rbtallyS.exe");
  EXPECT_FALSE(LoadSiteForNames(TraitsOfStartMode(4)));
  ASSERT_EQ(site_.Launches().size(), 1U);
  EXPECT_EQ(site_.Launches()[0].command_line, "\\rbk\\rbtally1S.exe");
  EXPECT_EQ(SiteContext.WorkDatabase, nullptr);
}

TEST_F(WorkWithNames, ARealJetFileIsOfferedToBeTakenOver) {
  std::vector<JetTable> tables;
  {
    Database schedule = Database::Open(site_.Data(kScheduleFile));
    tables = JetTablesOf(schedule);
  }
  std::filesystem::remove(site_.Data(kScheduleFile));
  WriteJetFile(site_.Data(kScheduleFile), jet::JetVersion::jet4, tables);
  site_.Answer(MessageAnswer::yes);
  EXPECT_TRUE(LoadSiteForNames(TraitsOfStartMode(4)));
  EXPECT_TRUE(std::filesystem::exists(site_.Data("GENBA001.MDB.jet")));
  BindChosenSite();
  OpenNameWork();
  EXPECT_EQ(site_.Names(), "1=0 270 270|2=0 0 0|4=0 135 135|");
}

TEST_F(WorkWithNames, ASiteThatMayOnlyBeReadIsToldAndWeighedOnCopies) {
  const auto before = site_.Rows(kCompanionFile, "SELECT * FROM 登録名");
  {
    const LookingOnly looking{site_.Root().Path(), site_.Root().SettingsFile().parent_path()};
    EXPECT_TRUE(LoadSiteForNames(TraitsOfStartMode(4)));
    ASSERT_FALSE(site_.Messages().empty());
    EXPECT_THAT(site_.Messages()[0].text, testing::HasSubstr("読むだけにします"));
    BindChosenSite();
    OpenNameWork();
    EXPECT_EQ(ReadNames(*SiteContext.NameDatabase, NameOrder::by_number).at(0).stock,
              Currency::FromInteger(270));
    CloseNameWork();
    SiteContext.WorkDatabase.reset();
  }
  EXPECT_EQ(site_.Rows(kCompanionFile, "SELECT * FROM 登録名"), before);
  EXPECT_FALSE(HasTable("WorkSumTable"));
}

TEST_F(WorkWithNames, LeavesNoWorkTableWhereTheWeightsCannotBeWritten) {
  Load();
  site_.Execute(kCompanionFile, "DROP TABLE 登録名");
  site_.Execute(kCompanionFile, "CREATE TABLE 登録名 (登録AN LONG, 登録名 TEXT(50))");
  EXPECT_THROW(OpenNameWork(), Fault);
  EXPECT_EQ(SiteContext.NameDatabase, nullptr);
  EXPECT_FALSE(LeavesWorkTables());
  // It was the last step that failed.
  EXPECT_TRUE(HasTable("WorkSumTable"));
}

TEST_F(WorkWithNames, EndsWithItsObjectWhereAFaultComesFirst) {
  Load();
  bool opened = false;
  try {
    const NameWork work;
    opened = LeavesWorkTables();
    throw Fault(FaultKind::overflow, "a tally");
  } catch (const Fault&) {
    EXPECT_FALSE(LeavesWorkTables());
  }
  EXPECT_TRUE(opened);
  EXPECT_EQ(SiteContext.NameDatabase, nullptr);
}

TEST_F(WorkWithNames, EndsOnceWhereItIsClosed) {
  Load();
  const auto logged = LoggedFailures();
  {
    NameWork work;
    work.Close();
    EXPECT_FALSE(LeavesWorkTables());
    EXPECT_EQ(SiteContext.NameDatabase, nullptr);
  }
  EXPECT_EQ(LoggedFailures(), logged);
}

TEST_F(WorkWithNames, EndsInAScheduleThatHasBeenClosedMeanwhile) {
  Load();
  OpenNameWork();
  SiteContext.WorkDatabase.reset();
  CloseNameWork();
  EXPECT_FALSE(LeavesWorkTables());
}

TEST_F(WorkWithNames, WithoutWeightsTakesThoseOfFormerRowsAway) {
  Load();
  OpenNameWork();
  MarkNames(*SiteContext.NameDatabase, std::vector<std::int32_t>{2}, true);
  OpenNameWorkWithoutWeights();
  EXPECT_EQ(site_.Names(), "1=0 0 0|2=0 0 0|4=0 0 0|");
}

}  // namespace
}  // namespace rbt::test
