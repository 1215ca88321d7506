// SPDX-License-Identifier: MIT
#include "platform/pass_over_faults.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace rbt {
namespace {

[[noreturn]] void Overflow() { throw Fault(FaultKind::overflow, "sum of 圧接"); }

TEST(PassOverFaults, GivesTheFaultThatEndedTheAction) {
  int steps = 0;
  const auto fault = PassOverFaults([&] {
    ++steps;
    Overflow();
  });
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->Kind(), FaultKind::overflow);
  EXPECT_STREQ(fault->what(), "overflow: sum of 圧接");
  EXPECT_EQ(steps, 1);
}

TEST(PassOverFaults, GivesNothingWhenTheActionCameToItsEnd) {
  EXPECT_FALSE(PassOverFaults([] {}));
}

TEST(PassOverFaults, LetsEverythingElsePass) {
  EXPECT_THROW(PassOverFaults([] { throw std::out_of_range("ours"); }), std::out_of_range);
}

TEST(PassOverFaults, OfOneKindLetsTheOthersPass) {
  EXPECT_TRUE(PassOverFaults(FaultKind::overflow, Overflow));
  EXPECT_THROW(PassOverFaults(FaultKind::file, Overflow), Fault);
}

}  // namespace
}  // namespace rbt
