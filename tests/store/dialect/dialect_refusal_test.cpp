// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/dialect/dialect_database.h"

namespace rbt::test {
namespace {

class DialectRefusal : public testing::Test {
 protected:
  DialectRefusal() {
    db_.DeclareTable("加工テーブル",
                     "太さ LONG, 名称 TEXT(20), 予備2 LONG, 枚 DECIMAL(9,2), 印 BOOLEAN, 図 OLE_BLOB");
  }

  std::string Message(std::string_view jet_sql) {
    try {
      TranslateJetSql(jet_sql, db_);
    } catch (const Fault& fault) {
      kind_ = fault.Kind();
      return fault.what();
    }
    return "taken";
  }

  DialectDatabase db_;
  FaultKind kind_ = FaultKind::file;
};

TEST_F(DialectRefusal, NamesThePlaceTheWordAndTheStatement) {
  EXPECT_EQ(
      Message("SELECT 太さ FROM 加工テーブル WHERE 厚さ = 1"),
      "no such field in 加工テーブル (character 29, 厚さ): SELECT 太さ FROM 加工テーブル WHERE 厚さ = 1");
  EXPECT_EQ(kind_, FaultKind::database);
  EXPECT_EQ(Message("SELECT * FROM 重量集計"),
            "no such table: 重量集計 (character 15, 重量集計): SELECT * FROM 重量集計");
  EXPECT_EQ(Message("SELECT * FROM 加工テーブル WHERE 太さ = "),
            "a value is expected (character 33, the end of the statement): SELECT * FROM 加工テーブル WHERE "
            "太さ = ");
  EXPECT_EQ(kind_, FaultKind::database);
}

TEST_F(DialectRefusal, AnOpenParenthesisIsOne) {
  EXPECT_THAT(Message("SELECT 太さ FROM 加工テーブル WHERE ( 太さ > 0 GROUP BY 太さ"),
              testing::HasSubstr(") is expected"));
  EXPECT_THAT(Message("SELECT * FROM 加工テーブル WHERE ((太さ=1) AND 太さ=2"),
              testing::HasSubstr(") is expected"));
}

TEST_F(DialectRefusal, ANumberAndATextDoNotMix) {
  for (const std::string_view condition :
       {"太さ = '10'", "名称 = 10", "名称 IN('a', 1)", "太さ Between 1 And 'z'", "-名称 = 1", "名称 + 1 = 2",
        "Fix(名称) = 1", "印 = 'x'"}) {
    EXPECT_THAT(Message("SELECT * FROM 加工テーブル WHERE " + std::string(condition)),
                testing::StartsWith("type mismatch: "))
        << condition;
    EXPECT_EQ(kind_, FaultKind::type_mismatch);
  }
  EXPECT_THAT(Message("SELECT Sum(名称) FROM 加工テーブル"), testing::StartsWith("type mismatch"));
  EXPECT_THAT(Message("UPDATE 加工テーブル SET 枚 = 1"), testing::StartsWith("type mismatch"));
  EXPECT_THAT(Message("UPDATE 加工テーブル SET 印 = 'x'"), testing::StartsWith("type mismatch"));
}

TEST_F(DialectRefusal, WhatTheDialectDoesNotKnow) {
  for (const std::string_view statement : {
           "",
           ";",
           "太さ",
           "SELECT",
           "SELECT FROM 加工テーブル",
           "SELECT * FROM",
           "SELECT * FROM 加工テーブル, 登録名",
           "SELECT * FROM 加工テーブル AS t",
           "SELECT DISTINCT 太さ FROM 加工テーブル",
           "SELECT * FROM 加工テーブル WHERE 太さ",
           "SELECT * FROM 加工テーブル WHERE 太さ = 1 AND 予備2",
           "SELECT * FROM 加工テーブル WHERE NOT 太さ",
           "SELECT * FROM 加工テーブル WHERE 太さ = 1 = 1",
           "SELECT * FROM 加工テーブル WHERE 名称 LIKE 'a*'",
           "SELECT * FROM 加工テーブル WHERE 太さ IS 1",
           "SELECT * FROM 加工テーブル WHERE 太さ IN()",
           "SELECT * FROM 加工テーブル WHERE 太さ Between 1",
           "SELECT * FROM 加工テーブル WHERE Left(名称,1)='a'",
           "SELECT * FROM 加工テーブル WHERE Sum(太さ) = 1",
           "SELECT * FROM 加工テーブル WHERE 他.太さ = 1",
           "SELECT * FROM 加工テーブル WHERE 図 = 1",
           "SELECT * FROM 加工テーブル GROUP BY 太さ",
           "SELECT 名称 FROM 加工テーブル GROUP BY 太さ",
           "SELECT 名称, Sum(太さ) FROM 加工テーブル",
           "SELECT 太さ FROM 加工テーブル GROUP BY 太さ ORDER BY 名称",
           "SELECT Sum(Sum(太さ)) FROM 加工テーブル",
           "SELECT Sum(*) FROM 加工テーブル",
           "SELECT IsNull(太さ, 1) FROM 加工テーブル",
           "SELECT 太さ AS a, 予備2 AS Ａ FROM 加工テーブル",
           "SELECT 太さ FROM 加工テーブル; SELECT 1",
           "SELECT 太さ FROM 加工テーブル -- 太さ",
           "SELECT #2024-01-01# FROM 加工テーブル",
           "SELECT 太さ　FROM 加工テーブル",
           "SELECT [太さ FROM 加工テーブル",
           "SELECT [] FROM 加工テーブル",
           "SELECT [a.b] FROM 加工テーブル",
           "SELECT 'a FROM 加工テーブル",
           "SELECT \"a FROM 加工テーブル",
           "SELECT \xE5\xA4 FROM 加工テーブル",
           "SELECT 1ｏr FROM 加工テーブル",
           "INSERT INTO 加工テーブル VALUES(1)",
           "INSERT INTO 加工テーブル(太さ) VALUES(1,2)",
           "INSERT INTO 加工テーブル(太さ) VALUES(予備2)",
           "INSERT INTO 加工テーブル(太さ,太さ) VALUES(1,2)",
           "INSERT INTO 加工テーブル(太さ) SELECT 太さ,予備2 FROM 加工テーブル",
           "UPDATE 加工テーブル SET 太さ=1, 太さ=2",
           "UPDATE 加工テーブル SET 太さ",
           "UPDATE 加工テーブル SET 厚さ=1",
           "UPDATE 加工テーブル SET 太さ=Sum(太さ)",
           "DELETE 厚さ FROM 加工テーブル",
           "DELETE 加工テーブル",
           "TRUNCATE 加工テーブル",
       }) {
    EXPECT_NE(Message(statement), "taken") << statement;
  }
}

TEST_F(DialectRefusal, GroupedRowsAreNotEdited) {
  EXPECT_THROW(TranslateJetSql("SELECT Sum(太さ) FROM 加工テーブル", db_, {.with_rowid = true}), Fault);
}

TEST_F(DialectRefusal, NestingWithoutEndDoesNotReachTheEndOfTheStack) {
  constexpr std::size_t kLevels = 100'000;
  const std::string head = "SELECT * FROM 加工テーブル WHERE ";
  std::string nots;
  std::string sum = "太さ = 1";
  for (std::size_t i = 0; i < kLevels; ++i) {
    nots += "NOT ";
    sum += " + 1";
  }
  EXPECT_THAT(Message(head + std::string(kLevels, '(')), testing::HasSubstr("nested too deeply"));
  EXPECT_THAT(Message(head + "太さ = " + std::string(kLevels, '-') + "1"),
              testing::HasSubstr("nested too deeply"));
  EXPECT_THAT(Message(head + nots + "太さ = 1"), testing::HasSubstr("nested too deeply"));
  EXPECT_THAT(Message(head + sum), testing::HasSubstr("nested too deeply"));
}

TEST_F(DialectRefusal, LongChainsOfOneOperatorAreNoNesting) {
  std::string condition = "太さ = 0";
  for (int i = 1; i < 500; ++i) condition += " OR 太さ = " + std::to_string(i);
  EXPECT_EQ(Message("SELECT * FROM 加工テーブル WHERE " + condition), "taken");
}

}  // namespace
}  // namespace rbt::test
