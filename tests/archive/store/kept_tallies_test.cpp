// SPDX-License-Identifier: MIT
// Lists of saved tallies, overwriting, and what happens when a save fails.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/store/archive_site.h"
#include "archive/store/random_tallies.h"
#include "archive/store/site_file.h"
#include "shell/context/site_context.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/kept_services.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class KeptTallies : public testing::Test {
 protected:
  void AddName(const std::string& time, const Value& name, std::int64_t kind, const Value& with_13m) {
    site_.Add(kScheduleFile, "重量集計名称",
              {{"作成日", "20261101"},
               {"作成時間", time},
               {"重量集計名称", name},
               {"集計区分", kind},
               {"定尺１３ｍ", with_13m}});
  }
  std::string Names(TallyKind kind, bool with_13m = false) const {
    std::string names;
    for (const SavedTally& saved : site_.List(kind, with_13m)) names += saved.name + "|";
    return names;
  }
  std::string AllNames(bool with_13m) const {
    Database site = site_.Open();
    std::string names;
    for (const SavedTally& saved : AllSavedTallies(site, with_13m)) names += saved.name + "|";
    return names;
  }

  ArchiveSite site_;
};

}  // namespace

TEST_F(KeptTallies, StandInListsByKindAndColumnTheNewestFirst) {
  AddName("090001", "一", 0, 0);
  AddName("090003", "三", 0, 0);
  AddName("090002", "二", 0, 0);
  AddName("090004", "階", 4, 0);
  AddName("090005", "13", 0, 1);
  EXPECT_EQ(Names(TallyKind::bulk), "三|二|一|");
  EXPECT_EQ(Names(TallyKind::floor), "階|");
  EXPECT_EQ(Names(TallyKind::part), "");
  EXPECT_EQ(Names(TallyKind::bulk, true), "13|");
  EXPECT_EQ(AllNames(false), "階|三|二|一|");
  EXPECT_EQ(AllNames(true), "13|");
}

TEST_F(KeptTallies, ANullStateOfTheColumnCountsAsNone) {
  AddName("090001", "前", 0, Value{});
  EXPECT_EQ(Names(TallyKind::bulk), "前|");
  EXPECT_EQ(Names(TallyKind::bulk, true), "");
}

TEST_F(KeptTallies, NamesAreTrimmedAndEmptyOnesSkipped) {
  AddName("090001", "  前後  ", 0, 0);
  AddName("090002", "", 0, 0);
  AddName("090003", "   ", 0, 0);
  AddName("090004", Value{}, 0, 0);
  EXPECT_EQ(Names(TallyKind::bulk), "前後|");
}

TEST_F(KeptTallies, NumbersThatAreNoKindAreInNoList) {
  AddName("090001", "六", 6, 0);
  AddName("090002", "負", -1, 0);
  EXPECT_EQ(AllNames(false), "");
}

TEST_F(KeptTallies, AreFoundByNamesComparedTrimmedWithoutRegardToLetterCase) {
  AddName("090001", " Ab ", 0, 0);
  AddName("090002", "aB", 0, 0);
  const std::vector<SavedTally> list = site_.List(TallyKind::bulk);
  ASSERT_NE(FindSaved(list, "AB  "), nullptr);
  EXPECT_EQ(FindSaved(list, "AB  ")->key.time, "090002") << "the newest";
  EXPECT_EQ(FindSaved(list, "abc"), nullptr);
  EXPECT_EQ(FindSaved(list, "ＡＢ"), nullptr) << "full-width letters are others";
}

TEST_F(KeptTallies, AreNoneWhereTheSiteHasNoTableOfThem) {
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計名称");
  EXPECT_EQ(Names(TallyKind::bulk), "");
  EXPECT_EQ(AllNames(true), "");
}

// Overwriting.

TEST_F(KeptTallies, OverwritingTakesTheOldRowsAndTheOldNameAway) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("基礎", 0)));
  TallyResult other = SmallTally();
  other.Grid().BarCount[3][5] = 20;
  Database site = site_.Open();
  ASSERT_TRUE(SaveTally(site, other, ArchiveSite::Order("基礎", 5), site_.List(TallyKind::bulk)));
  EXPECT_THAT(site_.Lines("SELECT 作成時間,[6000mm] FROM 重量集計"), ElementsAre("090005|20"));
  EXPECT_THAT(site_.Lines("SELECT 作成時間,重量集計名称 FROM 重量集計名称"), ElementsAre("090005|基礎"));
}

TEST_F(KeptTallies, OverwritingAFloorTallyLeavesItsOldRowsBehindWhereNobodySeesThem) {
  RandomTallies random(1);
  const TallyResult old = random.Floors({});
  const TallyResult other = random.Floors({});
  ASSERT_TRUE(site_.Save(old, ArchiveSite::Order("全階", 0)));
  const std::size_t old_rows = site_.Count("階部位重量集計");
  const std::size_t old_floors = site_.Count("階別重量集計");
  Database site = site_.Open();
  ASSERT_TRUE(SaveTally(site, other, ArchiveSite::Order("全階", 5), site_.List(TallyKind::floor)));
  EXPECT_THAT(site_.Lines("SELECT 行No FROM 階部位重量集計 WHERE 作成時間='090000'"), SizeIs(old_rows));
  EXPECT_THAT(site_.Lines("SELECT 行No FROM 階別重量集計 WHERE 作成時間='090000'"), SizeIs(old_floors));
  EXPECT_EQ(Names(TallyKind::floor), "全階|");
  EXPECT_TRUE(site_.Load(TallyKind::floor, "全階").result.Floors() == other.Floors());
}

TEST_F(KeptTallies, AFloorsRowsKeepTheirPartsWhenAnotherTallyOfTheFloorIsSaved) {
  RandomTallies random(2);
  const TallyResult first = random.Floors({});
  const TallyResult second = random.Floors({});
  ASSERT_TRUE(site_.Save(first, ArchiveSite::Order("一", 0)));
  const auto before = site_.Lines("SELECT * FROM 階別重量集計 WHERE 作成時間='090000'");
  ASSERT_TRUE(site_.Save(second, ArchiveSite::Order("二", 1)));
  EXPECT_EQ(site_.Lines("SELECT * FROM 階別重量集計 WHERE 作成時間='090000'"), before);
}

TEST_F(KeptTallies, TalliesOfOtherKindsWithTheNameAreLeftAlone) {
  ASSERT_TRUE(site_.Save(SmallTally(TallyKind::shape), ArchiveSite::Order("同名", 0)));
  ASSERT_TRUE(site_.Save(SmallTally(TallyKind::bulk), ArchiveSite::Order("同名", 1)));
  Database site = site_.Open();
  ASSERT_TRUE(SaveTally(site, SmallTally(), ArchiveSite::Order("同名", 2), site_.List(TallyKind::bulk)));
  EXPECT_EQ(site_.List(TallyKind::shape).size(), 1U);
  EXPECT_TRUE(site_.Load(TallyKind::shape, "同名").has_rows);
  EXPECT_THAT(site_.Lines("SELECT 作成時間 FROM 重量集計 ORDER BY 作成時間"),
              ElementsAre("090000", "090002"));
}

// Failure.

TEST_F(KeptTallies, TheSecondOfTwoSavesInOneSecondFailsAndLeavesTheFirstWhole) {
  RandomTallies random(3);
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  const auto before = site_.Dump();
  for (const TallyResult& second : {SmallTally(), random.Floors({}), random.Parts({})}) {
    EXPECT_EQ(FaultOf([&] { site_.Save(second, ArchiveSite::Order("二")); }), FaultKind::database);
    EXPECT_EQ(site_.Dump(), before);
  }
}

TEST_F(KeptTallies, RowsThatAnOverwriteLeavesBehindNeverMixWithNewOnesOfTheirMoment) {
  RandomTallies random(4);
  for (const TallyResult& old : {random.Floors({}), random.Parts({})}) {
    ASSERT_TRUE(site_.Save(old, ArchiveSite::Order("全階")));
    const auto before = site_.Dump();
    TallyResult other = old;  // of another kind of material, so that no key is met twice
    other.selection.MaterialKindMask = KindMask(old.selection.MaterialKindMask.AsNumber() == 1 ? 2 : 1);
    Database site = site_.Open();
    EXPECT_EQ(FaultOf([&] { SaveTally(site, other, ArchiveSite::Order("全階"), site_.List(old.kind)); }),
              FaultKind::database);
    EXPECT_EQ(site_.Dump(), before);
    ASSERT_TRUE(SaveTally(site, other, ArchiveSite::Order("全階", 1), site_.List(old.kind)));
    EXPECT_EQ(FaultOf([&] { SaveTally(site, other, ArchiveSite::Order("別"), {}); }), FaultKind::database)
        << "the clock was set back to what was overwritten";
    for (const char* table : kArchiveTables) site.Execute(std::string("DELETE * FROM ") + table);
  }
}

TEST_F(KeptTallies, AnOverwriteThatFailsLeavesTheOldTally) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  const auto before = site_.Dump();
  SaveOrder order = ArchiveSite::Order("一", 5);
  order.memos[2] = std::string(256, 'x');  // more than the field takes
  Database site = site_.Open();
  EXPECT_EQ(FaultOf([&] { SaveTally(site, SmallTally(), order, site_.List(TallyKind::bulk)); }),
            FaultKind::database);
  EXPECT_EQ(site_.Dump(), before);
}

TEST_F(KeptTallies, AFullDiskIsAFaultAndLeavesTheArchiveAsItWas) {
  RandomTallies random(4);
  const TallyResult floors = random.Floors({});
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  const auto before = site_.Dump();
  EXPECT_TRUE(WithFilesOfAtMost(512, [&] {
    EXPECT_EQ(FaultOf([&] { site_.Save(floors, ArchiveSite::Order("二", 1)); }), FaultKind::storage);
  }));
  EXPECT_EQ(site_.Dump(), before);
}

TEST_F(KeptTallies, ASiteThatAnotherProgramWritesIsWaitedForAndThenAFault) {
  Services.LockPatience = std::chrono::milliseconds(0);
  Database other = site_.Open();
  {
    const Transaction writing(other);
    EXPECT_EQ(FaultOf([&] { site_.Save(SmallTally(), ArchiveSite::Order("一")); }), FaultKind::locked);
  }
  EXPECT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
}

TEST_F(KeptTallies, AreSavedWhileAnotherProgramHasTheFileOpen) {
  Database other = site_.Open();
  Recordset rows = other.OpenSnapshot("SELECT * FROM 重量集計名称");
  EXPECT_TRUE(rows.Eof());
  EXPECT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  EXPECT_THAT(SavedTallies(other, TallyKind::bulk, false), SizeIs(1));
}

// Where they are kept.

TEST_F(KeptTallies, OfASiteThatIsReadOnAPrivateCopyGoIntoItsOwnFile) {
  SelectSite(kScheduleFile);
  OpenWorkDatabase();
  *SiteContext.WorkDatabase = Database::CopyOf(*SiteContext.WorkDatabase);
  ASSERT_TRUE(SaveTally(*SiteFile(), SmallTally(), ArchiveSite::Order("一")));
  EXPECT_EQ(Names(TallyKind::bulk), "一|");
  EXPECT_THAT(SavedTallies(*SiteContext.WorkDatabase, TallyKind::bulk, false), IsEmpty());
}

TEST_F(KeptTallies, OfASiteThatIsOpenForReadingGoIntoItsOwnFile) {
  SelectSite(kScheduleFile);
  SiteContext.OnlyRead = true;
  OpenWorkDatabase();
  ASSERT_TRUE(SaveTally(*SiteFile(), SmallTally(), ArchiveSite::Order("一")));
  EXPECT_EQ(Names(TallyKind::bulk), "一|");
}

TEST_F(KeptTallies, HaveNoFileWhereNoSiteIsOpen) {
  EXPECT_THAT(FaultTextOf([] { const SiteFile site; }), HasSubstr("no site database is open"));
}

TEST_F(KeptTallies, TheSuppliesOfASiteAreItsGradesAndMakers) {
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET SD19=2, MK19='東'");
  SelectSite(kScheduleFile);
  OpenMasterDatabase();
  SiteContext.GradeNames[2] = "SD345";
  const BarOrigins supply = ReadBarOrigins();
  EXPECT_EQ(supply.grades[3], "SD345");
  EXPECT_EQ(supply.makers[3], "東");
}

}  // namespace rbt::test
