// SPDX-License-Identifier: MIT
#include "platform/system/process.h"

#include <chrono>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/system/paths.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;
using test::RootFolder;

class Sibling : public testing::Test {
 protected:
  /// A sibling that is a shell script; executable unless told otherwise.
  void Put(const std::string& name, const std::string& script,
           fs::perms permissions = fs::perms{0755}) const {
    fs::permissions(root.Put(name, "#!/bin/sh\n" + script), permissions);
  }
  std::string Written(const std::string& name) const { return ReadFileBytes(root / name); }

  RootFolder root;
};

TEST_F(Sibling, RunsToItsEndBeforeTheWaitReturns) {
  Put("KAKOU/rbweldcnt.exe", "sleep 0.05; echo done > \"$RBK_ROOT/out\"");
  RunAndWait("\\rbk\\kakou\\RBWELDCNT.EXE", WindowStyle::maximised);
  EXPECT_EQ(Written("out"), "done\n");
}

TEST_F(Sibling, GetsItsArgumentsSplitAtBlanks) {
  Put("rbtally2.exe", "echo \"$#:$1:$2\" > \"$RBK_ROOT/out\"");
  RunAndWait("\\rbk\\rbtally2.exe  4 ab", WindowStyle::normal);
  EXPECT_EQ(Written("out"), "2:4:ab\n");
}

TEST_F(Sibling, StartsInTheFamilyDirectory) {
  Put("KAKOU/x.exe", "pwd > \"$RBK_ROOT/out\"");
  ChangeFamilyDirectory("\\rbk\\kakou");
  RunAndWait("\\rbk\\kakou\\x.exe", WindowStyle::normal);
  EXPECT_EQ(Written("out"), fs::canonical(root / "KAKOU").string() + "\n");
}

TEST_F(Sibling, GetsRootAndSettingsInItsEnvironment) {
  Put("x.exe", "echo \"$RBK_ROOT|$RBK_SETTINGS\" > \"$RBK_ROOT/out\"");
  RunAndWait("\\rbk\\x.exe", WindowStyle::hidden);
  EXPECT_EQ(Written("out"), root.Path().string() + "|" + root.SettingsFile().string() + "\n");
}

TEST_F(Sibling, LetsPendingEventsRunOnceAfterABlockingWait) {
  Put("x.exe", "sleep 0.05");
  int events = 0;
  Services.PendingEvents = [&] { ++events; };
  RunAndWait("\\rbk\\x.exe", WindowStyle::normal);
  EXPECT_EQ(events, 1);
}

TEST_F(Sibling, LetsPendingEventsRunAgainAndAgainDuringAPollingWait) {
  Put("x.exe", "sleep 0.1; echo done > \"$RBK_ROOT/out\"");
  int events = 0;
  Services.PendingEvents = [&] { ++events; };
  RunAndWaitPoll("\\rbk\\x.exe", WindowStyle::normal);
  EXPECT_GT(events, 5);
  EXPECT_EQ(Written("out"), "done\n");
}

TEST_F(Sibling, ThatFailsOrDiesEndsTheWaitAsAnyOther) {
  Put("fails.exe", "exit 3");
  Put("dies.exe", "kill -9 $$");
  EXPECT_NO_THROW(RunAndWait("\\rbk\\fails.exe", WindowStyle::normal));
  EXPECT_NO_THROW(RunAndWaitPoll("\\rbk\\dies.exe", WindowStyle::normal));
}

void ExpectFileFaultNaming(const std::string& name, const std::function<void()>& action) {
  try {
    action();
    ADD_FAILURE() << "no fault for " << name;
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_NE(std::string(fault.what()).find(name), std::string::npos) << fault.what();
  }
}

TEST_F(Sibling, WithoutAFolderIsTheProgramBesideThisOne) {
  Put("bin/own", "echo \"$0:$1\" > \"$RBK_ROOT/out\"");
  ExpectFileFaultNaming("own", [] { RunAndWait("own 4", WindowStyle::normal); });
  Services.ProgramFolder = root / "bin";
  RunAndWait("own 4", WindowStyle::normal);
  EXPECT_EQ(Written("out"), (root / "bin/own").string() + ":4\n");
  EXPECT_FALSE(OwnProgram("other"));
}

TEST_F(Sibling, ThatDoesNotExistIsNamed) {
  ExpectFileFaultNaming("\\rbk\\kakou\\rbplatecnt.exe",
                        [] { RunAndWait("\\rbk\\kakou\\rbplatecnt.exe 1", WindowStyle::normal); });
  ExpectFileFaultNaming("\\rbk\\kakou\\rbplatecnt.exe",
                        [] { RunAndWaitPoll("\\rbk\\kakou\\rbplatecnt.exe", WindowStyle::normal); });
}

TEST_F(Sibling, ThatIsNotExecutableOrAFolderIsNamed) {
  Put("plain.exe", "true", fs::perms{0644});
  fs::create_directory(root / "folder.exe");
  ExpectFileFaultNaming("plain.exe", [] { RunAndWait("\\rbk\\plain.exe", WindowStyle::normal); });
  ExpectFileFaultNaming("folder.exe", [] { RunAndWait("\\rbk\\folder.exe", WindowStyle::normal); });
  ExpectFileFaultNaming("no program", [] { RunAndWait("  ", WindowStyle::normal); });
}

TEST_F(Sibling, GoesToATestsLauncherInstead) {
  std::string seen;
  Services.Launch = [&](std::string_view line, WindowStyle style, bool polling) {
    seen +=
        std::string(line) + "," + std::to_string(static_cast<int>(style)) + (polling ? ",poll;" : ",block;");
  };
  RunAndWait("\\rbk\\a.exe 2", WindowStyle::maximised);
  RunAndWaitPoll("\\rbk\\b.exe", WindowStyle::hidden);
  EXPECT_EQ(seen, "\\rbk\\a.exe 2,3,block;\\rbk\\b.exe,0,poll;");
}

}  // namespace
}  // namespace rbt
