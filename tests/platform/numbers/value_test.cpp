// SPDX-License-Identifier: MIT
#include "platform/numbers/value.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/fault_of.h"

namespace rbt {
namespace {

TEST(Value, HoldsAnAmountWhateverItsNumberIs) {
  const Currency amount = Currency::FromDouble(12.3456);
  EXPECT_EQ(AmountOf(Value{amount}, "x"), amount);
  EXPECT_EQ(AmountOf(Value{12.34564}, "x"), amount);
  EXPECT_EQ(AmountOf(Value{std::string("12.3456")}, "x"), amount);
  EXPECT_EQ(AmountOf(Value{std::int64_t{12}}, "x"), Currency::FromInteger(12));
}

TEST(Value, ThatIsNullIsAnAmountOfZero) { EXPECT_EQ(AmountOf(Value{}, "x"), Currency()); }

TEST(Value, ThatIsNoNumberIsNoAmount) {
  EXPECT_EQ(test::FaultOf([] { AmountOf(Value{std::string("long")}, "x"); }), FaultKind::type_mismatch);
}

}  // namespace
}  // namespace rbt
