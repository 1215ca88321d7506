// SPDX-License-Identifier: MIT
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tally/floorpart/floor_list.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/hand_correction.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_tally.h"
#include "tally/rows/bar_row_samples.h"
#include "tally/views/floorpart_grid.h"
#include "tally/views/floorpart_json.h"
#include "tally/views/result_views.h"

namespace rbt {
namespace {

using test::D19Row;
using testing::ElementsAre;
using testing::HasSubstr;

const PartNames kNames = {"基礎", "柱", "大梁", "小梁", "壁", "スラブ", "地中梁", "階段", "土間", "雑"};

/// 100 tonnes of D19 in part 2 of the first basement, 27 kg without a part on floor 1.
FloorTables Floors() {
  BarRow heavy = D19Row();
  heavy.part = 2;
  heavy.stock_bars = 7408;
  BarRow other = D19Row();
  other.part = 0;
  FloorTables tables;
  FoldFloorRow(tables, heavy, -1, {});
  FoldFloorRow(tables, other, 1, {});
  CloseFloorTally(tables, {});
  ListFloors(tables, {-1, 1});
  return tables;
}

PartTables Parts(bool thin_rows) {
  PartTables tables;
  FoldPartRow(tables, D19Row(), {});
  ClosePartTally(tables, {});
  ListParts(tables, thin_rows);
  return tables;
}

TEST(FloorGrid, ShowsPartsOthersAndTotalInThirteenColumns) {
  EXPECT_THAT(FloorCaptions(kNames), ElementsAre("　階　", "基礎", "柱", "大梁", "小梁", "壁", "スラブ",
                                                 "地中梁", "階段", "土間", "雑", "その他", "合計"));
  EXPECT_THAT(
      ShowFloors(Floors()),
      ElementsAre(
          ElementsAre("1Ｂ階", "0", "100,008", "0", "0", "0", "0", "0", "0", "0", "0", "0", "100,008"),
          ElementsAre("1階", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "27", "27"),
          ElementsAre("合　計", "0", "100,008", "0", "0", "0", "0", "0", "0", "0", "0", "27", "100,035")));
}

TEST(FloorGrid, ShowsAHandCorrection) {
  FloorTables tables = Floors();
  CorrectCell(tables, 1, 1, Currency::FromInteger(1234567));
  const GridRows rows = ShowFloors(tables);
  EXPECT_EQ(rows[1][1], "1,234,567");
  EXPECT_EQ(rows[1][12], "1,234,594");
  EXPECT_EQ(rows[2][1], "1,234,567");
  EXPECT_EQ(rows[2][12], "1,334,602");
}

TEST(PartGrid, ShowsADiameterARowAndTheTotal) {
  EXPECT_THAT(PartCaptions(kNames), ElementsAre("太さ", "基礎", "柱", "大梁", "小梁", "壁", "スラブ",
                                                "地中梁", "階段", "土間", "雑", "その他", "合計"));
  const GridRows rows = ShowParts(Parts(false));
  ASSERT_EQ(rows.size(), 13U);
  EXPECT_THAT(rows[3], ElementsAre("D19", "27", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "27"));
  EXPECT_THAT(rows[12], ElementsAre("合計", "27", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "27"));
}

TEST(PartGrid, ShowsTheGapBehindTheThinRows) {
  const GridRows rows = ShowParts(Parts(true));
  ASSERT_EQ(rows.size(), 20U);
  EXPECT_EQ(rows[0][0], "U 6");
  EXPECT_THAT(rows[6], ElementsAre("   ", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"));
}

TEST(ResultViews, ShowEachResultAsItsFamilyIsShown) {
  const ResultView view{.part_names = kNames};
  const TallyResult floors{.kind = TallyKind::floor, .tables = Floors()};
  EXPECT_EQ(ResultRows(floors, view), ShowFloors(Floors()));
  EXPECT_EQ(ResultCaptions(floors, view), FloorCaptions(kNames));
  EXPECT_EQ(ResultJson(floors), FloorJson(Floors()));
  const TallyResult parts{.kind = TallyKind::part, .tables = Parts(true)};
  EXPECT_EQ(ResultRows(parts, view), ShowParts(Parts(true)));
  EXPECT_EQ(ResultCaptions(parts, view), PartCaptions(kNames));
  EXPECT_EQ(ResultJson(parts), PartJson(Parts(true)));
  EXPECT_EQ(ResultCaptions(TallyResult(), view).size(), kResultCaptions.size());
}

TEST(FloorJson, ListsEntriesOtherThan0ByTheirIndices) {
  FloorTables tables = Floors();
  tables.Assetu.KaiBui[2][4][5] = 9;
  tables.Setsudan.KaiSou[83] = 7;
  tables.TaisaTorituke[17] = Currency::FromDouble(2.25);
  tables.HoopAri = true;
  const std::string json = FloorJson(tables);
  for (const char* line : {
           "\"kind\": \"floor\",\n",
           "\"KaiBuiHonsu\": [[2, 4, 3, 5, 7408], [11, 6, 3, 5, 2]],\n",
           "\"KaiHonsu\": [[4, 3, 5, 7408], [6, 3, 5, 2]],\n",
           "\"SouHonsu\": [[3, 5, 7410]],\n",
           "\"KaiBuiJyuuryo\": [[4, 2, 3, 5, 100008], [6, 11, 3, 5, 27]],\n",
           "\"KaiBuiTeiJyuuryo\": [[4, 2, 3, 5, 100008], [6, 11, 3, 5, 27]],\n",
           "\"KaiBuiGoukei\": [[4, 2, 100008], [6, 11, 27]],\n",
           "\"KaiGoukei\": [[4, 100008], [6, 27]],\n",
           "\"BuiGoukei\": [[2, 100008], [11, 27]],\n",
           "\"KaiTaisaGoukei\": [[4, 3, 100008], [6, 3, 27]],\n",
           "\"TaisaTeiGoukei\": [[3, 5, 100035]],\n",
           "\"TaisaGoukei\": [[3, 100035]],\n",
           "\"SouGoukei\": 100035,\n",
           "\"SouTeiGoukei\": 100035,\n",
           "\"KaiBuiTorituke\": [],\n",
           "\"TaisaTorituke\": [[17, 2.25]],\n",
           "\"SouTorituke\": 0,\n",
           "\"AssetuTaisa\": [],\n",
           "\"AssetuKaiBui\": [[2, 4, 5, 9]],\n",
           "\"SetsudanKaiSou\": [[83, 7]],\n",
           "\"KaiGyouSuu\": 3,\n",
           R"("KaiGyou": [["1Ｂ階", 0, 100008, 0, 0, 0, 0, 0, 0, 0, 0, 0, 100008], )",
           R"(100008], ["1階", 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 27, 27], )",
           R"(27], ["合　計", 0, 100008, 0, 0, 0, 0, 0, 0, 0, 0, 27, 100035]],)",
           "\"KaiGyouKai\": [-1, 1, 0],\n",
           "\"HoopAri\": true,\n",
           "\"TeiAri\": false\n}\n",
       }) {
    EXPECT_THAT(json, HasSubstr(line));
  }
}

TEST(FloorJson, NamesEveryTableOfEveryFitting) {
  const std::string json = FloorJson(FloorTables());
  for (const char* fitting : {"Assetu", "Neji", "Teichaku", "Setsudan"}) {
    for (const char* table : {"Taisa", "Kai", "KaiBui", "KaiSou"}) {
      EXPECT_THAT(json, HasSubstr("\"" + std::string(fitting) + table + "\": []"));
    }
  }
}

TEST(PartJson, ListsEntriesOtherThan0ByTheirIndices) {
  PartTables tables = Parts(false);
  tables.Neji.Bui[1][3] = 9;
  tables.Teichaku.Taisa[4] = 7;
  tables.TeiAri = true;
  const std::string json = PartJson(tables);
  for (const char* line : {
           "\"kind\": \"part\",\n",
           "\"BuiHonsu\": [[1, 3, 5, 2]],\n",
           "\"TaisaHonsu\": [[3, 5, 2]],\n",
           "\"BuiJyuuryo\": [[1, 3, 5, 27]],\n",
           "\"BuiTaisaGoukei\": [[3, 1, 27]],\n",
           "\"BuiGoukei\": [[1, 27]],\n",
           "\"TaisaGoukei\": [[3, 27]],\n",
           "\"SouGoukei\": 27,\n",
           "\"AssetuBui\": [],\n",
           "\"NejiBui\": [[1, 3, 9]],\n",
           "\"TeichakuTaisa\": [[4, 7]],\n",
           "\"SetsudanTaisa\": [],\n",
           "\"BuiGyou\": [[\"D10\", 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0], ",
           "[\"合計\", 27, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 27]],\n",
           "\"HoopAri\": false,\n",
           "\"TeiAri\": true\n}\n",
       }) {
    EXPECT_THAT(json, HasSubstr(line));
  }
}

}  // namespace
}  // namespace rbt
