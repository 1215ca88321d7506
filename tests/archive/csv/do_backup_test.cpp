// SPDX-License-Identifier: MIT
#include "archive/csv/do_backup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/csv/csv_samples.h"
#include "platform/files/files.h"
#include "platform/text/cp932.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/looking_only.h"
#include "support/temporary_folder.h"

namespace rbt::test {

namespace {

std::size_t FilesIn(const std::filesystem::path& folder) {
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files += entry.exists() ? 1 : 0;
  return files;
}

}  // namespace

TEST(DoBackUp, WritesCodePage932) {
  const TemporaryFolder folder;
  EXPECT_EQ(Do_BackUP(folder / "a.csv", "柱,1\r\n"), "");
  EXPECT_EQ(ReadFileBytes(folder / "a.csv"), "\x92\x8C,1\r\n");
}

TEST(DoBackUp, MarksAndTellsWhatTheCodePageLacks) {
  const TemporaryFolder folder;
  EXPECT_EQ(Do_BackUP(folder / "a.csv", "\"😀柱😀한\"\r\n"), "😀한");
  EXPECT_EQ(ReadFileBytes(folder / "a.csv"), ToCp932("\"?柱??\"\r\n"));
  EXPECT_EQ(ReplacedCharactersNotice("😀한"), "次の文字は「?」に置き換えました： 😀한");
  EXPECT_EQ(ReplacedCharactersNotice(""), "");
}

TEST(DoBackUp, ReplacesTheFileThatIsThere) {
  const TemporaryFolder folder;
  Do_BackUP(folder / "a.csv", "a longer one\r\n");
  Do_BackUP(folder / "a.csv", "1\r\n");
  EXPECT_EQ(ReadFileBytes(folder / "a.csv"), "1\r\n");
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(DoBackUp, MarksWhatTheCodePageLacksInNamesOfSiteClientPartsAndRegisteredNames) {
  const TemporaryFolder folder;
  CsvSite site = SampleCsvSite();
  site.name = "😀住宅";
  site.client = "한建設";
  site.parts[0] = "𠮟柱";
  CsvOfNames names = SampleNames();
  names.names[0].name = "か\u3099";
  EXPECT_EQ(Do_BackUP(folder / "a.csv", CsvText(SampleParts(), site, {})), "😀한𠮟");
  const std::string parts = FromCp932(ReadFileBytes(folder / "a.csv"));
  EXPECT_THAT(parts, testing::StartsWith("\"工事No\",7,\"工事名\",\"?住宅\",\"取引先\",\"?建設\","));
  EXPECT_THAT(parts, testing::HasSubstr("\"太さ\",\"?柱\",\"部位2\","));
  EXPECT_EQ(Do_BackUP(folder / "b.csv", CsvText(names, site, {})), "😀한\u3099");
  EXPECT_THAT(FromCp932(ReadFileBytes(folder / "b.csv")), testing::HasSubstr("\r\n,\"か?\",1,0\r\n"));
}

TEST(DoBackUp, LeavesAFileThatIsThereWholeWhereItCannotWrite) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "a.csv";
  Do_BackUP(file, "old\r\n");
  const auto fails = [&] { return FaultOf([&] { Do_BackUP(file, std::string(10000, '1')); }); };
  EXPECT_TRUE(WithFilesOfAtMost(4096, [&] { EXPECT_EQ(fails(), FaultKind::file) << "a full disk"; }));
  {
    const LookingOnly looking{folder.Path()};
    EXPECT_EQ(fails(), FaultKind::file);
  }
  EXPECT_EQ(ReadFileBytes(file), "old\r\n");
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(DoBackUp, LeavesNothingBehindWhereItCannotWrite) {
  const TemporaryFolder folder;
  EXPECT_EQ(FaultOf([&] { Do_BackUP(folder / "none/a.csv", "1\r\n"); }), FaultKind::file);
  {
    const LookingOnly looking{folder.Path()};
    EXPECT_EQ(FaultOf([&] { Do_BackUP(folder / "a.csv", "1\r\n"); }), FaultKind::file);
  }
  EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

}  // namespace rbt::test
