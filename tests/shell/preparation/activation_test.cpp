// SPDX-License-Identifier: MIT
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/preparation/preparation.h"
#include "shell/preparation/random_schedule.h"
#include "store/database_impl.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class Activation : public testing::Test {
 protected:
  void Refresh(std::int32_t start_mode = kNoStartMode) {
    Database schedule = Database::Open(site_.Data(kScheduleFile));
    RefreshSchedule(schedule, TraitsOfStartMode(start_mode));
  }
  std::vector<std::string> Kinds() const { return site_.Column("予備2"); }
  std::vector<std::string> Plates() const { return site_.Column("定着板数"); }

  SiteFixture site_;
};

TEST_F(Activation, UlbonOf16StaysAndOf19BecomesDeformed) {
  site_.AddRow({{"太さ", 16}, {"予備2", 2}});
  site_.AddRow({{"太さ", 19}, {"予備2", 2}});
  Refresh();
  EXPECT_THAT(Kinds(), ElementsAre("2", "1"));
}

TEST_F(Activation, ThinBarsAreUlbonWhateverTheyWere) {
  for (const int diameter : {6, 7, 9, 11, 12}) site_.AddRow({{"太さ", diameter}, {"予備2", 4}});
  site_.AddRow({{"太さ", 6}});
  Refresh();
  EXPECT_THAT(Kinds(), Each("2"));
}

TEST_F(Activation, UlbonWithoutADiameterKeepsItsKind) {
  site_.AddRow({{"予備2", 2}});
  Refresh();
  EXPECT_THAT(Kinds(), ElementsAre("2"));
}

TEST_F(Activation, OtherKindsStayAsTheyAre) {
  site_.AddRow({{"太さ", 19}});
  for (const int kind : {0, 1, 3, 4, 5}) site_.AddRow({{"太さ", 19}, {"予備2", kind}});
  Refresh();
  EXPECT_THAT(Kinds(), ElementsAre("null", "0", "1", "3", "4", "5"));
}

TEST_F(Activation, CountsOnePlateOrTwoForEachBarByItsShape) {
  site_.AddRow({{"形状No", 138}, {"本数", 3}, {"ヶ所", 4}});
  site_.AddRow({{"形状No", 143}, {"本数", 3}, {"ヶ所", 4}});
  site_.AddRow({{"形状No", 146}, {"本数", 5}, {"ヶ所", 2}});
  site_.AddRow({{"形状No", 169}, {"本数", 5}, {"ヶ所", 2}});
  site_.AddRow({{"形状No", 1}, {"本数", 3}, {"ヶ所", 4}, {"定着板数", 12}});
  Refresh();
  EXPECT_THAT(Plates(), ElementsAre("12", "24", "20", "10", "0"));
}

TEST_F(Activation, ARowWithoutAShapeHasNoPlates) {
  site_.AddRow({{"本数", 3}, {"ヶ所", 4}, {"定着板数", 5}});
  Refresh();
  EXPECT_THAT(Plates(), ElementsAre("0"));
}

TEST_F(Activation, AProductWithANullFactorLeavesThePlatesNull) {
  site_.AddRow({{"形状No", 138}, {"本数", 3}});
  site_.AddRow({{"形状No", 143}, {"ヶ所", 4}, {"定着板数", 8}});
  Refresh();
  EXPECT_THAT(Plates(), Each("null"));
}

TEST_F(Activation, StartModes1And3HaveNoPlatesAtAll) {
  site_.AddRow({{"形状No", 138}, {"本数", 3}, {"ヶ所", 4}, {"定着板数", 12}});
  site_.AddRow({{"形状No", 143}, {"本数", 3}});
  for (const std::int32_t mode : {1, 3}) {
    Refresh(mode);
    EXPECT_THAT(Plates(), Each("0")) << mode;
    Refresh(4);
    EXPECT_THAT(Plates(), ElementsAre("12", "null")) << mode;
  }
}

TEST_F(Activation, AFileWithoutPlateCountsIsPassedOverAndItsKindsAreStillTold) {
  site_.LeaveOutColumns({"定着板数", "ネジ数", "切断"});
  site_.AddRow({{"太さ", 6}, {"形状No", 138}, {"本数", 3}, {"ヶ所", 4}});
  Refresh();
  EXPECT_THAT(Kinds(), ElementsAre("2"));
}

TEST_F(Activation, PlatesBeyond32BitsOverflowAndNothingIsWritten) {
  site_.AddRow({{"太さ", 6}, {"形状No", 143}, {"本数", 1'100'000'000}, {"ヶ所", 1}});
  try {
    Refresh();
    FAIL() << "2 x 1,100,000,000 is more than 2,147,483,647";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::overflow);
  }
  EXPECT_THAT(Kinds(), ElementsAre("null"));
}

TEST_F(Activation, ATextWhereBarsAreCountedIsATypeMismatchInOneShortLine) {
  site_.AddRow({{"形状No", 1}, {"本数", 3}, {"ヶ所", 4}});
  site_.AddRow({{"形状No", 138}, {"本数", 3}, {"ヶ所", 4}});
  const auto put = [this](const char* shape) {
    Database::Open(site_.Data(kScheduleFile))
        .impl()
        .Connected()
        .Run(std::string("UPDATE 加工テーブル SET 本数 = '三' WHERE 形状No = ") + shape);
  };
  put("1");
  Refresh();
  EXPECT_THAT(Plates(), ElementsAre("0", "12")) << "nothing is reckoned with the first row's text";
  put("138");
  const std::string told = FaultTextOf([&] { Refresh(); });
  EXPECT_THAT(told, StartsWith("type mismatch: 加工テーブル.本数: \"三\" is no number: "));
  EXPECT_THAT(told, HasSubstr("GENBA001.MDB: UPDATE 加工テーブル SET "));
  EXPECT_LT(told.size(), 400U);
  EXPECT_THAT(Plates(), ElementsAre("0", "12"));
}

TEST_F(Activation, MarksSlitBarsOfPart3ByTheirNames) {
  site_.AddRow({{"部位", 3}, {"名称", "縦ｽﾘｯﾄ筋　"}});
  site_.AddRow({{"部位", 3}, {"名称", "横ｽﾘｯﾄ筋　"}});
  site_.AddRow({{"部位", 2}, {"名称", "縦ｽﾘｯﾄ筋　"}, {"予備2", 1}});
  Refresh();
  EXPECT_THAT(Kinds(), ElementsAre("5", "5", "1"));
}

TEST_F(Activation, ASlitBarWithoutTheTrailingIdeographicBlankIsNotSlit) {
  for (const char* name : {"縦ｽﾘｯﾄ筋", "縦ｽﾘｯﾄ筋 ", "縦ｽﾘｯﾄ筋　　"}) {
    site_.AddRow({{"部位", 3}, {"名称", name}, {"予備2", 1}});
  }
  Refresh();
  EXPECT_THAT(Kinds(), Each("1"));
}

TEST_F(Activation, ASlitBarOfDiameter6EndsAsSlitEachTime) {
  site_.AddRow({{"太さ", 6}, {"部位", 3}, {"名称", "縦ｽﾘｯﾄ筋　"}});
  for (int time = 0; time < 3; ++time) {
    Refresh();
    EXPECT_THAT(Kinds(), ElementsAre("5"));
  }
}

TEST_F(Activation, ASecondTimeLeavesTheFileUntouched) {
  site_.AddRows(RandomSchedule(5).Rows(200));
  Refresh();
  const auto written_at = std::filesystem::last_write_time(site_.Data(kScheduleFile));
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  Refresh();
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(site_.Data(kScheduleFile)), written_at);
}

/// The same outcome by another road: row after row in the order of the pages, each edited in turn.
class RowWalk {
 public:
  explicit RowWalk(std::int32_t start_mode) : no_plates_(start_mode == 1 || start_mode == 3) {}

  void Run(Database& schedule) const {
    Transaction transaction(schedule);
    for (Recordset rows = schedule.OpenDynaset("SELECT * FROM 加工テーブル ORDER BY 頁, 行 "); !rows.Eof();
         rows.MoveNext()) {
      rows.Edit();
      const auto diameter = rows.Int32(rows.Field("太さ"));
      if (diameter && thin_.contains(*diameter)) {
        rows.Set("予備2", std::int64_t{2});
      } else if (rows.Int32(rows.Field("予備2")) == 2 && diameter && diameter != 16) {
        rows.Set("予備2", std::int64_t{1});
      }
      rows.Set("定着板数", Plates(rows));
      rows.Update();
    }
    schedule.Execute("UPDATE 加工テーブル SET 予備2 = 5 WHERE 部位=3 AND 名称='縦ｽﾘｯﾄ筋　'");
    schedule.Execute("UPDATE 加工テーブル SET 予備2 = 5 WHERE 部位=3 AND 名称='横ｽﾘｯﾄ筋　'");
    transaction.Commit();
  }

 private:
  Value Plates(const Recordset& rows) const {
    const auto shape = rows.Int32(rows.Field("形状No"));
    const bool one = shape && one_plate_.contains(*shape);
    const bool two = shape && two_plates_.contains(*shape);
    if (no_plates_ || (!one && !two)) return std::int64_t{0};
    const auto bars = rows.Int32(rows.Field("本数"));
    const auto places = rows.Int32(rows.Field("ヶ所"));
    if (!bars || !places) return {};
    return std::int64_t{*bars} * *places * (two ? 2 : 1);
  }

  bool no_plates_;
  std::set<int> thin_{6, 7, 9, 11, 12};
  std::set<int> one_plate_{138, 140, 144, 145, 147, 161, 164, 165, 166, 167, 168, 169, 175, 176};
  std::set<int> two_plates_{143, 146};
};

TEST_F(Activation, GivesEveryRowWhatAWalkOverTheRowsGivesIt) {
  for (const std::int32_t mode : {kNoStartMode, 0, 1, 2, 3, 4}) {
    SiteFixture site;
    site.AddRows(RandomSchedule(static_cast<unsigned>(mode + 40)).Rows(600));
    std::filesystem::copy_file(site.Data(kScheduleFile), site.Data("GENBA002.MDB"));
    Database together = Database::Open(site.Data(kScheduleFile));
    Database walked = Database::Open(site.Data("GENBA002.MDB"));
    RefreshSchedule(together, TraitsOfStartMode(mode));
    RowWalk(mode).Run(walked);
    const char* const all = "SELECT * FROM 加工テーブル";
    EXPECT_EQ(site.Rows(kScheduleFile, all), site.Rows("GENBA002.MDB", all)) << mode;
  }
}

TEST_F(Activation, FillsMissingFloorsAndPartsForTheFloorAndPartTallies) {
  site_.AddRow({});
  site_.AddRow({{"階", -2}, {"部位", 4}});
  Database schedule = Database::Open(site_.Data(kScheduleFile));
  FillFloorsAndParts(schedule);
  EXPECT_THAT(site_.Column("階"), ElementsAre("78", "-2"));
  EXPECT_THAT(site_.Column("部位"), ElementsAre("0", "4"));
}

TEST_F(Activation, AddsTheColumnsOfTheNameWorkOnceAndZeroesTheirNulls) {
  site_.AddRow({});
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"登録名", "一工区"}});
  Database schedule = Database::Open(site_.Data(kScheduleFile));
  Database companion = Database::Open(site_.Data(kCompanionFile));
  AddNameWorkColumns(schedule, companion);
  site_.Add(kCompanionFile, "登録名", {{"登録AN", 2}, {"取付重量合計", Currency::FromInteger(7)}});
  AddNameWorkColumns(schedule, companion);

  EXPECT_THAT(site_.Column("登録名形状別作業用"), ElementsAre("null"));
  const Value zero = Currency{};
  const auto rows =
      site_.Rows(kCompanionFile, "SELECT 取付重量合計, 定尺重量合計 FROM 登録名 ORDER BY 登録AN");
  EXPECT_THAT(rows, ElementsAre(ElementsAre(zero, zero), ElementsAre(Value{Currency::FromInteger(7)}, zero)));
}

TEST_F(Activation, AFailureToAddANameColumnThatIsMissingIsAFault) {
  site_.Execute(kCompanionFile, "DROP TABLE 登録名");
  Database schedule = Database::Open(site_.Data(kScheduleFile));
  Database companion = Database::Open(site_.Data(kCompanionFile));
  EXPECT_THROW(AddNameWorkColumns(schedule, companion), Fault);
}

}  // namespace
}  // namespace rbt::test
