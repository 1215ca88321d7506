// SPDX-License-Identifier: MIT
#include "platform/or_as_before.h"

#include <string>

#include <gtest/gtest.h>

namespace rbt {
namespace {

struct State {
  int number = 1;
  std::string text = "before";

  void ChangeAndFault(FaultKind kind) {
    OrAsBefore(
        [&] {
          number = 2;
          text = "after";
          throw Fault(kind, "x");
        },
        number, text);
  }
};

TEST(AsBefore, IsTheStateOfWorkThatWasStopped) {
  State state;
  EXPECT_THROW(state.ChangeAndFault(FaultKind::stopped), Fault);
  EXPECT_EQ(state.number, 1);
  EXPECT_EQ(state.text, "before");
}

TEST(AsBefore, IsNotTheStateOfWorkThatFaulted) {
  State state;
  EXPECT_THROW(state.ChangeAndFault(FaultKind::overflow), Fault);
  EXPECT_EQ(state.text, "after");
}

TEST(AsBefore, IsNotTheStateOfWorkThatCameToItsEnd) {
  int number = 1;
  OrAsBefore([&] { number = 2; }, number);
  EXPECT_EQ(number, 2);
}

}  // namespace
}  // namespace rbt
