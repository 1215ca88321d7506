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

TEST(PassOverFaults, OfContentLetsThoseOfDisksAndLocksPass) {
  EXPECT_TRUE(PassOverFaultsOfContent(Overflow));
  EXPECT_TRUE(PassOverFaultsOfContent([] { throw Fault(FaultKind::database, "no such table"); }));
  for (const FaultKind kind : {FaultKind::storage, FaultKind::locked}) {
    EXPECT_THROW(PassOverFaultsOfContent([&] { throw Fault(kind, "GENBA001.MDB"); }), Fault);
  }
}

TEST(PassOverFaults, LetsTheEndOfStoppedWorkPassWhateverIsGuarded) {
  const auto stop = [] { throw Fault(FaultKind::stopped, "GENBA001.MDB"); };
  EXPECT_THROW(PassOverFaults(stop), Fault);
  EXPECT_THROW(PassOverFaultsOfContent(stop), Fault);
  EXPECT_THROW(PassOverFaults(FaultKind::stopped, stop), Fault);
}

}  // namespace
}  // namespace rbt
