// SPDX-License-Identifier: MIT
#include "tally/names/name_statements.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

const std::vector<std::int32_t> kTwo{3, 12};
constexpr std::string_view kHead =
    "SELECT * FROM 加工テーブル WHERE ((登録名=3) OR (登録名=12)) AND (太さ is not NULL AND 伸定尺 is not "
    "NULL "
    "AND 本数 is not NULL ";
constexpr std::string_view kAllKindsClosed =
    " AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=5 or 予備2=2))";

SelectionData Selected(std::int32_t kinds, std::int16_t forms = 15) {
  SelectionData selection;
  selection.MaterialKindMask = KindMask(kinds);
  selection.MaterialFormMask = FormMask(forms);
  return selection;
}

std::string Head(std::string_view rest) { return std::string(kHead) + std::string(rest); }

TEST(BlocksOfNames, AreTenEachAndNoneIsEmpty) {
  const auto sizes = [](std::size_t count) {
    const std::vector<std::int32_t> numbers(count, 1);
    std::string text;
    for (const auto block : BlocksOf(numbers)) text += std::to_string(block.size()) + " ";
    return text;
  };
  EXPECT_EQ(sizes(0), "");
  EXPECT_EQ(sizes(1), "1 ");
  EXPECT_EQ(sizes(9), "9 ");
  EXPECT_EQ(sizes(10), "10 ");
  EXPECT_EQ(sizes(11), "10 1 ");
  EXPECT_EQ(sizes(20), "10 10 ");
  EXPECT_EQ(sizes(23), "10 10 3 ");
}

TEST(BlocksOfNames, KeepTheOrderOfTheNumbers) {
  std::vector<std::int32_t> numbers;
  for (std::int32_t number = 1; number <= 12; ++number) numbers.push_back(number);
  const auto blocks = BlocksOf(numbers);
  EXPECT_EQ(blocks.at(0).front(), 1);
  EXPECT_EQ(blocks.at(0).back(), 10);
  EXPECT_EQ(blocks.at(1).front(), 11);
}

TEST(NameStatement, OfOneNameHasItsOwnParentheses) {
  EXPECT_EQ(
      NameStatementSoFar(Selected(15), std::vector<std::int32_t>{7}),
      "SELECT * FROM 加工テーブル WHERE ((登録名=7)) AND (太さ is not NULL AND 伸定尺 is not NULL AND 本数 "
      "is not NULL  AND (予備2<=1 or IsNull(予備2) or 予備2=3 or 予備2=4 or 予備2=5 or 予備2=2))");
}

TEST(NameStatement, AsksForAllKindsByTheirNumbers) {
  EXPECT_EQ(NameStatementSoFar(Selected(15), kTwo), Head(kAllKindsClosed));
}

TEST(NameStatement, ClosesTheKindsWhateverTheyAre) {
  EXPECT_EQ(NameStatementSoFar(Selected(1), kTwo), Head(" AND (予備2<=1 or IsNull(予備2) or 予備2=2))"));
  EXPECT_EQ(NameStatementSoFar(Selected(8), kTwo), Head(" AND (予備2=5) or 予備2=2)"));
  EXPECT_EQ(NameStatementSoFar(Selected(0), kTwo), Head(")"));
}

TEST(NameStatement, PutsTheFormsBehindTheBlankOfItsHead) {
  EXPECT_EQ(NameStatementSoFar(Selected(2, 1), kTwo), Head("AND 予備3 = 1 AND (予備2=4 or 予備2=2))"));
  EXPECT_EQ(NameStatementSoFar(Selected(2, 12), kTwo),
            Head("AND (予備3 = 3 OR 予備3 = 4) AND (予備2=4 or 予備2=2))"));
  EXPECT_EQ(NameStatementSoFar(Selected(2, 0), kTwo), Head(" AND (予備2=4 or 予備2=2))"));
}

TEST(NameStatement, FiltersHoopsAndPlatesWhateverTheProbesFound) {
  SelectionData selection = Selected(2);
  const std::string so_far = NameStatementSoFar(selection, kTwo);
  EXPECT_EQ(NameStatement(selection, kTwo), so_far);
  selection.HoopMode = ShapeFilter::left_out;
  EXPECT_EQ(NameStatement(selection, kTwo), so_far + " AND 形状No<>87 ");
  selection.HoopMode = ShapeFilter::with_others;
  selection.AnchorPlateMode = ShapeFilter::left_out;
  EXPECT_EQ(
      NameStatement(selection, kTwo),
      so_far +
          " AND (IsNull(形状No) OR 形状No=0 or 形状No<138 OR 形状No=139 OR (形状No between 141 And 142) OR "
          "(形状No Between 148 And 160) OR (形状No Between 162 And 163) OR (形状No Between 170 And 174) OR "
          "形状No >=177)");
  selection.HoopMode = ShapeFilter::alone;
  selection.AnchorPlateMode = ShapeFilter::alone;
  EXPECT_EQ(
      NameStatement(selection, kTwo),
      so_far +
          " AND 形状No=87  AND (形状No=138 OR 形状No=140 OR (形状No Between 143 And 147) OR 形状No=161 OR "
          "(形状No Between 164 And 169) OR (形状No Between 175 And 176))");
}

}  // namespace
}  // namespace rbt
