// SPDX-License-Identifier: MIT
#include "shell/live/live_database.h"

#include <chrono>
#include <fcntl.h>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/import/import_file.h"
#include "jet/jet_file.h"
#include "jet/table.h"
#include "platform/fault.h"
#include "platform/files/file_descriptor.h"
#include "shell/live/import_saved.h"
#include "shell/live/live_site.h"
#include "shell/live/source_note.h"
#include "shell/live/working_copy.h"
#include "store/database_file.h"
#include "support/fault_of.h"
#include "support/looking_only.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class LiveDatabase : public testing::Test {
 protected:
  LiveSite site;
};

TEST_F(LiveDatabase, OfTheStoreIsTheFileItself) {
  Database::CreateDatabase(site.File()).Execute("CREATE TABLE 加工テーブル (本数 long)");
  Database open = site.Open();
  EXPECT_EQ(open.File(), site.File());
  EXPECT_TRUE(StandsFor(open, site.File()));
  EXPECT_EQ(MarkOfCopy(open, site.File()), "");
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
}

class LiveJetFile : public LiveDatabase, public testing::WithParamInterface<jet::JetVersion> {};
INSTANTIATE_TEST_SUITE_P(BothVersions, LiveJetFile,
                         testing::Values(jet::JetVersion::jet3, jet::JetVersion::jet4));

TEST_P(LiveJetFile, IsReadThroughACopyBesideItAndStaysAsItIs) {
  site.PutJet(300, 2, {}, GetParam());
  const std::string before = ReadFileBytes(site.File());
  Database open = site.Open();
  EXPECT_EQ(open.File(), site.Copy());
  EXPECT_EQ(site.LinesOf(open), 300);
  EXPECT_EQ(site.BarsOf(open), 600);
  EXPECT_TRUE(open.MayBeWritten());
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.work"));
  EXPECT_EQ(ReadFileBytes(site.File()), before);
  EXPECT_THAT(site.messages, IsEmpty());
}

TEST_P(LiveJetFile, KnowsOfEachRowItsPageAndSlotThere) {
  site.PutJet(300, 1, {{"20261121", "090000", "本館"}}, GetParam());
  Database open = site.Open();
  const auto jet = jet::JetFile::Open(site.File());
  for (const std::string table : {"加工テーブル", "重量集計名称"}) {
    const jet::TableDefinition definition = jet::FindTable(*jet, table);
    Recordset rows = open.OpenSnapshot("SELECT * FROM " + table);
    std::int64_t number = 0;
    for (; !rows.Eof(); rows.MoveNext()) {
      const auto place = JetPlaceOf(open, table, ++number);
      ASSERT_TRUE(place) << table << " " << number;
      const std::vector<Value> there = jet::ReadRow(*jet, definition, {place->page, place->slot});
      for (int field = 0; field < rows.FieldCount(); ++field) {
        EXPECT_EQ(TextOf(rows.Get(FieldHandle{field})), TextOf(there[static_cast<std::size_t>(field)]));
      }
    }
    EXPECT_GT(number, 0);
    EXPECT_FALSE(JetPlaceOf(open, table, number + 1));
  }
  EXPECT_FALSE(JetPlaceOf(open, "形状テーブル", 1));
}

TEST_F(LiveDatabase, FindsThePlaceOfARowWithoutALookAtAllOthers) {
  site.PutJet(3);
  Database open = site.Open();
  const auto rows = open.FindTable("~jet_rows");
  ASSERT_THAT(rows->indexes, testing::SizeIs(1));
  EXPECT_THAT(rows->indexes.front().fields, ElementsAre("of_table", "of_row"));
}

TEST_F(LiveDatabase, ListsNoneOfTheTablesThatTheCopyKeepsForItself) {
  site.PutJet(1);
  Database open = site.Open();
  EXPECT_EQ(open.TableDefs().size(), 1U);
  EXPECT_THAT(open.TableTexts(), ElementsAre(testing::Key("加工テーブル")));
  EXPECT_NE(open.FindTable("~jet_source"), nullptr);
}

TEST_F(LiveDatabase, KeepsTheCopyOfAFileThatWasOnlyTouched) {
  site.PutJet(3);
  Database open = site.Open();
  const std::string mark = MarkOfCopy(open, site.File());
  EXPECT_NE(mark, "");
  fs::last_write_time(site.File(), fs::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_FALSE(StandsFor(open, site.File()));
  Database again = site.Open();
  EXPECT_EQ(MarkOfCopy(again, site.File()), mark);
}

TEST_F(LiveDatabase, FollowsAFileThatHasChanged) {
  site.PutJet(3);
  Database open = site.Open();
  const std::string mark = MarkOfCopy(open, site.File());
  site.PutJet(4);
  EXPECT_FALSE(StandsFor(open, site.File()));
  Database again = site.Open();
  EXPECT_EQ(site.LinesOf(again), 4);
  EXPECT_NE(MarkOfCopy(again, site.File()), mark);
  EXPECT_EQ(site.LinesOf(open), 3) << "whoever has it open goes on with what he has";
  EXPECT_TRUE(open.HasMoved());
}

TEST_F(LiveDatabase, FollowsAChangeThatKeepsSizeAndTimeOfTheFile) {
  site.PutJet(3, 1);
  const auto written = fs::last_write_time(site.File());
  const auto size = fs::file_size(site.File());
  site.Open();
  site.PutJet(3, 2);
  fs::last_write_time(site.File(), written);
  ASSERT_EQ(fs::file_size(site.File()), size);
  Database again = site.Open();
  EXPECT_EQ(site.BarsOf(again), 6);
}

TEST_F(LiveDatabase, BelievesNoTimesOfAFileThatAnotherProgramHasOpen) {
  site.PutJet(3, 1);
  Database open = site.Open();
  site.PutJet(3, 2);
  // As a share leaves the times of a file until it is closed.
  open.Execute("UPDATE [~jet_source] SET [settled]=-1, [stamp]='" + StampOf(site.File())->text + "'");
  EXPECT_TRUE(StandsFor(open, site.File()));
  const FileDescriptor lock_file(::open(site.Data("GENBA001.ldb").c_str(), O_RDWR | O_CREAT, 0666));
  struct flock all {};
  all.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(lock_file.Number(), F_OFD_SETLK, &all), 0);
  EXPECT_FALSE(StandsFor(open, site.File()));
  EXPECT_EQ(LookAtWorkingCopy(site.File()).state, CopyState::stale);
  Database again = site.Open();
  EXPECT_EQ(site.BarsOf(again), 6);
}

TEST_F(LiveDatabase, OfAFileThatAnotherProgramHasOpenStandsByItsBytes) {
  site.PutJet(3, 1);
  Database open = site.Open();
  open.Execute("UPDATE [~jet_source] SET [settled]=-1");
  const FileDescriptor lock_file(::open(site.Data("GENBA001.ldb").c_str(), O_RDWR | O_CREAT, 0666));
  struct flock all {};
  all.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(lock_file.Number(), F_OFD_SETLK, &all), 0);
  EXPECT_TRUE(StandsFor(open, site.File()));
}

TEST_F(LiveDatabase, OfAFileThatHasSettledIsKnownToStand) {
  site.PutJet(3);
  Database young = site.Open();
  EXPECT_FALSE(StandsFor(young, site.File())) << "the next change could have the same time";
  std::this_thread::sleep_for(std::chrono::milliseconds(2100));
  Database settled = site.Open();
  EXPECT_TRUE(StandsFor(settled, site.File()));
  Database copy = Database::CopyOf(settled);
  EXPECT_TRUE(StandsFor(copy, site.File()));
  EXPECT_FALSE(StandsFor(settled, site.Data("GENBA002.MDB")));
  site.PutJet(3, 2);
  EXPECT_FALSE(StandsFor(settled, site.File()));
  EXPECT_FALSE(StandsFor(copy, site.File()));
}

TEST_F(LiveDatabase, KeepsNoCopyOfADamagedFileAndTheOneBefore) {
  site.PutJet(300);
  const std::size_t page = [&] {
    Database open = site.Open();
    return JetPlaceOf(open, "加工テーブル", 1)->page;
  }();
  const std::string copy = ReadFileBytes(site.Copy());
  constexpr std::size_t kPage = 4096;
  std::string bytes = ReadFileBytes(site.File());
  bytes.replace(page * kPage, kPage, std::string(kPage, '\x5A'));
  WriteFileAtomically(site.File(), bytes);
  EXPECT_THAT(FaultTextOf([&] { site.Open(); }),
              AllOf(HasSubstr(site.File().string()), HasSubstr("damaged"), Not(HasSubstr(".work"))));
  EXPECT_EQ(ReadFileBytes(site.Copy()), copy);
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.work"));
}

TEST_F(LiveDatabase, WithoutRightToTheFolderIsInTheCacheOfTheUser) {
  site.PutJet(3);
  fs::create_directories(CacheFolder());
  fs::permissions(CacheFolder(), fs::perms::all);
  fs::permissions(CacheFolder().parent_path(), fs::perms::all);
  fs::permissions(CacheFolder().parent_path().parent_path(), fs::perms::all);
  {
    const LookingOnly looking({site.Root().Path()});
    Database open = site.Open();
    EXPECT_EQ(open.File(), WorkingCopyInCache(site.File()));
    EXPECT_TRUE(open.MayBeWritten());
    EXPECT_EQ(site.LinesOf(open), 3);
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
  Database beside = site.Open();
  EXPECT_EQ(beside.File(), site.Copy());
  EXPECT_THAT(site.Tallies(beside), ElementsAre("20261121 090000 本館: 1")) << "what was saved comes along";
}

TEST_F(LiveDatabase, OnlyReadWritesNothingIntoTheFolder) {
  site.PutJet(3);
  Database open = site.Open({.only_read = true});
  EXPECT_EQ(open.File(), WorkingCopyInCache(site.File()));
  EXPECT_FALSE(open.MayBeWritten());
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
  site.PutJet(4);
  Database again = site.Open({.only_read = true});
  EXPECT_EQ(site.LinesOf(again), 4);
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
}

TEST_F(LiveDatabase, OnlyReadTakesTheCopyBesideTheFileAsLongAsItIsUpToDate) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  const std::string beside = ReadFileBytes(site.Copy());
  EXPECT_EQ(site.Open({.only_read = true}).File(), site.Copy());
  site.PutJet(4);
  Database in_cache = site.Open({.only_read = true});
  EXPECT_EQ(in_cache.File(), WorkingCopyInCache(site.File()));
  EXPECT_EQ(site.LinesOf(in_cache), 4);
  EXPECT_THAT(site.Tallies(in_cache), ElementsAre("20261121 090000 本館: 1"));
  EXPECT_EQ(ReadFileBytes(site.Copy()), beside);
}

TEST_F(LiveDatabase, RefusedNamesTheCommandThatTakesItOver) {
  site.PutJet(3);
  EXPECT_THAT(FaultTextOf([&] { site.Open({.jet = JetChoice::refuse}); }),
              HasSubstr("to take it over: rbtally import"));
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
}

TEST_F(LiveDatabase, ImportedTakesThePlaceOfTheFileAndWhatWasSavedComesAlong) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  EXPECT_THROW(site.Open({.jet = JetChoice::import, .only_read = true}), Fault);
  Database imported = site.Open({.jet = JetChoice::import});
  EXPECT_EQ(imported.File(), site.File());
  EXPECT_EQ(site.LinesOf(imported), 3);
  EXPECT_THAT(site.Tallies(imported), ElementsAre("20261121 090000 本館: 1"));
  EXPECT_TRUE(fs::exists(site.Data("GENBA001.MDB.jet")));
}

TEST_F(LiveDatabase, ImportedHasWhatWasSavedBeforeItTakesThePlaceOfTheFile) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  ImportInPlaceWithSaved(site.File());
  Database imported = Database::Open(site.File());
  EXPECT_THAT(site.Tallies(imported), ElementsAre("20261121 090000 本館: 1"));
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.jet", "GENBA001.MDB.jet.txt"));
  EXPECT_THAT(site.messages, IsEmpty());
}

TEST_F(LiveDatabase, IsNotImportedWhileWhatWasSavedCannotGoWithIt) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  std::vector<JetTable> tables;
  std::vector<TableDef> archive = ArchiveTables();
  for (TableDef& table : archive) {
    if (table.name != "重量集計名称") continue;
    for (FieldDef& field : table.fields) {
      if (field.name == "作成日") field.size = 4;
    }
    tables.push_back({table.name, table.fields, {}});
  }
  WriteJetFile(site.File(), jet::JetVersion::jet4, tables);
  const std::string before = ReadFileBytes(site.File());
  const std::string fault = FaultTextOf([&] { ImportInPlaceWithSaved(site.File()); });
  EXPECT_THAT(fault, HasSubstr(site.Copy().string()));
  EXPECT_EQ(ReadFileBytes(site.File()), before);
  EXPECT_TRUE(fs::exists(site.Copy()));
}

TEST_F(LiveDatabase, ImportedLeavesACopyThatCannotBeReadAndSaysSo) {
  site.PutJet(3);
  WriteFileAtomically(site.Copy(), "no copy");
  ImportInPlaceWithSaved(site.File());
  EXPECT_THAT(site.messages, ElementsAre(HasSubstr(site.Copy().string())));
  EXPECT_EQ(ReadFileBytes(site.Copy()), "no copy");
}

TEST_F(LiveDatabase, OfTheStoreTellsOfTalliesThatOnlyAWorkingCopyBesideItHolds) {
  site.PutJet(3);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  jet::ImportJetFileInPlace(site.File());
  site.Open();
  EXPECT_THAT(site.messages, ElementsAre(AllOf(HasSubstr("1 件"), HasSubstr(site.Copy().string()))));
  {
    Database store = Database::Open(site.File());
    LiveSite::Save(store, {"20261121", "090000", "本館"});
  }
  site.messages.clear();
  site.Open();
  EXPECT_THAT(site.messages, IsEmpty()) << "it has them";
}

TEST_F(LiveDatabase, AFileOfTheStoreInPlaceOfTheJetFileIsOpenedItself) {
  site.PutJet(3);
  Database copy = site.Open();
  fs::remove(site.File());
  Database::CreateDatabase(site.File());
  EXPECT_FALSE(StandsFor(copy, site.File()));
  EXPECT_EQ(site.Open().File(), site.File());
}

}  // namespace
}  // namespace rbt::test
