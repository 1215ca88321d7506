// SPDX-License-Identifier: MIT
#include "archive/store/manage_tallies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/store/archive_site.h"
#include "archive/store/random_tallies.h"
#include "support/child_process.h"
#include "support/fault_of.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Management : public testing::Test {
 protected:
  void Delete(const SavedTally& saved) const {
    Database site = site_.Open();
    DeleteTally(site, saved);
  }
  void Rename(const SavedTally& saved, const std::string& name) const {
    Database site = site_.Open();
    RenameTally(site, saved, name);
  }

  ArchiveSite site_;
};

}  // namespace

TEST_F(Management, DeletingATallyOfAnyKindLeavesNoRowOfIt) {
  RandomTallies random(1);
  const TallyResult tallies[] = {random.Grid(TallyKind::page, false), random.Floors({}), random.Parts({})};
  int second = 0;
  for (const TallyResult& tally : tallies) {
    ASSERT_TRUE(site_.Save(tally, ArchiveSite::Order("去る", ++second)));
    const auto others_rows = site_.Dump();
    ASSERT_TRUE(site_.Save(tally, ArchiveSite::Order("残る", ++second)));
    Delete(*FindSaved(site_.List(tally.kind), "残る"));
    EXPECT_EQ(site_.Dump(), others_rows);
  }
  for (const TallyResult& tally : tallies) Delete(site_.List(tally.kind).front());
  for (const char* table : kArchiveTables) EXPECT_EQ(site_.Count(table), 0U) << table;
}

TEST_F(Management, TwoSavesOfOneNameNeedTwoDeletesTheNewestFirst) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("同名", 1)));
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("同名", 2)));
  Delete(*FindSaved(site_.List(TallyKind::bulk), "同名"));
  EXPECT_THAT(site_.Lines("SELECT 作成時間 FROM 重量集計名称"), ElementsAre("090001"));
  EXPECT_THAT(site_.Lines("SELECT 作成時間 FROM 重量集計"), ElementsAre("090001"));
  Delete(*FindSaved(site_.List(TallyKind::bulk), "同名"));
  EXPECT_EQ(site_.Count("重量集計名称"), 0U);
}

TEST_F(Management, ANewNameLeadsToTheSameRows) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("古い")));
  const auto rows = site_.Lines("SELECT * FROM 重量集計");
  Rename(site_.List(TallyKind::bulk).front(), "新しい 'x' \"y\"");
  EXPECT_EQ(site_.List(TallyKind::bulk).front().name, "新しい 'x' \"y\"");
  EXPECT_EQ(site_.Lines("SELECT * FROM 重量集計"), rows);
  EXPECT_TRUE(site_.Load(TallyKind::bulk, "新しい 'x' \"y\"").has_rows);
}

TEST_F(Management, OneThatIsGoneByNowIsAFault) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  const SavedTally saved = site_.List(TallyKind::bulk).front();
  Delete(saved);
  EXPECT_THAT(FaultTextOf([&] { Delete(saved); }), HasSubstr("一"));
  EXPECT_THAT(FaultTextOf([&] { Rename(saved, "二"); }), HasSubstr("一"));
}

TEST_F(Management, ANameThatTheFieldCannotHoldIsAFaultAndTheOldOneStays) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  EXPECT_EQ(FaultOf([&] { Rename(site_.List(TallyKind::bulk).front(), std::string(121, 'x')); }),
            FaultKind::database);
  EXPECT_EQ(site_.List(TallyKind::bulk).front().name, "一");
}

TEST_F(Management, AFullDiskIsAFaultAndLeavesTheArchiveAsItWas) {
  RandomTallies random(2);
  const TallyResult floors = random.Floors({});
  ASSERT_TRUE(site_.Save(floors, ArchiveSite::Order("一")));
  const auto before = site_.Dump();
  const SavedTally saved = site_.List(TallyKind::floor).front();
  EXPECT_TRUE(WithFilesOfAtMost(512, [&] {
    EXPECT_EQ(FaultOf([&] { Delete(saved); }), FaultKind::storage);
    EXPECT_EQ(FaultOf([&] { Rename(saved, "二"); }), FaultKind::storage);
    Database site = site_.Open();
    EXPECT_EQ(FaultOf([&] { SaveTally(site, floors, ArchiveSite::Order("一", 1), {{saved}}); }),
              FaultKind::storage);
  }));
  EXPECT_EQ(site_.Dump(), before);
}

TEST_F(Management, TalliesAreDeletedFromASiteThatLacksTheTablesOfOtherKinds) {
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一")));
  site_.Execute(kScheduleFile, "DROP TABLE 部位別本重集計");
  Delete(site_.List(TallyKind::bulk).front());
  EXPECT_EQ(site_.Count("重量集計名称") + site_.Count("重量集計"), 0U);
}

}  // namespace rbt::test
