// SPDX-License-Identifier: MIT
#include "reports/floorpart/floorpart_texts.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

SelectionData Floors(std::int16_t start, std::int16_t end, std::int16_t specials = 0) {
  SelectionData selection;
  selection.KaiStart = start;
  selection.KaiEnd = end;
  selection.TokubetuMask = SpecialMask(specials);
  return selection;
}

TEST(ListedScope, IsTheRangeAndThenTheWordsOfTheSpecialFloors) {
  EXPECT_EQ(ListedScope(Floors(1, 8)), "【1階～8階】");
  EXPECT_EQ(ListedScope(Floors(1, 8, 1)), "【1階～8階】Ｒ階を含む。");
  EXPECT_EQ(ListedScope(Floors(-2, 8, 7)), "【-2階～8階】Ｒ階、Ｐ階、階なしを含む。");
  EXPECT_EQ(ListedScope(Floors(76, 76)), "【76階～76階】Ｒ階");
  EXPECT_EQ(ListedScope(Floors(78, 78, 7)), "【78階～78階】階なし");
}

TEST(RangeScope, NamesItsEndsAndTheRFloorAndPenthouseTaken) {
  EXPECT_EQ(RangeScope(Floors(1, 8)), "【1階～8階】");
  EXPECT_EQ(RangeScope(Floors(0, 3, 1)), "【0階～3階】(R階 を含む)");
  EXPECT_EQ(RangeScope(Floors(1, 8, 2)), "【1階～8階】(P階 を含む)");
  EXPECT_EQ(RangeScope(Floors(1, 8, 7)), "【1階～8階】(R階 P階 を含む)");
  EXPECT_EQ(RangeScope(Floors(1, 8, 4)), "【1階～8階】");
  EXPECT_EQ(RangeScope(Floors(76, 77, 7)), "【Ｒ階～ﾍﾟﾝﾄﾊｳｽ】");
  EXPECT_EQ(RangeScope(Floors(78, 78)), "【階なし～階なし】");
}

TEST(OneFloorScope, NamesTheFloor) {
  EXPECT_EQ(OneFloorScope(12), "【12階分】");
  EXPECT_EQ(OneFloorScope(0), "【0階分】");
  EXPECT_EQ(OneFloorScope(-2), "【-2階分】");
  EXPECT_EQ(OneFloorScope(76), "【Ｒ階分】");
  EXPECT_EQ(OneFloorScope(77), "【Ｐ階分】");
  EXPECT_EQ(OneFloorScope(78), "【階なし分】");
}

TEST(OnePartScope, NamesThePart) { EXPECT_EQ(OnePartScope("柱"), "［柱］分"); }

TEST(PrintedFloorName, IsAskedWith) {
  EXPECT_EQ(PrintedFloorName(3), "3階");
  EXPECT_EQ(PrintedFloorName(-1), "-1階");
  EXPECT_EQ(PrintedFloorName(76), "Ｒ階");
  EXPECT_EQ(PrintedFloorName(77), "ＰＨ階");
  EXPECT_EQ(PrintedFloorName(78), "階なし");
}

TEST(BlockFloorName, StandsBesideABlock) {
  EXPECT_EQ(BlockFloorName(12), "12Ｆ");
  EXPECT_EQ(BlockFloorName(0), "基礎");
  EXPECT_EQ(BlockFloorName(-2), "B2Ｆ");
  EXPECT_EQ(BlockFloorName(76), "Ｒ階");
  EXPECT_EQ(BlockFloorName(77), "Ｐ階");
  EXPECT_EQ(BlockFloorName(78), "階無");
}

TEST(HoldsThinBarsAlone, WhereNoOtherKindWasTallied) {
  SelectionData selection;
  EXPECT_FALSE(HoldsThinBarsAlone(selection));
  selection.UlbonOnly = true;
  EXPECT_TRUE(HoldsThinBarsAlone(selection));
  selection.UlbonOnly = false;
  selection.MaterialKindMask = KindMask();
  EXPECT_TRUE(HoldsThinBarsAlone(selection));
}

}  // namespace
}  // namespace rbt
