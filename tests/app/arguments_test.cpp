// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include <initializer_list>

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

Arguments Parse(std::initializer_list<const char*> words) {
  return ParseArguments(std::span<const char* const>(words.begin(), words.size()));
}

}  // namespace

TEST(Arguments, NoWordsAreAnEmptyCommandLine) { EXPECT_EQ(Parse({}).command_line, ""); }

TEST(Arguments, WordsAreJoinedByOneBlank) { EXPECT_EQ(Parse({"1", "2", "3"}).command_line, "1 2 3"); }

TEST(Arguments, ANegativeStartModeIsNoOption) { EXPECT_EQ(Parse({"-1"}).command_line, "-1"); }

TEST(Arguments, TheRootIsTakenOutWhereverItStands) {
  const Arguments behind = Parse({"4", "--root", "/srv/rbk"});
  EXPECT_EQ(behind.command_line, "4");
  EXPECT_EQ(behind.root, "/srv/rbk");
  const Arguments before = Parse({"--root=/srv/rbk", "4"});
  EXPECT_EQ(before.command_line, "4");
  EXPECT_EQ(before.root, "/srv/rbk");
}

TEST(Arguments, ARootWithoutAFolderAndUnknownOptionsAreWrongUsage) {
  EXPECT_EQ(Parse({"--root"}).usage_fault, "--root needs a folder");
  EXPECT_EQ(Parse({"--rot", "x"}).usage_fault, "unknown option --rot");
}

TEST(Arguments, HelpAndVersionAreAskedFor) {
  EXPECT_TRUE(Parse({"--help"}).help);
  EXPECT_TRUE(Parse({"--version"}).version);
  EXPECT_FALSE(Parse({"1"}).help);
}

TEST(Arguments, TheProgramWorksWithNamesUnderTheNameOfTheirCompanion) {
  for (const char* name : {"rbtally2", "/srv/rbk/rbtally2.exe", "RBTALLY2.EXE", "./Rbtally2"}) {
    EXPECT_TRUE(WorksWithNames(name)) << name;
  }
  for (const char* name : {"rbtally1", "/srv/rbtally2/rbtally1.exe", "rbtally21", ""}) {
    EXPECT_FALSE(WorksWithNames(name)) << name;
  }
}

TEST(Arguments, TheProgramCallsItselfAsItWasStarted) {
  EXPECT_EQ(WordsOf("/srv/rbk/rbtally1").name, "rbtally1");
  EXPECT_EQ(WordsOf("/srv/rbk/rbtally1").title, "重量集計メニュー");
  EXPECT_EQ(WordsOf("/srv/rbk/rbtally2.exe").name, "rbtally2");
  EXPECT_EQ(WordsOf("/srv/rbk/rbtally2.exe").title, "登録名加工帳");
  EXPECT_TRUE(
      UsageOf(WordsOf("rbtally2"))
          .starts_with("usage: rbtally2 [--root DIR] [START-MODE ...]\n\nOpens the registered names"));
  EXPECT_TRUE(UsageOf(WordsOf("rbtally1")).ends_with("  --version    the version\n"));
}

}  // namespace rbt::test
