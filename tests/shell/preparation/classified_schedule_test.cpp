// SPDX-License-Identifier: MIT
#include "shell/preparation/classified_schedule.h"

#include <algorithm>
#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/context/site_context.h"
#include "shell/preparation/preparation.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const StartModeTraits kUsualStart = TraitsOfStartMode(kNoStartMode);
/// Only plain bars are straight, and there are no plates.
const StartModeTraits kOtherStart = TraitsOfStartMode(1);

class ClassifiedSchedules : public testing::Test {
 protected:
  ClassifiedSchedules() {
    Services.LockPatience = std::chrono::milliseconds(0);
    site_.AddRow({{"太さ", 19}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}, {"本数", 2}, {"ヶ所", 3}});
    SelectSite(kScheduleFile);
    OpenWorkDatabase();
  }

  /// Form and plates as ours are read.
  static std::string Ours() {
    Recordset rows = SiteContext.WorkDatabase->OpenSnapshot("SELECT 予備3, 定着板数 FROM 加工テーブル");
    return Shown(rows.Get("予備3")) + "/" + Shown(rows.Get("定着板数"));
  }
  std::string OfTheFile() const { return site_.Column("予備3")[0] + "/" + site_.Column("定着板数")[0]; }
  /// What another program does that starts on the site in another mode.
  void StartElsewhere(const StartModeTraits& start_mode) const {
    Database theirs = Database::Open(site_.Data(kScheduleFile));
    theirs.ExecuteTogether(PreparationStatements(theirs, start_mode));
  }
  std::string Bytes() const { return ReadFileBytes(site_.Data(kScheduleFile)); }

  SiteFixture site_;
};

TEST_F(ClassifiedSchedules, StayThoseOfTheModeWhileTheyAreHeld) {
  HoldClassifiedSchedule(kUsualStart);
  EXPECT_THAT(FaultTextOf([&] { StartElsewhere(kOtherStart); }), HasSubstr("another program holds the file"));
  EXPECT_EQ(Ours(), "1/6");
  SiteContext.WorkDatabase->LetGo();
  StartElsewhere(kOtherStart);
  EXPECT_EQ(OfTheFile(), "2/0");
}

TEST_F(ClassifiedSchedules, AreClassifiedAgainWhenSomebodyHasChangedThem) {
  { const ClassifiedSchedule first(kUsualStart); }
  StartElsewhere(kOtherStart);
  {
    const ClassifiedSchedule second(kUsualStart);
    EXPECT_EQ(Ours(), "1/6");
  }
  EXPECT_EQ(OfTheFile(), "1/6");
}

TEST_F(ClassifiedSchedules, ThatNobodyHasChangedAreNeitherWrittenNorLocked) {
  { const ClassifiedSchedule first(kUsualStart); }
  const std::string bytes = Bytes();
  Database theirs = Database::Open(site_.Data(kScheduleFile));
  const Transaction writing(theirs);
  SiteContext.ClassifiedAt.reset();
  { const ClassifiedSchedule looked_at_again(kUsualStart); }
  { const ClassifiedSchedule known(kUsualStart); }
  EXPECT_EQ(Bytes(), bytes);
}

TEST_F(ClassifiedSchedules, OfASlitBarOfAThreadedShapeAreNotWrittenTwice) {
  site_.AddRow({{"太さ", 10}, {"部位", 3}, {"名称", "縦ｽﾘｯﾄ筋　"}, {"形状No", 140}, {"伸切寸", 7000}});
  const auto start = [] {
    ClassifyAtLoad(kUsualStart);
    RefreshAtActivation(kUsualStart);
  };
  start();
  const std::string bytes = Bytes();
  start();
  { const ClassifiedSchedule tally(kUsualStart); }
  EXPECT_EQ(Bytes(), bytes);
  EXPECT_THAT(site_.Column("予備2"), ElementsAre("4", "5"));
}

TEST_F(ClassifiedSchedules, OfALoadAndAnActivationStandForTheTally) {
  ClassifyAtLoad(kUsualStart);
  RefreshAtActivation(kUsualStart);
  EXPECT_EQ(OfTheFile(), "1/6");
  const auto known = SiteContext.ClassifiedAt;
  { const ClassifiedSchedule tally(kUsualStart); }
  EXPECT_EQ(SiteContext.ClassifiedAt, known);
}

TEST_F(ClassifiedSchedules, ThatAnotherModeCameBetweenLoadAndActivationAreClassifiedAgain) {
  ClassifyAtLoad(kUsualStart);
  StartElsewhere(kOtherStart);
  RefreshAtActivation(kUsualStart);
  const ClassifiedSchedule tally(kUsualStart);
  EXPECT_EQ(Ours(), "1/6");
}

TEST_F(ClassifiedSchedules, OfASiteThatIsOnlyReadAreThoseOfACopyAndToldOfOnce) {
  StartElsewhere(kOtherStart);
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  const std::string bytes = Bytes();
  {
    const ClassifiedSchedule tally(kUsualStart);
    EXPECT_EQ(Ours(), "1/6");
  }
  EXPECT_TRUE(SiteContext.WorkDatabase->IsPrivateCopy());
  EXPECT_EQ(SiteContext.WorkDatabase->File(), site_.Data(kScheduleFile));
  { const ClassifiedSchedule again(kUsualStart); }
  OpenWorkDatabase();
  { const ClassifiedSchedule opened_again(kUsualStart); }
  EXPECT_EQ(Bytes(), bytes);
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages().front().text,
            "GENBA001.MDB は読むだけにします。分類は写しの上で行い、元のファイルは書き換えません。");
}

TEST_F(ClassifiedSchedules, OfACopyFollowTheirOriginal) {
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  { const ClassifiedSchedule tally(kUsualStart); }
  site_.Execute(kScheduleFile, "UPDATE 加工テーブル SET 本数 = 5");
  const ClassifiedSchedule tally(kUsualStart);
  EXPECT_EQ(Ours(), "1/15");
}

TEST_F(ClassifiedSchedules, OfASiteThatIsOnlyReadAndClassifiedNeedNoCopy) {
  StartElsewhere(kUsualStart);
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  const ClassifiedSchedule tally(kUsualStart);
  EXPECT_FALSE(SiteContext.WorkDatabase->IsPrivateCopy());
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(ClassifiedSchedules, AreThoseOfTheFileThatStandsUnderTheNameNow) {
  { const ClassifiedSchedule tally(kUsualStart); }
  const auto file = site_.Data(kScheduleFile);
  std::filesystem::copy_file(file, site_.Data("restored"));
  Database::Open(site_.Data("restored")).Execute("UPDATE 加工テーブル SET 本数 = 7");
  std::filesystem::rename(site_.Data("restored"), file);
  const ClassifiedSchedule tally(kUsualStart);
  EXPECT_EQ(Ours(), "1/21");
}

TEST_F(ClassifiedSchedules, WithFloorsAreHeldToo) {
  StartElsewhere(kOtherStart);
  HoldScheduleWithFloors(kUsualStart);
  EXPECT_EQ(Ours(), "1/6");
  EXPECT_THAT(site_.Column("階"), ElementsAre("78"));
  EXPECT_THAT(site_.Column("部位"), ElementsAre("0"));
  EXPECT_THAT(FaultTextOf([&] { StartElsewhere(kOtherStart); }), HasSubstr("another program holds the file"));
}

TEST_F(ClassifiedSchedules, ThatAreWrittenAreClassifiedAgainFirstAndHeldAfterwards) {
  HoldClassifiedSchedule(kUsualStart);
  SiteContext.WorkDatabase->LetGo();
  StartElsewhere(kOtherStart);
  Database& schedule = *SiteContext.WorkDatabase;
  WriteAndHoldClassified(schedule, kUsualStart, [&] {
    EXPECT_EQ(Ours(), "1/6");
    schedule.Execute("UPDATE 加工テーブル SET 階 = 3");
  });
  EXPECT_EQ(schedule.State(), SiteContext.ClassifiedAt);
  EXPECT_THAT(FaultTextOf([&] { StartElsewhere(kOtherStart); }), HasSubstr("another program holds the file"));
  schedule.LetGo();
  EXPECT_EQ(OfTheFile(), "1/6");
  EXPECT_THAT(site_.Column("階"), ElementsAre("3"));
}

TEST_F(ClassifiedSchedules, ThatAreNotWrittenInTheEndStayAsTheyWere) {
  StartElsewhere(kOtherStart);
  EXPECT_EQ(FaultOf([&] {
              WriteAndHoldClassified(*SiteContext.WorkDatabase, kUsualStart,
                                     [] { throw Fault(FaultKind::overflow, "a write"); });
            }),
            FaultKind::overflow);
  EXPECT_EQ(OfTheFile(), "2/0");
}

TEST_F(ClassifiedSchedules, WithFloorsOfASiteThatIsOnlyReadAreThoseOfACopy) {
  for (const StartModeTraits& before : {kOtherStart, kUsualStart}) {
    StartElsewhere(before);
    SiteContext.OnlyRead = true;
    OpenWorkDatabase();
    HoldScheduleWithFloors(kUsualStart);
    EXPECT_EQ(Ours(), "1/6");
    EXPECT_FALSE(
        SiteContext.WorkDatabase->HasRows("SELECT * FROM 加工テーブル WHERE IsNull(階) OR IsNull(部位)"));
    EXPECT_THAT(site_.Column("階"), ElementsAre("null"));
  }
}

TEST_F(ClassifiedSchedules, OfAJetFileAreReadAnewWhenItHasChangedSinceTheLastTally) {
  SiteContext.WorkDatabase.reset();
  auto tables = [&] {
    Database store = Database::Open(site_.Data(kScheduleFile));
    return JetTablesOf(store);
  }();
  const auto put = [&] {
    std::filesystem::remove(site_.Data(kScheduleFile));
    WriteJetFile(site_.Data(kScheduleFile), jet::JetVersion::jet4, tables);
  };
  put();
  OpenWorkDatabase();
  { const ClassifiedSchedule first(kUsualStart); }
  EXPECT_EQ(Ours(), "1/6");
  JetTable& schedule = *std::ranges::find(tables, "加工テーブル", &JetTable::name);
  const auto bars = std::ranges::find(schedule.fields, "本数", &FieldDef::name) - schedule.fields.begin();
  schedule.rows[0][static_cast<std::size_t>(bars)] = std::int64_t{4};
  put();
  const std::string jet = Bytes();
  {
    const ClassifiedSchedule second(kUsualStart);
    EXPECT_EQ(Ours(), "1/12");
  }
  EXPECT_EQ(Bytes(), jet);
}

TEST_F(ClassifiedSchedules, OfAJetFileThatIsOnlyReadAreThoseOfACopyThatFollowsIt) {
  SiteContext.WorkDatabase.reset();
  const auto tables = [&] {
    Database store = Database::Open(site_.Data(kScheduleFile));
    return JetTablesOf(store);
  }();
  const auto put = [&](const std::vector<JetTable>& with) {
    std::filesystem::remove(site_.Data(kScheduleFile));
    WriteJetFile(site_.Data(kScheduleFile), jet::JetVersion::jet4, with);
  };
  put(tables);
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  { const ClassifiedSchedule first(kUsualStart); }
  EXPECT_EQ(Ours(), "1/6");
  auto without_rows = tables;
  std::ranges::find(without_rows, "加工テーブル", &JetTable::name)->rows.clear();
  put(without_rows);
  const ClassifiedSchedule second(kUsualStart);
  EXPECT_FALSE(SiteContext.WorkDatabase->HasRows("SELECT * FROM 加工テーブル"));
}

}  // namespace
}  // namespace rbt::test
