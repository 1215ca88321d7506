// SPDX-License-Identifier: MIT
#include "shell/live/copy_lock.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "platform/files/files.h"
#include "shell/live/live_site.h"
#include "support/looking_only.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

class CopyLocks : public testing::Test {
 protected:
  fs::path LockFile() const { return site.Data("GENBA001.MDB.work.lock"); }

  LiveSite site;
};

TEST_F(CopyLocks, AreForEveryUserWhateverTheMask) {
  const mode_t mask = ::umask(0077);
  {
    const CopyLock lock(site.Copy());
    EXPECT_EQ(fs::status(LockFile()).permissions(), fs::perms{0666});
  }
  ::umask(mask);
  EXPECT_FALSE(fs::exists(LockFile()));
}

TEST_F(CopyLocks, AreTakenByAUserWhoMayOnlyReadWhatAKilledProgramHasLeft) {
  WriteFileAtomically(LockFile(), "");
  fs::permissions(LockFile(), fs::perms{0444});
  fs::permissions(site.Root().Path(), fs::perms{0755});
  fs::permissions(LockFile().parent_path(), fs::perms{0777});
  const LookingOnly as_another_user({});
  { const CopyLock lock(site.Copy()); }
  EXPECT_FALSE(fs::exists(LockFile())) << "and goes with the lock";
}

}  // namespace
}  // namespace rbt::test
