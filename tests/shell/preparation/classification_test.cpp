// SPDX-License-Identifier: MIT
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/materials.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/preparation/preparation.h"
#include "shell/preparation/random_schedule.h"
#include "shell/preparation/statements.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

using testing::Each;
using testing::ElementsAre;

/// A start mode in which only plain bars are straight.
constexpr std::int32_t kPlainMode = 4;

class Classification : public testing::Test {
 protected:
  void Classify(std::int32_t start_mode = kNoStartMode) {
    Database schedule = Database::Open(site_.Data(kScheduleFile));
    schedule.ExecuteTogether(ClassificationStatements(TraitsOfStartMode(start_mode)));
  }
  /// A bar by what its form depends on.
  void AddBar(const Value& shape, const Value& cut_mm, const Value& pieces_per_bar, const Value& kind = {}) {
    site_.AddRow(
        {{"太さ", 19}, {"形状No", shape}, {"伸切寸", cut_mm}, {"伸本定", pieces_per_bar}, {"予備2", kind}});
  }
  std::vector<std::string> Forms() const { return site_.Column("予備3"); }
  std::vector<std::string> Kinds() const { return site_.Column("予備2"); }

  SiteFixture site_;
};

TEST_F(Classification, TellsTheFourFormsApart) {
  AddBar(1, 6000, 1);  // straight, used whole
  AddBar(2, 6000, 1);  // bent, used whole
  AddBar(1, 6000, 2);  // straight, two out of a bar
  AddBar(1, 6100, 1);  // straight, no stock length
  AddBar(2, 6000, 2);
  AddBar(2, 6100, 1);
  Classify();
  EXPECT_THAT(Forms(), ElementsAre("1", "2", "3", "3", "4", "4"));
}

TEST_F(Classification, ABarWithAnchoredEndsIsStraightUnlessOnlyPlainBarsAre) {
  AddBar(138, 7000, 1);
  Classify(kNoStartMode);
  EXPECT_THAT(Forms(), ElementsAre("1"));
  Classify(kPlainMode);
  EXPECT_THAT(Forms(), ElementsAre("2"));
}

TEST_F(Classification, OnlyStartModes1And3And4CountPlainBarsAlone) {
  AddBar(140, 7000, 1);
  for (const std::int32_t mode : {-1, 0, 2, 5}) {
    Classify(mode);
    EXPECT_THAT(Forms(), ElementsAre("1")) << mode;
  }
  for (const std::int32_t mode : {1, 3, 4}) {
    Classify(mode);
    EXPECT_THAT(Forms(), ElementsAre("2")) << mode;
  }
}

TEST_F(Classification, ABarWithAnchoredEndsThatIsCutFromAStockLengthEndsAsCutAndBent) {
  for (const int shape : {138, 139, 140, 143}) AddBar(shape, 7000, 2);
  Classify();
  EXPECT_THAT(Forms(), Each("4"));
}

TEST_F(Classification, ABarWithAnchoredEndsOfNoStockLengthIsCut) {
  for (const int shape : {138, 139, 140, 143}) AddBar(shape, 7100, 2);
  Classify(kNoStartMode);
  EXPECT_THAT(Forms(), Each("3"));
  Classify(kPlainMode);
  EXPECT_THAT(Forms(), Each("4"));
}

TEST_F(Classification, ARowThatLacksANeededColumnValueStaysUnclassified) {
  AddBar({}, 7000, 1);
  AddBar(1, {}, 1);
  AddBar(1, 7000, {});
  AddBar(2, 7000, {});
  for (const std::int32_t mode : {kNoStartMode, kPlainMode}) {
    Classify(mode);
    EXPECT_THAT(Forms(), Each("0"));
  }
}

TEST_F(Classification, OfNoStockLengthThePiecesPerBarDoNotMatter) {
  AddBar(1, 7100, {});
  AddBar(2, 7100, {});
  Classify();
  EXPECT_THAT(Forms(), ElementsAre("3", "4"));
}

TEST_F(Classification, AThreadedShapeAbove200EndsAsBent) {
  AddBar(205, 7000, 1, 4);  // used whole
  AddBar(205, 7100, 1, 4);  // first 3, then 4: the last statement does not know the exception
  AddBar(205, 7000, 2, 4);
  Classify();
  EXPECT_THAT(Forms(), ElementsAre("2", "4", "4"));
}

TEST_F(Classification, AnOldFormDoesNotStay) {
  site_.AddRow({{"太さ", 19}, {"予備3", 4}});
  Classify();
  EXPECT_THAT(Forms(), ElementsAre("0"));
}

TEST_F(Classification, JoinsTheDimensionsEachFollowedByAComma) {
  site_.AddRow({{"寸法1", "100"}, {"寸法2", "2000"}, {"寸法10", "R5"}});
  site_.AddRow({});
  Classify();
  EXPECT_THAT(site_.Column("予備5"), ElementsAre("100,2000,,,,,,,,R5,", ",,,,,,,,,,"));
}

TEST_F(Classification, AnUnmarkedThreadedRowEndsAsThreaded) {
  for (const int shape : {138, 143, 162, 166, 177}) AddBar(shape, 7000, 1, {});
  AddBar(163, 7000, 1, 0);
  AddBar(177, 7000, 1, 1);
  Classify();
  EXPECT_THAT(Kinds(), Each("4"));
}

TEST_F(Classification, AShapeBesideTheThreadedOnesIsNotThreaded) {
  for (const int shape : {137, 144, 161, 164, 165, 178}) AddBar(shape, 7000, 1, {});
  Classify();
  EXPECT_THAT(Kinds(), Each("1"));
}

TEST_F(Classification, AThinBarOfAThreadedShapeEndsAsUlbon) {
  for (const int diameter : {6, 7, 9, 11, 12}) site_.AddRow({{"太さ", diameter}, {"形状No", 139}});
  Classify();
  EXPECT_THAT(Kinds(), Each("2"));
}

TEST_F(Classification, NullAndZeroKindsBecomeDeformedAndOthersStay) {
  for (const Value& kind : {Value{}, Value{std::int64_t{0}}, Value{std::int64_t{1}}, Value{std::int64_t{3}},
                            Value{std::int64_t{5}}}) {
    AddBar(1, 7000, 1, kind);
  }
  Classify();
  EXPECT_THAT(Kinds(), ElementsAre("1", "1", "1", "3", "5"));
}

TEST_F(Classification, UlbonOf16AndOfAnyOtherDiameterKeepsItsKindAtLoad) {
  for (const int diameter : {16, 19}) site_.AddRow({{"太さ", diameter}, {"形状No", 1}, {"予備2", 2}});
  site_.AddRow({{"太さ", 16}, {"形状No", 1}, {"予備2", 1}});
  Classify();
  EXPECT_THAT(Kinds(), ElementsAre("2", "2", "1"));
}

TEST_F(Classification, WeldsWithoutADiameterTakeThatOfTheBar) {
  site_.AddRow({{"太さ", 19}, {"圧接", 4}, {"圧接太さ", 0}});
  site_.AddRow({{"太さ", 19}, {"圧接", 4}, {"圧接太さ", 25}});
  site_.AddRow({{"太さ", 19}, {"圧接", 4}});
  site_.AddRow({{"太さ", 19}, {"圧接", 0}, {"圧接太さ", 0}});
  site_.AddRow({{"圧接", 4}, {"圧接太さ", 0}});
  Classify();
  EXPECT_THAT(site_.Column("圧接太さ"), ElementsAre("19", "25", "null", "0", "0"));
}

TEST_F(Classification, GivesEveryRowWhatTheStatementsInTurnGiveIt) {
  for (const std::int32_t mode : {kNoStartMode, 1, 2, 3, 4}) {
    SiteFixture site;
    site.AddRows(RandomSchedule(static_cast<unsigned>(mode + 17)).Rows(600));
    std::filesystem::copy_file(site.Data(kScheduleFile), site.Data("GENBA002.MDB"));
    Database together = Database::Open(site.Data(kScheduleFile));
    Database in_turn = Database::Open(site.Data("GENBA002.MDB"));
    // Twice: the second start reads the kinds that the first one wrote.
    for (int start = 1; start <= 2; ++start) {
      together.ExecuteTogether(ClassificationStatements(TraitsOfStartMode(mode)));
      Transaction transaction(in_turn);
      for (const std::string& statement : ClassificationStatements(TraitsOfStartMode(mode)))
        in_turn.Execute(statement);
      transaction.Commit();
      const char* const all = "SELECT * FROM 加工テーブル";
      EXPECT_EQ(site.Rows(kScheduleFile, all), site.Rows("GENBA002.MDB", all)) << mode << " start " << start;
    }
  }
}

TEST_F(Classification, ASecondStartLeavesTheFileUntouched) {
  site_.AddRows(RandomSchedule(3).Rows(200));
  // The forms of the first start are told before its kinds are: the second settles the rest.
  Classify();
  Classify();
  const auto written_at = std::filesystem::last_write_time(site_.Data(kScheduleFile));
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  Classify();
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(site_.Data(kScheduleFile)), written_at);
}

TEST_F(Classification, AFailureLeavesEveryRowAsItWas) {
  site_.LeaveOutColumns({"圧接太さ"});
  site_.AddRow({{"太さ", 19}, {"形状No", 1}, {"伸切寸", 6000}, {"伸本定", 1}});
  EXPECT_THROW(Classify(), Fault);
  EXPECT_THAT(Forms(), ElementsAre("null"));
  EXPECT_THAT(Kinds(), ElementsAre("null"));
}

TEST_F(Classification, AnEmptyScheduleIsClassifiedWithoutAWord) { EXPECT_NO_THROW(Classify()); }

TEST(ClassificationStatements, RunTheFormBeforeTheKind) {
  for (const std::int32_t mode : {kNoStartMode, kPlainMode}) {
    const std::vector<std::string> statements = ClassificationStatements(TraitsOfStartMode(mode));
    ASSERT_EQ(statements.size(), 13U);
    for (std::size_t i = 0; i <= 6; ++i) EXPECT_NE(statements[i].find("SET 予備3 = "), std::string::npos);
    EXPECT_NE(statements[7].find("SET 予備5 = "), std::string::npos);
    for (std::size_t i = 8; i <= 11; ++i) EXPECT_NE(statements[i].find("SET 予備2="), std::string::npos);
    EXPECT_NE(statements[12].find("SET 圧接太さ="), std::string::npos);
  }
}

TEST(ClassificationStatements, NameTheStockLengths) {
  const std::string list = fmt::format("IN({})", fmt::join(kStockCutLengths, ","));
  EXPECT_EQ(kStockLengths, list);
  EXPECT_EQ(kNotStockLengths, "NOT " + list);
}

}  // namespace
}  // namespace rbt::test
