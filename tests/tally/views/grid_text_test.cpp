// SPDX-License-Identifier: MIT
#include "tally/views/grid_text.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(GridTable, PadsColumnsByDisplayWidthTheFirstToTheLeft) {
  EXPECT_EQ(GridTable({{"D10", "1,234 ", "5"}, {"総　計", "0 ", "1,000"}}),
            "D10     1,234       5\n"
            "総　計      0   1,000\n");
}

TEST(GridTable, NamesItsColumnsInTheFirstLine) {
  constexpr std::string_view captions[] = {"太    さ", "定尺重量"};
  EXPECT_EQ(GridTable(captions, {{"D10", "1,234 "}, {"D13", "0 "}}),
            "太    さ  定尺重量\n"
            "D10         1,234\n"
            "D13             0\n");
}

TEST(GridTable, CountsHalfWidthKatakanaAsOneColumn) {
  EXPECT_EQ(GridTable({{"ｳﾙﾎﾞﾝ", "1"}, {"異形", "2"}}), "ｳﾙﾎﾞﾝ  1\n異形   2\n");
}

TEST(GridTable, EndsNoLineInBlanks) {
  EXPECT_EQ(GridTable({{"a", "", ""}, {"b", "1", "2"}}), "a\nb  1  2\n");
}

TEST(GridCsv, WritesTheCellsWithoutPaddingAndSeparatorsUnderTheCaptions) {
  constexpr std::string_view captions[] = {"太    さ", "定尺重量"};
  EXPECT_EQ(GridCsv(captions, {{"SD295        D10", "-1,234,567 "}, {"総　　合　　計", "1,000 kg"}}),
            "太    さ,定尺重量\r\n"
            "SD295        D10,-1234567\r\n"
            "総　　合　　計,1000 kg\r\n");
}

TEST(GridCsv, QuotesWhatWouldBreakARecord) {
  constexpr std::string_view captions[] = {"a,b"};
  EXPECT_EQ(GridCsv(captions, {{"say \"no\""}, {"x, y"}, {"line\nbreak"}}),
            "\"a,b\"\r\n\"say \"\"no\"\"\"\r\n\"x, y\"\r\n\"line\nbreak\"\r\n");
}

}  // namespace
}  // namespace rbt
