// SPDX-License-Identifier: MIT
#include "tally/detail/detail_grid.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "data/diameters.h"
#include "tally/detail/detail_samples.h"

namespace rbt {
namespace {

using namespace test;  // NOLINT: the samples' short names

constexpr DetailLayout kCounts{};
constexpr DetailLayout kCounts13m{.with_13m = true};
constexpr DetailLayout kWeights{.with_weights = true};
constexpr DetailLayout kWeights13m{.with_weights = true, .with_13m = true};

/// The two leading cells, then what stands under which caption: empty cells are left out.
std::string LineOf(const std::vector<std::string>& row, const std::vector<std::string_view>& captions) {
  EXPECT_EQ(row.size(), captions.size());
  std::string line = row[0] + "|" + row[1] + "|";
  for (std::size_t column = 2; column < row.size(); ++column) {
    if (!row[column].empty()) line.append(" ").append(captions[column]).append("=").append(row[column]);
  }
  return line + "\n";
}

std::string Shown(const TallyTable& table, const DetailLayout& layout) {
  const std::vector<std::string_view> captions = DetailCaptions(layout);
  std::string text;
  for (const std::string_view caption : captions) text.append(caption).append("|");
  text.back() = '\n';
  for (const auto& row : DetailRows(table, layout)) text += LineOf(row, captions);
  return text;
}

/// The sample with 1000 bars of D51 by 3.5 m (55.65 kg, to three figures 55.6: 55,600 kg) and 2 of D19
/// by 13.0 m (29.3 kg: 58.6 kg).
TallyTable Sample(bool with_13m) {
  TallyTable table = TalliedTable();
  PutTallied(table, 11, kAt3m5, 1000);
  PutTallied(table, 3, kAt13m, 2);
  for (int d = 0; d < kDeformedRows; ++d) {
    table.StockWeightByDia[d] = StockWeightOfCells(table, d, StockColumnsInUse(with_13m));
  }
  SumStockAndFittings(table);
  return table;
}

TEST(DetailGrid, HasALineOfCountsForEachDiameterAndTwoOfTotals) {
  EXPECT_EQ(Shown(Sample(false), kCounts),
            "鋼材|m|3.5|4.0|4.5|5.0|5.5|6.0|6.5|7.0|7.5|8.0|8.5|9.0|9.5|10.0|10.5|11.0|11.5|12.0|重 量|圧 "
            "接|ｶﾌﾟﾗ|Ｄ Ｂ|切 断\n"
            "D10|本数| 3.5=5 重 量=10\n"
            "D13|本数|\n"
            "D16|本数|\n"
            "D19|本数| 6.0=10 重 量=135 圧 接=4 Ｄ Ｂ=1 切 断=1,020\n"
            "D22|本数|\n"
            "D25|本数| 8.0=3 重 量=95 圧 接=12 ｶﾌﾟﾗ=2\n"
            "D29|本数|\n"
            "D32|本数|\n"
            "D35|本数|\n"
            "D38|本数|\n"
            "D41|本数|\n"
            "D51|本数| 3.5=1,000 重 量=55,600\n"
            "本数  || 3.5=1,005 4.0=0 4.5=0 5.0=0 5.5=0 6.0=10 6.5=0 7.0=0 7.5=0 8.0=3 8.5=0 9.0=0 9.5=0 "
            "10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 圧 接=16 ｶﾌﾟﾗ=2 Ｄ Ｂ=1 切 断=1,020\n"
            "重　量  || 3.5=55,610 4.0=0 4.5=0 5.0=0 5.5=0 6.0=135 6.5=0 7.0=0 7.5=0 8.0=95 8.5=0 9.0=0 "
            "9.5=0 10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 重 量=55,840 ㎏\n");
}

// Other numbers than 1 are as good as none.
TEST(DetailGrid, IsLaidOutAsTheSettingsHaveIt) {
  SettingsData settings;
  EXPECT_EQ(DetailLayoutOf(settings), kCounts);
  settings.Use13mColumn = 1;
  EXPECT_EQ(DetailLayoutOf(settings), kCounts13m);
  settings.DetailShowsWeight = 1;
  EXPECT_EQ(DetailLayoutOf(settings), kWeights13m);
  settings.Use13mColumn = 2;
  EXPECT_EQ(DetailLayoutOf(settings), kWeights);
  settings.DetailShowsWeight = 2;
  EXPECT_EQ(DetailLayoutOf(settings), kCounts);
  EXPECT_EQ(StockColumnsOf(kCounts), 18);
  EXPECT_EQ(StockColumnsOf(kWeights13m), 19);
}

TEST(DetailGrid, The13MetreColumnStandsBehind12Metres) {
  EXPECT_EQ(Shown(Sample(true), kCounts13m),
            "鋼材|m|3.5|4.0|4.5|5.0|5.5|6.0|6.5|7.0|7.5|8.0|8.5|9.0|9.5|10.0|10.5|11.0|11.5|12.0|13.0|重 "
            "量|圧 接|ｶﾌﾟﾗ|Ｄ Ｂ|切 断\n"
            "D10|本数| 3.5=5 重 量=10\n"
            "D13|本数|\n"
            "D16|本数|\n"
            "D19|本数| 6.0=10 13.0=2 重 量=193 圧 接=4 Ｄ Ｂ=1 切 断=1,020\n"
            "D22|本数|\n"
            "D25|本数| 8.0=3 重 量=95 圧 接=12 ｶﾌﾟﾗ=2\n"
            "D29|本数|\n"
            "D32|本数|\n"
            "D35|本数|\n"
            "D38|本数|\n"
            "D41|本数|\n"
            "D51|本数| 3.5=1,000 重 量=55,600\n"
            "本数  || 3.5=1,005 4.0=0 4.5=0 5.0=0 5.5=0 6.0=10 6.5=0 7.0=0 7.5=0 8.0=3 8.5=0 9.0=0 9.5=0 "
            "10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 13.0=2 圧 接=16 ｶﾌﾟﾗ=2 Ｄ Ｂ=1 切 断=1,020\n"
            "重　量  || 3.5=55,610 4.0=0 4.5=0 5.0=0 5.5=0 6.0=135 6.5=0 7.0=0 7.5=0 8.0=95 8.5=0 9.0=0 "
            "9.5=0 10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 13.0=58 重 量=55,898 ㎏\n");
}

TEST(DetailGrid, WithWeightsEachDiameterHasALineOfThemBelowItsCounts) {
  EXPECT_EQ(Shown(Sample(false), kWeights),
            "||3.5|4.0|4.5|5.0|5.5|6.0|6.5|7.0|7.5|8.0|8.5|9.0|9.5|10.0|10.5|11.0|11.5|12.0|重 量|圧 "
            "接|ｶﾌﾟﾗ|Ｄ Ｂ|切 断\n"
            "D10|本数| 3.5=5 重 量=10\n"
            "|重量| 3.5=10\n"
            "D13|本数|\n"
            "|重量|\n"
            "D16|本数|\n"
            "|重量|\n"
            "D19|本数| 6.0=10 重 量=135 圧 接=4 Ｄ Ｂ=1 切 断=1,020\n"
            "|重量| 6.0=135\n"
            "D22|本数|\n"
            "|重量|\n"
            "D25|本数| 8.0=3 重 量=95 圧 接=12 ｶﾌﾟﾗ=2\n"
            "|重量| 8.0=95\n"
            "D29|本数|\n"
            "|重量|\n"
            "D32|本数|\n"
            "|重量|\n"
            "D35|本数|\n"
            "|重量|\n"
            "D38|本数|\n"
            "|重量|\n"
            "D41|本数|\n"
            "|重量|\n"
            "D51|本数| 3.5=1,000 重 量=55,600\n"
            "|重量| 3.5=55,600\n"
            "本数  || 3.5=1,005 4.0=0 4.5=0 5.0=0 5.5=0 6.0=10 6.5=0 7.0=0 7.5=0 8.0=3 8.5=0 9.0=0 9.5=0 "
            "10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 圧 接=16 ｶﾌﾟﾗ=2 Ｄ Ｂ=1 切 断=1,020\n"
            "重　量  || 3.5=55,610 4.0=0 4.5=0 5.0=0 5.5=0 6.0=135 6.5=0 7.0=0 7.5=0 8.0=95 8.5=0 9.0=0 "
            "9.5=0 10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 重 量=55,840 ㎏\n");
}

TEST(DetailGrid, WithWeightsAnd13MetresEachLineHasThatColumnToo) {
  EXPECT_EQ(Shown(Sample(true), kWeights13m),
            "||3.5|4.0|4.5|5.0|5.5|6.0|6.5|7.0|7.5|8.0|8.5|9.0|9.5|10.0|10.5|11.0|11.5|12.0|13.0|重 量|圧 "
            "接|ｶﾌﾟﾗ|Ｄ Ｂ|切 断\n"
            "D10|本数| 3.5=5 重 量=10\n"
            "|重量| 3.5=10\n"
            "D13|本数|\n"
            "|重量|\n"
            "D16|本数|\n"
            "|重量|\n"
            "D19|本数| 6.0=10 13.0=2 重 量=193 圧 接=4 Ｄ Ｂ=1 切 断=1,020\n"
            "|重量| 6.0=135 13.0=58\n"
            "D22|本数|\n"
            "|重量|\n"
            "D25|本数| 8.0=3 重 量=95 圧 接=12 ｶﾌﾟﾗ=2\n"
            "|重量| 8.0=95\n"
            "D29|本数|\n"
            "|重量|\n"
            "D32|本数|\n"
            "|重量|\n"
            "D35|本数|\n"
            "|重量|\n"
            "D38|本数|\n"
            "|重量|\n"
            "D41|本数|\n"
            "|重量|\n"
            "D51|本数| 3.5=1,000 重 量=55,600\n"
            "|重量| 3.5=55,600\n"
            "本数  || 3.5=1,005 4.0=0 4.5=0 5.0=0 5.5=0 6.0=10 6.5=0 7.0=0 7.5=0 8.0=3 8.5=0 9.0=0 9.5=0 "
            "10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 13.0=2 圧 接=16 ｶﾌﾟﾗ=2 Ｄ Ｂ=1 切 断=1,020\n"
            "重　量  || 3.5=55,610 4.0=0 4.5=0 5.0=0 5.5=0 6.0=135 6.5=0 7.0=0 7.5=0 8.0=95 8.5=0 9.0=0 "
            "9.5=0 10.0=0 10.5=0 11.0=0 11.5=0 12.0=0 13.0=58 重 量=55,898 ㎏\n");
}

// The total is that of the tally: a 13.0 m column that it left out is shown all the same.
TEST(DetailGrid, TheGrandTotalIsTheTalliedOne) {
  TallyTable table = Sample(false);
  table.TotalStockWeight = Kg(1234567);
  EXPECT_EQ(DetailRows(table, kCounts13m).back()[21], "1,234,567 ㎏");
}

// 1.5 kg and 1.5 kg are 2 and 2 on the lines, and 4 below them.
TEST(DetailGrid, AColumnsWeightIsTheSumOfWhatItsCellsShow) {
  TallyTable table;
  table.StockWeight[0][0] = Kg(1.5);
  table.StockWeight[1][0] = Kg(1.5);
  const GridRows rows = DetailRows(table, kWeights);
  EXPECT_EQ(rows[1][2], "2");
  EXPECT_EQ(rows[3][2], "2");
  EXPECT_EQ(rows[25][2], "4");
}

TEST(DetailGrid, SumsOfBarsGoBeyond32Bits) {
  TallyTable table;
  table.BarCount[0][0] = 2000000000;
  table.BarCount[1][0] = 2000000000;
  EXPECT_EQ(DetailRows(table, kCounts)[12][2], "4,000,000,000");
}

TEST(DetailGrid, AStockColumnIsFoundAtItsPlace) {
  EXPECT_EQ(CellAt(kCounts, 0, 2), DetailCell(BarCell{0, 0}));
  EXPECT_EQ(CellAt(kCounts, 11, 19), DetailCell(BarCell{11, 17}));
  EXPECT_EQ(CellAt(kCounts13m, 11, 20), DetailCell(BarCell{11, 18}));
}

TEST(DetailGrid, WithWeightsADiameterIsFoundAtHalfTheLine) {
  EXPECT_EQ(CellAt(kWeights, 0, 2), DetailCell(BarCell{0, 0}));
  EXPECT_EQ(CellAt(kWeights, 22, 7), DetailCell(BarCell{11, 5}));
  EXPECT_EQ(CellAt(kWeights13m, 6, 23), DetailCell(FittingCell{3, Fitting::threads}));
}

TEST(DetailGrid, TheFittingsAreFoundBehindTheWeight) {
  for (std::size_t i = 0; i < kFittingWords.size(); ++i) {
    const FittingCell cell{5, kFittingWords[i].fitting};
    EXPECT_EQ(CellAt(kCounts, 5, 21 + static_cast<int>(i)), DetailCell(cell));
    EXPECT_EQ(CellAt(kCounts13m, 5, 22 + static_cast<int>(i)), DetailCell(cell));
  }
}

TEST(DetailGrid, LabelsWeightsAndTotalsCannotBeCorrected) {
  for (const int column : {-1, 0, 1, 20, 25}) EXPECT_FALSE(CellAt(kCounts, 0, column)) << column;
  EXPECT_FALSE(CellAt(kCounts13m, 0, 21));
  for (const int line : {-1, 12, 13}) EXPECT_FALSE(CellAt(kCounts, line, 2)) << line;
  for (const int line : {-2, 1, 23, 24, 25}) EXPECT_FALSE(CellAt(kWeights, line, 2)) << line;
}

/// Every cell that may be corrected has the caption of what it holds above it.
TEST(DetailGrid, EachCellStandsUnderItsCaption) {
  for (const DetailLayout& layout : {kCounts, kCounts13m, kWeights, kWeights13m}) {
    const auto captions = DetailCaptions(layout);
    for (int column = 0; column < static_cast<int>(captions.size()); ++column) {
      const auto cell = CellAt(layout, 0, column);
      if (!cell) continue;
      const auto* bars = std::get_if<BarCell>(&*cell);
      const std::string_view caption = captions[static_cast<std::size_t>(column)];
      if (bars != nullptr) {
        EXPECT_EQ(caption, kStockLengthTexts.at(static_cast<std::size_t>(bars->l)));
      } else {
        const auto fitting = static_cast<std::size_t>(std::get<FittingCell>(*cell).fitting);
        EXPECT_EQ(caption, kFittingWords.at(fitting).caption);
      }
    }
  }
}

}  // namespace
}  // namespace rbt
