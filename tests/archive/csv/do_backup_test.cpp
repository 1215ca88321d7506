// SPDX-License-Identifier: MIT
#include "archive/csv/do_backup.h"

#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "platform/text/cp932.h"
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
