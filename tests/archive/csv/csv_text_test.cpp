// SPDX-License-Identifier: MIT
#include "archive/csv/csv_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/csv/csv_samples.h"
#include "tally/floorpart/hand_correction.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string TextOfNames(const std::vector<RegisteredName>& names) {
  return CsvText(CsvOfNames{names}, SampleCsvSite(), FloorCsvLayout::total);
}

}  // namespace

TEST(CsvText, ListsTheRegisteredNamesInTheirOrder) {
  const std::string text = TextOfNames(SampleNames().names);
  EXPECT_EQ(text,
            "\"工事No\",7,\"工事名\",\"見本\"\"町\"\"住宅\",\"取引先\",\"見本建設\",\"総重量\",114\r\n"
            "\"No\",\"登録名\",\"定尺重量\",\"取付重量\"\r\n"
            ",\"無番\",1,0\r\n"
            "2,\"基礎\"\"Ａ\"\"\",100,99\r\n"
            "1,\"\",13,12\r\n");
}

TEST(CsvText, AListWithoutNamesHasItsHeadAlone) {
  EXPECT_THAT(ReadCsv(TextOfNames({})), ElementsAre(ElementsAre("工事No", "7", "工事名", "見本\"町\"住宅",
                                                                "取引先", "見本建設", "総重量", "0"),
                                                    ElementsAre("No", "登録名", "定尺重量", "取付重量")));
}

TEST(CsvText, AWeightOfTwelveAndAHalfIsThirteen) {
  const auto records = ReadCsv(CsvText(SampleGrid(TallyKind::bulk), SampleCsvSite(true), {}));
  ASSERT_EQ(records.size(), 32U);
  EXPECT_THAT(records[22][0], "13.0 m");
  EXPECT_EQ(records[22][7] + " " + records[22][8], "3 13");
}

TEST(CsvText, AWeightBelowZeroLosesItsFractionAfterTheHalfIsAdded) {
  const auto written = [](double kilograms) {
    return ReadCsv(TextOfNames({{1, "戻り", false, Currency::FromDouble(kilograms), Currency()}}))[2][2];
  };
  EXPECT_EQ(written(-12.5), "-12");
  EXPECT_EQ(written(-12.6), "-12");
  EXPECT_EQ(written(-13.5), "-13");
  EXPECT_EQ(written(-0.4), "0");
}

TEST(CsvText, AMemoKeepsItsLineBreakInsideItsQuotes) {
  CsvOfTally tally = SampleGrid(TallyKind::bulk);
  tally.memos = {"一行\r\n二行", "a\nb", ""};
  const std::string text = CsvText(tally, SampleCsvSite(), {});
  EXPECT_THAT(
      text, testing::EndsWith("\r\n\"メモ1\",\"一行\r\n二行\"\r\n\"メモ2\",\"a\nb\"\r\n\"メモ3\",\"\"\r\n"));
  EXPECT_THAT(ReadCsv(text).at(28), ElementsAre("メモ1", "一行\r\n二行"));
}

TEST(CsvText, PartsWithThinBarsBeginWithTheirDiametersAndHaveNoGap) {
  CsvOfTally tally = SampleParts();
  PartTables& tables = std::get<PartTables>(tally.result.tables);
  RowShare thin = TenBarsOf(13, 1);
  thin.installed_kilograms = 7.6;
  AddShare(tables, thin, CellWeight::stock);
  ClosePartTally(tables, {});
  ListParts(tables, true);
  const auto records = ReadCsv(CsvText(tally, SampleCsvSite(), {}));
  std::string labels;
  for (const auto& record : records) labels += record.at(0) + "|";
  EXPECT_EQ(labels,
            "工事No|太さ|U 6|U 7|U 9|U11|U12|U16|D10|D13|D16|D19|D22|D25|D29|D32|D35|D38|D41|D51|合計|");
  EXPECT_THAT(records.at(3), ElementsAre("U 7", "8", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "8",
                                         "0", "0", "0", "0"));
}

TEST(CsvText, AskedForItsLayoutIsAFloorTallyAlone) {
  EXPECT_TRUE(HasFloorLayouts(SampleFloors()));
  EXPECT_FALSE(HasFloorLayouts(SampleParts()));
  EXPECT_FALSE(HasFloorLayouts(SampleGrid(TallyKind::bulk)));
  EXPECT_FALSE(HasFloorLayouts(CsvOfNames()));
}

TEST(CsvText, NamesSpecialFloorsAndTheFoundationInBlocks) {
  CsvOfTally tally = SampleFloors();
  ListFloors(std::get<FloorTables>(tally.result.tables),
             {kFoundationFloor, kRoofFloor, kPenthouseFloor, kNoFloor});
  std::string heads;
  for (const auto& record : ReadCsv(CsvText(tally, SampleCsvSite(), FloorCsvLayout::parts))) {
    if (!record.empty() && !record[0].empty()) heads += record[0] + "|";
  }
  EXPECT_EQ(heads, "基礎階|Ｒ階|ＰＨ階|階なし|合計|");
}

TEST(CsvText, AWeightCorrectedByHandIsWritten) {
  CsvOfTally floors = SampleFloors();
  CorrectCell(std::get<FloorTables>(floors.result.tables), 0, 1, Currency::FromInteger(1135));
  const std::string total = CsvText(floors, SampleCsvSite(), FloorCsvLayout::total);
  EXPECT_THAT(total, HasSubstr("\"総重量\",1434\r\n"));
  EXPECT_THAT(total, HasSubstr("\"2Ｂ階\",1135,0,0,0,0,0,0,0,0,0,0,1135,4,0,0,0\r\n"));
  EXPECT_THAT(total, HasSubstr("\"合計\",1135,60,0,0,0,0,0,0,0,0,239,1434,4,3,2,5\r\n"));
  EXPECT_THAT(CsvText(floors, SampleCsvSite(), FloorCsvLayout::parts),
              HasSubstr("\"\",\"柱\",0,0,0,135,0,0,0,0,0,0,0,0,1135\r\n"));
  CsvOfTally parts = SampleParts();
  CorrectCell(std::get<PartTables>(parts.result.tables), 3, 1, Currency::FromInteger(1135));
  EXPECT_THAT(CsvText(parts, SampleCsvSite(), {}),
              HasSubstr("\"D19\",1135,0,0,0,0,0,0,0,0,0,0,1135,4,0,0,0\r\n"));
}

TEST(CsvText, AnEmptyFloorTallyHasItsTotalsAlone) {
  CsvOfTally tally;
  tally.result.kind = TallyKind::floor;
  tally.result.tables = FloorTables();
  EXPECT_EQ(ReadCsv(CsvText(tally, SampleCsvSite(), FloorCsvLayout::total)).size(), 3U);
  EXPECT_EQ(ReadCsv(CsvText(tally, SampleCsvSite(), FloorCsvLayout::parts)).size(), 14U);
}

}  // namespace rbt::test
