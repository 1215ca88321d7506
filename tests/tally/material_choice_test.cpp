// SPDX-License-Identifier: MIT
#include "tally/material_choice.h"

#include <gtest/gtest.h>

namespace rbt::test {

// 異形 1, ネジ 2, 高強度 4, スリット 8; 生材 1, 生材加工 2, 切断 4, 切断加工 8.
static_assert(TicksOfMask(1) == MaskTicks{true, false, false, false});
static_assert(TicksOfMask(6) == MaskTicks{false, true, true, false});
static_assert(TicksOfMask(8) == MaskTicks{false, false, false, true});
static_assert(MaskOfTicks({true, false, true, true}) == 13);
static_assert(MaskOfTicks(kAllTicked) == 15);

TEST(MaskTicks, EveryMaskComesBackFromItsTicks) {
  for (std::int32_t mask = 0; mask <= 15; ++mask) EXPECT_EQ(MaskOfTicks(TicksOfMask(mask)), mask);
}

TEST(MaterialChoice, KindsTakeTheUlbonLinesWithThemAndSetTheFormsBackToAll) {
  SelectionData selection;
  selection.MaterialFormMask = 4;
  EXPECT_TRUE(TakeKinds(selection, {true, true, false, false}, false));
  EXPECT_EQ(selection.MaterialKindMask, 3);
  EXPECT_EQ(selection.MaterialFormMask, 15);
  EXPECT_EQ(selection.IncludeUlbon, 0);
}

TEST(MaterialChoice, WithoutAKindTheMaskIsZeroAndUlbonStaysAsItWas) {
  SelectionData selection;
  selection.MaterialFormMask = 4;
  EXPECT_FALSE(TakeKinds(selection, {}, false));
  EXPECT_EQ(selection.MaterialKindMask, 0);
  EXPECT_EQ(selection.MaterialFormMask, 15) << "set back on the way to the message";
  EXPECT_EQ(selection.IncludeUlbon, 1);
}

TEST(MaterialChoice, UlbonAloneInFloorsAndPartsLeavesNoKindBesideIt) {
  SelectionData selection;
  selection.MaterialFormMask = 4;
  TakeUlbonAlone(selection);
  EXPECT_EQ(selection.UlbonOnly, 1);
  EXPECT_EQ(selection.MaterialKindMask, 0);
  EXPECT_EQ(selection.MaterialFormMask, 4);
  EXPECT_EQ(selection.IncludeUlbon, 1);
}

TEST(MaterialChoice, KindsInFloorsAndPartsEndUlbonAlone) {
  SelectionData selection;
  selection.UlbonOnly = 1;
  selection.MaterialFormMask = 4;
  EXPECT_TRUE(TakeKindsWithoutUlbon(selection, {false, false, false, true}));
  EXPECT_EQ(selection.UlbonOnly, 0);
  EXPECT_EQ(selection.MaterialKindMask, 8);
  EXPECT_EQ(selection.MaterialFormMask, 15);
  EXPECT_EQ(selection.IncludeUlbon, 1) << "belongs to the other screens";
  EXPECT_FALSE(TakeKindsWithoutUlbon(selection, {}));
  EXPECT_EQ(selection.MaterialKindMask, 0);
}

TEST(MaterialChoice, FormsLeaveTheKindsAlone) {
  SelectionData selection;
  selection.MaterialKindMask = 2;
  EXPECT_TRUE(TakeForms(selection, {true, false, false, true}));
  EXPECT_EQ(selection.MaterialFormMask, 9);
  EXPECT_EQ(selection.MaterialKindMask, 2);
  EXPECT_FALSE(TakeForms(selection, {}));
  EXPECT_EQ(selection.MaterialFormMask, 0);
}

}  // namespace rbt::test
