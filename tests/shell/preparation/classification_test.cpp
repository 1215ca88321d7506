// SPDX-License-Identifier: MIT
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/materials.h"
#include "shell/preparation/preparation.h"
#include "shell/preparation/statements.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kNoMode = -1;

class Classification : public testing::Test {
 protected:
  void Classify(std::int32_t start_mode = kNoMode) {
    Database schedule = Database::Open(site_.Data(kScheduleFile));
    ClassifySchedule(schedule, start_mode);
  }
  /// A bar by what the form depends on.
  void AddBar(int shape, int cut_mm, int pieces_per_bar, Value kind = {}) {
    site_.AddRow(
        {{"太さ", 19}, {"形状No", shape}, {"伸切寸", cut_mm}, {"伸本定", pieces_per_bar}, {"予備2", kind}});
  }

  SiteFixture site_;
};

TEST_F(Classification, AStraightBarUsedWholeIsRaw) {
  AddBar(1, 6000, 1);
  Classify();
  EXPECT_THAT(site_.Column("予備3"), ElementsAre("1"));
}

}  // namespace
}  // namespace rbt::test
