// SPDX-License-Identifier: MIT
#include "shell/output/output_files.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/text/cp932.h"
#include "store/database.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class Outputs : public testing::Test {
 protected:
  static std::string Refusal(const fs::path& file) {
    try {
      RequireOutputPlace(file);
    } catch (const Fault& fault) {
      return fault.what();
    }
    return "";
  }
  bool Replaces(const std::string& name, const std::string& bytes, OutputKind kind) const {
    return ReplacesAnotherKind({root_.Put(name, bytes), kind});
  }

  test::RootFolder root_;
};

TEST_F(Outputs, TakeAnyNameWithoutADatabaseOutsideData) {
  EXPECT_EQ(Refusal(root_ / "new.pdf"), "");
  EXPECT_EQ(Refusal(root_.Put("old.pdf", "%PDF-1.4")), "");
  EXPECT_EQ(Refusal(root_ / "no such folder/new.pdf"), "");
}

TEST_F(Outputs, NeverTakeADatabasesName) {
  const fs::path jet = root_.Put("site.MDB", std::string("\0\1\0\0Standard Jet DB\0", 20));
  EXPECT_THAT(Refusal(jet), HasSubstr("site.MDB: is a database"));
  Database::CreateDatabase(root_ / "store.pdf");
  EXPECT_THAT(Refusal(root_ / "store.pdf"), HasSubstr("is a database"));
  fs::create_symlink("store.pdf", root_ / "link.pdf");
  EXPECT_THAT(Refusal(root_ / "link.pdf"), HasSubstr("is a database"));
}

TEST_F(Outputs, NeverTakeANameInData) {
  EXPECT_THAT(Refusal(root_.Data("new.pdf")), HasSubstr("folder of the databases"));
  EXPECT_THAT(Refusal(root_ / "KAKOU/../DATA/deep/new.pdf"), HasSubstr("folder of the databases"));
  fs::create_directory_symlink("DATA", root_ / "elsewhere");
  EXPECT_THAT(Refusal(root_ / "elsewhere/new.pdf"), HasSubstr("folder of the databases"));
  root_.Put("DATA/STEEL.INI", "[a]");
  fs::create_symlink("DATA/STEEL.INI", root_ / "link.pdf");
  EXPECT_THAT(Refusal(root_ / "link.pdf"), HasSubstr("folder of the databases"));
  EXPECT_EQ(Refusal(root_ / "DATA2/new.pdf"), "");
}

TEST_F(Outputs, NameALinkThatLeadsToItself) {
  fs::create_symlink("loop.pdf", root_ / "loop.pdf");
  EXPECT_THAT(Refusal(root_ / "loop.pdf"), HasSubstr("symbolic links"));
}

TEST_F(Outputs, TellFilesOfAnotherKindFromTheirOwn) {
  EXPECT_FALSE(ReplacesAnotherKind({root_ / "new.pdf", OutputKind::pdf}));
  EXPECT_FALSE(Replaces("empty.txt", "", OutputKind::pdf));
  EXPECT_FALSE(Replaces("old.pdf", "%PDF-1.4 ...", OutputKind::pdf));
  EXPECT_TRUE(Replaces("letter.pdf", "Dear Sir", OutputKind::pdf));
  EXPECT_FALSE(Replaces("trace.txt", "document\tPDF\t9\t1\n", OutputKind::trace));
  EXPECT_TRUE(Replaces("letter.txt", "Dear Sir", OutputKind::trace));
  EXPECT_FALSE(Replaces("old.CSV", "1,2,3", OutputKind::csv));
  EXPECT_TRUE(Replaces("letter.txt", "1,2,3", OutputKind::csv));
  EXPECT_TRUE(Replaces("picture.csv", std::string("\x89PNG\0", 5), OutputKind::csv));
}

TEST_F(Outputs, KnowACsvFileOfTheirOwnUnderAnyName) {
  const auto replaces = [&](const std::string& line) {
    return Replaces("tally.txt", ToCp932(line), OutputKind::csv);
  };
  EXPECT_FALSE(replaces("\"工事No\",1,\"工事名\",\"甲\"\r\n"));
  EXPECT_FALSE(replaces("\"2Ｂ階\",\"部位\",\"D10\",\"D13\"\r\n"));
  EXPECT_TRUE(replaces("工事No 1\r\n"));
  EXPECT_TRUE(replaces("甲\",\"部位\",\"D10\",\r\n"));
  EXPECT_TRUE(replaces("\"甲\",1\r\n\"2Ｂ階\",\"部位\",\"D10\",\"D13\"\r\n")) << "in another line";
}

TEST_F(Outputs, AreOneFileByWhateverNames) {
  const auto twice = [](const fs::path& a, const fs::path& b) {
    return NamedTwice(std::vector<OutputFile>{{a, OutputKind::pdf}, {b, OutputKind::trace}}).has_value();
  };
  EXPECT_FALSE(twice(root_ / "a", root_ / "b"));
  EXPECT_TRUE(twice(root_ / "a", root_ / "x/../a"));
  const fs::path file = root_.Put("old", "%PDF-");
  fs::create_symlink("old", root_ / "link");
  fs::create_hard_link(file, root_ / "second name");
  EXPECT_TRUE(twice(file, root_ / "link"));
  EXPECT_TRUE(twice(file, root_ / "second name"));
  fs::create_directory_symlink(".", root_ / "here");
  EXPECT_TRUE(twice(root_ / "new", root_ / "here/new"));
}

}  // namespace
}  // namespace rbt
