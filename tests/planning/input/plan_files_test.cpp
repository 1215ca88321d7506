// SPDX-License-Identifier: MIT
#include "planning/input/plan_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planning/input/refusal_of.h"

namespace rbt::planning {
namespace {

using test::RefusalOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string RefusalOfPieces(std::string_view text) {
  return RefusalOf([&] { ParsePieces(text); });
}

TEST(ParsePieces, TakesTwoToFiveColumns) {
  EXPECT_THAT(ParsePieces("length,count\n2340,5\n"), ElementsAre(PieceLine{2, 2340, 5, 0, 1, ""}));
  EXPECT_THAT(ParsePieces("length,count,diameter,kind,mark\r\n2340,5,16,3,A1\r\n"),
              ElementsAre(PieceLine{2, 2340, 5, 16, 3, "A1"}));
  EXPECT_THAT(ParsePieces("\xEF\xBB\xBFlength,count,diameter\n2340,5"),
              ElementsAre(PieceLine{2, 2340, 5, 0, 1, ""}));
}

TEST(ParsePieces, CountsLinesWithCommentsAndEmptyOnes) {
  EXPECT_THAT(ParsePieces("# of the yard\n\nlength,count # mm\n#\n 2340 , 5 # five\n"),
              ElementsAre(PieceLine{5, 2340, 5, 0, 1, ""}));
}

TEST(ParsePieces, TakesAMarkInQuotes) {
  EXPECT_EQ(ParsePieces("length,count,diameter,kind,mark\n1,1,,,\"a,\"\"b\"\" #\"\n").front().mark,
            "a,\"b\" #");
}

TEST(ParsePieces, LeavesEmptyCellsBehindTheLastColumnOut) {
  EXPECT_THAT(ParsePieces("length,count,,\n2340,5,, \n1200,7,\n"),
              ElementsAre(PieceLine{2, 2340, 5, 0, 1, ""}, PieceLine{3, 1200, 7, 0, 1, ""}));
  EXPECT_EQ(RefusalOfPieces("length,count\n5,1,,16\n"), "line 2: more cells than the header has");
}

TEST(ParsePieces, TakesAKindBelow1For1) {
  EXPECT_EQ(ParsePieces("length,count,diameter,kind\n1,1,10,0\n").front().kind, 1);
}

TEST(ParsePieces, RefusesByTheLine) {
  EXPECT_EQ(RefusalOfPieces("length,count\n5,1\n12x,1\n"), "line 3: not a whole number: 12x");
  EXPECT_EQ(RefusalOfPieces("length,count\n-5,1\n"), "line 2: not a whole number: -5");
  EXPECT_EQ(RefusalOfPieces("length,count\n5.0,1\n"), "line 2: not a whole number: 5.0");
  EXPECT_EQ(RefusalOfPieces("length,count\n0,1\n"), "line 2: length is not from 1 to 1000000: 0");
  EXPECT_EQ(RefusalOfPieces("length,count\n5\n"), "line 2: count is missing");
  EXPECT_EQ(RefusalOfPieces("length,count\n5,1,16\n"), "line 2: more cells than the header has");
  EXPECT_EQ(RefusalOfPieces("length,count,diameter\n5,1,14\n"), "line 2: there is no D14");
  EXPECT_EQ(RefusalOfPieces("length,count,diameter,kind,mark\n5,1,16,1,\"A\n"),
            "line 2: a quoted cell has no end");
  EXPECT_EQ(RefusalOfPieces("2340,5\n"), "line 1: the header is not length,count[,diameter[,kind[,mark]]]");
  EXPECT_EQ(RefusalOfPieces(""), "line 1: the header is not length,count[,diameter[,kind[,mark]]]");
}

TEST(ParseLengths, LeavesPriceAndLotEmpty) {
  EXPECT_THAT(ParseLengths("diameter,length,price,min_kg\n0,6000,,\n16,6000,98500,500\n"),
              ElementsAre(LengthLine{0, 6000, std::nullopt, 0}, LengthLine{16, 6000, 98500, 500}));
}

TEST(ParseLengths, RefusesALengthThatStandsTwice) {
  EXPECT_EQ(RefusalOf([] { ParseLengths("diameter,length,price,min_kg\n16,6000,,\n16,6000,1,\n"); }),
            "line 3: D16 6000 stands twice");
}

TEST(ParseRests, ReadsEachLine) {
  EXPECT_THAT(ParseRests("diameter,kind,length,count\n16,0,2500,3\n"), ElementsAre(RestLine{16, 1, 2500, 3}));
  EXPECT_THAT(ParseRests("diameter,kind,length,count\n"), IsEmpty());
}

}  // namespace
}  // namespace rbt::planning
