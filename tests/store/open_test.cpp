// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "store/database.h"
#include "store/plain_file.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

using test::ExpectFault;
using test::TemporaryFolder;

class OpeningAFile : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
};

TEST_F(OpeningAFile, that_is_missing_names_file_and_cause) {
  ExpectFault(FaultKind::file, "GENBA001.MDB: the file does not exist", [&] { Database::Open(file_); });
  EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(OpeningAFile, that_is_a_folder_is_refused) {
  ExpectFault(FaultKind::file, "is not a file", [&] { Database::Open(folder_.Path()); });
}

TEST_F(OpeningAFile, that_is_a_jet_file_names_it_as_one_and_leaves_every_byte) {
  const std::string jet = std::string("\x00\x01\x00\x00Standard Jet DB\x00", 20) + std::string(4076, 'x');
  test::WriteBytes(file_, jet);
  ExpectFault(FaultKind::file, "GENBA001.MDB: a real Jet file", [&] { Database::Open(file_); });
  ExpectFault(FaultKind::file, "a real Jet file", [&] { Database::OpenReadOnly(file_); });
  ExpectFault(FaultKind::file, "GENBA001.MDB", [&] { Database::CreateDatabase(file_); });
  EXPECT_EQ(ReadFileBytes(file_), jet);
}

TEST_F(OpeningAFile, that_is_a_jet_file_tells_a_command_that_a_shell_takes) {
  const std::filesystem::path file = folder_ / "bob's site.MDB";
  test::WriteBytes(file, std::string("\x00\x01\x00\x00Standard Jet DB\x00", 20));
  const std::string word = "'" + (folder_ / "bob'\\''s site.MDB").string() + "'";
  ExpectFault(FaultKind::file, "rbtally import " + word + " " + word, [&] { Database::Open(file); });
}

TEST_F(OpeningAFile, that_is_empty_is_refused) {
  test::WriteBytes(file_, "");
  ExpectFault(FaultKind::file, "is empty", [&] { Database::Open(file_); });
}

TEST_F(OpeningAFile, that_is_no_database_is_refused) {
  test::WriteBytes(file_, "[Program]\r\nName=1\r\n");
  ExpectFault(FaultKind::file, "GENBA001.MDB: the file is not a database", [&] { Database::Open(file_); });
}

TEST_F(OpeningAFile, whose_table_definitions_are_damaged_names_the_file) {
  test::RunPlain(file_, "CREATE TABLE 登録名(登録AN LONG)");
  std::string bytes = ReadFileBytes(file_);
  const std::size_t definition = bytes.find("CREATE TABLE");
  bytes.replace(definition, 12, "CRXXXX TABLE");
  test::WriteBytes(file_, bytes);
  ExpectFault(FaultKind::file, "GENBA001.MDB: malformed database schema", [&] { Database::Open(file_); });
}

TEST_F(OpeningAFile, for_creation_refuses_one_that_exists) {
  Database::CreateDatabase(file_);
  ExpectFault(FaultKind::file, "GENBA001.MDB: File exists", [&] { Database::CreateDatabase(file_); });
}

TEST_F(OpeningAFile, that_was_created_finds_an_empty_database) {
  { const Database created = Database::CreateDatabase(file_); }
  EXPECT_TRUE(Database::Open(file_).TableDefs().empty());
  EXPECT_EQ(test::PlainText(file_, "PRAGMA integrity_check"), "ok");
}

TEST_F(OpeningAFile, in_a_folder_that_is_missing_cannot_create) {
  ExpectFault(FaultKind::file, "No such file or directory",
              [&] { Database::CreateDatabase(folder_ / "DATA/GENBA001.MDB"); });
}

TEST_F(OpeningAFile, read_only_refuses_every_change_with_the_stores_words) {
  test::RunPlain(file_, "CREATE TABLE 登録名(登録AN LONG); INSERT INTO 登録名 VALUES(1)");
  Database database = Database::OpenReadOnly(file_);
  EXPECT_TRUE(database.HasRows("SELECT * FROM 登録名"));
  ExpectFault(FaultKind::storage, "readonly database",
              [&] { database.Execute("UPDATE 登録名 SET 登録AN=2"); });
}

TEST_F(OpeningAFile, without_the_right_to_write_opens_and_refuses_changes) {
  test::RunPlain(file_, "CREATE TABLE 登録名(登録AN LONG); INSERT INTO 登録名 VALUES(1)");
  ASSERT_EQ(chmod(file_.c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);
  EXPECT_TRUE(test::InChild([&] {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) return false;  // root writes whatever the rights say
    Database database = Database::Open(file_);
    if (!database.HasRows("SELECT * FROM 登録名")) return false;
    ExpectFault(FaultKind::storage, "readonly database",
                [&] { database.Execute("UPDATE 登録名 SET 登録AN=2"); });
    return !::testing::Test::HasFailure();
  }));
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  EXPECT_EQ(test::PlainInteger(file_, "SELECT 登録AN FROM 登録名"), 1);
}

TEST_F(OpeningAFile, keeps_the_whole_site_in_the_one_file_after_a_change) {
  test::RunPlain(file_,
                 "PRAGMA journal_mode=WAL; CREATE TABLE 登録名(登録AN LONG); INSERT INTO 登録名 VALUES(1)");
  Database database = Database::Open(file_);
  database.Execute("UPDATE 登録名 SET 登録AN=2");
  EXPECT_FALSE(std::filesystem::exists(file_.string() + "-wal"));
  EXPECT_FALSE(std::filesystem::exists(file_.string() + "-journal"));
  EXPECT_EQ(test::PlainText(file_, "PRAGMA journal_mode"), "delete");
}

TEST_F(OpeningAFile, with_a_name_in_japanese_works) {
  const auto file = folder_ / "現場１.MDB";
  Database database = Database::CreateDatabase(file);
  database.Execute("CREATE TABLE 登録名(登録AN LONG)");
  EXPECT_EQ(database.File(), file);
  ExpectFault(FaultKind::database, "現場１.MDB", [&] { database.Execute("DELETE FROM 無し"); });
}

TEST_F(OpeningAFile, never_takes_a_name_in_double_quotes_for_a_text) {
  test::RunPlain(file_, "CREATE TABLE 登録名(登録AN LONG); INSERT INTO 登録名 VALUES(1)");
  Database database = Database::Open(file_);
  ExpectFault(FaultKind::database, "", [&] { database.HasRows("SELECT * FROM 登録名 WHERE [無し]=1"); });
}

}  // namespace
}  // namespace rbt
