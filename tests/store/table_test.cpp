// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/system/paths.h"
#include "store/database.h"
#include "store/plain_file.h"
#include "support/field.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;

class Tables : public ::testing::Test {
 protected:
  Database Site(const std::string& sql) {
    std::filesystem::remove(file_);
    test::RunPlain(file_, sql + ";CREATE TABLE x(y); DROP TABLE x");
    return Database::Open(file_);
  }
  std::string Plain(const std::string& sql) const { return test::PlainText(file_, sql); }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

using test::Field;

TableDef EveryType() {
  TableDef table{"全部", {}, {}};
  table.fields = {Field("論理", FieldType::boolean),     Field("バイト", FieldType::byte),
                  Field("短", FieldType::integer16),     Field("長", FieldType::integer32),
                  Field("単", FieldType::single),        Field("倍", FieldType::real),
                  Field("通貨", FieldType::currency),    Field("日時", FieldType::date_time),
                  Field("十進", FieldType::decimal, 10), Field("文字", FieldType::text, 50),
                  Field("メモ", FieldType::memo),        Field("識別", FieldType::guid),
                  Field("二進", FieldType::binary, 16),  Field("物", FieldType::ole),
                  Field("a \"b\" c", FieldType::text, 1)};
  table.fields[8].scale = 2;
  table.fields[3].required = true;
  table.fields[9].default_value = "'it''s'";
  table.fields[6].default_value = "0";
  table.indexes = {{"全部_pkey", true, true, {"文字", "長"}, {false, true}},
                   {"二進", false, true, {"二進"}, {}},
                   {"索引", false, false, {"短", "a \"b\" c"}, {true, false}}};
  return table;
}

TEST_F(Tables, are_of_the_same_words_while_they_are_the_same) {
  Database made = Database::CreateDatabase(file_);
  made.CreateTable(EveryType());
  const auto texts = made.TableTexts();
  EXPECT_EQ(texts.size(), 1);

  Database again = Database::CreateDatabase(folder_ / "GENBA002.MDB");
  again.CreateTable(EveryType());
  EXPECT_EQ(again.TableTexts(), texts);

  int number = 3;
  for (const char* change : {"CREATE INDEX n ON 全部(長)", "ALTER TABLE 全部 ADD COLUMN 新 long",
                             "DROP INDEX 全部_pkey ON 全部", "CREATE TABLE 別(a long)"}) {
    Database other = Database::CreateDatabase(folder_ / std::to_string(number++));
    other.CreateTable(EveryType());
    other.Execute(change);
    EXPECT_NE(other.TableTexts(), texts) << change;
  }
}

TEST_F(Tables, come_back_from_the_file_as_they_were_made) {
  const TableDef made = EveryType();
  {
    Database site = Database::CreateDatabase(file_);
    site.CreateTable(made);
  }
  Database site = Database::Open(file_);
  const auto read = site.FindTable("全部");
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->fields, made.fields);
  EXPECT_EQ(read->indexes, made.indexes);
}

TEST_F(Tables, with_an_autonumber_key_are_the_stores_own_kind) {
  Database site = Database::CreateDatabase(file_);
  TableDef made{"WorkTable", {Field("ID", FieldType::integer32), Field("登録AN", FieldType::integer32)}, {}};
  made.fields[0].autonumber = true;
  made.indexes = {{"PrimaryKey", true, true, {"ID"}, {}}};
  site.CreateTable(made);
  EXPECT_EQ(Plain("SELECT sql FROM sqlite_master WHERE name='WorkTable'"),
            "CREATE TABLE \"WorkTable\"(\"ID\" INTEGER PRIMARY KEY AUTOINCREMENT, \"登録AN\" LONG)");
  EXPECT_EQ(site.FindTable("worktable")->fields, made.fields);
  EXPECT_EQ(site.FindTable("worktable")->indexes, made.indexes);
}

TEST_F(Tables, made_by_a_statement_number_their_rows) {
  Database site = Database::CreateDatabase(file_);
  site.Execute(
      "CREATE TABLE WorkSumTable(ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 取付重量合計 Currency, 作業１ "
      "Double)");
  EXPECT_EQ(site.Execute("INSERT into WorkSumTable(登録AN) VALUES(4)"), 1);
  Recordset rows = site.OpenSnapshot("SELECT * FROM WorkSumTable");
  EXPECT_EQ(rows.Get("ID"), Value{std::int64_t{1}});
  const auto table = site.FindTable("WorkSumTable");
  ASSERT_EQ(table->indexes.size(), 1U);
  EXPECT_TRUE(table->indexes[0].primary);
  EXPECT_TRUE(table->fields[0].autonumber);
  EXPECT_EQ(table->FindField("作業1")->type, FieldType::real);
}

TEST_F(Tables, are_listed_in_the_order_of_their_creation_without_internal_ones) {
  Database site =
      Site("CREATE TABLE z(a INTEGER PRIMARY KEY AUTOINCREMENT); CREATE TABLE a(a); CREATE TABLE m(a)");
  std::string names;
  for (const TableDef& table : site.TableDefs()) names += table.name;
  EXPECT_EQ(names, "zam");
}

TEST_F(Tables, are_found_without_regard_to_case_and_width) {
  Database site = Site("CREATE TABLE ＷｏｒｋTable(a LONG)");
  EXPECT_EQ(site.FindTable("worktable")->name, "ＷｏｒｋTable");
  EXPECT_EQ(site.FindTable("無し"), nullptr);
  ExpectFault(FaultKind::database, "exists", [&] {
    site.CreateTable({"WORKTABLE", {Field("a", FieldType::integer32)}, {}});
  });
}

TEST_F(Tables, of_other_programs_are_read_in_any_spelling) {
  Database site = Site(
      "create table 加工テーブル (行No long, [太さ] Short, `伸定尺` double -- m\n, \"予備5\" text(255), /* "
      "kg */ 取付 "
      "CURRENCY default 0, d TEXT default \"\", e varchar(3) not null, constraint \"加工 key\" primary "
      "key(行No, 太さ), "
      "unique (予備5), constraint ひとつ unique(d))");
  const auto table = site.FindTable("加工テーブル");
  ASSERT_EQ(table->fields.size(), 7U);
  EXPECT_EQ(table->fields[0].type, FieldType::integer32);
  EXPECT_EQ(table->fields[1].type, FieldType::integer16);
  EXPECT_EQ(table->fields[2].type, FieldType::real);
  EXPECT_EQ(table->fields[3].type, FieldType::text);
  EXPECT_EQ(table->fields[3].size, 255);
  EXPECT_EQ(table->fields[4].default_value, "0");
  EXPECT_EQ(table->fields[5].default_value, "''");
  EXPECT_TRUE(table->fields[6].required);
  EXPECT_FALSE(table->fields[0].required);
  ASSERT_EQ(table->indexes.size(), 3U);
  EXPECT_EQ(table->indexes[0], (IndexDef{"加工 key", true, true, {"行No", "太さ"}, {}}));
  EXPECT_EQ(table->indexes[1].fields, (std::vector<std::string>{"予備5"}));
  EXPECT_EQ(table->indexes[2], (IndexDef{"ひとつ", false, true, {"d"}, {}}));
}

TEST_F(Tables, whose_key_nobody_named_have_the_usual_name_for_it) {
  Database site = Site(
      "CREATE TABLE a(k LONG PRIMARY KEY); CREATE TABLE b(k INTEGER PRIMARY KEY, v); "
      "CREATE TABLE c(k LONG, v LONG, PRIMARY KEY(v, k)); CREATE TABLE d(k LONG CONSTRAINT dd PRIMARY KEY)");
  for (const char* name : {"a", "b", "c"}) {
    const auto table = site.FindTable(name);
    ASSERT_EQ(table->indexes.size(), 1U) << name;
    EXPECT_EQ(table->indexes[0].name, "PrimaryKey") << name;
  }
  EXPECT_EQ(site.FindTable("c")->indexes[0].fields, (std::vector<std::string>{"v", "k"}));
  EXPECT_EQ(site.FindTable("d")->indexes[0].name, "dd");
}

TEST_F(Tables, changed_by_another_program_are_read_anew) {
  Database site = Site("CREATE TABLE T(a LONG)");
  EXPECT_EQ(site.FindTable("T")->fields.size(), 1U);
  test::RunPlain(file_, "ALTER TABLE T ADD COLUMN b LONG; CREATE TABLE U(a LONG)");
  EXPECT_EQ(site.FindTable("T")->fields.size(), 2U);
  EXPECT_NE(site.FindTable("U"), nullptr);
}

TEST_F(Tables, of_a_change_that_was_rolled_back_are_forgotten) {
  Database site = Site("CREATE TABLE T(a LONG)");
  {
    Transaction given_up(site);
    site.Execute("ALTER TABLE T ADD COLUMN b long;");
    EXPECT_NE(site.FindTable("T")->FindField("b"), nullptr);
  }
  test::RunPlain(file_, "ALTER TABLE T ADD COLUMN c LONG");  // the same schema version again
  EXPECT_EQ(site.FindTable("T")->FindField("b"), nullptr);
  EXPECT_NE(site.FindTable("T")->FindField("c"), nullptr);
}

TEST_F(Tables, may_have_indexes_of_one_name) {
  Database site = Site("CREATE TABLE T(a LONG); CREATE TABLE U(a LONG)");
  for (const char* table : {"T", "U"}) site.AppendIndex(table, {"番号", false, true, {"a"}, {}});
  EXPECT_EQ(site.FindTable("T")->indexes[0].name, "番号");
  EXPECT_EQ(site.FindTable("U")->indexes[0].name, "番号");
  site.Execute("DROP INDEX 番号 ON U");
  EXPECT_EQ(site.FindTable("T")->indexes.size(), 1U);
  EXPECT_TRUE(site.FindTable("U")->indexes.empty());
  ExpectFault(FaultKind::database, "", [&] { site.Execute("DROP INDEX 番号 ON U"); });
}

TEST_F(Tables, refuse_a_second_row_under_a_unique_index) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (1)");
  ExpectFault(FaultKind::database, "UNIQUE", [&] {
    site.AppendIndex("T", {"番号", false, true, {"a"}, {}});
  });
  ExpectFault(FaultKind::field_not_found, "T.b", [&] {
    site.AppendIndex("T", {"番号", false, true, {"b"}, {}});
  });
  ExpectFault(FaultKind::database, "無し", [&] {
    site.AppendIndex("無し", {"番号", false, true, {"b"}, {}});
  });
}

TEST_F(Tables, dropped_are_gone_and_dropping_again_faults) {
  Database site = Site("CREATE TABLE WorkTable(a LONG)");
  site.Execute("DROP TABLE WorkTable ");
  EXPECT_EQ(site.FindTable("WorkTable"), nullptr);
  ExpectFault(FaultKind::database, "WorkTable", [&] { site.Execute("DROP TABLE WorkTable "); });
}

TEST_F(Tables, get_a_field_whose_rows_hold_its_default_or_null) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (2)");
  site.Execute("ALTER TABLE T ADD COLUMN 取付重量合計 Currency;");
  FieldDef kind = Field("階", FieldType::integer32);
  kind.required = true;
  kind.default_value = "0";
  site.AppendField("T", kind);
  FieldDef number = Field("番", FieldType::integer32);
  number.autonumber = true;
  site.AppendField("T", number);
  EXPECT_EQ(Plain("SELECT group_concat(ifnull(取付重量合計, 'null') || '/' || 階 || '/' || 番, ' ') FROM T"),
            "null/0/1 null/0/2");
  EXPECT_EQ(*site.FindTable("T")->FindField("階"), kind);
  EXPECT_EQ(*site.FindTable("T")->FindField("番"), number);
  ExpectFault(FaultKind::database, "階", [&] { site.AppendField("t", kind); });
  ExpectFault(FaultKind::database, "",
              [&] { site.Execute("ALTER TABLE T ADD COLUMN 取付重量合計 Currency;"); });
}

/// An archive table as the template has it, two rows in an order that is not the key's.
constexpr const char* kArchive =
    "CREATE TABLE 重量集計名称(作成日 TEXT(8), 作成時間 TEXT(6), 重量集計名称 TEXT(50) DEFAULT '無題', 番 "
    "LONG NOT NULL, "
    "CONSTRAINT 重量集計名称_pkey PRIMARY KEY(作成日, 作成時間)); CREATE INDEX 番順 ON 重量集計名称(番 DESC) "
    "WHERE 番 > 0; "
    "INSERT INTO 重量集計名称 VALUES('20261121', '090000', 'い', 1), ('20250101', '100000', 'あ', 2)";

TEST_F(Tables, give_up_their_key_and_take_it_again_with_every_row_in_its_place) {
  Database site = Site(kArchive);
  const TableDef before = *site.FindTable("重量集計名称");
  site.Execute("DROP INDEX 重量集計名称_pkey ON 重量集計名称");
  ASSERT_EQ(site.FindTable("重量集計名称")->indexes.size(), 1U);
  EXPECT_EQ(site.Execute("INSERT INTO 重量集計名称(番) VALUES(5)"), 1);  // no key: null is let in
  site.Execute("DELETE * FROM 重量集計名称 WHERE 番=5");

  site.Execute("ALTER TABLE 重量集計名称 ADD CONSTRAINT 重量集計名称_pkey PRIMARY KEY(作成日,作成時間)");
  const auto after = site.FindTable("重量集計名称");
  EXPECT_EQ(after->fields, before.fields);
  EXPECT_EQ(after->indexes, before.indexes);
  EXPECT_EQ(Plain("SELECT group_concat(rowid || 重量集計名称, '') FROM 重量集計名称 NOT INDEXED"), "1い2あ");
  EXPECT_EQ(Plain("SELECT sql FROM sqlite_master WHERE name = '番順'"),
            "CREATE INDEX 番順 ON 重量集計名称(番 DESC) WHERE 番 > 0");
  EXPECT_EQ(Plain("PRAGMA integrity_check"), "ok");
  ExpectFault(FaultKind::invalid_use_of_null, "作成日",
              [&] { site.Execute("INSERT INTO 重量集計名称(作成時間, 番) VALUES('120000', 7)"); });
  ExpectFault(FaultKind::database, "UNIQUE", [&] {
    site.Execute("INSERT INTO 重量集計名称(作成日, 作成時間, 番) VALUES('20250101', '100000', 7)");
  });
}

TEST_F(Tables, refuse_a_key_over_duplicates_and_nulls_and_stay_as_they_were) {
  const std::string add = "ALTER TABLE T ADD CONSTRAINT T_pkey PRIMARY KEY(a, b)";
  for (const bool in_transaction : {false, true}) {
    Database site =
        Site("CREATE TABLE T(a LONG, b LONG, c LONG); INSERT INTO T VALUES(1, 1, 0), (2, 1, 0), (1, 1, 1)");
    const std::string before = Plain("SELECT sql FROM sqlite_master");
    std::unique_ptr<Transaction> together;
    if (in_transaction) together = std::make_unique<Transaction>(site);
    ExpectFault(FaultKind::database, "T_pkey", [&] { site.Execute(add); });
    site.Execute("UPDATE T SET b=null WHERE c=1");
    ExpectFault(FaultKind::invalid_use_of_null, "T.b", [&] { site.Execute(add); });
    EXPECT_TRUE(site.FindTable("T")->indexes.empty());
    if (together) together->Commit();
    EXPECT_EQ(Plain("SELECT sql FROM sqlite_master"), before);
    EXPECT_EQ(Plain("SELECT group_concat(a || ifnull(b, '-') || c, ' ') FROM T"), "110 210 1-1");
    site.Execute("UPDATE T SET b=2 WHERE c=1");
    site.Execute(add);
    EXPECT_EQ(site.FindTable("T")->indexes.size(), 1U);
    ExpectFault(FaultKind::database, "primary key", [&] {
      site.AppendIndex("T", {"zwei", true, true, {"c"}, {}});
    });
  }
}

TEST_F(Tables, keep_their_numbers_when_an_autonumber_key_is_dropped_and_added) {
  Database site = Site(
      "CREATE TABLE T(ID INTEGER PRIMARY KEY AUTOINCREMENT, a LONG); INSERT INTO T VALUES(5, 50), (3, 30)");
  site.Execute("DROP INDEX PrimaryKey ON T");
  EXPECT_EQ(Plain("SELECT type FROM pragma_table_info('T')  WHERE name='ID'"), "COUNTER_LONG");
  EXPECT_EQ(Plain("SELECT group_concat(ID || '/' || a, ' ') FROM T"), "3/30 5/50");
  EXPECT_TRUE(site.FindTable("T")->fields[0].autonumber);
  site.Execute("ALTER TABLE T ADD CONSTRAINT T_pkey PRIMARY KEY(ID)");
  EXPECT_EQ(Plain("SELECT group_concat(ID || '/' || a, ' ') FROM T NOT INDEXED"), "3/30 5/50");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.AddNew();
  EXPECT_EQ(rows.Get("ID"), Value{std::int64_t{6}});
}

TEST_F(Tables, give_up_a_unique_constraint_of_another_program) {
  Database site = Site(
      "CREATE TABLE T(ID INTEGER PRIMARY KEY AUTOINCREMENT, a LONG, CONSTRAINT ひとつ UNIQUE(a)); "
      "INSERT INTO T VALUES(9, 1), (10, 2); DELETE FROM T WHERE ID = 10");
  site.Execute("DROP INDEX ひとつ ON T");
  EXPECT_EQ(site.Execute("INSERT INTO T(a) VALUES(1)"), 1);
  EXPECT_EQ(Plain("SELECT group_concat(ID) FROM T"), "9,11");  // 10 was given once
}

TEST_F(Tables, that_carry_what_a_rebuild_would_lose_refuse_it) {
  for (const char* table :
       {"CREATE TABLE T(a LONG CHECK(a > 0))", "CREATE TABLE T(a TEXT COLLATE NOCASE)",
        "CREATE TABLE T(a LONG, b LONG REFERENCES T(a))", "CREATE TABLE T(a LONG, b LONG AS (a * 2))",
        "CREATE TABLE T(a TEXT) STRICT",
        "CREATE TABLE T(a LONG); CREATE TRIGGER r AFTER INSERT ON T BEGIN SELECT 1; END"}) {
    Database site = Site(table);
    ExpectFault(FaultKind::database, "which rebuilding it would lose",
                [&] { site.Execute("ALTER TABLE T ADD CONSTRAINT T_pkey PRIMARY KEY(a)"); });
  }
}

TEST_F(Tables, are_made_whole_or_not_at_all) {
  Database site = Site("");
  ExpectFault(FaultKind::database, "", [&] {
    site.CreateTable({"T", {Field("a", FieldType::integer32)}, {{"i", false, false, {"b"}, {}}}});
  });
  EXPECT_EQ(site.FindTable("T"), nullptr);
  ExpectFault(FaultKind::database, "two fields", [&] {
    site.CreateTable({"T", {Field("ＳＤ", FieldType::text, 5), Field("sd", FieldType::text, 5)}, {}});
  });
  ExpectFault(FaultKind::database, "no fields", [&] { site.CreateTable({"T", {}, {}}); });
}

TEST_F(Tables, of_the_programs_own_are_reached_by_their_names_and_listed_nowhere) {
  Database made = Database::CreateDatabase(file_);
  made.CreateTable(EveryType());
  const auto texts = made.TableTexts();
  TableDef own{"~own", {}, {}};
  own.fields.resize(1);
  own.fields[0].name = "number";
  made.CreateTable(own);
  made.Execute("INSERT INTO [~own] ([number]) VALUES (7)");
  EXPECT_TRUE(made.HasRows("SELECT * FROM [~own] WHERE [number] = 7"));
  EXPECT_NE(made.FindTable("~own"), nullptr);
  EXPECT_EQ(made.TableTexts(), texts);
  EXPECT_EQ(made.TableDefs().size(), 1U);
}

}  // namespace
}  // namespace rbt
