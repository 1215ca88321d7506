// SPDX-License-Identifier: MIT
#include "session/accumulation/accumulation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/accumulation/hozon.h"
#include "platform/fault.h"
#include "session/accumulation/more_sites.h"
#include "session/result/result_site.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/rows/bulk_tally.h"
#include "tally/site_sum.h"

namespace rbt::test {

namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::Not;
using testing::SizeIs;

/// Site 1 is bound; site 2 is like it, with ten D32 beside.
class Accumulation : public testing::Test {
 protected:
  Accumulation() {
    other_ = AddSiteLikeTheFirst(site_, 2);
    Cells d32 = At(TenBars(32, 1, 3), 9, 1);
    d32.emplace_back("行No", std::int64_t{99});
    site_.Add(other_, "加工テーブル", d32);
    ResultSite::Load();
  }
  /// The classes of all rows of a schedule, in their order; a row without one has "null".
  std::vector<std::string> ClassesOf(const std::string& file) const {
    const auto rows = site_.Rows(file, "SELECT 予備2 FROM 加工テーブル ORDER BY 行No");
    std::vector<std::string> classes;
    classes.reserve(rows.size());
    for (const auto& row : rows) classes.push_back(Shown(row.front()));
    return classes;
  }
  bool FileStands() const { return std::filesystem::exists(site_.Data("hozon.MDB")); }

  ResultSite site_;
  std::string other_;
};

}  // namespace

TEST_F(Accumulation, BeginsWithTheTallyStoredAndItsFlagSet) {
  const TallyResult own = CountTally(TallyKind::bulk);
  BeginAccumulation(own);
  EXPECT_EQ(RunState.AccumulateFlag, 1);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 1);
  EXPECT_EQ(Load_Hozon(), KeptForSum(own.Grid()));
  EndAccumulation();
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
  EXPECT_FALSE(FileStands());
}

TEST_F(Accumulation, AddsTheOtherSiteToWhatIsStored) {
  BeginAccumulation(CountTally(TallyKind::bulk));
  const TallyResult sum = AddSite(other_);
  EXPECT_EQ(sum.origin, ResultOrigin::accumulated);
  EXPECT_EQ(sum.Grid().BarCount[3][5], 20);
  EXPECT_EQ(sum.Grid().BarCount[7][5], 10);
  EXPECT_EQ(sum.Grid().WeldCount[3], 6);
  EXPECT_EQ(sum.Grid().UlbonWeldCount[14], 6);
  EXPECT_EQ(TallyGrid, sum.Grid());
}

TEST_F(Accumulation, PreparesTheOtherSiteAsItsOwnStartWould) {
  BeginAccumulation(CountTally(TallyKind::bulk));
  EXPECT_THAT(ClassesOf(other_), AllOf(SizeIs(5), Each("null")));
  AddSite(other_);
  std::vector<std::string> expected = ClassesOf(kScheduleFile);  // four rows, the thin bar among them
  EXPECT_THAT(expected, AllOf(SizeIs(4), Not(Contains("null"))));
  EXPECT_NE(expected.front(), expected.back());
  expected.push_back(expected.front());  // D32 is classed like D19
  EXPECT_EQ(ClassesOf(other_), expected);
}

TEST_F(Accumulation, LeavesTheBoundSiteBoundAndOpenAsItWas) {
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = true;
  const Database* const open = SiteContext.WorkDatabase.get();
  AddSite(other_);
  EXPECT_EQ(SiteContext.SelectedDbName, kScheduleFile);
  EXPECT_EQ(SiteContext.SiteNumberText, "001");
  EXPECT_EQ(SiteContext.WorkDatabase.get(), open);
  EXPECT_FALSE(RunState.HasHoopRows);
  EXPECT_TRUE(RunState.HasAnchorPlateRows);
}

TEST_F(Accumulation, OfASiteThatCannotBeTalliedIsAFaultAndTheBoundSiteStaysBound) {
  std::filesystem::remove(site_.Data("HIROI002.mdb"));
  BeginAccumulation(CountTally(TallyKind::bulk));
  const TallyTable stored = Load_Hozon();
  EXPECT_THROW(AddSite(other_), Fault);
  EXPECT_EQ(SiteContext.SelectedDbName, kScheduleFile);
  ASSERT_NE(SiteContext.WorkDatabase, nullptr);
  EXPECT_EQ(Load_Hozon(), stored);
}

TEST_F(Accumulation, OfASiteOfANewerFormatIsAFault) {
  site_.PutProgram("DATA/rbtallyS.exe");
  site_.Add(other_, "データーベースバージョン", {{"バージョン", std::string("7.0")}});
  EXPECT_NE(FaultTextOf([&] { AddSite(other_); }).find("GENBA002.MDB: needs the newer program"),
            std::string::npos);
  EXPECT_EQ(SiteContext.SelectedDbName, kScheduleFile);
}

TEST_F(Accumulation, OnTopOfAFileThatWasDeletedByHandIsTheSiteAlone) {
  BeginAccumulation(CountTally(TallyKind::bulk));
  std::filesystem::remove(site_.Data("hozon.MDB"));
  EXPECT_EQ(AddSite(other_).Grid().BarCount[3][5], 10);
}

TEST_F(Accumulation, FindsASiteWhoseDataPathHasBlanksAroundTheFileName) {
  site_.Execute(kMasterFile, "UPDATE 工事テーブル SET データパス=' GENBA002.MDB  ' WHERE 番号=2");
  BeginAccumulation(CountTally(TallyKind::bulk));
  EXPECT_EQ(AddSite(other_).Grid().BarCount[3][5], 20);
}

TEST_F(Accumulation, IsOffEvenWhereItsFileCannotBeDeleted) {
  BeginAccumulation(CountTally(TallyKind::bulk));
  PutFolderInPlaceOfTheFile(site_);
  EXPECT_EQ(FaultOf(EndAccumulation), FaultKind::file);
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
}

TEST_F(Accumulation, OfASiteToItselfIsTwice) {
  BeginAccumulation(CountTally(TallyKind::bulk));
  EXPECT_EQ(AddSite(kScheduleFile).Grid().BarCount[3][5], 20);
}

TEST_F(Accumulation, AStepThatIsLeftInItsMidstEndsIt) {
  {
    const AddingStep step;
    BeginAccumulation(CountTally(TallyKind::bulk));
  }
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
  EXPECT_FALSE(FileStands());
}

}  // namespace rbt::test
