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

}  // namespace
}  // namespace rbt
