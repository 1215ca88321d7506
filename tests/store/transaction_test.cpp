// SPDX-License-Identifier: MIT
#include <chrono>
#include <optional>
#include <random>
#include <signal.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "store/connection.h"
#include "store/database.h"
#include "store/database_impl.h"
#include "store/plain_file.h"
#include "support/child_process.h"
#include "support/kept_services.h"
#include "support/sample.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;

class Transactions : public ::testing::Test {
 protected:
  /// `rows` rows of a number `n` that all rows share and a text that fills pages.
  Database Site(int rows) {
    test::RunPlain(file_,
                   "CREATE TABLE T(n LONG, t TEXT(255)); WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT "
                   "i+1 FROM c WHERE i<" +
                       std::to_string(rows) + ") INSERT INTO T SELECT 0, printf('%200d', i) FROM c");
    return Database::Open(file_);
  }
  std::string Numbers() const { return test::PlainText(file_, "SELECT group_concat(DISTINCT n) FROM T"); }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(Transactions, keep_all_of_it_after_commit) {
  Database site = Site(3);
  Transaction together(site);
  site.Execute("UPDATE T SET n=1");
  site.Execute("CREATE TABLE U(a LONG)");
  together.Commit();
  EXPECT_EQ(Numbers(), "1");
  EXPECT_NE(site.FindTable("U"), nullptr);
}

TEST_F(Transactions, keep_none_of_it_without_commit) {
  Database site = Site(3);
  {
    Transaction together(site);
    site.Execute("UPDATE T SET n=1");
    site.Execute("ALTER TABLE T ADD CONSTRAINT T_pkey PRIMARY KEY(t)");
    site.Execute("DROP TABLE T");
  }
  EXPECT_EQ(Numbers(), "0");
  EXPECT_TRUE(site.FindTable("T")->indexes.empty());
  EXPECT_EQ(site.Execute("UPDATE T SET n=2"), 3);
}

TEST_F(Transactions, do_not_nest) {
  Database site = Site(1);
  Transaction together(site);
  ExpectFault(FaultKind::database, "a transaction is open already", [&] { const Transaction inner(site); });
  site.Execute("UPDATE T SET n=1");
  together.Commit();
  EXPECT_EQ(Numbers(), "1");
  Transaction next(site);
  next.Commit();
}

TEST_F(Transactions, go_on_after_a_statement_that_failed_and_undid_itself) {
  Database site = Site(3);
  site.Execute("ALTER TABLE T ADD COLUMN s SHORT");
  site.Execute("UPDATE T SET s=10000");
  test::RunPlain(file_, "UPDATE T SET n=99999 WHERE rowid=3");
  Transaction together(site);
  ExpectFault(FaultKind::overflow, "", [&] { site.Execute("UPDATE T SET s=n"); });  // the third row fails
  EXPECT_EQ(site.Execute("UPDATE T SET n=7"), 3);
  together.Commit();
  EXPECT_EQ(Numbers(), "7");
  EXPECT_EQ(test::PlainText(file_, "SELECT group_concat(DISTINCT s) FROM T"), "10000");
}

TEST_F(Transactions, commit_while_recordsets_are_open) {
  Database site = Site(5);
  Recordset snapshot = site.OpenSnapshot("SELECT * FROM T");
  {
    Transaction together(site);
    Recordset rows = site.OpenDynaset("SELECT * FROM T");
    rows.Edit();
    rows.Set("n", Value{std::int64_t{4}});
    rows.Update();
    together.Commit();
    rows.MoveNext();
    EXPECT_EQ(rows.Get("n"), Value{std::int64_t{0}});
  }
  int rest = 0;
  for (; !snapshot.Eof(); snapshot.MoveNext()) ++rest;
  EXPECT_EQ(rest, 5);
  EXPECT_EQ(Numbers(), "4,0");
}

TEST_F(Transactions, roll_back_while_recordsets_are_open) {
  Database site = Site(5);
  Recordset snapshot = site.OpenSnapshot("SELECT * FROM T");
  const std::int64_t failed_before = LoggedFailures();
  {
    const Transaction given_up(site);
    site.Execute("UPDATE T SET n=4");
  }
  int rest = 0;
  for (; !snapshot.Eof(); snapshot.MoveNext()) ++rest;
  EXPECT_EQ(rest, 5);
  EXPECT_EQ(Numbers(), "0");
  EXPECT_EQ(LoggedFailures(), failed_before);
}

TEST_F(Transactions, of_a_second_program_wait_a_little_and_then_fault) {
  const test::KeptServices services;
  Services.LockPatience = std::chrono::milliseconds(50);
  Database site = Site(1);
  Database other = Database::Open(file_);
  const Transaction first(site);
  ExpectFault(FaultKind::locked, "GENBA001.MDB", [&] { const Transaction second(other); });
  EXPECT_TRUE(other.HasRows("SELECT * FROM T"));
}

TEST_F(Transactions, lose_nothing_when_the_disk_is_full) {
  Database site = Site(100);
  const Connection& connection = site.impl().Connected();
  connection.Run("PRAGMA max_page_count=" + std::to_string(connection.IntegerOf("PRAGMA page_count") + 2));
  ExpectFault(FaultKind::storage, "full", [&] { site.Execute("INSERT INTO T(n, t) SELECT 1, t FROM T"); });
  EXPECT_EQ(test::PlainInteger(file_, "SELECT count(*) FROM T"), 100);
  {
    Transaction together(site);
    site.Execute("UPDATE T SET n=1");
    ExpectFault(FaultKind::storage, "full", [&] { site.Execute("INSERT INTO T(n, t) SELECT 1, t FROM T"); });
  }
  EXPECT_EQ(Numbers(), "0");
  EXPECT_EQ(test::PlainText(file_, "PRAGMA integrity_check"), "ok");
}

TEST_F(Transactions, that_the_store_rolled_back_do_not_go_on_piecemeal) {
  Database site = Site(3);
  {
    Transaction together(site);
    site.Execute("UPDATE T SET n=1");
    Recordset rows = site.OpenDynaset("SELECT * FROM T");
    rows.Edit();
    rows.Set("n", Value{std::int64_t{2}});
    site.impl().Connected().Run("ROLLBACK");  // what a write error may do under our hands
    const std::string words = "the store has rolled the transaction back";
    ExpectFault(FaultKind::database, words, [&] { site.Execute("UPDATE T SET n=3"); });
    ExpectFault(FaultKind::database, words, [&] { rows.Update(); });
    ExpectFault(FaultKind::database, words, [&] { site.AppendIndex("T", {"i", false, false, {"n"}, {}}); });
    ExpectFault(FaultKind::database, words, [&] { together.Commit(); });
  }
  EXPECT_EQ(Numbers(), "0");
  EXPECT_EQ(site.Execute("UPDATE T SET n=3"), 3);
}

TEST_F(Transactions, lose_nothing_when_the_file_may_not_grow) {
  { Site(100); }
  EXPECT_TRUE(test::WithFilesOfAtMost(std::filesystem::file_size(file_) + 4096, [&] {
    Database site = Database::Open(file_);
    Transaction together(site);
    site.Execute("UPDATE T SET n=1");
    site.Execute("INSERT INTO T(n, t) SELECT 1, t FROM T");
    ExpectFault(FaultKind::storage, "GENBA001.MDB", [&] { together.Commit(); });
    ExpectFault(FaultKind::database, "", [&] { together.Commit(); });
  }));
  EXPECT_EQ(Numbers(), "0");
  EXPECT_EQ(test::PlainInteger(file_, "SELECT count(*) FROM T"), 100);
  EXPECT_EQ(test::PlainText(file_, "PRAGMA integrity_check"), "ok");
}

TEST_F(Transactions, count_a_rollback_that_fails) {
  const Database site = Site(1);
  const Connection connection(file_, OpenMode::read_write);
  const std::int64_t before = LoggedFailures();
  RollBackQuietly(connection, "ROLLBACK");  // nothing is open
  EXPECT_EQ(LoggedFailures(), before + 1);
}

/// A child that counts all rows up, one transaction after another, until it is killed. Tells by a byte that
/// it has begun.
[[noreturn]] void CountUpForEver(const std::filesystem::path& file, int started) {
  try {
    Database site = Database::Open(file);
    for (std::int64_t n = 1;; ++n) {
      Transaction together(site);
      for (Recordset rows = site.OpenDynaset("SELECT * FROM T"); !rows.Eof(); rows.MoveNext()) {
        rows.Edit();
        rows.Set("n", Value{n});
        rows.Update();
      }
      if (n == 1 && write(started, "x", 1) != 1) _exit(2);
      together.Commit();
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "child: %s\n", failure.what());
    _exit(1);
  }
}

TEST_F(Transactions, hold_all_or_none_after_a_kill_at_any_moment) {
  const int rounds = 20 / test::SampleStep(2);
  { Site(2000); }
  std::mt19937 random(20261121);
  int journals = 0;
  std::int64_t last = 0;
  std::int64_t advanced = 0;
  for (int round = 0; round < rounds; ++round) {
    int started[2];
    ASSERT_EQ(pipe(started), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) CountUpForEver(file_, started[1]);
    close(started[1]);
    char byte = 0;
    EXPECT_EQ(read(started[0], &byte, 1), 1) << "the child ended before its first commit";
    close(started[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution(0, 60'000)(random)));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    if (std::filesystem::exists(file_.string() + "-journal")) ++journals;

    Database site = Database::Open(file_);
    Recordset rows = site.OpenSnapshot("SELECT Min(n), Max(n), Count(*) FROM T");
    const auto least = rows.Int32(FieldHandle{0});
    EXPECT_EQ(least, rows.Int32(FieldHandle{1})) << "round " << round;
    EXPECT_EQ(rows.Int32(FieldHandle{2}), 2000);
    EXPECT_EQ(test::PlainText(file_, "PRAGMA integrity_check"), "ok");
    if (*least != last) ++advanced;
    last = *least;
  }
  // Most of the time is spent inside a transaction: some kills must have met one.
  EXPECT_GT(journals, 0);
  EXPECT_GT(advanced, 0);
}

}  // namespace
}  // namespace rbt
