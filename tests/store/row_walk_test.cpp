// SPDX-License-Identifier: MIT
#include "store/row_walk.h"

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/plain_file.h"
#include "support/fault_of.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;
using test::FaultTextOf;
using testing::ElementsAre;

class WalkingRows : public ::testing::Test {
 protected:
  Database Site(const std::string& sql) {
    test::RunPlain(file_, sql);
    return Database::Open(file_);
  }
  static std::vector<std::int32_t> Numbers(Database& site, std::string_view jet_sql) {
    RowWalk walk(site, jet_sql);
    const FieldHandle a = walk.Field("a");
    std::vector<std::int32_t> numbers;
    walk.Run([&](const WalkedRow& row) { numbers.push_back(row.Int32(a).value_or(-1)); });
    return numbers;
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(WalkingRows, gives_each_row_in_table_order) {
  Database site = Site("CREATE TABLE T(a LONG, b LONG); INSERT INTO T VALUES(3,1),(NULL,1),(2,0),(1,1)");
  EXPECT_THAT(Numbers(site, "SELECT * FROM T"), ElementsAre(3, -1, 2, 1));
  EXPECT_THAT(Numbers(site, "SELECT a FROM T WHERE b = 1"), ElementsAre(3, -1, 1));
  EXPECT_THAT(Numbers(site, "SELECT * FROM T WHERE b = 7"), ElementsAre());
}

TEST_F(WalkingRows, keeps_table_order_whatever_indexes_there_are) {
  Database site = Site(
      "CREATE TABLE T(a LONG, b LONG); CREATE INDEX byA ON T(a); CREATE INDEX covering ON T(b, a);"
      "INSERT INTO T VALUES(3,1),(5,1),(2,0),(1,1)");
  EXPECT_THAT(Numbers(site, "SELECT * FROM T WHERE b BETWEEN 1 AND 2"), ElementsAre(3, 5, 1));
  EXPECT_THAT(Numbers(site, "SELECT a FROM T WHERE a BETWEEN 1 AND 4"), ElementsAre(3, 2, 1));
}

TEST_F(WalkingRows, keeps_an_order_of_the_statements_own) {
  Database site = Site("CREATE TABLE T(a LONG, b LONG); INSERT INTO T VALUES(3,1),(5,0),(2,0),(1,1)");
  EXPECT_THAT(Numbers(site, "SELECT * FROM T ORDER BY b, a DESC"), ElementsAre(5, 2, 3, 1));
}

TEST_F(WalkingRows, reads_the_fields_asked_for_by_their_names) {
  Database site = Site("CREATE TABLE T(x TEXT(5), a LONG, d DOUBLE); INSERT INTO T VALUES('t',3,0.5)");
  const std::array<std::string_view, 3> fields = {"d", "missing", "a"};
  RowWalk walk(site, "SELECT * FROM T", fields);
  EXPECT_FALSE(walk.FindField("x"));
  EXPECT_FALSE(walk.FindField("missing"));
  walk.Run([&](const WalkedRow& row) {
    EXPECT_EQ(row.Int32(walk.Field("Ａ")), 3);
    EXPECT_EQ(row.Double(walk.Field("d")), 0.5);
  });
}

TEST_F(WalkingRows, tells_a_missing_field_as_a_recordset_does) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(3)");
  EXPECT_EQ(FaultTextOf([&] { RowWalk(site, "SELECT * FROM T").Field("b"); }),
            FaultTextOf([&] { site.OpenSnapshot("SELECT * FROM T").Field("b"); }));
  constexpr std::string_view kFaulting = "SELECT * FROM T WHERE 1 / (a - 3) = 1";
  EXPECT_EQ(FaultTextOf([&] { RowWalk(site, kFaulting).Field("b"); }),
            FaultTextOf([&] { site.OpenSnapshot(kFaulting); }));
}

TEST_F(WalkingRows, faults_as_a_recordset_does) {
  for (const char* value : {"'D19'", "' 12 '", "2.5", "9999999999", "1e300", "x'01'", "''"}) {
    std::filesystem::remove(file_);
    Database site = Site(std::string("CREATE TABLE T(a LONG); INSERT INTO T VALUES(") + value + ")");
    const auto shown = [](const auto& read) -> std::string {
      try {
        return std::to_string(read().value());
      } catch (const Fault& fault) {
        return fault.what();
      }
    };
    const auto walked = [&](auto method) {
      return shown([&] {
        RowWalk walk(site, "SELECT * FROM T");
        decltype((std::declval<const WalkedRow&>().*method)(FieldHandle{})) read;
        walk.Run([&](const WalkedRow& row) { read = (row.*method)(FieldHandle{0}); });
        return read;
      });
    };
    const Recordset rows = site.OpenSnapshot("SELECT * FROM T");
    EXPECT_EQ(walked(&WalkedRow::Int32), shown([&] { return rows.Int32(FieldHandle{0}); })) << value;
    EXPECT_EQ(walked(&WalkedRow::Double), shown([&] { return rows.Double(FieldHandle{0}); })) << value;
  }
}

TEST_F(WalkingRows, ends_with_what_the_taker_throws_at_that_row) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1),(2),(0),(4)");
  int seen = 0;
  RowWalk walk(site, "SELECT * FROM T WHERE 6 / a > 0");
  EXPECT_THROW(walk.Run([&](const WalkedRow&) {
    if (++seen == 2) throw std::logic_error("enough");
  }),
               std::logic_error);
  EXPECT_EQ(seen, 2);
  ExpectFault(FaultKind::division_by_zero, "6 / a > 0", [&] {
    RowWalk(site, "SELECT * FROM T WHERE 6 / a > 0").Run([&](const WalkedRow&) { ++seen; });
  });
  EXPECT_EQ(seen, 4) << "the rows before the one that the statement faults at are taken";
}

TEST_F(WalkingRows, goes_on_while_another_walk_runs_inside) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1),(2),(3)");
  std::int32_t sum = 0;
  RowWalk walk(site, "SELECT * FROM T");
  walk.Run([&](const WalkedRow& row) {
    for (const std::int32_t number : Numbers(site, "SELECT * FROM T")) {
      sum += number * row.Int32(FieldHandle{0}).value();
    }
  });
  EXPECT_EQ(sum, 36);
}

TEST_F(WalkingRows, are_rows_of_the_table) {
  Database site = Site("CREATE TABLE T(a LONG)");
  ExpectFault(FaultKind::database, "grouped rows cannot be walked",
              [&] { RowWalk(site, "SELECT a, SUM(a) FROM T GROUP BY a"); });
}

TEST_F(WalkingRows, are_given_to_no_statement_of_the_files_own) {
  Database site = Site("CREATE TABLE T(a LONG); INSERT INTO T VALUES(1)");
  ExpectFault(FaultKind::database, "", [&] { site.OpenSnapshot("SELECT jet_each_row(a) FROM T"); });
}

}  // namespace
}  // namespace rbt
