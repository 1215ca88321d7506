// SPDX-License-Identifier: MIT
#include "tally/spirals.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/kilograms.h"

namespace rbt {
namespace {

using test::Kg;

const std::vector<SpiralRow> kAllMaterials = {
    {1, 10, Kg(10.4)}, {1, 13, Kg(10.2)}, {2, 6, Kg(5.25)}, {2, 9, Kg(5.25)}, {3, 13, Kg(7.5)}};

TallyTable WithSpirals(const std::vector<SpiralRow>& rows, const SelectionData& selection) {
  TallyTable table;
  table.SpiralKinds = SpiralMask(9);
  table.SpiralTotal = Kg(9);
  table.SpiralWeight[0] = Kg(9);
  table.SpiralUlbonByDia[0] = Kg(9);
  FoldSpirals(table, rows, selection);
  return table;
}

TEST(FoldSpirals, SumEachMaterialThenRoundToWholeKilograms) {
  const TallyTable table = WithSpirals(kAllMaterials, {});
  EXPECT_EQ(table.SpiralWeight[0], Kg(21));  // 20.6
  EXPECT_EQ(table.SpiralWeight[1], Kg(11));  // 10.5
  EXPECT_EQ(table.SpiralWeight[2], Kg(8));   // 7.5
  EXPECT_EQ(table.SpiralKinds, SpiralMask(7));
  EXPECT_EQ(table.SpiralTotal, Kg(40));
}

TEST(FoldSpirals, KeepUlbonUnroundedByDiameter) {
  const TallyTable table = WithSpirals(kAllMaterials, {});
  EXPECT_EQ(table.SpiralUlbonByDia[12], Kg(5.25));
  EXPECT_EQ(table.SpiralUlbonByDia[14], Kg(5.25));
  EXPECT_EQ(table.SpiralUlbonByDia[0], Kg(0));
}

TEST(FoldSpirals, FollowTheKindsOfTheSelection) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(4);
  selection.IncludeUlbon = false;
  TallyTable table = WithSpirals(kAllMaterials, selection);
  EXPECT_EQ(table.SpiralKinds, SpiralMask(4));
  EXPECT_EQ(table.SpiralTotal, Kg(8));
  EXPECT_EQ(table.SpiralUlbonByDia[12], Kg(0));
  selection.MaterialKindMask = KindMask(9);
  table = WithSpirals(kAllMaterials, selection);
  EXPECT_EQ(table.SpiralKinds, SpiralMask(1));
  EXPECT_EQ(table.SpiralTotal, Kg(21));
}

TEST(FoldSpirals, CountOnlyMaterialsWithWeight) {
  const TallyTable table = WithSpirals({{1, 10, Kg(0.4)}, {3, 10, Kg(-2)}, {9, 10, Kg(5)}}, {});
  EXPECT_EQ(table.SpiralKinds, SpiralMask(0));
  EXPECT_EQ(table.SpiralTotal, Kg(0));
}

TEST(FoldSpirals, LeaveEverythingAt0WhenHoopsOrPlatesAloneAreTallied) {
  SelectionData hoops;
  hoops.HoopMode = ShapeFilter::alone;
  EXPECT_EQ(WithSpirals(kAllMaterials, hoops), TallyTable());
  SelectionData plates;
  plates.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_EQ(WithSpirals(kAllMaterials, plates), TallyTable());
  SelectionData without;
  without.HoopMode = ShapeFilter::left_out;
  without.AnchorPlateMode = ShapeFilter::left_out;
  EXPECT_EQ(WithSpirals(kAllMaterials, without).SpiralTotal, Kg(40));
}

TEST(FoldSpirals, FaultAtAnUlbonSpiralOfNoUlbonDiameter) {
  EXPECT_THROW(WithSpirals({{2, 10, Kg(1)}}, {}), Fault);
  EXPECT_THROW(WithSpirals({{2, std::nullopt, Kg(1)}}, {}), Fault);
  SelectionData no_ulbon;
  no_ulbon.IncludeUlbon = false;
  EXPECT_EQ(WithSpirals({{2, 10, Kg(1)}}, no_ulbon), TallyTable());
}

}  // namespace
}  // namespace rbt
