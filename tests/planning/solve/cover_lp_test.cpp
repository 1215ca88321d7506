// SPDX-License-Identifier: MIT
#include "planning/solve/cover_lp.h"

#include <gtest/gtest.h>

namespace rbt::planning {
namespace {

class CoverLpTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!LinearProgramsAreSolved()) GTEST_SKIP() << "built without the library";
  }

  void Add(CoverLp& lp, double cost, std::vector<std::pair<int, double>> entries) {
    lp.AddColumn(cost, entries);
  }
};

TEST_F(CoverLpTest, CoversItsNeedsAtTheLeastCost) {
  CoverLp lp({10.0, 6.0});
  Add(lp, 3.0, {{0, 1.0}});
  Add(lp, 3.0, {{1, 1.0}});
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 48.0, 1e-6);
  EXPECT_NEAR(lp.Prices()[0], 3.0, 1e-6);
  Add(lp, 4.0, {{0, 1.0}, {1, 1.0}});
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 6 * 4.0 + 4 * 3.0, 1e-6);
  EXPECT_NEAR(lp.Values()[2], 6.0, 1e-6);
}

TEST_F(CoverLpTest, FollowsChangedNeedsAndForbiddenColumns) {
  CoverLp lp({10.0});
  Add(lp, 2.0, {{0, 1.0}});
  Add(lp, 3.0, {{0, 1.0}});
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 20.0, 1e-6);
  lp.Allow(0, false);
  lp.SetNeed(0, 4.0);
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 12.0, 1e-6);
  lp.Allow(1, false);
  EXPECT_FALSE(lp.Solve());
  lp.Allow(0, true);
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 8.0, 1e-6);
}

TEST_F(CoverLpTest, LimitsWhatIsWrittenNegative) {
  CoverLp lp({10.0, -3.0});
  Add(lp, 5.0, {{0, 1.0}});
  Add(lp, 0.0, {{0, 1.0}, {1, -1.0}});
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 35.0, 1e-6);
  EXPECT_NEAR(lp.Prices()[1], 5.0, 1e-6);
}

TEST_F(CoverLpTest, DropsTheDearestColumns) {
  CoverLp lp({10.0});
  for (int c = 0; c < 6; ++c) Add(lp, 2.0 + c, {{0, 1.0}});
  ASSERT_TRUE(lp.Solve());
  EXPECT_EQ(lp.DropDearest(3), (std::vector<int>{4, 5}));
  ASSERT_TRUE(lp.Solve());
  EXPECT_NEAR(lp.Cost(), 20.0, 1e-6);
  EXPECT_EQ(lp.Values().size(), 4u);
}

}  // namespace
}  // namespace rbt::planning
