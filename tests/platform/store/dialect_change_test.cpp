// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "platform/store/dialect_database.h"
namespace rbt::test {
namespace {
TEST(DialectChange, WritesTheDimensionsJoinedByCommas) {
  DialectDatabase db;
  db.DeclareTable("加工テーブル", "形状No LONG, 予備2 LONG, 寸法1 TEXT(20), 予備5 TEXT(255), 名称 TEXT(50)");
  db.Execute("INSERT INTO 加工テーブル(形状NO,予備2,寸法1) VALUES(1,2,'A')");
  db.Execute("INSERT INTO 加工テーブル(形状NO,予備2,寸法1) VALUES(3,NULL,'A')");
  EXPECT_EQ(db.Execute("UPDATE 加工テーブル SET 予備5 = 寸法1 & \",\" & 予備2 & \",\""), 2);
  EXPECT_EQ(db.Rows("SELECT 予備5, 予備2 FROM 加工テーブル WHERE IsNull(予備2)"),
            (std::vector<Row>{{"A,,", std::monostate{}}}));
}
}  // namespace
}  // namespace rbt::test
