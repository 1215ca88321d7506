// SPDX-License-Identifier: MIT
#include "platform/numbers/block_array.h"

#include <cstdint>
#include <utility>

#include <gtest/gtest.h>

#include "support/fault_of.h"

namespace rbt {
namespace {

using test::FaultOf;

using Table = BlockArray<CheckedArray<std::int32_t, 3>, 4>;

TEST(BlockArray, ReadsAsZeroWhereNothingWasPut) {
  const Table table;
  EXPECT_EQ(table[3][2], 0);
  EXPECT_EQ(table.Find(3), nullptr);
}

TEST(BlockArray, MakesTheBlockThatIsWrittenAndNoOther) {
  Table table;
  table[2][1] = 7;
  EXPECT_EQ(std::as_const(table)[2][1], 7);
  EXPECT_NE(table.Find(2), nullptr);
  EXPECT_EQ(table.Find(1), nullptr);
}

TEST(BlockArray, ChecksEveryIndexForReadingAndForWriting) {
  Table table;
  const Table& readable = table;
  for (const int index : {-1, 4}) {
    EXPECT_EQ(FaultOf([&] { table[index][0] = 1; }), FaultKind::subscript_out_of_range) << index;
    EXPECT_EQ(FaultOf([&] { (void)readable[index]; }), FaultKind::subscript_out_of_range) << index;
    EXPECT_EQ(FaultOf([&] { (void)readable.Find(index); }), FaultKind::subscript_out_of_range) << index;
  }
  EXPECT_EQ(FaultOf([&] { (void)readable[0][3]; }), FaultKind::subscript_out_of_range);
}

TEST(BlockArray, CopiesItsBlocksAndLeavesTheOtherAlone) {
  Table table;
  table[0][0] = 1;
  Table copy = table;
  copy[0][0] = 2;
  copy[3][0] = 3;
  EXPECT_EQ(table[0][0], 1);
  EXPECT_EQ(table.Find(3), nullptr);
  copy = table;
  EXPECT_EQ(copy[0][0], 1);
  EXPECT_EQ(copy.Find(3), nullptr);
}

TEST(BlockArray, IsEmptyAfterItWasMovedAway) {
  Table table;
  table[0][0] = 1;
  const Table moved = std::move(table);
  EXPECT_EQ(moved[0][0], 1);
  EXPECT_EQ(table, Table());  // NOLINT(bugprone-use-after-move)
}

TEST(BlockArray, EqualsByWhatItReadsNotByItsBlocks) {
  Table table;
  Table touched;
  touched[1][1] = 0;
  EXPECT_EQ(table, touched);
  touched[1][1] = 5;
  EXPECT_NE(table, touched);
  EXPECT_NE(touched, table);
}

}  // namespace
}  // namespace rbt
