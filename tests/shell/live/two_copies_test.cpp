// SPDX-License-Identifier: MIT
// A Jet file whose folder could not be written for a time has two working copies.
#include <chrono>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/system/paths.h"
#include "shell/live/live_site.h"
#include "shell/live/second_copy.h"
#include "shell/live/working_copy.h"
#include "support/looking_only.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class TwoCopies : public testing::Test {
 protected:
  TwoCopies() {
    site.PutJet(3);
    fs::create_directories(CacheFolder());
    fs::permissions(CacheFolder(), fs::perms::all);
    fs::permissions(CacheFolder().parent_path(), fs::perms::all);
    fs::permissions(CacheFolder().parent_path().parent_path(), fs::perms::all);
  }

  void Save(const Tally& tally) {
    Database open = site.Open();
    LiveSite::Save(open, tally);
  }
  void SaveWithoutRight(const Tally& tally) {
    const LookingOnly looking({site.Root().Path()});
    Database open = site.Open();
    ASSERT_EQ(open.File(), WorkingCopyInCache(site.File()));
    LiveSite::Save(open, tally);
  }
  std::vector<std::string> Tallies(const LiveUse& use = {}) {
    Database open = site.Open(use);
    return LiveSite::Tallies(open);
  }
  static constexpr LiveUse kOnlyRead{.only_read = true};

  LiveSite site;
  const Tally in_cache{"20261121", "090000", "本館", 7};
  const Tally beside{"20261121", "100000", "別館", 8};
  const std::string in_cache_text = "20261121 090000 本館: 7";
  const std::string beside_text = "20261121 100000 別館: 8";
};

TEST_F(TwoCopies, LoseNothingWhenTheRightToTheFolderComesAndGoes) {
  site.Open();
  SaveWithoutRight(in_cache);
  Save(beside);
  site.PutJet(4);
  EXPECT_THAT(Tallies(kOnlyRead), ElementsAre(in_cache_text, beside_text));
  EXPECT_THAT(Tallies(), ElementsAre(in_cache_text, beside_text));
  EXPECT_THAT(site.messages, IsEmpty());
}

TEST_F(TwoCopies, AreJoinedThoughTheOneBesideTheFileIsUpToDate) {
  site.Open();
  SaveWithoutRight(in_cache);
  EXPECT_THAT(Tallies(), ElementsAre(in_cache_text));
}

TEST_F(TwoCopies, AreToldApartByWhatOnlyTheOtherHolds) {
  site.Open();
  EXPECT_THAT(SecondCopies(site.File()), IsEmpty());
  SaveWithoutRight(in_cache);
  const auto look = [&] {
    const std::vector<SecondCopy> copies = SecondCopies(site.File());
    return copies.size() == 1 && copies.front().copy == WorkingCopyInCache(site.File())
               ? std::optional(copies.front().lacking)
               : std::nullopt;
  };
  EXPECT_EQ(look(), 1U);
  site.Open();
  EXPECT_EQ(look(), 0U) << "they are joined";
}

TEST_F(TwoCopies, AreJoinedInTheCacheToo) {
  SaveWithoutRight(in_cache);
  Save(beside);
  const LookingOnly looking({site.Root().Path()});
  Database open = site.Open();
  EXPECT_EQ(open.File(), WorkingCopyInCache(site.File()));
  EXPECT_THAT(LiveSite::Tallies(open), ElementsAre(in_cache_text, beside_text));
}

TEST_F(TwoCopies, DoNotBringBackWhatWasDeletedBehindTheJoining) {
  site.Open();
  SaveWithoutRight(in_cache);
  {
    Database open = site.Open();
    ASSERT_THAT(LiveSite::Tallies(open), ElementsAre(in_cache_text));
    open.Execute("DELETE FROM 重量集計名称");
    open.Execute("DELETE FROM 重量集計");
  }
  site.PutJet(4);
  site.Open();
  EXPECT_EQ(LookAtWorkingCopy(site.File()).saved_tallies, 0U);
}

TEST_F(TwoCopies, ForReadingShowWhatTheArchiveHoldsAfterADeletion) {
  Save(in_cache);
  Save(beside);
  site.PutJet(4);
  ASSERT_THAT(Tallies(kOnlyRead), ElementsAre(in_cache_text, beside_text));
  {
    Database archive = Database::Open(site.Copy());
    archive.Execute("DELETE FROM 重量集計名称 WHERE 作成時間='090000'");
    archive.Execute("DELETE FROM 重量集計 WHERE 作成時間='090000'");
  }
  EXPECT_THAT(Tallies(kOnlyRead), ElementsAre(beside_text));
}

TEST_F(TwoCopies, ForReadingStaysWhileNothingIsSavedInTheArchive) {
  Save(beside);
  site.PutJet(4);
  const auto mark = [&] {
    Database open = site.Open(kOnlyRead);
    return MarkOfCopy(open, site.File());
  };
  const std::string first = mark();
  fs::last_write_time(site.Copy(), fs::file_time_type::clock::now() + std::chrono::hours(1));
  EXPECT_EQ(mark(), first);
}

TEST_F(TwoCopies, ThatCannotBeReadIsToldOnceAndStays) {
  const fs::path other = WorkingCopyInCache(site.File());
  fs::create_directories(other.parent_path());
  WriteFileAtomically(other, "no copy");
  site.Open();
  site.Open();
  EXPECT_THAT(site.messages, ElementsAre(HasSubstr(other.string())));
  EXPECT_EQ(ReadFileBytes(other), "no copy");
}

TEST_F(TwoCopies, WhatTheFilesTablesDoNotTakeStaysInTheOtherAndIsTold) {
  SaveWithoutRight(in_cache);
  std::vector<TableDef> archive = ArchiveTables();
  std::vector<JetTable> tables;
  for (TableDef& table : archive) {
    if (table.name != "重量集計名称") continue;
    for (FieldDef& field : table.fields) {
      if (field.name == "作成日") field.size = 4;
    }
    tables.push_back({table.name, table.fields, {}});
  }
  WriteJetFile(site.File(), jet::JetVersion::jet4, tables);
  site.Open();
  const fs::path other = WorkingCopyInCache(site.File());
  EXPECT_THAT(site.messages, ElementsAre(HasSubstr(other.string())));
  Database stays = Database::OpenReadOnly(other);
  EXPECT_THAT(LiveSite::Tallies(stays), ElementsAre(in_cache_text));
}

}  // namespace
}  // namespace rbt::test
