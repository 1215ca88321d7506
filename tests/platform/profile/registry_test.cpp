// SPDX-License-Identifier: MIT
#include "platform/profile/registry.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/text/cp932.h"
#include "support/environment_variable.h"
#include "support/fault_of.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;

class Registry : public testing::Test {
 protected:
  test::TemporaryFolder folder;
  fs::path file = folder / "sub" / "settings.ini";
  test::EnvironmentVariable settings{"RBK_SETTINGS", file.string()};
};

TEST_F(Registry, HoldsNothingBeforeTheFirstSetting) {
  EXPECT_EQ(RegistryFile(), file);
  EXPECT_EQ(RegistryText("Kakou", "定尺", "テーブル有無"), std::nullopt);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(Registry, StoresASettingAtOnceInASectionOfApplicationAndSection) {
  SetRegistryText("Kakou", "重量集計", "日付表記", "2");
  SetRegistryText("Kakou", "重量集計", "対比表項目", "3");
  SetRegistryText("Jyuryo", "定尺", "定尺13有無", "1");
  EXPECT_EQ(ReadFileBytes(file),
            "[Kakou\\重量集計]\r\n日付表記=2\r\n対比表項目=3\r\n[Jyuryo\\定尺]\r\n定尺13有無=1\r\n");
  EXPECT_EQ(RegistryText("Kakou", "重量集計", "対比表項目"), "3");
}

TEST_F(Registry, LooksUpWithoutRegardToLetterCaseAndKeepsTheFirstSpelling) {
  SetRegistryText("kakou", "定尺チェック", "定尺", "0");
  SetRegistryText("Kakou", "定尺チェック", "定尺", "1");
  EXPECT_EQ(RegistryText("KAKOU", "定尺チェック", "定尺"), "1");
  EXPECT_EQ(ReadFileBytes(file), "[kakou\\定尺チェック]\r\n定尺=1\r\n");
}

TEST_F(Registry, ReadsAFileWithLineFeedsAlone) {
  fs::create_directories(file.parent_path());
  std::ofstream(file) << "[Kakou\\定尺]\nテーブル有無=1\n";
  EXPECT_EQ(RegistryText("Kakou", "定尺", "テーブル有無"), "1");
}

TEST_F(Registry, GivesEveryTextBackAsItWasWritten) {
  using namespace std::string_literals;
  for (const std::string& text : {""s,
                                  " "s,
                                  "　"s,
                                  "\""s,
                                  "\"\""s,
                                  "'a'"s,
                                  " a "s,
                                  "a\r\nb"s,
                                  "a\nb"s,
                                  "[x]"s,
                                  ";c"s,
                                  "a=b"s,
                                  "a\\nb"s,
                                  "\\"s,
                                  " \\n\" "s,
                                  "\\\\server\\printer"s,
                                  "a\0b"s,
                                  "\t"s,
                                  "EPSON VP-4200"s,
                                  "\"quoted\" end"s,
                                  "\x1f"s}) {
    SetRegistryText("App", "s", "k", text);
    EXPECT_EQ(RegistryText("App", "s", "k"), text);
  }
}

TEST_F(Registry, ShowsBytesThatAreNoCharacters) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << "[A\\s]\nk=1\xFF\n";
  EXPECT_EQ(RegistryText("A", "s", "k"), "1\uFFFD");
}

TEST_F(Registry, RefusesAFileInCodePage932ByItsNameAndLeavesIt) {
  fs::create_directories(file.parent_path());
  const std::string bytes = ToCp932("[Kakou\\定尺]\r\nテーブル有無=1\r\n");
  std::ofstream(file, std::ios::binary) << bytes;
  for (const auto& action : {std::function<void()>([] { RegistryText("Kakou", "定尺", "テーブル有無"); }),
                             std::function<void()>([] { SetRegistryText("A", "s", "k", "1"); })}) {
    EXPECT_THAT(test::FaultTextOf(action), testing::HasSubstr("settings.ini: is written in code page 932"));
  }
  EXPECT_EQ(ReadFileBytes(file), bytes);
}

TEST_F(Registry, IsReadAsItStoodAtOneMoment) {
  SetRegistryText("A", "s", "a", "1");
  const RegistryReading before;
  SetRegistryText("A", "s", "a", "2");
  EXPECT_EQ(before.Text("A", "s", "a"), "1");
  EXPECT_EQ(RegistryReading().Text("A", "s", "a"), "2");
}

TEST_F(Registry, RefusesNamesThatTheFileCannotHold) {
  EXPECT_THROW(SetRegistryText("A", "s]", "k", "1"), Fault);
  EXPECT_THROW(SetRegistryText("A", "s", "k\n", "1"), Fault);
  EXPECT_THROW(SetRegistryText("A", "s", "", "1"), Fault);
}

TEST_F(Registry, FaultsWhenItsFolderCannotBeMade) {
  std::ofstream(folder / "sub") << "a file in the way";
  EXPECT_THROW(SetRegistryText("A", "s", "k", "1"), Fault);
}

}  // namespace
}  // namespace rbt
