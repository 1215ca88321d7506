// SPDX-License-Identifier: MIT
#include "store/bulk_insert.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/plain_file.h"
#include "support/field.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using testing::HasSubstr;

using test::Field;

/// 登録AN counts and is the key.
TableDef Counted() {
  TableDef table{"登録名", {Field("登録AN", FieldType::integer32), Field("名", FieldType::text, 4)}, {}};
  table.fields[0].autonumber = true;
  table.indexes = {{"登録名_pkey", true, true, {"登録AN"}, {}}};
  return table;
}

TableDef Weights() {
  TableDef table{
      "重量", {Field("材質", FieldType::integer32), Field("全 \"重量\"", FieldType::currency)}, {}};
  table.indexes = {{"重量_pkey", true, true, {"材質"}, {}}};
  return table;
}

class BulkInserts : public testing::Test {
 protected:
  BulkInserts() {
    for (const TableDef& table : {Counted(), Weights()}) database_.CreateTable(table);
  }

  std::string Plain(const std::string& sql) const { return test::PlainText(file_, sql); }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "HIROI001.mdb";
  Database database_ = Database::CreateDatabase(file_);
};

using Row = std::vector<Value>;

TEST_F(BulkInserts, AppendRowsWithTheNumbersThatTheyBring) {
  BulkInsert insert(database_, Counted());
  EXPECT_EQ(insert.Append(Row{std::int64_t{7}, "梁"}), std::nullopt);
  EXPECT_EQ(insert.Append(Row{std::int64_t{3}, Value{}}), std::nullopt);
  EXPECT_EQ(Plain("SELECT group_concat(登録AN || '=' || ifnull(名, 'null'), ' ') FROM 登録名"),
            "3=null 7=梁");
}

TEST_F(BulkInserts, TellTheNumberByWhichTheStoreKnowsTheLastRow) {
  BulkInsert counted(database_, Counted());
  counted.Append(Row{std::int64_t{7}, "梁"});
  EXPECT_EQ(counted.LastRow(), 7);
  counted.Append(Row{std::int64_t{3}, "柱"});
  EXPECT_EQ(counted.LastRow(), 3);
}

TEST_F(BulkInserts, ConvertByTheFieldsType) {
  BulkInsert insert(database_, Weights());
  EXPECT_EQ(insert.Append(Row{"12", 1.23456}), std::nullopt);
  EXPECT_EQ(Plain("SELECT typeof(材質) || ' ' || typeof(\"全 \"\"重量\"\"\") || ' ' || \"全 \"\"重量\"\"\" "
                  "FROM 重量"),
            "integer real 1.2346");
}

TEST_F(BulkInserts, TellWhyARowIsRefusedAndGoOn) {
  BulkInsert insert(database_, Weights());
  ASSERT_EQ(insert.Append(Row{std::int64_t{1}, 2.0}), std::nullopt);
  EXPECT_THAT(insert.Append(Row{std::int64_t{1}, 3.0}).value_or(""),
              HasSubstr("another row has the same key: 重量.材質"));
  EXPECT_THAT(insert.Append(Row{Value{}, 3.0}).value_or(""),
              HasSubstr("null where a value is due: 重量.材質"));
  EXPECT_THAT(insert.Append(Row{"x", 3.0}).value_or(""), HasSubstr("type mismatch: 重量.材質"));
  EXPECT_THAT(insert.Append(Row{std::int64_t{2}, 1e18}).value_or(""), HasSubstr("overflow: "));
  EXPECT_EQ(insert.Append(Row{std::int64_t{2}, 4.0}), std::nullopt);
  EXPECT_EQ(test::PlainInteger(file_, "SELECT count(*) FROM 重量"), 2);
}

TEST_F(BulkInserts, ARowThatTheFileCannotTakeIsAFault) {
  BulkInsert insert(database_, Weights());
  database_.Execute("DROP TABLE 重量");
  test::ExpectFault(FaultKind::database, "a row of 重量", [&] { insert.Append(Row{std::int64_t{1}, 2.0}); });
}

TEST_F(BulkInserts, NumbersGoOnBehindTheLastThatWasGiven) {
  BulkInsert insert(database_, Counted());
  insert.Append(Row{std::int64_t{5}, "a"});
  insert.NumberFrom(9);
  insert.NumberFrom(2);
  database_.Execute("INSERT INTO 登録名 (名) VALUES ('b')");
  EXPECT_EQ(test::PlainInteger(file_, "SELECT max(登録AN) FROM 登録名"), 10);
}

TEST_F(BulkInserts, NumbersGoOnThoughAllRowsWent) {
  BulkInsert insert(database_, Counted());
  insert.NumberFrom(9);
  database_.Execute("INSERT INTO 登録名 (名) VALUES ('b')");
  EXPECT_EQ(test::PlainInteger(file_, "SELECT max(登録AN) FROM 登録名"), 10);
}

TEST_F(BulkInserts, NumbersGivenAtRandomTellNothingOfTheNextOne) {
  BulkInsert insert(database_, Counted());
  insert.NumberFrom(0x80000000U);
  insert.NumberFrom(0);
  BulkInsert(database_, Weights()).NumberFrom(9);
  EXPECT_EQ(test::PlainInteger(file_, "SELECT count(*) FROM sqlite_sequence"), 0);
}

}  // namespace
}  // namespace rbt
