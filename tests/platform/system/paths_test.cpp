// SPDX-License-Identifier: MIT
#include "platform/system/paths.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/fault_of.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;
using test::EnvironmentVariable;
using test::FaultTextOf;
using test::RootFolder;
using test::TemporaryFolder;

TEST(MapPath, FindsAFileWhateverTheLetterCaseOfItsFolders) {
  const RootFolder root;
  const fs::path file = root.Put("DATA/Steel.ini", "");
  EXPECT_EQ(MapPath("\\rbk\\data\\STEEL.INI"), file);
  EXPECT_EQ(MapPath("\\RBK\\DATA\\steel.ini"), file);
}

TEST(MapPath, DropsTheDriveLetter) {
  const RootFolder root;
  const fs::path file = root.Put("DATA/MTTeijyaku.mdb", "");
  EXPECT_EQ(MapPath("C:\\RBK\\DATA\\mtteijyaku.mdb"), file);
  EXPECT_EQ(MapPath("d:/rbk/data/MTTeijyaku.mdb"), file);
}

TEST(MapPath, TakesTheFamilysFolderAsTheRootItself) {
  const RootFolder root;
  EXPECT_EQ(MapPath("\\rbk"), root.Path());
  EXPECT_EQ(MapPath("\\rbk\\"), root.Path());
  EXPECT_EQ(MapPath("\\rbk\\rbk"), root / "rbk") << "only the first component is the root";
}

TEST(MapPath, KeepsTheSpellingOfWhatDoesNotExist) {
  const RootFolder root;
  EXPECT_EQ(MapPath("\\rbk\\Kakou\\New.exe"), root / "Kakou" / "New.exe");
}

TEST(MapPath, PrefersTheExactSpellingAndThenTheFirstInByteOrder) {
  const RootFolder root;
  root.Put("b.ini", "");
  root.Put("B.INI", "");
  EXPECT_EQ(MapPath("\\rbk\\b.ini"), root / "b.ini");
  EXPECT_EQ(MapPath("\\rbk\\B.ini"), root / "B.INI");
}

TEST(MapPath, LeavesFullWidthLettersAsTheyAre) {
  const RootFolder root;
  root.Put("Ａ.ini", "");
  EXPECT_EQ(MapPath("\\rbk\\ａ.ini"), root / "ａ.ini");
}

TEST(MapPath, FollowsParentsInsideTheRootAndRefusesToLeaveIt) {
  const RootFolder root;
  EXPECT_EQ(MapPath("\\rbk\\data\\..\\.\\x"), root / "x");
  EXPECT_THROW(MapPath("\\rbk\\..\\x"), Fault);
  EXPECT_THROW(MapPath("\\rbk\\data\\..\\..\\x"), Fault);
  EXPECT_THROW(MapPath("..\\x"), Fault);
}

TEST(MapPath, RefusesANulAndAMissingRoot) {
  const RootFolder root;
  EXPECT_THROW(MapPath(std::string_view("\\rbk\\a\0b", 8)), Fault);
  Services.Root.clear();
  EXPECT_THROW(MapPath("\\rbk\\data"), Fault);
}

TEST(MapPath, TakesAComponentThatIsTooLongAsItStands) {
  const RootFolder root;
  const std::string name(5000, 'x');
  EXPECT_EQ(MapPath("\\rbk\\" + name), root / name);
}

TEST(Root, BecomesAbsolute) {
  const RootFolder root;
  Services.Root = "somewhere/";
  EXPECT_EQ(Root(), fs::current_path() / "somewhere");
}

TEST(Root, IsThatOfTheEnvironmentUnlessMainNamesAnother) {
  const EnvironmentVariable variable("RBK_ROOT", "/srv/rbk");
  const test::KeptServices services;
  Services = ServicesData();
  EXPECT_EQ(Root(), "/srv/rbk");
  Services.Root = "/home/rbk";
  EXPECT_EQ(Root(), "/home/rbk");
}

TEST(FamilyFileExists, IsTrueForFilesAlone) {
  const RootFolder root;
  root.Put("KAKOU/x.exe", "");
  EXPECT_TRUE(FamilyFileExists("\\rbk\\kakou\\X.EXE"));
  EXPECT_FALSE(FamilyFileExists("\\rbk\\kakou"));
  EXPECT_FALSE(FamilyFileExists("\\rbk\\kakou\\y.exe"));
}

TEST(FamilyFileExists, FaultsWhereItCannotBeFoundOut) {
  const RootFolder root;
  fs::create_symlink("loop.ini", root.Data("loop.ini"));
  EXPECT_THAT(FaultTextOf([] { FamilyFileExists("\\rbk\\data\\loop.ini"); }),
              testing::HasSubstr("Too many levels of symbolic links"));
  EXPECT_THAT(FaultTextOf([] { FamilyFileExists("\\rbk\\" + std::string(5000, 'x')); }),
              testing::HasSubstr("File name too long"));
}

TEST(ChangeFamilyDirectory, KeepsItForSiblingsAndRefusesAMissingFolder) {
  const RootFolder root;
  const fs::path here = fs::current_path();
  fs::create_directories(root / "KAKOU");
  ChangeFamilyDirectory("\\rbk\\kakou");
  EXPECT_EQ(FamilyDirectory(), root / "KAKOU");
  EXPECT_EQ(fs::current_path(), here);
  EXPECT_THROW(ChangeFamilyDirectory("\\rbk\\nowhere"), Fault);
  EXPECT_EQ(FamilyDirectory(), root / "KAKOU");
}

TEST(UserFolders, AreTheConfiguredOnes) {
  const TemporaryFolder home;
  const EnvironmentVariable home_variable("HOME", home.Path().string());
  const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
  fs::create_directories(home / ".config");
  fs::create_directories(home / "デスク トップ");
  std::ofstream(home / ".config" / "user-dirs.dirs")
      << "# comment\nXDG_DESKTOP_DIR=\"$HOME/デスク\\ トップ\"\nXDG_DOCUMENTS_DIR=\"/\"\n";
  EXPECT_EQ(DesktopFolder(), home / "デスク トップ");
  EXPECT_EQ(DocumentsFolder(), fs::path("/"));
}

TEST(UserFolders, AreElseTheUsualOnesWhereTheyExist) {
  const TemporaryFolder home;
  const EnvironmentVariable home_variable("HOME", home.Path().string());
  const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
  fs::create_directories(home / "Documents");
  EXPECT_EQ(DocumentsFolder(), home / "Documents");
  EXPECT_EQ(DesktopFolder(), std::nullopt);
}

TEST(OfferedFolder, IsThatOfTheDocumentsElseTheHomeFolder) {
  const TemporaryFolder home;
  const EnvironmentVariable home_variable("HOME", home.Path().string());
  const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
  EXPECT_EQ(OfferedFolder(), home.Path());
  fs::create_directories(home / "Documents");
  EXPECT_EQ(OfferedFolder(), home / "Documents");
}

TEST(SettingsFile, FollowsTheEnvironment) {
  const EnvironmentVariable home("HOME", "/home/someone");
  const EnvironmentVariable settings("RBK_SETTINGS", std::nullopt);
  {
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/config");
    EXPECT_EQ(SettingsFile(), "/config/rbtally/settings.ini");
  }
  const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
  EXPECT_EQ(SettingsFile(), "/home/someone/.config/rbtally/settings.ini");
  const EnvironmentVariable own("RBK_SETTINGS", "own.ini");
  EXPECT_EQ(SettingsFile(), fs::current_path() / "own.ini");
}

}  // namespace
}  // namespace rbt
