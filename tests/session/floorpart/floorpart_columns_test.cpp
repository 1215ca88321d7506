// SPDX-License-Identifier: MIT
#include "session/floorpart/floorpart_columns.h"

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

const PartNames kNames{"基礎", "柱", "大梁", "小梁", "スラブ", "壁", "雑", "八", "九", "十"};

std::string Widths(const std::vector<FloorPartColumn>& columns) {
  std::string text;
  for (const FloorPartColumn& column : columns) text += std::to_string(column.width) + " ";
  return text;
}

}  // namespace

TEST(GridOfFloors, HasAColumnForEachPartAndOneForTheRowNumberOutOfSight) {
  const std::vector<FloorPartColumn> columns = Set_dbgkai(kNames, false);
  ASSERT_EQ(columns.size(), 14U);
  EXPECT_EQ(columns[0], (FloorPartColumn{"　階　", 1100, true, true}));
  EXPECT_EQ(columns[1], (FloorPartColumn{"基礎", 1200, false, true}));
  EXPECT_EQ(columns[10].caption, "十");
  EXPECT_EQ(columns[11].caption, "その他");
  EXPECT_EQ(columns[12].caption, "合計");
  EXPECT_EQ(columns[13], (FloorPartColumn{"行No", 1000, false, false}));
  EXPECT_EQ(Widths(columns), "1100 1200 1100 1100 1100 1100 1100 1100 1100 1100 1250 1250 1350 1000 ");
}

TEST(GridOfFloors, GivesTwoColumnsMoreRoomWhereRowsAreStriped) {
  EXPECT_EQ(Widths(Set_dbgkai(kNames, true)),
            "1100 1200 1100 1100 1100 1100 1250 1250 1100 1100 1250 1250 1350 1000 ");
}

TEST(GridOfParts, HasAColumnForEachPart) {
  const std::vector<FloorPartColumn> columns = Set_dbgBui(kNames, false);
  ASSERT_EQ(columns.size(), 13U);
  EXPECT_EQ(columns[0], (FloorPartColumn{"太さ", 700, true, true}));
  EXPECT_EQ(columns[11].caption, "その他");
  EXPECT_EQ(Widths(columns), "700 1200 1200 1200 1200 1200 1200 1200 1200 1200 1250 1300 1350 ");
}

}  // namespace rbt::test
