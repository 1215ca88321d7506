// SPDX-License-Identifier: MIT
#include "reports/detail/detail_layout.h"

#include <string>

#include <gtest/gtest.h>

#include "reports/detail/detail_sheets.h"

namespace rbt {
namespace {

/// Where a column's numbers end.
float EndOf(const TableCell& cell) {
  return cell.x + static_cast<float>(cell.number.characters) * kCellPitch;
}

TEST(DetailLayout, RepeatsFillThePaperFrom500) {
  EXPECT_EQ(kMeisaiA4Y.band.Left(0), 500);
  EXPECT_EQ(kMeisaiA4Y.band.Left(7), 15830);
  EXPECT_EQ(kMeisaiA4YCount.band.Left(8), 15780);
  EXPECT_EQ(kMeisaiA4T.band.Left(3), 10850);
  EXPECT_EQ(kMeisaiA4TCount.band.Left(3), 10850);
}

TEST(DetailLayout, NumbersStandBetweenTheRulesOfTheirColumn) {
  for (const test::FormOnPaper& each : test::DetailForms()) {
    for (const DetailBlock& block : each.form->blocks) {
      for (const auto& column : block.columns.subspan(1)) {
        EXPECT_GE(column.cell.x, column.box.x) << each.name;
        EXPECT_LT(EndOf(column.cell), column.box.Right()) << each.name;
      }
      // Ten characters of a sum, a diameter of 10,000 t, run through no rule.
      EXPECT_GE(EndOf(block.sum) - 10 * kCellPitch, block.columns[1].box.x) << each.name;
      EXPECT_EQ(EndOf(block.sum), EndOf(block.fitting)) << each.name;
      EXPECT_EQ(block.sum.number.characters, 11U) << each.name;
      EXPECT_EQ(block.fitting.number.characters, 7U) << each.name;
    }
  }
}

TEST(DetailLayout, BarsHaveSevenCharactersAndWeightsNine) {
  for (const test::FormOnPaper& each : test::DetailForms()) {
    for (const DetailBlock& block : each.form->blocks) {
      EXPECT_EQ(block.columns[1].shows, DetailColumn::bars) << each.name;
      EXPECT_EQ(block.columns[1].cell.number.characters, 7U) << each.name;
      EXPECT_EQ(block.columns[1].cell.number.mask, "#,###") << each.name;
      if (block.columns.size() < 3) continue;
      EXPECT_EQ(block.columns[2].shows, DetailColumn::weight) << each.name;
      EXPECT_EQ(block.columns[2].cell.number.characters, 9U) << each.name;
    }
  }
}

TEST(DetailLayout, OnA4PortraitBarsEndLeftOf1725AndWeightsStartRightOf2225) {
  EXPECT_LT(EndOf(kBlocksA4T[0].columns[1].cell), 1725);
  EXPECT_GT(kBlocksA4T[0].columns[2].cell.x, 2225);
}

TEST(DetailLayout, ColumnsOfDiametersStandSideBySide) {
  for (const test::FormOnPaper& each : test::DetailForms()) {
    float right = 0;
    for (const DetailBlock& block : each.form->blocks) {
      for (const auto& column : block.columns) {
        EXPECT_GE(column.box.x, right) << each.name;
        right = column.box.Right();
      }
    }
    EXPECT_EQ(right, each.form->band.period) << each.name;
  }
}

}  // namespace
}  // namespace rbt
