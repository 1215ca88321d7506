// SPDX-License-Identifier: MIT
#include "platform/fault.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(Fault, SaysTheRuntimesWordsThenWhere) {
  EXPECT_STREQ(Fault(FaultKind::subscript_out_of_range, "stock column of 12.5 m").what(),
               "subscript out of range: stock column of 12.5 m");
}

TEST(Fault, ADatabaseFaultIsItsMessageAlone) {
  EXPECT_STREQ(Fault(FaultKind::database, "no such table: 加工テーブル").what(),
               "no such table: 加工テーブル");
}

TEST(At, PutsThePlaceBeforeWhereAFaultHappened) {
  try {
    At([] { return std::string("頁 3 行 4"); }, [] { throw Fault(FaultKind::overflow, "圧接"); });
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::overflow);
    EXPECT_EQ(fault.Where(), "頁 3 行 4: 圧接");
  }
}

TEST(At, GivesWhatTheActionGivesAndDoesNotAskForThePlace) {
  int asked = 0;
  const auto place = [&] {
    ++asked;
    return std::string("頁 3");
  };
  EXPECT_EQ(At(place, [] { return 7; }), 7);
  EXPECT_EQ(asked, 0);
}

TEST(At, LeavesWhatIsNoFaultAsItIs) {
  EXPECT_THROW(At([] { return std::string("頁 3"); }, [] { throw std::out_of_range("ours"); }),
               std::out_of_range);
}

}  // namespace
}  // namespace rbt
