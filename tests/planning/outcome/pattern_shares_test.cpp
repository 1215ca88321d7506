// SPDX-License-Identifier: MIT
#include "planning/outcome/pattern_shares.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rbt::planning {
namespace {

using ::testing::ElementsAre;

TEST(SharesOf, GivePiecesToRowsInOrderPatternByPattern) {
  OutcomeGroup group;
  group.cuts = {{2000, 7, {{1, 1, 3, ""}, {1, 2, 4, ""}}}};
  group.patterns.resize(2);
  group.patterns[0].pattern = {12000, false, 2, {{2000, 2}}};
  group.patterns[1].pattern = {6000, false, 1, {{2000, 3}}};
  std::vector<std::string> told;
  for (const auto& pattern : SharesOf(group)) {
    for (const CutShares& cut : pattern) {
      for (const OutcomeShare& share : cut.rows) {
        told.push_back(std::to_string(*share.line) + "x" + std::to_string(share.pieces));
      }
    }
    told.emplace_back("|");
  }
  EXPECT_THAT(told, ElementsAre("1x3", "2x1", "|", "2x3", "|"));
}

TEST(TrimOf, IsCutOffEveryBarButOneThatIsUsedWhole) {
  const BarRule rule{3, 20, 0};
  EXPECT_EQ(TrimOf(rule, {12000, false, 1, {{5500, 2}}}), 20);
  EXPECT_EQ(TrimOf(rule, {12000, false, 1, {{12000, 1}}}), 0);
}

TEST(MarksOf, StandWherePiecesEndBehindTrimAndKerfs) {
  EXPECT_THAT(MarksOf({}, {12000, false, 1, {{3000, 2}, {1000, 1}}}), ElementsAre(3000, 6000, 7000));
  EXPECT_THAT(MarksOf({3, 20, 0}, {12000, false, 1, {{3000, 2}, {1000, 1}}}), ElementsAre(3020, 6023, 7026));
  EXPECT_THAT(MarksOf({3, 20, 0}, {6000, false, 1, {{6000, 1}}}), ElementsAre(6000));
}

}  // namespace
}  // namespace rbt::planning
