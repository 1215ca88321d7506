// SPDX-License-Identifier: MIT
#include "data/shape_filter.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(ShapeFilter, IsThatOfItsNumber) {
  EXPECT_EQ(ShapeFilterOf(0), ShapeFilter::with_others);
  EXPECT_EQ(ShapeFilterOf(1), ShapeFilter::left_out);
  EXPECT_EQ(ShapeFilterOf(2), ShapeFilter::alone);
  for (const int number : {0, 1, 2}) EXPECT_EQ(static_cast<int>(ShapeFilterOf(number)), number);
}

TEST(ShapeFilter, ANumberThatMeansNothingFiltersNothing) {
  for (const int number : {-1, 3, 100}) EXPECT_EQ(ShapeFilterOf(number), ShapeFilter::with_others) << number;
}

TEST(ShapeFilter, ItsButtonLeadsRoundAllThree) {
  EXPECT_EQ(Next(ShapeFilter::with_others), ShapeFilter::left_out);
  EXPECT_EQ(Next(ShapeFilter::left_out), ShapeFilter::alone);
  EXPECT_EQ(Next(ShapeFilter::alone), ShapeFilter::with_others);
}

}  // namespace
}  // namespace rbt
