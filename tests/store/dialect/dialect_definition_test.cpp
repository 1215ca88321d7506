// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/dialect/dialect_database.h"

namespace rbt::test {
namespace {

template <typename Kind>
Kind Translate(std::string_view jet_sql, const DialectDatabase& db) {
  return std::get<Kind>(TranslateJetSql(jet_sql, db));
}

TEST(DialectDefinition, CreateTableGivesFieldsAndKeysAsTheyAreWritten) {
  DialectDatabase db;
  const TableDef table =
      Translate<CreateTableStatement>(
          "CREATE TABLE WorkTable (ID AUTOINCREMENT CONSTRAINT pk PRIMARY KEY, 登録名 TEXT(50) NOT NULL, "
          "[3500mm] long, 単位重量 Currency, 作業１ Double, UNIQUE (登録名, [3500mm]))",
          db)
          .table;
  ASSERT_EQ(table.fields.size(), 5U);
  EXPECT_EQ(table.fields[0], (FieldDef{.name = "ID", .autonumber = true}));
  EXPECT_EQ(table.fields[1],
            (FieldDef{.name = "登録名", .type = FieldType::text, .size = 50, .required = true}));
  EXPECT_EQ(table.fields[2], (FieldDef{.name = "3500mm"}));
  EXPECT_EQ(table.fields[3], (FieldDef{.name = "単位重量", .type = FieldType::currency}));
  EXPECT_EQ(table.fields[4], (FieldDef{.name = "作業１", .type = FieldType::real}));
  ASSERT_EQ(table.indexes.size(), 2U);
  EXPECT_EQ(table.indexes[0], (IndexDef{.name = "pk", .primary = true, .unique = true, .fields = {"ID"}}));
  EXPECT_EQ(table.indexes[1],
            (IndexDef{.name = "登録名", .primary = false, .unique = true, .fields = {"登録名", "3500mm"}}));
}

TEST(DialectDefinition, AnUnnamedPrimaryKeyIsNamedPrimaryKey) {
  DialectDatabase db;
  const TableDef table =
      Translate<CreateTableStatement>("CREATE TABLE W (ID COUNTER, PRIMARY KEY(id));", db).table;
  EXPECT_EQ(table.indexes.at(0).name, "PrimaryKey");
  EXPECT_EQ(table.indexes.at(0).fields, std::vector<std::string>{"ID"});
}

TEST(DialectDefinition, AlterTableAddsAColumnOrAKey) {
  DialectDatabase db;
  db.DeclareTable("登録名", "登録AN LONG, ＳＤ TEXT(20)");
  const auto add = Translate<AddColumnStatement>("ALTER TABLE 登録名 ADD COLUMN 取付重量合計 Currency;", db);
  EXPECT_EQ(add.table, "登録名");
  EXPECT_EQ(add.field, (FieldDef{.name = "取付重量合計", .type = FieldType::currency}));
  const auto key = Translate<AddPrimaryKeyStatement>(
      "ALTER TABLE 登録名 ADD CONSTRAINT 登録名_pkey PRIMARY KEY(登録an,SD)", db);
  EXPECT_EQ(key.constraint, "登録名_pkey");
  EXPECT_EQ(key.fields, (std::vector<std::string>{"登録AN", "ＳＤ"}));
}

TEST(DialectDefinition, IndexesAreMadeAndDropped) {
  DialectDatabase db;
  TableDef table{.name = "重量集計", .fields = {{.name = "太さ"}, {.name = "階"}}, .indexes = {}};
  table.indexes.push_back({.name = "重量集計_pkey", .primary = true, .unique = true, .fields = {"太さ"}});
  db.Add(table);
  const auto drop = Translate<DropIndexStatement>("DROP INDEX 重量集計_PKEY ON 重量集計", db);
  EXPECT_EQ(drop.index, "重量集計_pkey");
  EXPECT_EQ(drop.table, "重量集計");
  const auto create =
      Translate<CreateIndexStatement>("CREATE UNIQUE INDEX i ON 重量集計 (階 DESC, 太さ)", db);
  EXPECT_EQ(create.index,
            (IndexDef{.name = "i", .unique = true, .fields = {"階", "太さ"}, .descending = {true, false}}));
  EXPECT_EQ(Translate<DropTableStatement>("DROP TABLE 重量集計 ", db).table, "重量集計");
}

TEST(DialectDefinition, WhatExistsOrIsMissingIsRefused) {
  DialectDatabase db;
  TableDef table{.name = "T", .fields = {{.name = "a"}}, .indexes = {}};
  table.indexes.push_back({.name = "pk", .primary = true, .unique = true, .fields = {"a"}});
  db.Add(table);
  for (const std::string_view statement :
       {"CREATE TABLE t (a LONG)", "CREATE TABLE U (a LONG, Ａ LONG)", "CREATE TABLE U (a WORD)",
        "CREATE TABLE U (a LONG, PRIMARY KEY(b))", "CREATE TABLE U (a LONG PRIMARY KEY, b LONG PRIMARY KEY)",
        "CREATE TABLE U (PRIMARY KEY(a))", "ALTER TABLE T ADD COLUMN A long",
        "ALTER TABLE U ADD COLUMN a long", "ALTER TABLE T ADD CONSTRAINT q PRIMARY KEY(a)", "DROP TABLE U",
        "DROP INDEX q ON T", "DROP INDEX pk ON U", "CREATE INDEX pk ON T (a)", "CREATE INDEX q ON T (b)",
        "CREATE INDEX q ON T (a, a)"}) {
    EXPECT_THROW(TranslateJetSql(statement, db), Fault) << statement;
  }
}

}  // namespace
}  // namespace rbt::test
