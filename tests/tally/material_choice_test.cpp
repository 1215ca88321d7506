// SPDX-License-Identifier: MIT
#include "tally/material_choice.h"

#include <gtest/gtest.h>

namespace rbt::test {

// 異形 1, ネジ 2, 高強度 4, スリット 8; 生材 1, 生材加工 2, 切断 4, 切断加工 8.

TEST(MaterialChoice, KindsTakeTheUlbonLinesWithThemAndSetTheFormsBackToAll) {
  SelectionData selection;
  selection.MaterialFormMask = FormMask(4);
  EXPECT_TRUE(TakeKinds(selection, KindMask(3), false));
  EXPECT_EQ(selection.MaterialKindMask, KindMask(3));
  EXPECT_EQ(selection.MaterialFormMask, FormMask(15));
  EXPECT_FALSE(selection.IncludeUlbon);
}

TEST(MaterialChoice, WithoutAKindTheMaskIsZeroAndUlbonStaysAsItWas) {
  SelectionData selection;
  selection.MaterialFormMask = FormMask(4);
  EXPECT_FALSE(TakeKinds(selection, KindMask(), false));
  EXPECT_EQ(selection.MaterialKindMask, KindMask());
  EXPECT_EQ(selection.MaterialFormMask, FormMask(15)) << "set back on the way to the message";
  EXPECT_TRUE(selection.IncludeUlbon);
}

TEST(MaterialChoice, UlbonAloneInFloorsAndPartsLeavesNoKindBesideIt) {
  SelectionData selection;
  selection.MaterialFormMask = FormMask(4);
  TakeUlbonAlone(selection);
  EXPECT_TRUE(selection.UlbonOnly);
  EXPECT_EQ(selection.MaterialKindMask, KindMask());
  EXPECT_EQ(selection.MaterialFormMask, FormMask(4));
  EXPECT_TRUE(selection.IncludeUlbon);
}

TEST(MaterialChoice, KindsInFloorsAndPartsEndUlbonAlone) {
  SelectionData selection;
  selection.UlbonOnly = true;
  selection.MaterialFormMask = FormMask(4);
  EXPECT_TRUE(TakeKindsWithoutUlbon(selection, KindMask(8)));
  EXPECT_FALSE(selection.UlbonOnly);
  EXPECT_EQ(selection.MaterialKindMask, KindMask(8));
  EXPECT_EQ(selection.MaterialFormMask, FormMask(15));
  EXPECT_TRUE(selection.IncludeUlbon) << "belongs to the other screens";
  EXPECT_FALSE(TakeKindsWithoutUlbon(selection, KindMask()));
  EXPECT_EQ(selection.MaterialKindMask, KindMask());
}

TEST(MaterialChoice, FormsLeaveTheKindsAlone) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(2);
  EXPECT_TRUE(TakeForms(selection, FormMask(9)));
  EXPECT_EQ(selection.MaterialFormMask, FormMask(9));
  EXPECT_EQ(selection.MaterialKindMask, KindMask(2));
  EXPECT_FALSE(TakeForms(selection, FormMask()));
  EXPECT_EQ(selection.MaterialFormMask, FormMask());
}

}  // namespace rbt::test
