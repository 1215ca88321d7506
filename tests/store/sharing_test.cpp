// SPDX-License-Identifier: MIT
// One file, several programs.
#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "store/database.h"
#include "store/database_file.h"
#include "store/plain_file.h"
#include "support/child_process.h"
#include "support/kept_services.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using std::chrono::milliseconds;
using test::ExpectFault;

class ASharedFile : public ::testing::Test {
 protected:
  ASharedFile() {
    Services.LockPatience = milliseconds(0);
    test::RunPlain(file_, "CREATE TABLE T(a LONG, b LONG); INSERT INTO T VALUES(1, 1)");
  }

  std::int64_t A(Database& database) const {
    Recordset rows = database.OpenSnapshot("SELECT a FROM T");
    return *rows.Int32(rows.Field("a"));
  }
  static bool IsLocked(const std::function<void()>& action) {
    try {
      action();
    } catch (const Fault& fault) {
      return fault.Kind() == FaultKind::locked;
    }
    return false;
  }

  test::KeptServices services_;
  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(ASharedFile, is_not_locked_by_a_change_that_changes_no_row) {
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  const Transaction writing(theirs);
  EXPECT_EQ(ours.Execute("UPDATE T SET a = 1 WHERE b = 1"), 0);
  EXPECT_EQ(ours.ExecuteTogether(std::vector<std::string>{"UPDATE T SET a = 2", "UPDATE T SET a = 1"}), 0);
  EXPECT_EQ(ours.Execute("DELETE * FROM T WHERE a = 7"), 0);
  EXPECT_TRUE(IsLocked([&] { ours.Execute("UPDATE T SET a = 2"); }));
  EXPECT_TRUE(IsLocked([&] { ours.Execute("DELETE * FROM T WHERE a = 1"); }));
}

TEST_F(ASharedFile, tells_whether_statements_would_change_it) {
  Database ours = Database::Open(file_);
  EXPECT_TRUE(ours.WouldChangeTogether(std::vector<std::string>{"UPDATE T SET a = 2"}));
  EXPECT_FALSE(
      ours.WouldChangeTogether(std::vector<std::string>{"UPDATE T SET a = 2", "UPDATE T SET a = 1"}));
  EXPECT_EQ(test::PlainInteger(file_, "SELECT a FROM T"), 1);
}

TEST_F(ASharedFile, stays_as_it_is_while_it_is_held) {
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  ours.Hold();
  EXPECT_TRUE(IsLocked([&] { theirs.Execute("UPDATE T SET a = 2"); }));
  EXPECT_EQ(A(ours), 1);
  EXPECT_EQ(A(theirs), 1) << "others read";
  ours.LetGo();
  theirs.Execute("UPDATE T SET a = 3");
  EXPECT_EQ(A(ours), 3);
}

TEST_F(ASharedFile, is_held_from_a_commit_on) {
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  {
    Transaction writing(ours);
    ours.Execute("UPDATE T SET a = 2");
    writing.CommitAndHold();
  }
  EXPECT_EQ(test::PlainInteger(file_, "SELECT a FROM T"), 2);
  EXPECT_TRUE(IsLocked([&] { theirs.Execute("UPDATE T SET a = 3"); }));
  EXPECT_EQ(A(ours), 2);
  ours.LetGo();
  theirs.Execute("UPDATE T SET a = 3");
}

TEST_F(ASharedFile, is_let_go_by_a_write_of_ones_own) {
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  ours.Hold();
  ours.Execute("UPDATE T SET a = 2");
  theirs.Execute("UPDATE T SET a = 3");
  ours.Hold();
  {
    Transaction writing(ours);
    ours.Execute("UPDATE T SET a = 4");
    writing.Commit();
  }
  theirs.Execute("UPDATE T SET a = 5");
  EXPECT_EQ(A(ours), 5);
}

TEST_F(ASharedFile, is_waited_for_as_long_as_was_said) {
  Services.LockPatience = milliseconds(10'000);
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  std::optional<Transaction> writing(theirs);
  std::thread other([&] {
    std::this_thread::sleep_for(milliseconds(100));
    writing.reset();
  });
  EXPECT_EQ(ours.Execute("UPDATE T SET a = 2"), 1);
  other.join();
}

TEST_F(ASharedFile, is_waited_for_on_and_on_where_somebody_says_so) {
  Services.LockPatience = milliseconds(1);
  std::vector<std::filesystem::path> asked;
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  std::optional<Transaction> writing(theirs);
  Services.WaitOn = [&](const std::filesystem::path& file) {
    asked.push_back(file);
    if (asked.size() == 3) writing.reset();
    return true;
  };
  int pauses = 0;
  Services.OnWait = [&] { ++pauses; };
  EXPECT_EQ(ours.Execute("UPDATE T SET a = 2"), 1);
  EXPECT_GE(pauses, 3);
  EXPECT_EQ(asked, std::vector<std::filesystem::path>(3, file_));
}

TEST_F(ASharedFile, that_is_waited_for_in_vain_is_a_fault_that_names_it) {
  test::RunPlain(file_, "INSERT INTO T VALUES(2, 2)");
  Database ours = Database::Open(file_);
  Database theirs = Database::Open(file_);
  const Transaction writing(theirs);
  const std::string words = "another program holds the file: " + file_.string();
  ExpectFault(FaultKind::locked, words, [&] { ours.Execute("UPDATE T SET a = 9"); });
  ExpectFault(FaultKind::locked, words, [&] { const Transaction second(ours); });
}

TEST_F(ASharedFile, keeps_its_locks_when_it_is_opened_a_second_time) {
  Database ours = Database::Open(file_);
  ours.Hold();
  { const Database again = Database::OpenReadOnly(file_); }
  EXPECT_TRUE(test::InChild([&] {
    Database theirs = Database::Open(file_);
    return IsLocked([&] { theirs.Execute("UPDATE T SET a = 2"); });
  }));
}

TEST_F(ASharedFile, counts_its_changes) {
  Database ours = Database::Open(file_);
  const auto before = ours.State();
  ASSERT_TRUE(before);
  EXPECT_EQ(ours.State(), before);
  test::RunPlain(file_, "UPDATE T SET a = 2");
  EXPECT_NE(ours.State(), before);
  EXPECT_EQ(Database::OpenReadOnly(file_).State(), ours.State());
}

TEST_F(ASharedFile, tells_when_another_file_stands_under_its_name) {
  const Database ours = Database::Open(file_);
  const auto before = ours.State();
  EXPECT_FALSE(ours.HasMoved());
  std::filesystem::copy_file(file_, folder_ / "other");
  std::filesystem::rename(folder_ / "other", file_);
  EXPECT_TRUE(ours.HasMoved());
  EXPECT_NE(Database::Open(file_).State(), before);
}

TEST_F(ASharedFile, is_read_also_when_its_writer_was_killed) {
  test::RunPlain(file_,
                 "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<5000) INSERT INTO T "
                 "SELECT 1, 1 FROM c");
  int half_written = 0;
  for (int n = 1;
       test::KilledBeforeChange(n, [&] { Database::Open(file_).Execute("UPDATE T SET a = a + 1"); }); ++n) {
    if (std::filesystem::exists(file_.string() + "-journal")) ++half_written;
    Database ours = Database::OpenReadOnly(file_);
    Recordset rows = ours.OpenSnapshot("SELECT Min(a) AS x, Max(a) AS y FROM T");
    EXPECT_EQ(rows.Int32(rows.Field("x")), rows.Int32(rows.Field("y"))) << n;
  }
  EXPECT_GT(half_written, 10);
}

TEST_F(ASharedFile, is_copied_for_oneself_alone) {
  const std::string bytes = ReadFileBytes(file_);
  Database original = Database::OpenReadOnly(file_);
  Database copy = Database::CopyOf(original);
  EXPECT_TRUE(copy.IsPrivateCopy());
  EXPECT_FALSE(original.MayBeWritten());
  EXPECT_TRUE(copy.MayBeWritten());
  EXPECT_EQ(copy.Execute("UPDATE T SET a = 2"), 1);
  EXPECT_EQ(A(copy), 2);
  EXPECT_EQ(A(original), 1);
  EXPECT_EQ(ReadFileBytes(file_), bytes);
  ExpectFault(FaultKind::division_by_zero, file_.string(), [&] { copy.Execute("UPDATE T SET a = b/0"); });
}

TEST_F(ASharedFile, is_copied_as_it_stands_at_one_moment) {
  Services.LockPatience = milliseconds(10'000);
  test::RunPlain(file_,
                 "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<20000) INSERT INTO T "
                 "SELECT 1, 1 FROM c");
  std::atomic<bool> done = false;
  std::thread writer([&] {
    Database theirs = Database::Open(file_);
    while (!done) theirs.Execute("UPDATE T SET a = a + 1, b = b + 1");
  });
  for (int i = 0; i < 20; ++i) {
    const auto target = folder_ / ("copy" + std::to_string(i));
    CopyDatabaseFile(file_, target);
    EXPECT_EQ(test::PlainText(target, "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(test::PlainInteger(target, "SELECT count(DISTINCT a) + count(DISTINCT b) FROM T"), 2);
  }
  done = true;
  writer.join();
}

TEST_F(ASharedFile, is_never_copied_over_another) {
  const auto target = folder_ / "GENBA002.MDB";
  test::WriteBytes(target, "own");
  ExpectFault(FaultKind::file, "GENBA002.MDB", [&] { CopyDatabaseFile(file_, target); });
  EXPECT_EQ(ReadFileBytes(target), "own");
}

TEST_F(ASharedFile, runs_no_trigger_of_its_own) {
  test::RunPlain(file_, "CREATE TRIGGER r AFTER UPDATE ON T BEGIN UPDATE T SET b = 99; END");
  Database ours = Database::Open(file_);
  ours.Execute("UPDATE T SET a = 2");
  EXPECT_EQ(test::PlainInteger(file_, "SELECT b FROM T"), 1);
}

TEST_F(ASharedFile, runs_no_view_in_place_of_a_table) {
  test::RunPlain(file_, "CREATE VIEW V AS SELECT * FROM T");
  Database ours = Database::Open(file_);
  EXPECT_EQ(ours.FindTable("V"), nullptr);
  ExpectFault(FaultKind::database, "no such table", [&] { ours.HasRows("SELECT * FROM V"); });
}

TEST_F(ASharedFile, whose_statements_come_to_no_end_is_a_fault) {
  test::RunPlain(file_,
                 "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<300000) INSERT INTO T "
                 "SELECT i, i FROM c");
  Services.StatementLimit = milliseconds(1);
  Database ours = Database::Open(file_);
  ExpectFault(FaultKind::storage, "the statement comes to no end: " + file_.string(),
              [&] { ours.Execute("UPDATE T SET a = a + 1"); });
  EXPECT_EQ(test::PlainInteger(file_, "SELECT max(a) FROM T"), 300000);
}

TEST(AFileName, IsANameWhateverItReadsLike) {
  const test::TemporaryFolder folder;
  EXPECT_TRUE(test::InChild([&] {
    std::filesystem::current_path(folder.Path());
    for (const char* name : {"file:GENBA001.MDB?mode=memory", ":memory:"}) {
      Database made = Database::CreateDatabase(name);
      made.Execute("CREATE TABLE T(a LONG)");
      if (Database::Open(name).TableDefs().size() != 1) return false;
      if (!std::filesystem::is_regular_file(folder / name)) return false;
    }
    return true;
  }));
}

TEST(AFileName, ThatIsTooLongIsToldAsSuch) {
  const test::TemporaryFolder folder;
  ExpectFault(FaultKind::file, "File name too long", [&] { Database::Open(folder / std::string(300, 'x')); });
  std::filesystem::path deep = folder.Path();
  for (int i = 0; i < 10; ++i) deep /= std::string(200, 'x');
  std::filesystem::create_directories(deep);
  test::WriteBytes(deep / "GENBA001.MDB", "SQLite format 3");
  ExpectFault(FaultKind::file, "File name too long", [&] { Database::Open(deep / "GENBA001.MDB"); });
}

TEST(AFileName, ThatIsALinkToItselfIsToldAsSuch) {
  const test::TemporaryFolder folder;
  std::filesystem::create_symlink("GENBA001.MDB", folder / "GENBA001.MDB");
  ExpectFault(FaultKind::file, "Too many levels of symbolic links",
              [&] { Database::Open(folder / "GENBA001.MDB"); });
}

}  // namespace
}  // namespace rbt
