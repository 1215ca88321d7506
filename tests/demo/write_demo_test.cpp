// SPDX-License-Identifier: MIT
#include "demo/write_demo.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/profile/ini_file.h"
#include "platform/text/cp932.h"
#include "store/database.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/temporary_folder.h"

namespace rbt::demo {
namespace {

namespace fs = std::filesystem;

class WriteDemoTest : public ::testing::Test {
 protected:
  fs::path Root() const { return folder_ / "root"; }
  fs::path Data(const std::string& name) const { return Root() / "DATA" / name; }
  static std::int64_t Rows(Database& database, const std::string& table) {
    return database.OpenSnapshot("SELECT * FROM " + table).RecordCount();
  }

  test::TemporaryFolder folder_;
};

TEST_F(WriteDemoTest, makes_every_file_that_the_program_reads) {
  WriteDemo(Root(), {2, 50, 1});
  std::set<std::string> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(Root() / "DATA")) {
    files.insert(entry.path().filename().string());
  }
  EXPECT_EQ(files, (std::set<std::string>{"GENBA001.MDB", "GENBA002.MDB", "HIROI001.mdb", "HIROI002.mdb",
                                          "JSyukeiORG.mdb", "MTTeijyaku.mdb", "MTTeijyaku_ORG.mdb",
                                          "NEXTPRG.INI", "SORANO.MDB", "STEEL.INI"}));
  EXPECT_TRUE(fs::is_directory(Root() / "KAKOU"));
  EXPECT_TRUE(fs::is_directory(Root() / "rbshopTM"));
}

TEST_F(WriteDemoTest, tables_read_back_as_laid_out) {
  WriteDemo(Root(), {1, 10, 1});
  Database archive = Database::Open(Data("JSyukeiORG.mdb"));
  const std::vector<TableDef> expected = ArchiveTables();
  const std::vector<TableDef> found = archive.TableDefs();
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(found[i].name, expected[i].name);
    EXPECT_EQ(found[i].fields, expected[i].fields) << expected[i].name;
    EXPECT_EQ(found[i].indexes, expected[i].indexes) << expected[i].name;
  }
}

TEST_F(WriteDemoTest, leaves_the_schedule_as_the_entry_programs_do_unclassified) {
  WriteDemo(Root(), {1, 300, 1});
  Database site = Database::Open(Data("GENBA001.MDB"));
  EXPECT_EQ(Rows(site, "加工テーブル"), 300);
  EXPECT_FALSE(site.HasRows(
      "SELECT * FROM 加工テーブル WHERE 予備3 IS NOT NULL OR 予備5 IS NOT NULL OR 定着板数 IS NOT NULL"));
  EXPECT_FALSE(
      site.HasRows("SELECT * FROM 加工テーブル WHERE 太さ IS NULL OR 伸定尺 IS NULL OR 圧接太さ IS NULL"));
}

TEST_F(WriteDemoTest, ini_files_are_code_page_932_with_cr_lf) {
  WriteDemo(Root(), {1, 0, 1});
  const std::string bytes = ReadFileBytes(Data("STEEL.INI"));
  EXPECT_THAT(FromCp932(bytes), ::testing::HasSubstr("選択ＤＢ名=GENBA001.MDB\r\n"));
  EXPECT_EQ(GetProfileText(Data("STEEL.INI"), "自社名", "会社名", ""), "株式会社みほん鉄筋");
  EXPECT_EQ(GetProfileText(Data("NEXTPRG.INI"), "データ", "材料明細", "?"), "0");
}

TEST_F(WriteDemoTest, the_same_options_give_the_same_bytes) {
  WriteDemo(Root(), {1, 100, 5});
  const fs::path again = folder_ / "again";
  WriteDemo(again, {1, 100, 5});
  for (const fs::directory_entry& entry : fs::directory_iterator(Root() / "DATA")) {
    const fs::path name = entry.path().filename();
    EXPECT_EQ(ReadFileBytes(entry.path()), ReadFileBytes(again / "DATA" / name)) << name;
  }
}

TEST_F(WriteDemoTest, fills_an_empty_folder_that_exists) {
  fs::create_directory(Root());
  WriteDemo(Root(), {1, 0, 1});
  EXPECT_TRUE(fs::exists(Data("STEEL.INI")));
}

TEST_F(WriteDemoTest, refuses_a_folder_with_anything_in_it_and_leaves_it) {
  fs::create_directory(Root());
  std::ofstream(Root() / "mine") << "kept";
  EXPECT_THROW(WriteDemo(Root(), {1, 0, 1}), Fault);
  EXPECT_EQ(ReadFileBytes(Root() / "mine"), "kept");
  EXPECT_FALSE(fs::exists(Root() / "DATA"));
}

TEST_F(WriteDemoTest, refuses_a_file_under_the_name) {
  std::ofstream(Root()) << "kept";
  EXPECT_THROW(WriteDemo(Root(), {1, 0, 1}), Fault);
  EXPECT_EQ(ReadFileBytes(Root()), "kept");
}

TEST_F(WriteDemoTest, killed_at_any_moment_leaves_a_whole_root_or_none_and_the_next_one_succeeds) {
  const auto make = [&] { WriteDemo(Root(), {1, 0, 1}); };
  int absent = 0;
  int whole = 0;
  const auto survives = [&](int n) {
    SCOPED_TRACE(n);
    if (!test::KilledBeforeChange(n, make)) return false;
    if (fs::exists(Root() / "DATA")) {
      ++whole;
    } else {
      ++absent;
      make();
    }
    EXPECT_TRUE(fs::exists(Root() / "DATA" / "STEEL.INI"));
    EXPECT_TRUE(fs::exists(Root() / "rbshopTM"));
    EXPECT_EQ(std::distance(fs::directory_iterator(Root()), fs::directory_iterator()), 3);
    fs::remove_all(Root());
    return true;
  };
  // Every fortieth moment up to the end, and every one of the last.
  constexpr int kStep = 40;
  int n = 1;
  while (survives(n)) n += kStep;
  fs::remove_all(Root());
  for (n -= kStep - 1; survives(n);) ++n;
  EXPECT_GT(absent, 5);
  EXPECT_GT(whole, 0);
}

TEST_F(WriteDemoTest, in_a_folder_where_another_one_is_made_is_refused_or_whole) {
  const auto make = [&] { WriteDemo(Root(), {1, 0, 1}); };
  std::string refusal;
  test::MeddleBeforeChange(
      60, [&] { refusal = test::FaultTextOf(make); }, make);
  EXPECT_TRUE(fs::exists(Root() / "DATA" / "STEEL.INI"));
  EXPECT_EQ(std::distance(fs::directory_iterator(Root()), fs::directory_iterator()), 3);
}

TEST_F(WriteDemoTest, that_cannot_be_written_names_the_file_and_leaves_nothing) {
  EXPECT_TRUE(test::WithFilesOfAtMost(8192, [&] {
    EXPECT_THAT(test::FaultTextOf([&] {
                  WriteDemo(Root(), {1, 100, 1});
                }),
                testing::HasSubstr((Root() / "DATA/GENBA001.MDB").string()));
  }));
  EXPECT_FALSE(fs::exists(Root()));
}

TEST_F(WriteDemoTest, with_a_system_call_that_fails_is_a_fault_or_whole_and_stands_in_no_ones_way) {
  if (!test::CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
  const auto make = [&] { WriteDemo(Root(), {1, 0, 1}); };
  int faults = 0;
  for (int n = 1;; n += test::FailingCallStep(61)) {
    SCOPED_TRACE(n);
    const test::Ending ending = test::WithFailingCall(n, [&] { return (make(), true); });
    if (ending == test::Ending::too_few_calls) break;
    EXPECT_NE(ending, test::Ending::crash);
    if (ending == test::Ending::fault) ++faults;
    EXPECT_TRUE(ending == test::Ending::fault || fs::exists(Root() / "DATA" / "STEEL.INI"));
    if (!fs::exists(Root() / "DATA")) make();
    EXPECT_TRUE(fs::exists(Root() / "DATA" / "STEEL.INI"));
    fs::remove_all(Root());
  }
  EXPECT_GT(faults, 5);
}

}  // namespace
}  // namespace rbt::demo
