// SPDX-License-Identifier: MIT
#include "shell/live/working_copy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

class WorkingCopy : public testing::Test {
 protected:
  CopyLook Look() const { return LookAtWorkingCopy(site.File()); }

  LiveSite site;
};

TEST_F(WorkingCopy, IsMissingAtFirstAndLookingMakesNone) {
  site.PutJet(3);
  EXPECT_EQ(Look().state, CopyState::missing);
  EXPECT_EQ(Look().copy, site.Copy());
  EXPECT_EQ(site.Names().size(), 1U);
}

TEST_F(WorkingCopy, IsFreshUntilItsFileChanges) {
  site.PutJet(3);
  site.Open();
  EXPECT_EQ(Look().state, CopyState::fresh);
  site.PutJet(4);
  const std::string before = ReadFileBytes(site.Copy());
  EXPECT_EQ(Look().state, CopyState::stale);
  EXPECT_EQ(ReadFileBytes(site.Copy()), before);
}

TEST_F(WorkingCopy, OfAnotherVersionOfTheImportIsOutdated) {
  site.PutJet(3);
  site.Open().Execute("UPDATE [~jet_source] SET [version]='0'");
  EXPECT_EQ(Look().state, CopyState::outdated);
  site.Open();
  EXPECT_EQ(Look().state, CopyState::fresh);
}

TEST_F(WorkingCopy, TellsHowManyTalliesNobodyElseHas) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館"}});
  {
    Database open = site.Open();
    EXPECT_EQ(Look().saved_tallies, 0U);
    LiveSite::Save(open, {"20261121", "090000", "別館"});
  }
  EXPECT_EQ(Look().saved_tallies, 1U);
}

TEST_F(WorkingCopy, IsForeignWhereItIsNone) {
  site.PutJet(3);
  WriteFileAtomically(site.Copy(), "no copy");
  EXPECT_EQ(Look().state, CopyState::foreign);
  EXPECT_EQ(ReadFileBytes(site.Copy()), "no copy");
}

TEST_F(WorkingCopy, GoesOnWhenItsFileIsSpelledInAnotherLetterCase) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  const fs::path renamed = site.Data("Genba001.mdb");
  const fs::path in_cache = WorkingCopyInCache(site.File()).parent_path();
  fs::rename(site.File(), renamed);
  EXPECT_EQ(WorkingCopyInCache(renamed).parent_path(), in_cache);
  Database open = OpenLive(renamed, {});
  EXPECT_EQ(open.File(), site.Copy());
  EXPECT_EQ(LiveSite::Tallies(open).size(), 1U);
  EXPECT_EQ(site.Names().size(), 2U);
}

TEST_F(WorkingCopy, InTheCacheGoesOnWhenItsFileIsSpelledInAnotherLetterCase) {
  site.PutJet(3);
  const fs::path copy = site.Open({.only_read = true}).File();
  ASSERT_EQ(copy, WorkingCopyInCache(site.File()));
  const fs::path renamed = site.Data("GENBA001.mdb");
  fs::rename(site.File(), renamed);
  EXPECT_EQ(WorkingCopyInCache(renamed), copy);
}

TEST_F(WorkingCopy, OfAnotherFileIsTakenByNoneWhoseNameDiffersInLetterCase) {
  site.PutJet(3);
  site.Open();
  const fs::path other = site.Data("genba001.mdb");
  fs::copy_file(site.File(), other);
  EXPECT_EQ(WorkingCopyBeside(other), site.Data("genba001.mdb.work"));
  EXPECT_NE(WorkingCopyInCache(other), WorkingCopyInCache(site.File()));
}

TEST_F(WorkingCopy, InTheCacheIsOneForAllWaysToTheFile) {
  site.PutJet(3);
  fs::create_directory_symlink(site.Root() / "DATA", site.Root() / "LINK");
  EXPECT_EQ(WorkingCopyInCache(site.Root() / "LINK" / "GENBA001.MDB"), WorkingCopyInCache(site.File()));
  EXPECT_NE(WorkingCopyInCache(site.Data("GENBA002.MDB")).parent_path(),
            WorkingCopyInCache(site.File()).parent_path());
  EXPECT_EQ(WorkingCopyInCache(site.File()).filename(), "GENBA001.MDB.work");
}

}  // namespace
}  // namespace rbt::test
