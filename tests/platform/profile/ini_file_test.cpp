// SPDX-License-Identifier: MIT
#include "platform/profile/ini_file.h"

#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/file_descriptor.h"
#include "platform/files/file_lock.h"
#include "platform/files/files.h"
#include "platform/text/cp932.h"
#include "support/kept_services.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;

class IniFile : public testing::Test {
 protected:
  void Put(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }
  void PutText(const std::string& utf8) const { Put(ToCp932(utf8)); }
  std::string Bytes() const { return ReadFileBytes(file); }
  std::string Get(std::string_view section, std::string_view key, std::size_t buffer_size = 80) const {
    return GetProfileText(file, section, key, "<none>", buffer_size);
  }

  test::TemporaryFolder folder;
  fs::path file = folder / "STEEL.INI";
};

TEST_F(IniFile, ReadsKeysOfJapaneseSections) {
  PutText("[データ]\r\n選択ＤＢ名=GENBA001.MDB\r\n[加工帳]\r\n行の背景色=16777152\r\n");
  EXPECT_EQ(Get("データ", "選択ＤＢ名"), "GENBA001.MDB");
  EXPECT_EQ(Get("加工帳", "行の背景色"), "16777152");
}

TEST_F(IniFile, GivesTheFallbackForAMissingFileSectionOrKey) {
  EXPECT_EQ(Get("a", "b"), "<none>");
  Put("[a]\r\nx=1\r\n");
  EXPECT_EQ(Get("b", "x"), "<none>");
  EXPECT_EQ(Get("a", "b"), "<none>");
}

TEST_F(IniFile, GivesTheFallbackWhenTheFolderIsMissing) {
  EXPECT_EQ(GetProfileText(folder / "nowhere" / "x.ini", "a", "b", "3500"), "3500");
}

TEST_F(IniFile, TellsAnEmptyValueFromAMissingOne) {
  Put("[a]\r\nx=\r\n");
  EXPECT_EQ(Get("a", "x"), "");
}

TEST_F(IniFile, IgnoresTheLetterCaseOfHalfAndFullWidthLettersButNotTheirWidth) {
  PutText("[Ｓec]\r\nCall Ｐrg=1\r\n");
  EXPECT_EQ(Get("ｓEC", "CALL ｐRG"), "1");
  EXPECT_EQ(Get("SEC", "CALL ｐRG"), "<none>");
}

TEST_F(IniFile, KeepsKanaApartWhoseSecondBytesDifferLikeLetters) {
  // Second bytes 4B and 6B: K and k, were they letters.
  PutText("[a]\r\nガ=1\r\nネ=2\r\n");
  EXPECT_EQ(Get("a", "ネ"), "2");
  EXPECT_EQ(Get("a", "ガ"), "1");
}

TEST_F(IniFile, ReadsASectionNameThatHoldsABracketAsASecondByte) {
  PutText("[望転]\r\nx=1\r\n");
  EXPECT_EQ(Get("望転", "x"), "1");
}

TEST_F(IniFile, DropsBlanksRoundNamesAndValues) {
  Put("  [ a ] trailing\r\n\t x \t=  1 2 \t\r\n");
  EXPECT_EQ(Get("a", "x"), "1 2");
}

TEST_F(IniFile, DropsOnePairOfQuotes) {
  Put("[a]\r\np=\" x \"\r\nq='y'\r\nr=\"'z'\"\r\ns=\"\r\nt=\"a'\r\nu=\"\"\r\n");
  EXPECT_EQ(Get("a", "p"), " x ");
  EXPECT_EQ(Get("a", "q"), "y");
  EXPECT_EQ(Get("a", "r"), "'z'");
  EXPECT_EQ(Get("a", "s"), "\"");
  EXPECT_EQ(Get("a", "t"), "\"a'");
  EXPECT_EQ(Get("a", "u"), "");
}

TEST_F(IniFile, PassesOverCommentsButKeepsASemicolonInAValue) {
  Put("[a]\r\n;x=1\r\n  ; x=2\r\nx=3;4\r\n");
  EXPECT_EQ(Get("a", "x"), "3;4");
}

TEST_F(IniFile, TakesTheFirstOfEqualSectionsAndKeys) {
  Put("[a]\r\nx=1\r\nX=2\r\n[A]\r\nx=3\r\ny=4\r\n");
  EXPECT_EQ(Get("a", "x"), "1");
  EXPECT_EQ(Get("a", "y"), "<none>");
}

TEST_F(IniFile, ReadsLineFeedsAloneAndALastLineWithoutAny) {
  Put("[a]\nx=1\n\ny=2");
  EXPECT_EQ(Get("a", "x"), "1");
  EXPECT_EQ(Get("a", "y"), "2");
}

TEST_F(IniFile, PassesOverLinesThatAreNoIni) {
  Put("x=0\r\n[open\r\nx=1\r\n[]\r\n[a]\r\n=5\r\nx\r\nx=2=3\r\n");
  EXPECT_EQ(Get("a", "x"), "2=3");
  EXPECT_EQ(Get("open", "x"), "<none>");
}

TEST_F(IniFile, AnUnclosedHeadingDoesNotEndTheSectionBeforeIt) {
  Put("[a]\r\n[open\r\nx=1\r\n");
  EXPECT_EQ(Get("a", "x"), "1");
}

TEST_F(IniFile, GivesABufferOneByteLessThanItsSize) {
  Put("[a]\r\nx=" + std::string(100, 'v') + "\r\n");
  EXPECT_EQ(Get("a", "x"), std::string(79, 'v'));
  EXPECT_EQ(Get("a", "x", 10), std::string(9, 'v'));
  EXPECT_EQ(Get("a", "x", 1), "");
  EXPECT_EQ(Get("a", "x", 0), "");
}

TEST_F(IniFile, NeverGivesHalfACharacter) {
  PutText("[a]\r\nx=a工事名\r\n");
  EXPECT_EQ(Get("a", "x", 8), "a工事名");
  EXPECT_EQ(Get("a", "x", 7), "a工事");
  EXPECT_EQ(Get("a", "x", 6), "a工事");
  EXPECT_EQ(Get("a", "x", 3), "a");
}

TEST_F(IniFile, CutsTheFallbackTheSameWay) { EXPECT_EQ(GetProfileText(file, "a", "x", "工事名", 6), "工事"); }

TEST_F(IniFile, ShowsBytesThatAreNoCharactersAndEndsATextAtANul) {
  Put(std::string("[a]\r\nx=1\xFF\x32\r\ny=1\0002\r\n", 19));
  EXPECT_EQ(Get("a", "x"), "1\uFFFD2");
  EXPECT_EQ(Get("a", "y"), "1");
}

TEST_F(IniFile, TakesByteOrderMarksAsBytes) {
  Put("\xEF\xBB\xBF[a]\r\nx=1\r\n[b]\r\nx=2\r\n");
  EXPECT_EQ(Get("a", "x"), "<none>");
  EXPECT_EQ(Get("b", "x"), "2");
}

TEST_F(IniFile, ReadsHugeLinesAndManySectionsInOnePass) {
  std::string bytes = "[" + std::string(2'000'000, '[') + "\r\n" + std::string(2'000'000, '=') + "\r\n";
  for (int i = 0; i < 200'000; ++i) bytes += "[s" + std::to_string(i) + "]\r\nk=1\r\n";
  Put(bytes + "[a]\r\nx=1\r\n");
  EXPECT_EQ(Get("a", "x"), "1");
}

TEST_F(IniFile, RefusesAFileTooLargeForSettings) {
  Put("[a]\r\nx=1\r\n");
  fs::resize_file(file, (std::uintmax_t{16} << 20U) + 1);
  EXPECT_THROW(Get("a", "x"), Fault);
  EXPECT_THROW(WriteProfileText(file, "a", "x", "2"), Fault);
}

TEST_F(IniFile, RefusesWhatIsNoRegularFile) {
  fs::create_directory(file);
  EXPECT_THROW(Get("a", "x"), Fault);
  fs::remove(file);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_THROW(Get("a", "x"), Fault);
}

TEST_F(IniFile, ReplacesAValueAndKeepsEveryOtherByte) {
  const std::string head = "; \xFF\x81\r\n\r\njunk\r\n[A]\r\n  X  =  ";
  const std::string tail = "\r\nx=second\r\n;end\r\n[b]\ny=1\n";
  Put(head + "old  " + tail);
  WriteProfileText(file, "a", "x", "新しい");
  EXPECT_EQ(Bytes(), head + ToCp932("新しい") + tail);
}

TEST_F(IniFile, AddsAKeyBehindTheLastOneOfItsSection) {
  Put("[a]\r\nx=1\r\n; note\r\n\r\n[b]\r\ny=2\r\n");
  WriteProfileText(file, "A", "z", "3");
  EXPECT_EQ(Bytes(), "[a]\r\nx=1\r\nz=3\r\n; note\r\n\r\n[b]\r\ny=2\r\n");
}

TEST_F(IniFile, AddsAKeyToASectionWithoutKeys) {
  Put("[a]\r\n; note\r\n[b]\r\ny=2\r\n");
  WriteProfileText(file, "a", "z", "3");
  EXPECT_EQ(Bytes(), "[a]\r\nz=3\r\n; note\r\n[b]\r\ny=2\r\n");
}

TEST_F(IniFile, AddsASectionAtTheEndAndMakesAMissingFile) {
  WriteProfileText(file, "データ", "材料明細", "0");
  WriteProfileText(file, "b", "y", "");
  EXPECT_EQ(Bytes(), ToCp932("[データ]\r\n材料明細=0\r\n[b]\r\ny=\r\n"));
}

TEST_F(IniFile, EndsALastLineBeforeItAddsAnother) {
  Put("[a]\r\nx=1");
  WriteProfileText(file, "a", "y", "2");
  EXPECT_EQ(Bytes(), "[a]\r\nx=1\r\ny=2\r\n");
  Put("[a]");
  WriteProfileText(file, "b", "y", "2");
  EXPECT_EQ(Bytes(), "[a]\r\n[b]\r\ny=2\r\n");
}

TEST_F(IniFile, ReplacesAValueOnALastLineWithoutALineEnd) {
  Put("[a]\r\nx=1");
  WriteProfileText(file, "a", "x", "22");
  EXPECT_EQ(Bytes(), "[a]\r\nx=22");
}

TEST_F(IniFile, KeepsLineFeedsAloneWhereTheFileHasThem) {
  Put("[a]\nx=1\n");
  WriteProfileText(file, "a", "y", "2");
  WriteProfileText(file, "b", "z", "3");
  EXPECT_EQ(Bytes(), "[a]\nx=1\ny=2\n[b]\nz=3\n");
}

TEST_F(IniFile, RemovesEveryLineOfAKeyInItsSection) {
  Put("[a]\r\nx=1\r\n;c\r\nX=2\r\n[b]\r\nx=3\r\n");
  WriteProfileText(file, "a", "x", std::nullopt);
  EXPECT_EQ(Bytes(), "[a]\r\n;c\r\n[b]\r\nx=3\r\n");
  EXPECT_EQ(Get("a", "x"), "<none>");
}

TEST_F(IniFile, DoesNotWriteAFileThatStaysTheSame) {
  Put("[a]\r\nx=1\r\n");
  const auto old = fs::file_time_type::clock::now() - std::chrono::hours(1);
  fs::last_write_time(file, old);
  WriteProfileText(file, "a", "x", "1");
  WriteProfileText(file, "a", "nothing", std::nullopt);
  EXPECT_EQ(fs::last_write_time(file), old);
  WriteProfileText(folder / "other.ini", "a", "x", std::nullopt);
  EXPECT_FALSE(fs::exists(folder / "other.ini"));
}

TEST_F(IniFile, RefusesNamesAndValuesThatALineCannotHoldAndLeavesTheFile) {
  Put("[a]\r\nx=1\r\n");
  const auto refused = [this](std::string_view section, std::string_view key, std::string_view value) {
    try {
      WriteProfileText(file, section, key, value);
      return false;
    } catch (const Fault& fault) {
      return fault.Kind() == FaultKind::type_mismatch;
    }
  };
  EXPECT_TRUE(refused("a", "x", "1\r\n[b]"));
  EXPECT_TRUE(refused("a", "x", std::string_view("1\0", 2)));
  EXPECT_TRUE(refused("a", "x", "😀"));
  EXPECT_TRUE(refused("a\n", "x", "1"));
  EXPECT_TRUE(refused("a]", "x", "1"));
  EXPECT_TRUE(refused("", "x", "1"));
  EXPECT_TRUE(refused("a", "", "1"));
  EXPECT_TRUE(refused("a", "x=y", "1"));
  EXPECT_TRUE(refused("a", ";x", "1"));
  EXPECT_TRUE(refused("a", "[x", "1"));
  EXPECT_TRUE(refused("a", " x", "1"));
  EXPECT_EQ(Bytes(), "[a]\r\nx=1\r\n");
}

TEST_F(IniFile, LosesNoChangeOfTwoWritersAtOnce) {
  const auto write = [this](const std::string& section) {
    for (int i = 0; i < 50; ++i) WriteProfileText(file, section, "k" + std::to_string(i), "1");
  };
  std::thread other(write, "a");
  write("b");
  other.join();
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(Get("a", "k" + std::to_string(i)), "1");
    EXPECT_EQ(Get("b", "k" + std::to_string(i)), "1");
  }
}

TEST_F(IniFile, WaitsForAnotherWriterAsLongAsWasSaidAndNotWithoutEnd) {
  const test::KeptServices services;
  Services.LockPatience = std::chrono::milliseconds(30);
  Put("[a]\r\nx=1\r\n");
  const FileDescriptor held(::open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY));
  ASSERT_TRUE(Lock(held, LOCK_EX));
  try {
    WriteProfileText(file, "a", "x", "2");
    ADD_FAILURE() << "the folder is another's";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::locked);
    EXPECT_EQ(fault.what(), "another program holds the folder: " + folder.Path().string());
  }
  EXPECT_EQ(Get("a", "x"), "1") << "reading needs no lock";
  Services.WaitOn = [&](const fs::path&) { return Lock(held, LOCK_UN); };
  WriteProfileText(file, "a", "x", "2");
  EXPECT_EQ(Get("a", "x"), "2");
}

}  // namespace
}  // namespace rbt
