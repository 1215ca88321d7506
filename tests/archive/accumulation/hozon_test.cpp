// SPDX-License-Identifier: MIT
#include "archive/accumulation/hozon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/accumulation/hozon_samples.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

class Hozon : public testing::Test {
 protected:
  ~Hozon() override { SiteContext = SiteContextData{}; }

  std::filesystem::path File() const { return root_.Data("hozon.MDB"); }
  Database Open() const { return Database::Open(File()); }
  std::int64_t Count(const std::string& condition) const {
    return Open().OpenSnapshot("SELECT * FROM T_hozon WHERE " + condition).RecordCount();
  }

  RootFolder root_;
};

}  // namespace

TEST_F(Hozon, GivesBackWhatIsKeptOfATally) {
  for (const int n : {1, 7, 18}) {
    Delete_Hozon();
    Save_Hozon(SampleSum(n));
    EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(n))) << n;
    EXPECT_NE(Load_Hozon(), TallyTable());
  }
}

TEST_F(Hozon, HasARecordForEachRowAndThenOneForEachCellThatHoldsSomething) {
  TallyTable table;
  table.BarCount[3][18] = 2;
  table.StockWeight[0][0] = Currency::FromDouble(1.96);
  Save_Hozon(table);
  EXPECT_EQ(Count("列番号 Is Null"), 19);
  EXPECT_EQ(Count("Not 列番号 Is Null"), 2);
  Database hozon = Open();
  std::vector<std::string> places;
  for (Recordset rows = hozon.OpenSnapshot("SELECT * FROM T_hozon"); !rows.Eof(); rows.MoveNext()) {
    places.push_back(TextOf(rows.Get("行番号")) + "/" + TextOf(rows.Get("列番号")));
  }
  ASSERT_EQ(places.size(), 21U);
  EXPECT_EQ(places.front(), "0/");
  EXPECT_EQ(places[18], "18/");
  EXPECT_THAT(std::vector(places.begin() + 19, places.end()), ElementsAre("0/0", "3/18"));
}

TEST_F(Hozon, HasNoCountsOfFittingsInRowsOfThinBars) {
  Save_Hozon(SampleSum(1));
  EXPECT_EQ(Count("列番号 Is Null AND 圧接本数 Is Null"), 7);
  EXPECT_EQ(Count("列番号 Is Null AND U切寸 Is Null"), 0);
}

TEST_F(Hozon, ASecondSumTakesThePlaceOfTheFirst) {
  Save_Hozon(SampleSum(1));
  Save_Hozon(SampleSum(5));
  EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(5)));
  Save_Hozon(TallyTable());
  EXPECT_EQ(Load_Hozon(), TallyTable());
}

TEST_F(Hozon, EditsTheRecordsThatAreThere) {
  Save_Hozon(SampleSum(1));
  const std::int64_t records = Count("1=1");
  Save_Hozon(SampleSum(1 + 19));  // the same cells
  EXPECT_EQ(Count("1=1"), records);
}

TEST_F(Hozon, WithoutAFileIsEmpty) {
  EXPECT_EQ(Load_Hozon(), TallyTable());
  EXPECT_NO_THROW(Delete_Hozon());
}

TEST_F(Hozon, WithoutItsTableIsEmptyAndIsGivenOne) {
  Database::CreateDatabase(File());
  EXPECT_EQ(Load_Hozon(), TallyTable());
  Save_Hozon(SampleSum(2));
  EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(2)));
}

TEST_F(Hozon, NullFiguresAreZero) {
  {
    Database hozon = Database::CreateDatabase(File());
    Make_Hozon(hozon);
    hozon.Execute("INSERT INTO T_hozon(行番号,圧接本数) VALUES(3,4)");
    hozon.Execute("INSERT INTO T_hozon(行番号,列番号,定尺本数) VALUES(3,5,10)");
  }
  TallyTable expected;
  expected.WeldCount[3] = 4;
  expected.BarCount[3][5] = 10;
  EXPECT_EQ(Load_Hozon(), expected);
}

TEST_F(Hozon, ARecordOfNoRowOrColumnIsAFault) {
  {
    Database hozon = Database::CreateDatabase(File());
    Make_Hozon(hozon);
    hozon.Execute("INSERT INTO T_hozon(行番号,列番号) VALUES(3,19)");
  }
  EXPECT_EQ(FaultOf(Load_Hozon), FaultKind::subscript_out_of_range);
}

TEST_F(Hozon, AJournalThatStandsAloneIsDeletedToo) {
  root_.Put("DATA/hozon.MDB-journal", "left");
  Delete_Hozon();
  EXPECT_FALSE(std::filesystem::exists(root_.Data("hozon.MDB-journal")));
}

TEST_F(Hozon, IsGoneOnceDeleted) {
  Save_Hozon(SampleSum(1));
  Delete_Hozon();
  EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(Hozon, AmongJetFilesStandsUnderANameThatNoOtherProgramLooksFor) {
  WriteJetFile(root_.Data("SORANO.MDB"), jet::JetVersion::jet4, {});
  OpenMasterDatabase();
  Save_Hozon(SampleSum(3));
  EXPECT_FALSE(std::filesystem::exists(File()));
  EXPECT_TRUE(std::filesystem::exists(root_.Data("hozon.MDB.work")));
  EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(3)));
  SiteContext.MasterDatabase.reset();
  EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(3))) << "a sum goes on where it was begun";
  Delete_Hozon();
  EXPECT_EQ(Load_Hozon(), TallyTable());
  EXPECT_FALSE(std::filesystem::exists(root_.Data("hozon.MDB.work")));
}

TEST_F(Hozon, OfAnotherProgramIsNeitherReadNorWrittenNorDeleted) {
  WriteJetFile(File(), jet::JetVersion::jet4, {});
  const std::string bytes = ReadFileBytes(File());
  EXPECT_EQ(Load_Hozon(), TallyTable());
  Save_Hozon(SampleSum(3));
  EXPECT_EQ(Load_Hozon(), KeptForSum(SampleSum(3)));
  Delete_Hozon();
  EXPECT_EQ(Load_Hozon(), TallyTable());
  EXPECT_EQ(ReadFileBytes(File()), bytes);
}

}  // namespace rbt::test
