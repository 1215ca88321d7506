// SPDX-License-Identifier: MIT
#include <random>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/dialect/dialect_database.h"
#include "store/dialect/dialect_statements.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> Strings(std::span<const std::string_view> views) {
  return {views.begin(), views.end()};
}

class DialectFusion : public testing::Test {
 protected:
  DialectFusion() { db_.DeclareTable("T", "a LONG, b LONG, c LONG, t TEXT(20), d DOUBLE, m CURRENCY"); }

  std::int64_t Fuse(const std::vector<std::string>& updates) {
    return db_.ExecuteSqlite(FuseUpdates(updates, db_).sql);
  }

  DialectDatabase db_;
};

TEST_F(DialectFusion, ALaterStatementReadsWhatAnEarlierOneSet) {
  db_.Execute("INSERT INTO T(a,b) VALUES(1,1)");
  db_.Execute("INSERT INTO T(a,b) VALUES(2,1)");
  EXPECT_EQ(
      Fuse({"UPDATE T SET b = 2 WHERE a = 1", "UPDATE T SET c = b", "UPDATE T SET b = c + 1 WHERE c = 2"}),
      2);
  EXPECT_THAT(db_.Lines("SELECT a,b,c FROM T"), ElementsAre("1|3|2", "2|1|1"));
}

TEST_F(DialectFusion, AnEarlierStatementReadsWhatALaterOneHasNotSetYet) {
  db_.Execute("INSERT INTO T(a,b,c) VALUES(1,2,3)");
  EXPECT_EQ(Fuse({"UPDATE T SET a = b WHERE b IN(2)", "UPDATE T SET b = c WHERE b IN(2)",
                  "UPDATE T SET c = 9 WHERE b IN(2)"}),
            1);
  EXPECT_THAT(db_.Lines("SELECT a,b,c FROM T"), ElementsAre("2|3|3"));
}

TEST_F(DialectFusion, OfTwoSettingsOfOneFieldTheLaterHolds) {
  db_.Execute("INSERT INTO T(a) VALUES(1)");
  db_.Execute("INSERT INTO T(a) VALUES(2)");
  Fuse({"UPDATE T SET b = 1", "UPDATE T SET b = 2 WHERE a = 1", "UPDATE T SET b = 3 WHERE a >= 1 AND a < 2"});
  EXPECT_THAT(db_.Lines("SELECT b FROM T"), ElementsAre("3", "1"));
}

TEST_F(DialectFusion, RowsThatEndAsTheyWereAreNotWritten) {
  db_.Execute("INSERT INTO T(a,b) VALUES(1,0)");
  EXPECT_EQ(Fuse({"UPDATE T SET b = 5", "UPDATE T SET b = 0"}), 0);
  EXPECT_EQ(Fuse({"UPDATE T SET a = NULL WHERE IsNull(t)", "UPDATE T SET a = 1 WHERE IsNull(a)"}), 0);
}

TEST_F(DialectFusion, AFaultEndsIt) {
  db_.Execute("INSERT INTO T(a) VALUES(0)");
  EXPECT_ANY_THROW(Fuse({"UPDATE T SET d = 1 / a", "UPDATE T SET b = 1"}));
}

TEST_F(DialectFusion, TakesOnlyUpdatesOfOneTable) {
  db_.DeclareTable("U", "a LONG");
  EXPECT_THROW(Fuse({}), Fault);
  EXPECT_THROW(Fuse({"UPDATE T SET a = 1", "UPDATE U SET a = 1"}), Fault);
  EXPECT_THROW(Fuse({"UPDATE T SET a = 1", "DELETE * FROM T"}), Fault);
}

TEST_F(DialectFusion, TheStatementGrowsAsTheStatementsDo) {
  // Each reads the last one's field twice: written into each other they would double sixty times.
  const std::vector<std::string> updates(60, "UPDATE T SET a = a + a WHERE a < 1000 AND a > 0");
  db_.Execute("INSERT INTO T(a) VALUES(1)");
  EXPECT_LT(FuseUpdates(updates, db_).sql.size(), 60U * 250U);
  EXPECT_EQ(Fuse(updates), 1);
  EXPECT_THAT(db_.Lines("SELECT a FROM T"), ElementsAre("1024"));
}

/// A schedule of random rows, codes from the ranges that the classification tells apart, nulls among them.
class RandomSchedule {
 public:
  explicit RandomSchedule(unsigned seed) : random_(seed) {}

  void Fill(DialectDatabase& db) {
    std::string dimensions;
    for (int i = 1; i <= 10; ++i) dimensions += fmt::format(", 寸法{} TEXT(20)", i);
    db.DeclareTable("加工テーブル",
                    "太さ SHORT, 形状No LONG, 伸切寸 LONG, 伸本定 LONG, 圧接 LONG, 圧接太さ LONG, "
                    "予備2 LONG, 予備3 LONG, 予備5 TEXT(255)" +
                        dimensions);
    for (int row = 0; row < 200; ++row) {
      std::string values = fmt::format("{},{},{},{},{},{},{},{},NULL", Any({6, 7, 10, 16, 19}),
                                       Any({0, 1, 87, 138, 140, 143, 150, 163, 177, 201}),
                                       Any({1800, 3500, 7000, 12000, 12500}), Any({0, 1, 2}), Any({0, 1}),
                                       Any({0, 10, 25}), Any({0, 1, 2, 3, 4, 5}), Any({0, 1, 2, 3, 4}));
      for (int i = 1; i <= 10; ++i) values += "," + Any({120, 3500});
      db.ExecuteSqlite(fmt::format("INSERT INTO 加工テーブル VALUES ({})", values));
    }
  }

  /// Statements over the same fields, conditions and values drawn anew.
  std::vector<std::string> Updates() {
    std::vector<std::string> updates;
    sources_ = {"予備2", "予備3", "圧接", "太さ", "形状No"};
    for (int i = 0; i < 12; ++i) {
      std::string sql = fmt::format("UPDATE 加工テーブル SET {} = {}", Target(), Expression());
      if (random_() % 4 == 0) sql += fmt::format(", 予備5 = {} & \"-\" & {}", Source(), Source());
      if (random_() % 5 != 0) sql += " WHERE " + Condition();
      updates.push_back(sql);
    }
    return updates;
  }

  /// The same, but what a field becomes depends on itself and on fields that stay.
  std::vector<std::string> UpdatesOfEachFieldByItself() {
    std::vector<std::string> updates;
    for (int i = 0; i < 12; ++i) {
      const std::string target = Target();
      sources_ = {target, "形状No", "伸切寸", "伸本定", "圧接太さ"};
      std::string sql = fmt::format("UPDATE 加工テーブル SET {} = {}", target, Whole());
      if (random_() % 6 != 0) sql += " WHERE " + Condition();
      updates.push_back(sql);
    }
    return updates;
  }

 private:
  std::string Any(std::vector<int> values) {
    const std::size_t pick = random_() % (values.size() + 1);
    return pick == values.size() ? "NULL" : std::to_string(values[pick]);
  }
  std::string Pick(std::vector<std::string> words) { return words[random_() % words.size()]; }
  std::string Target() { return Pick({"予備2", "予備3", "圧接", "太さ"}); }
  std::string Source() { return Pick(sources_); }
  /// Nothing that could fault.
  std::string Whole() { return Pick({"NULL", "0", "2", "4", "138", sources_.front()}); }
  std::string Expression() {
    return Pick({"NULL", "0", "4", "2.5", Source(), Source() + " + 1", Source() + " / 3",
                 "Fix(" + Source() + " / 2)"});
  }
  std::string Test() {
    return Pick({fmt::format("{} IN(1,2,138)", Source()), fmt::format("{} NOT IN(0,4,6)", Source()),
                 fmt::format("{} Between 1 And 16", Source()), fmt::format("IsNull({})", Source()),
                 fmt::format("{} <> {}", Source(), Source()), fmt::format("{} = 2", Source())});
  }
  std::string Condition() {
    return Pick({Test(), Test() + " AND " + Test(), Test() + " OR " + Test(),
                 "NOT (" + Test() + " OR " + Test() + ")"});
  }

  std::mt19937 random_;
  std::vector<std::string> sources_;
};

/// Both roads from the same rows; the rows written differ, the tables must not.
void ExpectSameTables(unsigned seed, const std::vector<std::string>& updates) {
  DialectDatabase together;
  DialectDatabase in_turn;
  RandomSchedule(seed).Fill(together);
  RandomSchedule(seed).Fill(in_turn);
  const std::vector<Row> before = together.Rows("SELECT * FROM 加工テーブル");
  const std::int64_t written = together.ExecuteSqlite(FuseUpdates(updates, together).sql);
  for (const std::string& update : updates) in_turn.Execute(update);
  const std::vector<Row> after = together.Rows("SELECT * FROM 加工テーブル");
  ASSERT_EQ(after, in_turn.Rows("SELECT * FROM 加工テーブル"))
      << "seed " << seed << fmt::format("\n{}", fmt::join(updates, "\n"));
  std::int64_t changed = 0;
  for (std::size_t i = 0; i < before.size(); ++i) changed += before[i] == after[i] ? 0 : 1;
  EXPECT_EQ(written, changed) << "seed " << seed;
}

TEST(DialectFusionLaw, ThePreparationTogetherEqualsThePreparationInTurn) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    ExpectSameTables(seed, Strings(kPreparation));
    ExpectSameTables(seed, Strings(kPreparationOfOldKinds));
  }
}

TEST(DialectFusionLaw, AnyUpdatesTogetherEqualTheSameInTurn) {
  for (unsigned seed = 0; seed < 100; ++seed) {
    RandomSchedule statements(1000 + seed);
    ExpectSameTables(seed, statements.Updates());
  }
}

bool HasLayers(const std::string& sql) { return sql.find(".layer") != std::string::npos; }

TEST(DialectFusionLaw, UpdatesOfEachFieldByItselfTogetherEqualTheSameInTurn) {
  int without_layers = 0;
  for (unsigned seed = 0; seed < 100; ++seed) {
    const std::vector<std::string> updates = RandomSchedule(2000 + seed).UpdatesOfEachFieldByItself();
    ExpectSameTables(seed, updates);
    DialectDatabase db;
    RandomSchedule(seed).Fill(db);
    without_layers += HasLayers(FuseUpdates(updates, db).sql) ? 0 : 1;
  }
  EXPECT_GT(without_layers, 50);
}

TEST(DialectFusionLaw, ThePreparationCarriesNoFieldThroughTheLayersOfAnother) {
  DialectDatabase db;
  RandomSchedule(1).Fill(db);
  EXPECT_FALSE(HasLayers(FuseUpdates(Strings(kPreparation), db).sql));
  EXPECT_FALSE(HasLayers(FuseUpdates(Strings(kPreparationOfOldKinds), db).sql));
}

TEST_F(DialectFusion, ARowThatFaultsEndsItThoughAnotherFieldOfItChanges) {
  db_.Execute("INSERT INTO T(a,b,c) VALUES(1,0,2000000000)");
  db_.Execute("INSERT INTO T(a,b,c) VALUES(1,1,2100000000)");
  const std::vector<std::string> updates = {"UPDATE T SET b = 1", "UPDATE T SET a = 2 * c"};
  ASSERT_FALSE(HasLayers(FuseUpdates(updates, db_).sql));
  try {
    Fuse(updates);
    FAIL() << "4,000,000,000 is too large";
  } catch (const std::exception& fault) {
    EXPECT_THAT(fault.what(), testing::HasSubstr("4000000000")) << "the first row's";
  }
  EXPECT_THAT(db_.Lines("SELECT b FROM T"), ElementsAre("0", "1"));
}

TEST_F(DialectFusion, AShareOfTestsIsOfTheRowAsItWas) {
  db_.Execute("INSERT INTO T(a,b) VALUES(1,1)");
  db_.Execute("INSERT INTO T(a,b) VALUES(2,1)");
  Fuse(
      {"UPDATE T SET b = 2 WHERE a IN(1,5)", "UPDATE T SET a = 5", "UPDATE T SET b = b + 1 WHERE a IN(1,5)"});
  EXPECT_THAT(db_.Lines("SELECT a,b FROM T"), ElementsAre("5|3", "5|2"));
}

}  // namespace
}  // namespace rbt::test
