// SPDX-License-Identifier: MIT
#include "platform/system/work.h"

#include <vector>

#include <gtest/gtest.h>

#include "platform/system/services.h"
#include "support/fault_of.h"
#include "support/kept_services.h"

namespace rbt::test {
namespace {

class Work : public testing::Test {
 protected:
  Work() {
    Services.OnWork = [this](const WorkNews& news) {
      told_.push_back(news);
      return stops_;
    };
  }

  const KeptServices kept_;
  std::vector<WorkNews> told_;
  bool stops_ = false;
};

TEST_F(Work, GoesOnWhereNobodyStopsIt) {
  EXPECT_FALSE(StopAsked());
  NotePage(7);
  ASSERT_EQ(told_.size(), 2U);
  EXPECT_TRUE(told_[0].may_stop);
  EXPECT_EQ(told_[0].page, 0);
  EXPECT_EQ(told_[1].page, 7);
}

TEST_F(Work, ThatItsUserStopsEndsByAFaultOfItsOwn) {
  stops_ = true;
  EXPECT_TRUE(StopAsked());
  EXPECT_EQ(FaultOf([] { NotePage(1); }), FaultKind::stopped);
}

TEST_F(Work, ThatMustFinishIsNeverStopped) {
  stops_ = true;
  {
    const MustFinish outer;
    EXPECT_FALSE(told_.back().may_stop) << "told so at once";
    { const MustFinish inner; }
    EXPECT_FALSE(StopAsked());
    EXPECT_FALSE(told_.back().may_stop);
    NotePage(1);
  }
  EXPECT_TRUE(StopAsked());
  EXPECT_FALSE(StopAsked({.may_stop = false}));
}

TEST(TheWorkOfTheCommandLine, IsStoppedWithTheProgramAlone) { EXPECT_FALSE(StopAsked()); }

}  // namespace
}  // namespace rbt::test
