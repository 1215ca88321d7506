// SPDX-License-Identifier: MIT
#include "platform/system/interrupt.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(InterruptWatch, AnswersFromTheFirstInterruptOn) {
  InterruptWatch watch;
  EXPECT_FALSE(watch.Requested());
  ASSERT_EQ(std::raise(SIGINT), 0);
  EXPECT_TRUE(watch.Requested());
  EXPECT_TRUE(watch.Requested());
}

TEST(InterruptWatch, SeesAnInterruptThatTheProgramIgnoredBefore) {
  std::signal(SIGINT, SIG_IGN);
  {
    InterruptWatch watch;
    ASSERT_EQ(std::raise(SIGINT), 0);
    EXPECT_TRUE(watch.Requested());
  }
  EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_IGN);
}

TEST(InterruptWatch, SpendsWhatWasPressedMeanwhile) {
  {
    const InterruptWatch watch;
    ASSERT_EQ(std::raise(SIGINT), 0);
  }
  InterruptWatch later;  // the program still runs
  EXPECT_FALSE(later.Requested());
}

}  // namespace
}  // namespace rbt
