// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "store/database.h"
#include "store/plain_file.h"
#include "support/sample.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

/// Uses every way into a file; ends in a fault or not at all badly.
struct Outcome {
  bool faulted = false;
  std::int64_t rows = 0;
};
Outcome UseEverything(const std::filesystem::path& file) {
  Outcome outcome;
  try {
    Database site = Database::Open(file);
    for (const TableDef& table : site.TableDefs()) {
      Recordset rows = site.OpenSnapshot("SELECT * FROM [" + table.name + "]");
      for (; !rows.Eof(); rows.MoveNext()) {
        for (int f = 0; f < rows.FieldCount(); ++f) rows.Get(FieldHandle{f});
        ++outcome.rows;
      }
    }
    Transaction together(site);
    site.Execute("UPDATE 加工テーブル SET 太さ=太さ+1");
    site.Execute("DROP INDEX 加工_pkey ON 加工テーブル");
    site.Execute("ALTER TABLE 加工テーブル ADD CONSTRAINT 加工_pkey PRIMARY KEY(行No)");
    for (Recordset rows = site.OpenDynaset("SELECT * FROM 登録名"); !rows.Eof(); rows.MoveNext()) {
      rows.Edit();
      rows.Set("登録名", std::string("壁"));
      rows.Update();
    }
    together.Commit();
  } catch (const Fault&) {
    outcome.faulted = true;
  }
  return outcome;
}

class ADamagedFile : public ::testing::Test {
 protected:
  void SetUp() override {
    test::RunPlain(
        sound_,
        "CREATE TABLE 加工テーブル(行No LONG, 太さ SHORT, 名称 TEXT(50), 重量 CURRENCY, CONSTRAINT 加工_pkey "
        "PRIMARY KEY(行No)); CREATE TABLE 登録名(登録AN INTEGER PRIMARY KEY AUTOINCREMENT, 登録名 TEXT(50)); "
        "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM c WHERE i<400) INSERT INTO 加工テーブル "
        "SELECT i, 10 + i % 20, '縦筋' || i, i * 0.5 FROM c; "
        "INSERT INTO 登録名 SELECT 行No, 名称 FROM 加工テーブル WHERE 行No < 50");
    bytes_ = ReadFileBytes(sound_);
  }

  test::TemporaryFolder folder_;
  std::filesystem::path sound_ = folder_ / "sound.MDB";
  std::filesystem::path file_ = folder_ / "GENBA001.MDB";
  std::string bytes_;
};

TEST_F(ADamagedFile, that_is_sound_after_all_gives_every_row) {
  test::WriteBytes(file_, bytes_);
  const Outcome outcome = UseEverything(file_);
  EXPECT_FALSE(outcome.faulted);
  EXPECT_EQ(outcome.rows, 449);
}

TEST_F(ADamagedFile, cut_short_anywhere_faults) {
  const auto step = std::size_t{997} * static_cast<std::size_t>(test::SampleStep(5));
  for (std::size_t length = 0; length < bytes_.size(); length += step) {
    test::WriteBytes(file_, bytes_.substr(0, length));
    EXPECT_TRUE(UseEverything(file_).faulted) << length << " of " << bytes_.size() << " bytes";
  }
}

TEST_F(ADamagedFile, with_bytes_flipped_anywhere_faults_or_is_read_but_never_crashes) {
  std::mt19937 random(932);
  int faults = 0;
  for (int round = 0; round < 300 / test::SampleStep(10); ++round) {
    std::string damaged = bytes_;
    for (int flip = 0; flip < 8; ++flip) {
      const auto at = std::uniform_int_distribution<std::size_t>(0, damaged.size() - 1)(random);
      damaged[at] = static_cast<char>(std::uniform_int_distribution(0, 255)(random));
    }
    test::WriteBytes(file_, damaged);
    if (UseEverything(file_).faulted) ++faults;
  }
  EXPECT_GT(faults, 0);
}

TEST_F(ADamagedFile, faults_naming_the_file_when_a_page_of_rows_is_no_page) {
  constexpr std::size_t kPage = 4096;
  for (std::size_t at = kPage; at + kPage <= bytes_.size(); at += kPage)
    bytes_.replace(at, kPage, kPage, '\x7f');
  test::WriteBytes(file_, bytes_);
  Database site = Database::Open(file_);
  test::ExpectFault(FaultKind::storage, "GENBA001.MDB",
                    [&] { site.OpenSnapshot("SELECT * FROM 加工テーブル"); });
}

}  // namespace
}  // namespace rbt
