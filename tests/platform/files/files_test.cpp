// SPDX-License-Identifier: MIT
#include "platform/files/files.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

std::size_t FilesIn(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(LiesIn, GoesByWholeComponents) {
  EXPECT_TRUE(LiesIn("/media/usb", "/media/usb"));
  EXPECT_TRUE(LiesIn("/media/usb", "/media/usb/csv/a"));
  EXPECT_TRUE(LiesIn("/", "/media"));
  EXPECT_FALSE(LiesIn("/media/usb", "/media/usb2"));
  EXPECT_FALSE(LiesIn("/media/usb", "/media"));
}

TEST(WriteFileAtomically, MakesAndReplacesAFileAndLeavesNothingBeside) {
  const TemporaryFolder folder;
  const std::string bytes("a\0b\r\n", 5);
  WriteFileAtomically(folder / "x.ini", "old");
  WriteFileAtomically(folder / "x.ini", bytes);
  EXPECT_EQ(ReadFileBytes(folder / "x.ini"), bytes);
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(WriteFileAtomically, KeepsThePermissions) {
  const TemporaryFolder folder;
  WriteFileAtomically(folder / "x.ini", "old");
  fs::permissions(folder / "x.ini", fs::perms{0640});
  WriteFileAtomically(folder / "x.ini", "new");
  EXPECT_EQ(fs::status(folder / "x.ini").permissions(), fs::perms{0640});
}

TEST(WriteFileAtomically, GivesANewFileTheUsualPermissions) {
  const TemporaryFolder folder;
  const mode_t mask = ::umask(027);
  WriteFileAtomically(folder / "x.ini", "new");
  ::umask(mask);
  EXPECT_EQ(fs::status(folder / "x.ini").permissions(), fs::perms{0640});
}

TEST(WriteFileAtomically, FollowsALinkToTheFileItStandsFor) {
  const TemporaryFolder folder;
  WriteFileAtomically(folder / "real.ini", "old");
  fs::create_symlink("real.ini", folder / "link.ini");
  WriteFileAtomically(folder / "link.ini", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link.ini"));
  EXPECT_EQ(ReadFileBytes(folder / "real.ini"), "new");
}

TEST(WriteFileAtomically, OnAFullDiskFaultsAndLeavesTheOldFileIntact) {
  const TemporaryFolder folder;
  WriteFileAtomically(folder / "x.ini", "old");
  EXPECT_TRUE(test::WithFilesOfAtMost(4096, [&] {
    try {
      WriteFileAtomically(folder / "x.ini", std::string(10000, 'n'));
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::file);
      EXPECT_NE(std::string(fault.what()).find("x.ini"), std::string::npos) << fault.what();
    }
  }));
  EXPECT_EQ(ReadFileBytes(folder / "x.ini"), "old");
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

/// The superuser may write everything: under him the test acts as another user on a folder of that user.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const fs::path& folder) : superuser_(::geteuid() == 0) {
    constexpr uid_t kNobody = 65534;
    if (superuser_ && (::chown(folder.c_str(), kNobody, kNobody) != 0 || ::seteuid(kNobody) != 0)) {
      throw std::runtime_error("cannot act as another user");
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (superuser_ && ::seteuid(0) != 0) std::abort();
  }

 private:
  bool superuser_;
};

TEST(WriteFileAtomically, DoesNotReplaceAWriteProtectedFile) {
  const TemporaryFolder folder;
  const OrdinaryUser user(folder.Path());
  WriteFileAtomically(folder / "x.ini", "old");
  fs::permissions(folder / "x.ini", fs::perms{0444});
  EXPECT_THROW(WriteFileAtomically(folder / "x.ini", "new"), Fault);
  EXPECT_EQ(ReadFileBytes(folder / "x.ini"), "old");
}

TEST(MayBeReplaced, GoesByTheFileAndByTheFolderThatTakesItsSuccessor) {
  const TemporaryFolder folder;
  EXPECT_TRUE(MayBeReplaced(folder / "new.ini"));
  EXPECT_TRUE(MayBeReplaced(folder / "a" / "b" / "new.ini")) << "folders are made";
  const OrdinaryUser user(folder.Path());
  WriteFileAtomically(folder / "x.ini", "old");
  EXPECT_TRUE(MayBeReplaced(folder / "x.ini"));
  fs::permissions(folder / "x.ini", fs::perms{0444});
  EXPECT_FALSE(MayBeReplaced(folder / "x.ini"));
  fs::permissions(folder / "x.ini", fs::perms{0644});
  fs::permissions(folder.Path(), fs::perms{0555});
  EXPECT_FALSE(MayBeReplaced(folder / "x.ini"));
  EXPECT_FALSE(MayBeReplaced(folder / "a" / "new.ini"));
  fs::permissions(folder.Path(), fs::perms{0755});
}

TEST(WriteFileAtomically, RefusesAFolderAndAMissingFolder) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "d");
  EXPECT_THROW(WriteFileAtomically(folder / "d", "x"), Fault);
  EXPECT_THROW(WriteFileAtomically(folder / "nowhere" / "x.ini", "x"), Fault);
  EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(WriteFileAtomically, KilledAtAnyMomentLeavesTheOldOrTheNewFile) {
  const TemporaryFolder folder;
  const fs::path file = folder / "x.ini";
  const std::string contents[] = {std::string(200'000, 'a'), std::string(300'000, 'b')};
  WriteFileAtomically(file, contents[0]);
  for (int round = 0; round < 20; ++round) {
    const pid_t writer = ::fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (int i = 0;; ++i) WriteFileAtomically(file, contents[i % 2]);
    }
    ::usleep(static_cast<useconds_t>(1000 + 700 * round));
    ASSERT_EQ(::kill(writer, SIGKILL), 0);
    ASSERT_EQ(::waitpid(writer, nullptr, 0), writer);
    const std::string bytes = ReadFileBytes(file);
    EXPECT_TRUE(bytes == contents[0] || bytes == contents[1]) << bytes.size() << " bytes";
  }
}

TEST(ReadFileBytes, NamesAMissingFileAndTheCause) {
  const TemporaryFolder folder;
  try {
    ReadFileBytes(folder / "x.ini");
    ADD_FAILURE() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_EQ(std::string(fault.what()),
              (folder / "x.ini").string() + ": cannot be opened: No such file or directory");
  }
}

TEST(ReadFileBytes, RefusesAFolder) {
  const TemporaryFolder folder;
  EXPECT_THROW(ReadFileBytes(folder.Path()), Fault);
}

}  // namespace
}  // namespace rbt
