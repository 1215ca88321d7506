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
  const std::string text =
      TextOfNames({{std::nullopt, "無番", false, Currency::FromInteger(1), Currency()},
                   {2, "基礎\"Ａ\"", true, Currency::FromInteger(100), Currency::FromInteger(99)},
                   {1, "", false, Currency::FromDouble(12.5), Currency::FromDouble(12.4)}});
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
