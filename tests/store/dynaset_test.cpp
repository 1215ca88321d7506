// SPDX-License-Identifier: MIT
#include <array>

#include <gtest/gtest.h>

#include "store/database.h"
#include "store/database_impl.h"
#include "store/plain_file.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;

Value Whole(std::int64_t x) { return x; }

class EditingRows : public ::testing::Test {
 protected:
  Database Site(const std::string& sql) {
    test::RunPlain(file_, sql);
    return Database::Open(file_);
  }
  std::string Rows(const std::string& columns, const std::string& table = "T") const {
    return test::PlainText(
        file_, "SELECT group_concat(" + columns + ", ' ') FROM (SELECT * FROM " + table + " ORDER BY rowid)");
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(EditingRows, writes_the_fields_that_were_set) {
  Database site =
      Site("CREATE TABLE T(a LONG, b LONG, c TEXT(5)); INSERT INTO T VALUES(1, 10, 'x'), (2, 20, 'y')");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.MoveNext();
  rows.Edit();
  rows.Set("b", Whole(21));
  rows.Set("C", std::string("z"));
  rows.Update();
  EXPECT_EQ(Rows("a || '/' || b || '/' || c"), "1/10/x 2/21/z");
}

TEST_F(EditingRows, shows_what_was_set_before_and_after_the_update) {
  Database site = Site("CREATE TABLE T(a LONG, w CURRENCY); INSERT INTO T VALUES(1, 2)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  const FieldHandle a = rows.Field("a");
  rows.Edit();
  rows.Set(a, Whole(5));
  rows.Set("w", 0.23455);
  EXPECT_EQ(rows.Int32(a), 5);
  rows.Update();
  EXPECT_EQ(rows.Int32(a), 5);
  EXPECT_EQ(rows.Text(a), "5");
  EXPECT_EQ(rows.Get("w"), Value{Currency::FromTenThousandths(2346)});  // 2345.5 ten-thousandths, to even
  EXPECT_EQ(rows.Double(rows.Field("w")), 0.2346);
  rows.Edit();
  rows.Set(a, Value{});
  EXPECT_TRUE(rows.IsNull(a));
  rows.Update();
  EXPECT_EQ(rows.Int32(a), std::nullopt);
}

TEST_F(EditingRows, drops_an_edit_that_moves_on_without_update) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (2)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.Edit();
  rows.Set("a", Whole(9));
  rows.MoveNext();
  EXPECT_EQ(rows.Get("a"), Whole(2));
  ExpectFault(FaultKind::database, "neither Edit nor AddNew", [&] { rows.Update(); });
  ExpectFault(FaultKind::database, "neither Edit nor AddNew", [&] { rows.Set("a", Whole(9)); });
  EXPECT_EQ(Rows("a"), "1 2");
}

TEST_F(EditingRows, that_change_no_value_writes_nothing) {
  Database site =
      Site("CREATE TABLE T(a LONG, d DOUBLE, w CURRENCY, t TEXT(5)); INSERT INTO T VALUES('12', 6, 5, NULL)");
  sqlite3* const connection = site.impl().Connected().Handle();
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.Edit();
  rows.Set("a", Whole(12));
  rows.Set("d", Whole(6));
  rows.Set("w", Currency::FromInteger(5));
  rows.Set("t", Value{});
  rows.Set("a", Whole(13));
  rows.Set("a", Whole(12));
  rows.Update();
  EXPECT_EQ(sqlite3_total_changes64(connection), 0);
  EXPECT_EQ(rows.Get("a"), Whole(12));
}

TEST_F(EditingRows, converts_and_checks_by_the_declared_type) {
  Database site = Site(
      "CREATE TABLE T(n BYTE, s SHORT, l LONG, b BOOLEAN, f SINGLE, d DOUBLE, w CURRENCY, t TEXT(3), x "
      "BINARY_BLOB(2), p DECIMAL_TEXT(9,2), r LONG NOT NULL); INSERT INTO T(r) VALUES(0)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.Edit();
  const auto set = [&](const char* field, const Value& value) {
    rows.Set(field, value);
    return rows.Get(field);
  };
  EXPECT_EQ(set("l", 2.5), Whole(2));
  EXPECT_EQ(set("l", std::string("12")), Whole(12));
  EXPECT_EQ(set("l", Currency::FromTenThousandths(35000)), Whole(4));
  EXPECT_EQ(set("b", Whole(7)), Whole(-1));
  EXPECT_EQ(set("f", 0.1), Value{static_cast<double>(0.1F)});
  EXPECT_EQ(set("w", 900000000000.0), Value{Currency::FromInteger(900000000000)});
  EXPECT_EQ(set("t", std::string("壁筋Ａ")), Value{std::string("壁筋Ａ")});
  EXPECT_EQ(set("t", 1.5), Value{std::string("1.5")});
  EXPECT_EQ(set("x", Bytes{1, 2}), (Value{Bytes{1, 2}}));
  EXPECT_EQ(set("p", 12.5), Value{std::string("12.5")});
  EXPECT_TRUE(IsNull(set("t", Value{})));

  ExpectFault(FaultKind::overflow, "T.n", [&] { set("n", Whole(256)); });
  ExpectFault(FaultKind::overflow, "T.s: 32768", [&] { set("s", Whole(32768)); });
  ExpectFault(FaultKind::overflow, "T.l", [&] { set("l", 2147483647.5); });
  ExpectFault(FaultKind::overflow, "T.f", [&] { set("f", 1e39); });
  ExpectFault(FaultKind::overflow, "T.d", [&] { set("d", std::numeric_limits<double>::quiet_NaN()); });
  ExpectFault(FaultKind::overflow, "T.w", [&] { set("w", 900000000000.1); });
  ExpectFault(FaultKind::database, "T.t: the field is too small", [&] { set("t", std::string("壁筋ＡＢ")); });
  ExpectFault(FaultKind::type_mismatch, "T.t", [&] { set("t", Bytes{1}); });
  ExpectFault(FaultKind::type_mismatch, "T.l", [&] { set("l", std::string("D19")); });
  ExpectFault(FaultKind::type_mismatch, "T.x", [&] { set("x", std::string("D19")); });
  ExpectFault(FaultKind::database, "T.x", [&] { set("x", Bytes{1, 2, 3}); });
  ExpectFault(FaultKind::type_mismatch, "T.p", [&] { set("p", std::string("x")); });
  ExpectFault(FaultKind::invalid_use_of_null, "T.r", [&] { set("r", Value{}); });
  rows.Update();
  EXPECT_EQ(Rows("l || '/' || w"), "4/900000000000");
}

TEST_F(EditingRows, stores_currency_at_its_limit_exactly) {
  Database site = Site("CREATE TABLE T(w CURRENCY); INSERT INTO T VALUES(0)");
  const Currency amount = Currency::FromTenThousandths(8'999'999'999'999'999);
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.Edit();
  rows.Set("w", amount);
  EXPECT_EQ(rows.Get("w"), Value{amount});
  rows.Update();
  EXPECT_EQ(test::PlainText(file_, "SELECT w = 899999999999.9999 FROM T"), "1");
}

TEST_F(EditingRows, adds_a_row_of_defaults_nulls_and_what_was_set) {
  Database site = Site("CREATE TABLE T(a LONG, k LONG DEFAULT 0, t TEXT(5) DEFAULT \"\", z LONG)");
  const std::array<std::string_view, 3> fields = {"a", "k", "t"};
  Recordset rows = site.OpenDynaset("SELECT * FROM T", fields);
  rows.AddNew();
  EXPECT_TRUE(IsNull(rows.Get("a")));
  EXPECT_EQ(rows.Get("k"), Whole(0));
  EXPECT_EQ(rows.Get("t"), Value{std::string()});
  rows.Set("a", Whole(4));
  rows.Update();
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(Rows("ifnull(a, 'null') || '/' || k || '/' || quote(t) || quote(z)"), "4/0/''NULL null/0/''NULL");
}

TEST_F(EditingRows, adds_a_row_to_a_table_with_nothing_to_set) {
  Database site = Site("CREATE TABLE T(a LONG)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(test::PlainInteger(file_, "SELECT count(*) FROM T WHERE a IS NULL"), 1);
}

TEST_F(EditingRows, numbers_a_new_row_before_it_is_written) {
  Database site =
      Site("CREATE TABLE T(ID INTEGER PRIMARY KEY AUTOINCREMENT, a LONG); INSERT INTO T VALUES(7, 1)");
  site.Execute("DELETE * FROM T");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  for (const std::int64_t number : {8, 9}) {  // 7 was given once
    rows.AddNew();
    EXPECT_EQ(rows.Get("ID"), Whole(number));
    rows.Set("a", Whole(number * 10));
    rows.Update();
  }
  EXPECT_EQ(Rows("ID || '/' || a"), "8/80 9/90");
  rows.MoveFirst();
  rows.Edit();
  ExpectFault(FaultKind::database, "autonumber", [&] { rows.Set("ID", Whole(5)); });
}

TEST_F(EditingRows, numbers_a_new_row_also_when_the_number_is_not_read) {
  Database site = Site("CREATE TABLE T(N COUNTER_LONG, a LONG); INSERT INTO T VALUES(3, 0)");
  const std::array<std::string_view, 1> fields = {"a"};
  Recordset rows = site.OpenDynaset("SELECT * FROM T", fields);
  rows.AddNew();
  rows.Set("a", Whole(1));
  rows.Update();
  EXPECT_EQ(Rows("N || '/' || a"), "3/0 4/1");
}

TEST_F(EditingRows, deletes_the_current_row) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (2), (3)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.MoveNext();
  rows.Delete();
  ExpectFault(FaultKind::database, "the record is deleted", [&] { rows.Get("a"); });
  rows.MoveNext();
  EXPECT_EQ(rows.Get("a"), Whole(3));
  EXPECT_EQ(Rows("a"), "1 3");
}

TEST_F(EditingRows, faults_when_the_row_is_gone) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  site.Execute("DELETE * FROM T");
  rows.Edit();
  rows.Set("a", Whole(2));
  ExpectFault(FaultKind::database, "has been deleted", [&] { rows.Update(); });
}

TEST_F(EditingRows, can_be_mended_after_an_update_that_was_refused) {
  Database site =
      Site("CREATE TABLE T(k LONG PRIMARY KEY NOT NULL, a LONG); INSERT INTO T VALUES(1, 0), (2, 0)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  rows.Edit();
  rows.Set("k", Whole(2));
  ExpectFault(FaultKind::database, "UNIQUE", [&] { rows.Update(); });
  rows.Set("k", Whole(3));
  rows.Update();
  rows.AddNew();
  rows.Set("a", Whole(5));
  ExpectFault(FaultKind::invalid_use_of_null, "T.k", [&] { rows.Update(); });
  rows.Set("k", Whole(2));
  ExpectFault(FaultKind::database, "UNIQUE", [&] { rows.Update(); });
  rows.Set("k", Whole(4));
  rows.Update();
  EXPECT_EQ(Rows("k || '/' || a"), "3/0 2/0 4/5");
}

TEST_F(EditingRows, of_a_snapshot_or_of_groups_is_refused) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1)");
  Recordset rows = site.OpenSnapshot("SELECT * FROM T");
  ExpectFault(FaultKind::database, "snapshot", [&] { rows.Edit(); });
  ExpectFault(FaultKind::database, "snapshot", [&] { rows.AddNew(); });
  ExpectFault(FaultKind::database, "snapshot", [&] { rows.Delete(); });
  ExpectFault(FaultKind::database, "", [&] { site.OpenDynaset("SELECT a, Count(*) FROM T GROUP BY a"); });
}

TEST_F(EditingRows, behind_the_last_row_is_refused) {
  Database site = Site("CREATE TABLE T(a LONG)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  ExpectFault(FaultKind::database, "no current record", [&] { rows.Edit(); });
  ExpectFault(FaultKind::database, "no current record", [&] { rows.Delete(); });
}

/// Thirty rows, each edited so that it would move behind the others in whatever order is walked.
class EditingWhileWalking : public EditingRows, public ::testing::WithParamInterface<const char*> {};

TEST_P(EditingWhileWalking, visits_each_row_once_though_it_moves) {
  for (const char* table : {"CREATE TABLE T(n LONG, k LONG);", "CREATE TABLE T(n LONG, k LONG PRIMARY KEY);",
                            "CREATE TABLE T(n LONG, k INTEGER PRIMARY KEY);",
                            "CREATE TABLE T(n LONG, k LONG); CREATE INDEX I ON T(k, n);"}) {
    std::filesystem::remove(file_);
    Database site = Site(std::string(table) +
                         "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<30) "
                         "INSERT INTO T SELECT 0, i FROM c");
    Transaction together(site);
    int visited = 0;
    for (Recordset rows = site.OpenDynaset(GetParam()); !rows.Eof() && visited < 100; rows.MoveNext()) {
      ++visited;
      rows.Edit();
      rows.Set("n", Whole(*rows.Int32(rows.Field("n")) + 1));
      rows.Set("k", Whole(*rows.Int32(rows.Field("k")) + 1000));
      rows.Update();
      rows.Edit();  // a second edit finds the row where the first has put it
      rows.Set("n", Whole(*rows.Int32(rows.Field("n")) + 1));
      rows.Update();
    }
    together.Commit();
    EXPECT_EQ(visited, 30) << table;
    EXPECT_EQ(
        test::PlainText(file_, "SELECT group_concat(DISTINCT n) || '/' || min(k) || '/' || max(k) FROM T"),
        "2/1001/1030")
        << table;
  }
}

INSTANTIATE_TEST_SUITE_P(, EditingWhileWalking,
                         ::testing::Values("SELECT * FROM T", "SELECT * FROM T ORDER BY k",
                                           "SELECT * FROM T ORDER BY k DESC", "SELECT * FROM T WHERE k>0",
                                           "SELECT * FROM T WHERE k BETWEEN 1 AND 5000 ORDER BY k, n"));

TEST_F(EditingRows, adds_and_deletes_while_walking_without_meeting_the_new_rows) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1), (2), (3), (4)");
  Recordset rows = site.OpenDynaset("SELECT * FROM T");
  std::vector<std::int32_t> seen;
  for (; !rows.Eof() && seen.size() < 50; rows.MoveNext()) {
    const std::int32_t a = *rows.Int32(rows.Field("a"));
    seen.push_back(a);
    rows.AddNew();
    rows.Set("a", Whole(a + 10));
    rows.Update();
    if (a % 2 == 0) rows.Delete();
  }
  EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 2, 3, 4}));
  EXPECT_EQ(Rows("a"), "1 3 11 12 13 14");
  rows.MoveFirst();
  EXPECT_EQ(rows.RecordCount(), 6);
}

TEST_F(EditingRows, by_statements_run_together_ends_as_one_after_the_other) {
  // 138: 1 by the first, then 3 by the second, which sees the first's value; 1 and 2 stay as they are.
  Database site = Site("CREATE TABLE T(a LONG, b LONG); INSERT INTO T VALUES(138, 0), (1, 7), (2, NULL)");
  const std::vector<std::string> updates = {"UPDATE T SET b=1 WHERE a=138", "UPDATE T SET b=b+2 WHERE b=1"};
  EXPECT_EQ(site.ExecuteTogether(updates), 1);
  EXPECT_EQ(Rows("a || '/' || ifnull(b, 'null')"), "138/3 1/7 2/null");
  EXPECT_EQ(site.ExecuteTogether({}), 0);
  const std::vector<std::string> failing = {"UPDATE T SET b=1", "UPDATE T SET b=b/0"};
  ExpectFault(FaultKind::division_by_zero, "UPDATE T SET b=1 and 1 more",
              [&] { site.ExecuteTogether(failing); });
  EXPECT_EQ(Rows("a || '/' || ifnull(b, 'null')"), "138/3 1/7 2/null");
}

TEST_F(EditingRows, by_an_update_that_changes_no_value_writes_nothing) {
  Database site = Site("CREATE TABLE T(a LONG, b LONG); INSERT INTO T VALUES(1, 7), (2, 7)");
  EXPECT_EQ(site.Execute("UPDATE T SET b=8 WHERE a=1"), 1);
  EXPECT_EQ(site.Execute("UPDATE T SET b=8 WHERE a=1"), 0);
  EXPECT_EQ(sqlite3_total_changes64(site.impl().Connected().Handle()), 1);
}

}  // namespace
}  // namespace rbt
