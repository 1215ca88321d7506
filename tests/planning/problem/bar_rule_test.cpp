// SPDX-License-Identifier: MIT
#include "planning/problem/bar_rule.h"

#include <gtest/gtest.h>

namespace rbt::planning {
namespace {

constexpr BarRule kPlain{};
constexpr BarRule kKerf{3, 0, 0};
constexpr BarRule kTrim{0, 20, 0};
constexpr BarRule kAll{3, 20, 10};

TEST(PiecesPerBar, AreAsManyAsFit) {
  EXPECT_EQ(PiecesPerBar(kPlain, 12000, 2400), 5);
  EXPECT_EQ(PiecesPerBar(kPlain, 12000, 2401), 4);
  EXPECT_EQ(PiecesPerBar(kPlain, 6000, 6001), 0);
}

TEST(PiecesPerBar, LoseAKerfBetweenEachTwo) {
  EXPECT_EQ(PiecesPerBar(kKerf, 12000, 2400), 4);
  EXPECT_EQ(PiecesPerBar(kKerf, 12012, 2400), 5);  // 5 x 2400 + 4 x 3
  EXPECT_EQ(PiecesPerBar(kKerf, 12011, 2400), 4);
}

TEST(PiecesPerBar, LoseTheTrimAndGainThePlus) {
  EXPECT_EQ(PiecesPerBar(kTrim, 12000, 5990), 2);
  EXPECT_EQ(PiecesPerBar(kTrim, 12000, 5991), 1);
  EXPECT_EQ(PiecesPerBar({0, 0, 10}, 12000, 6005), 2);
  EXPECT_EQ(PiecesPerBar(kAll, 12000, 11990), 1);
  EXPECT_EQ(PiecesPerBar(kAll, 12000, 11991), 0);
}

TEST(PiecesPerBar, HoldOnePieceAsLongAsTheBarWhateverIsTrimmed) {
  EXPECT_EQ(PiecesPerBar(kTrim, 6000, 6000), 1);
  EXPECT_EQ(PiecesPerBar(kTrim, 6000, 5999), 0);
  EXPECT_EQ(PiecesPerBar({5, 6000, 0}, 5000, 5000), 1);
}

TEST(UsedMm, IsTheCutsAndTheKerfsBetweenThem) {
  EXPECT_EQ(UsedMm(kKerf, {5, 11700}), 11712);
  EXPECT_EQ(UsedMm(kKerf, {1, 2340}), 2340);
}

TEST(LeftMm, IsBehindTheLastKerf) {
  EXPECT_EQ(LeftMm(kPlain, 12000, {5, 11700}), 300);
  EXPECT_EQ(LeftMm(kAll, 12000, {5, 11700}), 12000 - 20 - 11712 - 3);
}

TEST(LeftMm, IsNeverBelowZero) {
  EXPECT_EQ(LeftMm(kKerf, 12000, {1, 11999}), 0);
  EXPECT_EQ(LeftMm(kTrim, 6000, {1, 6000}), 0);
  EXPECT_EQ(LeftMm({0, 0, 10}, 6000, {1, 6010}), 0);
}

TEST(CutsOnBar, AreOneAPiece) {
  EXPECT_EQ(CutsOnBar(kPlain, 12000, {5, 11700}), 5);
  EXPECT_EQ(CutsOnBar(kKerf, 12000, {5, 11700}), 5);
}

TEST(CutsOnBar, AreOneLessWhenTheLastPieceEndsWithTheBar) {
  EXPECT_EQ(CutsOnBar(kPlain, 12000, {5, 12000}), 4);
  EXPECT_EQ(CutsOnBar({0, 0, 10}, 12000, {2, 12010}), 1);
  EXPECT_EQ(CutsOnBar(kKerf, 12012, {5, 12000}), 4);
}

TEST(CutsOnBar, AreOneMoreForTheTrim) {
  EXPECT_EQ(CutsOnBar(kTrim, 12000, {5, 11700}), 6);
  EXPECT_EQ(CutsOnBar(kTrim, 12000, {2, 11980}), 2);
}

TEST(CutsOnBar, AreNoneOnABarUsedWhole) {
  EXPECT_EQ(CutsOnBar(kPlain, 6000, {1, 6000}), 0);
  EXPECT_EQ(CutsOnBar(kTrim, 6000, {1, 6000}), 0);
  EXPECT_EQ(CutsOnBar(kPlain, 6000, {2, 6000}), 1);
}

}  // namespace
}  // namespace rbt::planning
