// SPDX-License-Identifier: MIT
#include "support/stopped_work.h"

#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "store/database.h"
#include "store/grouped_rows.h"
#include "store/plain_file.h"
#include "store/row_walk.h"
#include "support/temporary_folder.h"

namespace rbt::test {
namespace {

/// Statements over some hundred rows, stopped on their way.
class AStoppedStatement : public testing::Test {
 protected:
  AStoppedStatement() {
    RunPlain(
        file_,
        "CREATE TABLE T(n LONG, t TEXT(255)); WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM "
        "c WHERE i<300) INSERT INTO T SELECT i, printf('%100d', i) FROM c");
    bytes_ = BytesOf(file_);
  }

  void ExpectUntouched() const {
    EXPECT_TRUE(BytesOf(file_) == bytes_) << "the file has changed";
    EXPECT_FALSE(std::filesystem::exists(file_.string() + "-journal"));
    EXPECT_EQ(LoggedFailures(), failures_);
  }

  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
  std::string bytes_;
  std::int64_t failures_ = LoggedFailures();
  WorkStopper stopper_;
};

TEST_F(AStoppedStatement, of_a_transaction_leaves_nothing_of_all_its_statements) {
  const auto change = [this] {
    Database site = Database::Open(file_);
    Transaction together(site);
    site.Execute("UPDATE T SET n=n+1");
    site.Execute("CREATE TABLE U(a LONG)");
    site.Execute("INSERT INTO U (a) SELECT n FROM T");
    site.Execute("DELETE FROM T WHERE n>100");
    // What is written from here on is whole.
    stopper_.StopAt(0);
    together.Commit();
  };
  Database site = Database::Open(file_);
  stopper_.StopAt(0);
  {
    Transaction together(site);
    site.Execute("UPDATE T SET n=n+1");
  }
  const std::int64_t steps = stopper_.Seen();
  ASSERT_GT(steps, 3);
  for (std::int64_t step = 1; step <= steps; ++step) {
    stopper_.StopAt(step);
    EXPECT_EQ(FaultOf(change), FaultKind::stopped) << step;
    ExpectUntouched();
  }
}

TEST_F(AStoppedStatement, leaves_its_database_as_good_as_it_was) {
  Database site = Database::Open(file_);
  stopper_.StopAt(2);
  EXPECT_EQ(FaultOf([&] {
              Transaction together(site);
              site.Execute("UPDATE T SET n=n+1");
            }),
            FaultKind::stopped);
  Transaction again(site);
  EXPECT_EQ(site.Execute("UPDATE T SET n=n+1"), 300);
  again.Commit();
  EXPECT_EQ(PlainText(file_, "SELECT min(n) FROM T"), "2");
}

TEST_F(AStoppedStatement, that_reads_ends_every_kind_of_reading) {
  const std::function<void(Database&)> readings[] = {
      [](Database& site) {
        for (Recordset rows = site.OpenSnapshot("SELECT * FROM T"); !rows.Eof(); rows.MoveNext()) continue;
      },
      [](Database& site) { RowWalk(site, "SELECT * FROM T").Run([](const WalkedRow&) {}); },
      [](Database& site) { const GroupedRows groups(site, "SELECT t, SUM(n) AS s FROM T GROUP BY t"); },
      [](Database& site) { site.HasRows("SELECT * FROM T WHERE n<0"); },
  };
  for (const auto& read : readings) {
    StopEverywhere(
        stopper_, [] {},
        [&] {
          Database site = Database::Open(file_);
          read(site);
        },
        [this] { ExpectUntouched(); });
  }
}

TEST_F(AStoppedStatement, is_told_with_its_file_and_its_words) {
  Database site = Database::Open(file_);
  stopper_.StopAt(2);
  const std::string told = FaultTextOf([&] { site.HasRows("SELECT * FROM T WHERE n<0"); });
  EXPECT_EQ(told, "the work was stopped by its user: " + file_.string() + ": SELECT * FROM T WHERE n<0");
}

TEST_F(AStoppedStatement, is_none_that_writes_when_it_ends) {
  Database site = Database::Open(file_);
  site.HasRows("SELECT * FROM T");  // reads the table's definition, which may be stopped
  int asked = 0;
  Services.OnWork = [&](const WorkNews& news) {
    ++asked;
    return news.may_stop;
  };
  EXPECT_EQ(site.Execute("INSERT INTO T (n, t) SELECT n+300, t FROM T"), 300);
  EXPECT_GT(asked, 3) << "it tells that it goes on all the same";
}

TEST_F(AStoppedStatement, is_none_while_a_commit_writes) {
  Database site = Database::Open(file_);
  bool committing = false;
  int told = 0;
  Services.OnWork = [&](const WorkNews& news) {
    if (committing) ++told;
    EXPECT_NE(news.may_stop, committing);
    return committing;
  };
  Transaction together(site);
  site.Execute("UPDATE T SET n=n+1");
  committing = true;
  together.Commit();
  EXPECT_GT(told, 0);
  EXPECT_EQ(PlainText(file_, "SELECT min(n) FROM T"), "2");
}

TEST_F(AStoppedStatement, may_be_that_of_a_copy) {
  RunPlain(file_,
           "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<60000) "
           "INSERT INTO T SELECT i, printf('%100d', i) FROM c");
  bytes_ = BytesOf(file_);
  const Database site = Database::Open(file_);
  StopEverywhere(
      stopper_, [] {}, [&] { Database::CopyOf(site); }, [this] { ExpectUntouched(); });
}

}  // namespace
}  // namespace rbt::test
