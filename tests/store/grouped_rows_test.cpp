// SPDX-License-Identifier: MIT
#include "store/grouped_rows.h"

#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/pass_over_faults.h"
#include "store/plain_file.h"
#include "store/shared_scan.h"
#include "support/fault_of.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::FaultTextOf;
using testing::ElementsAre;
using testing::HasSubstr;

template <typename Read>
std::string ShownOrFault(Read read) {
  try {
    const auto value = read();
    return value ? fmt::format("{}", *value) : "null";
  } catch (const Fault& fault) {
    return fault.what();
  }
}

/// All of a result, faults too; both roads read alike.
template <typename Rows>
std::vector<std::string> Lines(Rows& rows, int columns) {
  std::vector<std::string> lines;
  for (; !rows.Eof(); rows.MoveNext()) {
    std::string line;
    for (int column = 0; column < columns; ++column) {
      const FieldHandle field{column};
      line += fmt::format("{}|{}|{}; ", ShownOrFault([&] { return rows.Int32(field); }),
                          ShownOrFault([&] { return rows.Double(field); }),
                          ShownOrFault([&] { return rows.Text(field); }));
    }
    lines.push_back(line);
  }
  return lines;
}

template <typename Open>
std::vector<std::string> LinesOrFault(int columns, Open open) {
  try {
    auto rows = open();
    return Lines(*rows, columns);
  } catch (const Fault& fault) {
    return {fault.what()};
  }
}

class GroupingRows : public ::testing::Test {
 protected:
  Database Site(const std::string& sql) {
    std::filesystem::remove(file_);
    test::RunPlain(file_, "BEGIN;" + sql + ";COMMIT");
    return Database::Open(file_);
  }
  static std::vector<std::string> Grouped(Database& site, const std::string& sql) {
    return LinesOrFault(Columns(site, sql), [&] { return std::make_unique<GroupedRows>(site, sql); });
  }
  static std::vector<std::string> Snapshot(Database& site, const std::string& sql) {
    return LinesOrFault(Columns(site, sql),
                        [&] { return std::make_unique<Recordset>(site.OpenSnapshot(sql)); });
  }
  static std::vector<std::string> OfScan(SharedScan& scan, Database& site, const std::string& sql) {
    try {
      GroupedRows groups = scan.Groups(sql);
      return Lines(groups, Columns(site, sql));
    } catch (const Fault& fault) {
      return {fault.what()};
    }
  }
  static int Columns(Database& site, const std::string& sql) {
    int columns = 0;
    PassOverFaults([&] { columns = site.OpenSnapshot(sql).FieldCount(); });
    return columns;
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

constexpr const char* kTable = "CREATE TABLE T(a LONG, t TEXT(20), d DOUBLE, n SHORT, m LONG);";

TEST_F(GroupingRows, sums_each_group_up_in_the_order_of_its_keys) {
  Database site = Site(std::string(kTable) +
                       "INSERT INTO T VALUES(2,'x',0.5,1,10),(1,'x',0.5,2,NULL),(2,'x',0.5,3,30),"
                       "(NULL,'x',0.5,4,NULL),(1,'x',0.5,NULL,NULL)");
  GroupedRows groups(site, "SELECT a, SUM(n) AS total, SUM(m) FROM T GROUP BY a");
  const FieldHandle a = groups.Field("a");
  const FieldHandle total = groups.Field("Total");
  std::vector<std::string> lines;
  for (; !groups.Eof(); groups.MoveNext()) {
    lines.push_back(fmt::format("{} {} {}", groups.Int32(a).value_or(-1), groups.Int32(total).value_or(-1),
                                groups.Int32(FieldHandle{2}).value_or(-1)));
  }
  EXPECT_THAT(lines, ElementsAre("-1 4 -1", "1 2 -1", "2 4 40"));
}

TEST_F(GroupingRows, takes_texts_without_regard_to_letter_case_and_shows_the_first) {
  Database site =
      Site(std::string(kTable) +
           "INSERT INTO T VALUES(1,'b2',0,1,1),(1,'Ab',0,2,1),(1,'aB',0,3,1),(1,'B',0,4,1),"
           "(1,'ａ',0,5,1),(1,'Ａ',0,6,1),(1,'',0,7,1),(1,NULL,0,8,1),(1,'[',0,9,1),(1,'B2',0,1,1)");
  const std::string sql = "SELECT t, SUM(n) FROM T GROUP BY t";
  GroupedRows groups(site, sql);
  std::vector<std::string> texts;
  for (; !groups.Eof(); groups.MoveNext()) {
    texts.push_back(groups.Text(FieldHandle{0}).value_or("null") + " " +
                    groups.Text(FieldHandle{1}).value_or("null"));
  }
  EXPECT_THAT(texts, ElementsAre("null 8", " 7", "[ 9", "Ab 5", "B 4", "b2 2", "Ａ 6", "ａ 5"));
  EXPECT_EQ(Grouped(site, sql), Snapshot(site, sql));
}

/// Rows as programs write them, and now and then a value that does not belong where it stands.
class RandomTable {
 public:
  explicit RandomTable(unsigned seed) : random_(seed), odd_(seed % 3 == 0), indexed_(seed % 4 == 0) {}

  std::string Sql() {
    std::string sql = kTable;
    if (indexed_) sql += "CREATE INDEX byA ON T(a, t); CREATE INDEX byN ON T(n);";
    const std::size_t rows = random_() % 400;
    for (std::size_t row = 0; row < rows; ++row) {
      sql += fmt::format("INSERT INTO T VALUES({},{},{},{},{});", Any({"0", "1", "-7", "19", "2147483648"}),
                         Any({"''", "'1,2,'", "'a'", "'A'", "'aB'", "'Ab'", "'ア'", "'[x'", "'aBc'"}),
                         Any({"0.0", "-0.0", "5.5", "12", "1e-9"}), Any({"0", "1", "3", "32767"}),
                         Any({"1", "2147483647", "-5"}));
    }
    return sql;
  }
  std::string Select() {
    const std::vector<std::string> keys = {"a", "t", "d", "a, t", "t, d", "d, a, t", "n, t, a"};
    const std::vector<std::string> without_text = {"a", "d", "n", "d, a", "n, d, a"};
    // A snapshot shows the text that comes first in the index.
    const std::string key =
        indexed_ ? without_text[random_() % without_text.size()] : keys[random_() % keys.size()];
    const std::vector<std::string> where = {"", " WHERE a > 0", " WHERE n IS NOT NULL AND m > 0",
                                            " WHERE a = 99"};
    return fmt::format("SELECT {0}, SUM(n) AS x, SUM(m) AS y FROM T{1} GROUP BY {0}", key,
                       where[random_() % where.size()]);
  }

 private:
  std::string Any(std::vector<std::string> values) {
    if (odd_ && random_() % 200 == 0) return Odd();
    const std::size_t pick = random_() % (values.size() + 1);
    return pick == values.size() ? "NULL" : values[pick];
  }
  std::string Odd() {
    const std::vector<std::string> odd = {
        "'D19'", "' 12 '", "2.5", "x'4142'", "9223372036854775807", "'a' || char(0) || 'b'", "'1e400'"};
    return odd[random_() % odd.size()];
  }

  std::mt19937 random_;
  bool odd_;
  bool indexed_;
};

TEST_F(GroupingRows, gives_what_a_snapshot_gives_of_any_rows) {
  for (unsigned seed = 1; seed <= 100; ++seed) {
    RandomTable table(seed);
    Database site = Site(table.Sql());
    for (int i = 0; i < 3; ++i) {
      const std::string sql = table.Select();
      EXPECT_EQ(Grouped(site, sql), Snapshot(site, sql)) << seed << ": " << sql;
    }
  }
}

TEST_F(GroupingRows, shows_the_text_of_the_first_row_of_the_table_whatever_indexes_there_are) {
  Database site = Site(std::string(kTable) +
                       "CREATE INDEX byA ON T(a, t); INSERT INTO T VALUES(1,'ab',0,1,1),(1,'AB',0,1,1)");
  EXPECT_EQ(GroupedRows(site, "SELECT t, SUM(n) FROM T WHERE a = 1 GROUP BY t").Text(FieldHandle{0}), "ab");
}

TEST_F(GroupingRows, gives_what_a_snapshot_gives_of_other_statements) {
  Database site =
      Site(std::string(kTable) + "INSERT INTO T VALUES(2,'x',0.5,1,10),(1,'X',1.5,2,7),(1,'y',2,3,7)");
  for (const char* sql : {"SELECT a, SUM(d) FROM T GROUP BY a", "SELECT a, Min(n) FROM T GROUP BY a",
                          "SELECT a, Count(*) FROM T GROUP BY a", "SELECT SUM(n), SUM(m) FROM T",
                          "SELECT a, SUM(n) FROM T GROUP BY a ORDER BY a DESC", "SELECT a, n FROM T",
                          "SELECT a, SUM(n + 1) FROM T GROUP BY a", "SELECT a, SUM(n) FROM T GROUP BY t",
                          "SELECT a, SUM(t) FROM T GROUP BY a", "SELECT a, SUM(z) FROM T GROUP BY a"}) {
    EXPECT_EQ(Grouped(site, sql), Snapshot(site, sql)) << sql;
  }
}

TEST_F(GroupingRows, leaves_a_sum_beyond_64_bits_to_the_store) {
  Database site =
      Site(std::string(kTable) + "INSERT INTO T VALUES(1,'x',0,1,9223372036854775807),(1,'x',0,1,1)");
  EXPECT_THAT(FaultTextOf([&] { GroupedRows(site, "SELECT a, SUM(m) FROM T GROUP BY a"); }),
              HasSubstr("overflow"));
}

TEST_F(GroupingRows, tells_a_missing_field_as_a_recordset_does) {
  Database site = Site(std::string(kTable) + "INSERT INTO T VALUES(1,'x',0,1,1)");
  const std::string sql = "SELECT a, SUM(m) FROM T GROUP BY a";
  EXPECT_EQ(FaultTextOf([&] { GroupedRows(site, sql).Field("m"); }),
            FaultTextOf([&] { site.OpenSnapshot(sql).Field("m"); }));
}

TEST_F(GroupingRows, keeps_many_groups_apart) {
  Database site = Site(std::string(kTable) +
                       "WITH RECURSIVE r(i) AS (VALUES(0) UNION ALL SELECT i + 1 FROM r WHERE i < 9999) "
                       "INSERT INTO T SELECT i % 5003, 'group ' || (i % 5003), i % 5003 / 2.0, 1, i FROM r");
  const std::string sql = "SELECT t, d, a, SUM(n), SUM(m) FROM T GROUP BY t, d, a";
  const std::vector<std::string> lines = Grouped(site, sql);
  EXPECT_EQ(lines.size(), 5003U);
  EXPECT_EQ(lines, Snapshot(site, sql));
}

/// What stands in the first field of each row that a walk hands over.
class Seen {
 public:
  Seen(Database& site, const std::string& sql) : walk_(site, sql) {}

  void JoinIn(SharedScan& scan) {
    scan.AddWalk(walk_, [this](const WalkedRow& row) {
      lines_.push_back(ShownOrFault([&] { return row.Double(FieldHandle{0}); }));
    });
  }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  RowWalk walk_;
  std::vector<std::string> lines_;
};

TEST_F(GroupingRows, gives_in_one_scan_what_each_of_several_statements_gives_alone) {
  int together = 0;
  for (unsigned seed = 1; seed <= 100; ++seed) {
    RandomTable table(seed);
    Database site = Site(table.Sql());
    const std::vector<std::string> statements = {table.Select(), table.Select(), table.Select()};
    SharedScan scan(site);
    Seen seen(site, "SELECT m FROM T WHERE a > 0");
    seen.JoinIn(scan);
    for (const std::string& sql : statements) scan.AddGroups(sql);
    const bool was_read = scan.Run();
    together += static_cast<int>(was_read);
    for (const std::string& sql : statements) {
      EXPECT_EQ(OfScan(scan, site, sql), Snapshot(site, sql)) << seed << ": " << sql;
    }
    if (!was_read) continue;
    std::vector<std::string> alone;
    RowWalk walk(site, "SELECT m FROM T WHERE a > 0");
    walk.Run([&](const WalkedRow& row) {
      alone.push_back(ShownOrFault([&] { return row.Double(FieldHandle{0}); }));
    });
    EXPECT_EQ(seen.Lines(), alone) << seed;
  }
  EXPECT_EQ(together, 100);
}

TEST_F(GroupingRows, reads_nothing_in_one_scan_where_statements_cannot_share_it) {
  Database site = Site(std::string(kTable) +
                       "CREATE TABLE U(a LONG, n SHORT); INSERT INTO U VALUES(5,6);"
                       "INSERT INTO T VALUES(2,'x',0.5,1,10),(1,'X',1.5,2,7)");
  const std::string of_t = "SELECT a, SUM(n) FROM T GROUP BY a";
  for (const char* other : {"SELECT a, SUM(n) FROM U GROUP BY a", "SELECT a, SUM(d) FROM T GROUP BY a",
                            "SELECT a, SUM(n) FROM T GROUP BY a ORDER BY a DESC"}) {
    SharedScan scan(site);
    Seen seen(site, "SELECT a FROM T");
    seen.JoinIn(scan);
    scan.AddGroups(of_t);
    scan.AddGroups(other);
    EXPECT_FALSE(scan.Run()) << other;
    EXPECT_THAT(seen.Lines(), ElementsAre()) << other;
    for (const std::string& sql : {of_t, std::string(other)}) {
      EXPECT_EQ(OfScan(scan, site, sql), Snapshot(site, sql)) << sql;
    }
  }
  SharedScan in_own_order(site);
  Seen seen(site, "SELECT a FROM T ORDER BY a");
  seen.JoinIn(in_own_order);
  EXPECT_FALSE(in_own_order.Run());
  EXPECT_FALSE(SharedScan(site).Run());
}

TEST_F(GroupingRows, gives_the_groups_of_a_scan_once_and_reads_them_anew_then) {
  Database site = Site(std::string(kTable) + "INSERT INTO T VALUES(2,'x',0.5,1,10)");
  const std::string sql = "SELECT a, SUM(n) FROM T GROUP BY a";
  SharedScan scan(site);
  scan.AddGroups(sql);
  ASSERT_TRUE(scan.Run());
  site.Execute("UPDATE T SET n = 7");
  EXPECT_EQ(scan.Groups(sql).Int32(FieldHandle{1}), 1);
  EXPECT_EQ(scan.Groups(sql).Int32(FieldHandle{1}), 7);
}

TEST_F(GroupingRows, ends_a_shared_scan_by_what_one_of_its_takers_throws) {
  Database site = Site(std::string(kTable) + "INSERT INTO T VALUES(2,'x',0.5,1,10),(3,'x',0.5,1,10)");
  SharedScan scan(site);
  scan.AddGroups("SELECT a, SUM(n) FROM T GROUP BY a");
  const RowWalk walk(site, "SELECT a FROM T");
  int rows = 0;
  scan.AddWalk(walk, [&](const WalkedRow&) {
    ++rows;
    throw std::runtime_error("enough");
  });
  EXPECT_THROW(scan.Run(), std::runtime_error);
  EXPECT_EQ(rows, 1);
  EXPECT_EQ(scan.Groups("SELECT a, SUM(n) FROM T GROUP BY a").Int32(FieldHandle{0}), 2);
}

}  // namespace
}  // namespace rbt
