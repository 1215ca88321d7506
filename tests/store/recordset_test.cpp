// SPDX-License-Identifier: MIT
#include "store/recordset.h"

#include <array>

#include <gtest/gtest.h>

#include "store/database.h"
#include "store/plain_file.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;

/// A file as another program makes it: any spelling of the types, values in other forms than the type's own.
class ReadingRows : public ::testing::Test {
 protected:
  Database Site(const std::string& sql) {
    test::RunPlain(file_, sql);
    return Database::Open(file_);
  }
  Value Only(const std::string& column, const std::string& literal) {
    std::filesystem::remove(file_);
    Database site = Site("CREATE TABLE T(f " + column + "); INSERT INTO T VALUES(" + literal + ")");
    return site.OpenSnapshot("SELECT * FROM T").Get("f");
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(ReadingRows, gives_each_value_by_its_declared_type) {
  EXPECT_EQ(Only("LONG", "-5"), Value{std::int64_t{-5}});
  EXPECT_EQ(Only("short", "16"), Value{std::int64_t{16}});
  EXPECT_EQ(Only("Byte", "255"), Value{std::int64_t{255}});
  EXPECT_EQ(Only("BOOLEAN", "-1"), Value{std::int64_t{-1}});
  EXPECT_EQ(Only("Double", "5.5"), Value{5.5});
  EXPECT_EQ(Only("SINGLE", "0.5"), Value{0.5});
  EXPECT_EQ(Only("DATETIME", "46000.25"), Value{46000.25});
  EXPECT_EQ(Only("currency", "0.235"), Value{Currency::FromTenThousandths(2350)});
  EXPECT_EQ(Only("TEXT(20)", "'D19'"), Value{std::string("D19")});
  EXPECT_EQ(Only("MEMO_TEXT", "'覚書'"), Value{std::string("覚書")});
  EXPECT_EQ(Only("GUID_TEXT", "'{1}'"), Value{std::string("{1}")});
  EXPECT_EQ(Only("DECIMAL_TEXT(10,2)", "'12.50'"), Value{std::string("12.50")});
  EXPECT_EQ(Only("OLE_BLOB", "x'0102'"), (Value{Bytes{1, 2}}));
  EXPECT_EQ(Only("BINARY_BLOB(4)", "x'00'"), (Value{Bytes{0}}));
}

TEST_F(ReadingRows, gives_null_for_null_of_every_type) {
  for (const char* type : {"LONG", "DOUBLE", "CURRENCY", "TEXT(5)", "OLE_BLOB", ""}) {
    EXPECT_TRUE(IsNull(Only(type, "NULL"))) << type;
  }
}

TEST_F(ReadingRows, takes_a_number_stored_in_another_form) {
  EXPECT_EQ(Only("DOUBLE", "5"), Value{5.0});
  EXPECT_EQ(Only("LONG", "5.0"), Value{std::int64_t{5}});
  EXPECT_EQ(Only("LONG", "2.5"), Value{std::int64_t{2}});  // halves to even
  EXPECT_EQ(Only("LONG", "3.5"), Value{std::int64_t{4}});
  EXPECT_EQ(Only("LONG", "' 1,200 '"), Value{std::int64_t{1200}});
  EXPECT_EQ(Only("CURRENCY", "12"), Value{Currency::FromInteger(12)});
  EXPECT_EQ(Only("CURRENCY", "0.00005"), Value{Currency{}});  // half a ten-thousandth, to even
  EXPECT_EQ(Only("TEXT(20)", "1200"), Value{std::string("1200")});
}

TEST_F(ReadingRows, faults_on_a_text_that_is_no_number_naming_table_and_field) {
  ExpectFault(FaultKind::type_mismatch, "T.f", [&] { Only("LONG", "'D19'"); });
  ExpectFault(FaultKind::type_mismatch, "T.f", [&] { Only("CURRENCY", "x'01'"); });
  ExpectFault(FaultKind::overflow, "T.f", [&] { Only("CURRENCY", "1e12"); });
}

TEST_F(ReadingRows, reads_types_it_was_never_told_of_as_they_are_stored) {
  EXPECT_EQ(Only("INTEGER", "5"), Value{std::int64_t{5}});
  EXPECT_EQ(Only("REAL", "0.1"), Value{0.1});
  EXPECT_EQ(Only("VARCHAR(10)", "'x'"), Value{std::string("x")});
  EXPECT_EQ(Only("", "5"), Value{std::int64_t{5}});
  EXPECT_EQ(Only("", "'x'"), Value{std::string("x")});
  EXPECT_EQ(Only("GEOMETRY", "2.5"), Value{2.5});
}

TEST_F(ReadingRows, reads_numbers_and_texts_without_the_way_through_a_value) {
  Database site = Site(
      "CREATE TABLE T(a LONG, b DOUBLE, c TEXT(9), n LONG); INSERT INTO T VALUES(7, 6, 'D19', NULL), "
      "(9999999999, 1, '12', 1), (2.5, 'x', '1 ', 1)");
  Recordset rows = site.OpenSnapshot("SELECT * FROM T");
  const FieldHandle a = rows.Field("a");
  const FieldHandle b = rows.Field("b");
  const FieldHandle c = rows.Field("c");
  const FieldHandle n = rows.Field("n");
  EXPECT_EQ(rows.Int32(a), 7);
  EXPECT_EQ(rows.Double(a), 7.0);
  EXPECT_EQ(rows.Text(a), "7");
  EXPECT_EQ(rows.Int32(b), 6);
  EXPECT_EQ(rows.Text(c), "D19");
  EXPECT_TRUE(rows.IsNull(n));
  EXPECT_EQ(rows.Int32(n), std::nullopt);
  EXPECT_EQ(rows.Double(n), std::nullopt);
  EXPECT_EQ(rows.Text(n), std::nullopt);
  rows.MoveNext();
  ExpectFault(FaultKind::overflow, "T.a", [&] { rows.Int32(a); });
  EXPECT_EQ(rows.Get(a), Value{std::int64_t{9999999999}});
  EXPECT_EQ(rows.Int32(c), 12);
  rows.MoveNext();
  EXPECT_EQ(rows.Int32(a), 2);
  ExpectFault(FaultKind::type_mismatch, "T.b", [&] { rows.Double(b); });
}

TEST_F(ReadingRows, finds_fields_without_regard_to_case_and_width) {
  Database site =
      Site("CREATE TABLE 重量集計(ＳＤ LONG, \"3500mm\" LONG); INSERT INTO 重量集計 VALUES(4, 5)");
  const Recordset rows = site.OpenSnapshot("SELECT * FROM 重量集計");
  EXPECT_EQ(rows.Int32(rows.Field("sd")), 4);
  EXPECT_EQ(rows.Int32(rows.Field("３５００MM")), 5);
  EXPECT_EQ(rows.FieldName(rows.Field("SD")), "ＳＤ");
  EXPECT_EQ(rows.FieldCount(), 2);
  EXPECT_FALSE(rows.FindField("径").has_value());
  ExpectFault(FaultKind::field_not_found, "重量集計.径", [&] { rows.Field("径"); });
}

TEST_F(ReadingRows, walks_in_table_order_and_again_from_the_first) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(3), (1), (2)");
  Recordset rows = site.OpenSnapshot("SELECT * FROM T");
  for (int pass = 0; pass < 2; ++pass) {
    std::vector<std::int32_t> seen;
    for (; !rows.Eof(); rows.MoveNext()) seen.push_back(*rows.Int32(rows.Field("a")));
    EXPECT_EQ(seen, (std::vector<std::int32_t>{3, 1, 2}));
    rows.MoveFirst();
  }
  EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(ReadingRows, behind_the_last_row_faults) {
  Database site = Site("CREATE TABLE T(a LONG)");
  Recordset rows = site.OpenSnapshot("SELECT * FROM T");
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(rows.RecordCount(), 0);
  const FieldHandle a = rows.Field("a");
  ExpectFault(FaultKind::database, "no current record", [&] { rows.Get(a); });
  ExpectFault(FaultKind::database, "no current record", [&] { rows.Int32(a); });
  ExpectFault(FaultKind::database, "no current record", [&] { rows.MoveNext(); });
  rows.MoveFirst();
  EXPECT_TRUE(rows.Eof());
}

TEST_F(ReadingRows, narrowed_to_fields_leaves_out_those_the_table_lacks) {
  Database site = Site("CREATE TABLE T(a LONG, b LONG, c LONG); INSERT INTO T VALUES(1, 2, 3)");
  const std::array<std::string_view, 3> wanted = {"C", "切断", "a"};
  const Recordset rows = site.OpenSnapshot("SELECT * FROM T", wanted);
  EXPECT_EQ(rows.FieldCount(), 2);
  EXPECT_EQ(rows.Int32(rows.Field("c")), 3);
  EXPECT_FALSE(rows.FindField("切断").has_value());
  EXPECT_FALSE(rows.FindField("b").has_value());
}

TEST_F(ReadingRows, narrowed_to_no_field_of_the_table_still_counts_the_rows) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (2)");
  const std::array<std::string_view, 1> wanted = {"切断"};
  for (const bool editable : {false, true}) {
    Recordset rows =
        editable ? site.OpenDynaset("SELECT * FROM T", wanted) : site.OpenSnapshot("SELECT * FROM T", wanted);
    int count = 0;
    for (; !rows.Eof(); rows.MoveNext()) ++count;
    EXPECT_EQ(count, 2);
  }
}

TEST_F(ReadingRows, of_a_group_gives_sums_and_their_count) {
  Database site = Site(
      "CREATE TABLE T(太さ LONG, 重量 CURRENCY); INSERT INTO T VALUES(13, 1.5), (10, 0.25), (13, 2), (NULL, "
      "4)");
  Recordset rows = site.OpenSnapshot("SELECT 太さ, Sum(重量) FROM T GROUP BY 太さ");
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_TRUE(rows.IsNull(FieldHandle{0}));  // nulls first
  rows.MoveNext();
  EXPECT_EQ(rows.Get(FieldHandle{0}), Value{std::int64_t{10}});
  rows.MoveNext();
  EXPECT_EQ(rows.Double(FieldHandle{1}), 3.5);
}

TEST_F(ReadingRows, of_a_statement_that_fails_names_file_and_statement) {
  Database site = Site("CREATE TABLE T(a LONG)");
  ExpectFault(FaultKind::database, "GENBA001.MDB", [&] { site.OpenSnapshot("SELECT * FROM 無し"); });
  ExpectFault(FaultKind::database, "UPDATE T SET a=1", [&] { site.OpenSnapshot("UPDATE T SET a=1"); });
  ExpectFault(FaultKind::database, "SELECT * FROM T", [&] { site.Execute("SELECT * FROM T"); });
}

TEST_F(ReadingRows, tells_whether_there_are_any) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1)");
  EXPECT_TRUE(site.HasRows("SELECT * FROM T WHERE a=1"));
  EXPECT_FALSE(site.HasRows("SELECT * FROM T WHERE a=2"));
}

TEST_F(ReadingRows, keeps_the_runtimes_words_of_a_failing_statement) {
  Database site = Site("CREATE TABLE T(a LONG, s SHORT, d DOUBLE); INSERT INTO T VALUES(70000, 1, 0)");
  ExpectFault(FaultKind::overflow, "UPDATE T SET s=a", [&] { site.Execute("UPDATE T SET s=a"); });
  ExpectFault(FaultKind::division_by_zero, "GENBA001.MDB", [&] { site.Execute("UPDATE T SET d=a/d"); });
  EXPECT_EQ(test::PlainInteger(file_, "SELECT s FROM T"), 1);
}

}  // namespace
}  // namespace rbt
