// SPDX-License-Identifier: MIT
#include "platform/files/file_in_work.h"

#include <chrono>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "platform/fault.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/temporary_folder.h"

namespace rbt {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FilesInWork : public testing::Test {
 protected:
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  void Put(const char* name, std::string_view bytes, fs::perms permissions = fs::perms{0644}) const {
    WriteFileAtomically(folder_ / name, bytes);
    fs::permissions(folder_ / name, permissions);
  }
  fs::perms PermissionsOf(const char* name) const { return fs::status(folder_ / name).permissions(); }

  test::TemporaryFolder folder_;
  const fs::path target_ = folder_ / "x";
};

TEST_F(FilesInWork, GoWithTheObjectUnlessTheyWerePutInPlace) {
  Put("x", "old");
  {
    FileInWork work(target_);
    work.Write("new");
    EXPECT_EQ(ReadFileBytes(work.Path()), "new");
    EXPECT_EQ(work.Path().parent_path(), folder_.Path());
  }
  EXPECT_THAT(Names(), ElementsAre("x"));
  EXPECT_EQ(ReadFileBytes(target_), "old");
}

TEST_F(FilesInWork, TakeTheJournalOfAnUnfinishedDatabaseWithThem) {
  {
    FileInWork work(target_);
    work.Write("half");
    WriteFileAtomically(work.Path().string() + "-journal", "how it was");
  }
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(FilesInWork, GetAFreeName) {
  FileInWork work(target_);
  work.Write("new");
  work.PutInPlace();
  EXPECT_EQ(ReadFileBytes(target_), "new");
  EXPECT_THAT(Names(), ElementsAre("x"));
}

TEST_F(FilesInWork, LeaveANameAloneThatIsTaken) {
  Put("x", "old");
  {
    FileInWork work(target_);
    work.Write("new");
    EXPECT_EQ(test::FaultTextOf([&] { work.PutInPlace(); }),
              target_.string() + ": is there already and is not overwritten");
  }
  EXPECT_EQ(ReadFileBytes(target_), "old");
  EXPECT_THAT(Names(), ElementsAre("x"));
}

TEST_F(FilesInWork, GetAFreeNameWhereFilesHaveNoSecondOnes) {
  EXPECT_TRUE(test::InChild([&] {
    test::ForbidHardLinks();
    FileInWork work(target_);
    work.Write("new");
    work.PutInPlace();
    return true;
  }));
  EXPECT_EQ(ReadFileBytes(target_), "new");
  EXPECT_THAT(Names(), ElementsAre("x"));
}

TEST_F(FilesInWork, ReplaceAFileWithItsPermissionsWhoeverMadeThem) {
  Put("x", "old", fs::perms{0640});
  FileInWork work(target_);
  fs::copy_file(target_, work.Path());
  fs::permissions(work.Path(), fs::perms{0666});
  work.Replace();
  EXPECT_EQ(PermissionsOf("x"), fs::perms{0640});
}

TEST_F(FilesInWork, CannotBeReadMeanwhileByWhomTheTargetIsKeptFrom) {
  Put("x", "old", fs::perms{0600});
  FileInWork work(target_);
  work.Write("new");
  EXPECT_EQ(fs::status(work.Path()).permissions(), fs::perms{0600});
}

TEST_F(FilesInWork, MakeATargetWritableThatIsToBeReplacedThoughItIsNot) {
  Put("x", "old", fs::perms{0444});
  const WorkPlace place(folder_.Path());
  FileInWork work(target_, place, ReadOnlyTarget::replaced);
  work.Write("new");
  work.Replace();
  EXPECT_EQ(ReadFileBytes(target_), "new");
  EXPECT_EQ(PermissionsOf("x"), fs::perms{0644});
}

TEST_F(FilesInWork, DoNotReplaceAFolder) {
  fs::create_directory(target_);
  FileInWork work(target_);
  EXPECT_THAT(test::FaultTextOf([&] { work.Write("new"); }), HasSubstr(": is no regular file"));
}

TEST_F(FilesInWork, KilledAtAnyMomentLeaveTheOldFileOrTheWholeNewOne) {
  const std::string bytes(100'000, 'n');
  int old = 0;
  for (int n = 1;; ++n) {
    Put("x", "old");
    const bool killed = test::KilledBeforeChange(n, [&] {
      FileInWork work(target_);
      work.Write(bytes);
      work.Replace();
    });
    const std::string now = ReadFileBytes(target_);
    EXPECT_TRUE(now == "old" || now == bytes) << n << ": " << now.size() << " bytes";
    if (now == "old") ++old;
    if (!killed) break;
  }
  EXPECT_GT(old, 2);
}

TEST_F(FilesInWork, KilledAtAnyMomentLeaveTheFreeNameFreeOrTheWholeFile) {
  const std::string bytes(100'000, 'n');
  int absent = 0;
  for (int n = 1;; ++n) {
    fs::remove(target_);
    const bool killed = test::KilledBeforeChange(n, [&] {
      const WorkPlace place(folder_.Path());
      FileInWork work(target_, place, ReadOnlyTarget::refused);
      work.Write(bytes);
      work.PutInPlace();
    });
    if (!fs::exists(target_)) {
      ++absent;
    } else {
      EXPECT_EQ(ReadFileBytes(target_), bytes) << n;
    }
    if (!killed) break;
  }
  EXPECT_GT(absent, 1);
  EXPECT_THAT(Names(), ElementsAre("x")) << "what was left behind goes before the next";
}

TEST_F(FilesInWork, OnAFullDiskTellTheTargetAndLeaveNothing) {
  Put("x", "old");
  EXPECT_TRUE(test::WithFilesOfAtMost(4096, [&] {
    EXPECT_EQ(test::FaultTextOf([&] { FileInWork(target_).Write(std::string(10'000, 'n')); }),
              target_.string() + ": cannot be written: File too large");
  }));
  EXPECT_EQ(ReadFileBytes(target_), "old");
  EXPECT_THAT(Names(), ElementsAre("x"));
}

TEST_F(FilesInWork, WhatCannotBeRemovedIsToldAndCounted) {
  const std::int64_t before = LoggedFailures();
  std::string name;
  testing::internal::CaptureStderr();
  {
    const FileInWork work(target_);
    name = work.Path().string();
    fs::create_directories(work.Path() / "not empty");
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), name + ": cannot be removed: Directory not empty\n");
  EXPECT_EQ(LoggedFailures(), before + 1);
}

TEST_F(FilesInWork, AFolderGoesWithAllThatIsInIt) {
  {
    const WorkPlace place(folder_.Path());
    const FolderInWork work(place);
    WriteFileAtomically(work / "a", "1");
  }
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(FilesInWork, AFolderTakesThePlaceOfAnEmptyOneAlone) {
  const WorkPlace place(folder_.Path());
  fs::create_directories(folder_ / "taken" / "mine");
  fs::create_directory(target_);
  FolderInWork work(place);
  WriteFileAtomically(work / "a", "1");
  EXPECT_THAT(test::FaultTextOf([&] { work.PutInPlace(folder_ / "taken"); }),
              HasSubstr("taken: cannot be put in place: "));
  work.PutInPlace(target_);
  EXPECT_EQ(ReadFileBytes(target_ / "a"), "1");
  EXPECT_THAT(Names(), ElementsAre("taken", "x"));
}

TEST_F(FilesInWork, APlaceOfWorkClearsWhatWasLeftBehindWhenNobodyElseIsAtWorkThere) {
  std::optional<WorkPlace> first(std::in_place, folder_.Path());
  fs::create_directory(first->NewName());
  const WorkPlace second(folder_.Path());
  EXPECT_THAT(Names(), testing::SizeIs(1)) << "the first may need it";
  first.reset();
  const WorkPlace third(folder_.Path());
  EXPECT_THAT(Names(), testing::SizeIs(1)) << "the second may need it";
}

TEST_F(FilesInWork, APlaceOfWorkClearsWhatAKilledImportHasLeft) {
  fs::create_directories(folder_ / ".rbk-import-1-0" / "DATA");
  Put(".rbk-import-1-1", "half");
  Put("x", "mine");
  const WorkPlace place(folder_.Path());
  EXPECT_THAT(Names(), ElementsAre("x"));
}

TEST_F(FilesInWork, OfADayAgoGoWhoeverLeftThem) {
  Put(".rbk-write-1-0", "old");
  Put(".rbk-import-2-0-journal", "old");
  fs::create_directories(folder_ / ".rbk-import-3-0" / "DATA");
  Put("mine", "old");
  for (const auto& entry : fs::directory_iterator(folder_.Path())) {
    fs::last_write_time(entry.path(), fs::file_time_type::clock::now() - std::chrono::hours(25));
  }
  Put(".rbk-write-4-0", "new");
  {
    const WorkPlace somebody(folder_.Path());
    // Its own begin is the time for what imports have left.
    EXPECT_THAT(Names(), ElementsAre(".rbk-write-1-0", ".rbk-write-4-0", "mine"));
    RemoveOldLeftovers(folder_.Path());
    EXPECT_TRUE(fs::exists(folder_ / ".rbk-write-1-0")) << "somebody is at work";
  }
  RemoveOldLeftovers(folder_.Path());
  EXPECT_THAT(Names(), ElementsAre(".rbk-write-4-0", "mine"));
  RemoveOldLeftovers(folder_ / "nowhere");
}

TEST_F(FilesInWork, HaveFoldersMadeWhoseNamesAreOnTheDiskBeforeAnythingIsPutIntoThem) {
  const auto make = [&] { MakeFolders(folder_ / "a/b"); };
  // Each folder is made, then the one above it is synced.
  for (int change = 1; change <= 4; ++change) {
    EXPECT_TRUE(test::KilledBeforeChange(change, make)) << change;
    fs::remove_all(folder_ / "a");
  }
  EXPECT_FALSE(test::KilledBeforeChange(5, make));
  EXPECT_TRUE(fs::is_directory(folder_ / "a/b"));
}

TEST_F(FilesInWork, HaveFoldersMadeThatGoAgainWhileTheyAreEmpty) {
  {
    const MadeFolder made(folder_ / "a/b");
    EXPECT_TRUE(fs::is_directory(folder_ / "a/b"));
    const MadeFolder there(folder_ / "a");
  }
  EXPECT_THAT(Names(), ElementsAre("a"));
  EXPECT_TRUE(fs::is_empty(folder_ / "a"));
  {
    const MadeFolder made(folder_ / "c");
    Put("c/mine", "x");
  }
  EXPECT_TRUE(fs::exists(folder_ / "c/mine"));
  Put("file", "x");
  EXPECT_THAT(test::FaultTextOf([&] { MakeFolders(folder_ / "file/d"); }), HasSubstr("file: cannot be made"));
}

}  // namespace
}  // namespace rbt
