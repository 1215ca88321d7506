// SPDX-License-Identifier: MIT
#include "tally/detail/detail_entry.h"

#include <gtest/gtest.h>

#include "support/fault_of.h"

namespace rbt {
namespace {

TEST(DetailEntry, APercentageIsADecimalNumberThatMayBeNegative) {
  EXPECT_EQ(PercentOfText("10"), 10.0);
  EXPECT_EQ(PercentOfText("2.5"), 2.5);
  EXPECT_EQ(PercentOfText(".5"), 0.5);
  EXPECT_EQ(PercentOfText("5."), 5.0);
  EXPECT_EQ(PercentOfText("-12.5"), -12.5);
  EXPECT_EQ(PercentOfText("+3"), 3.0);
}

TEST(DetailEntry, APercentageThatIsNoNumberCountsAs0) {
  for (const char* text : {"", "-", "+", ".", "-.", "1.2.3", "..5", "1-2", "--1", "5-"}) {
    EXPECT_EQ(PercentOfText(text), 0.0) << text;
  }
}

TEST(DetailEntry, APercentageIsOfDigitsSignsAndPointsAlone) {
  EXPECT_TRUE(IsPercentText("-12.5"));
  EXPECT_TRUE(IsPercentText(""));
  EXPECT_TRUE(IsPercentText("1.2.3"));
  for (const char* text : {"1e3", "10%", "1,000", " 1", "１０", "&HFF"})
    EXPECT_FALSE(IsPercentText(text)) << text;
}

TEST(DetailEntry, ACountIsOfDigitsAndCommasAndAnEmptyOneIs0) {
  EXPECT_TRUE(IsCountText("1,234"));
  EXPECT_TRUE(IsCountText(""));
  for (const char* text : {"-1", "1.5", "1 2", "a", "１"}) EXPECT_FALSE(IsCountText(text)) << text;
  EXPECT_EQ(CountOfText("1,234"), 1234);
  EXPECT_EQ(CountOfText(",,7,"), 7);
  EXPECT_EQ(CountOfText("007"), 7);
  EXPECT_EQ(CountOfText(""), 0);
  EXPECT_EQ(CountOfText(","), 0);
}

TEST(DetailEntry, ACountBeyond32BitsIsAnOverflow) {
  EXPECT_EQ(CountOfText("2,147,483,647"), 2147483647);
  EXPECT_EQ(test::FaultOf([] { CountOfText("2147483648"); }), FaultKind::overflow);
}

TEST(DetailEntry, ACellIsNamedByItsDiameterAndItsLengthOrFitting) {
  EXPECT_EQ(CellOfWords("D10", "3.5", kColumnsTo12m), DetailCell(BarCell{0, 0}));
  EXPECT_EQ(CellOfWords("D51", "12.0", kColumnsTo12m), DetailCell(BarCell{11, 17}));
  EXPECT_EQ(CellOfWords("D19", "weld", kColumnsTo12m), DetailCell(FittingCell{3, Fitting::welds}));
  EXPECT_EQ(CellOfWords("D19", "thread", kColumnsTo12m), DetailCell(FittingCell{3, Fitting::threads}));
  EXPECT_EQ(CellOfWords("D19", "plate", kColumnsTo12m), DetailCell(FittingCell{3, Fitting::plates}));
  EXPECT_EQ(CellOfWords("D19", "cut", kColumnsTo12m), DetailCell(FittingCell{3, Fitting::cuts}));
}

TEST(DetailEntry, The13MetreColumnIsThereWhereItIsOn) {
  EXPECT_EQ(CellOfWords("D10", "13.0", StockColumnsInUse(true)), DetailCell(BarCell{0, 18}));
  EXPECT_FALSE(CellOfWords("D10", "13.0", StockColumnsInUse(false)));
}

TEST(DetailEntry, WhatTheGridDoesNotHaveIsNoCell) {
  for (const char* row : {"D12", "U 6", "d10", "", "D", "合計"}) {
    EXPECT_FALSE(CellOfWords(row, "3.5", kStockColumns)) << row;
  }
  for (const char* column : {"12.5", "3", "3.50", "welds", "重 量", ""}) {
    EXPECT_FALSE(CellOfWords("D10", column, kStockColumns)) << column;
  }
}

}  // namespace
}  // namespace rbt
