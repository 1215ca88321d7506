// SPDX-License-Identifier: MIT
#include "shell/live/renewal.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "shell/live/live_site.h"
#include "shell/live/working_copy.h"
#include "store/database_impl.h"
#include "support/fault_of.h"
#include "support/looking_only.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class Renewal : public testing::Test {
 protected:
  void Renew(const ReadHook& behind_reading = {}) {
    RenewWorkingCopy(site.File(), site.Copy(), WorkingCopyInCache(site.File()), behind_reading);
  }

  LiveSite site;
};

TEST_F(Renewal, ReadsAFileAgainThatChangesWhileItIsRead) {
  site.PutJet(3);
  int readings = 0;
  Renew([&] {
    if (++readings == 1) site.PutJet(4);
  });
  EXPECT_EQ(readings, 3) << "the last two agree";
  Database open = Database::Open(site.Copy());
  EXPECT_EQ(site.LinesOf(open), 4);
}

TEST_F(Renewal, TakesNoYoungFileThatIsWrittenOnBetweenTwoPages) {
  site.PutJet(300, 2);
  const std::string whole = ReadFileBytes(site.File());
  site.PutJet(300, 1);
  std::string half = ReadFileBytes(site.File());
  // The other program has written the first page of rows that its save changes, and goes on behind a reading.
  const auto page = static_cast<std::size_t>(std::ranges::mismatch(half, whole).in1 - half.begin()) / 4096;
  half.replace(page * 4096, 4096, whole, page * 4096, 4096);
  ASSERT_NE(half, whole);
  WriteFileAtomically(site.File(), half);
  std::jthread writer;
  Renew([&] {
    if (writer.joinable()) return;
    writer = std::jthread([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(40));
      WriteFileAtomically(site.File(), whole);
    });
  });
  Database open = Database::Open(site.Copy());
  EXPECT_EQ(site.BarsOf(open), 600);
}

TEST_F(Renewal, ReadsAFileOnceThatHasSettled) {
  site.PutJet(3);
  std::this_thread::sleep_for(FileStamp::kSettlingTime + std::chrono::milliseconds(100));
  int readings = 0;
  Renew([&] { ++readings; });
  EXPECT_EQ(readings, 1);
}

TEST_F(Renewal, GivesUpAYoungFileThatReadsOtherwiseEachTime) {
  site.PutJet(3);
  int readings = 0;
  std::jthread writer;
  const auto change_behind = [&] {
    writer = std::jthread([&, lines = 3 + ++readings] {
      std::this_thread::sleep_for(std::chrono::milliseconds(40));
      site.PutJet(lines);
    });
  };
  EXPECT_THAT(FaultTextOf([&] { Renew(change_behind); }), HasSubstr("keeps changing while it is read"));
  EXPECT_EQ(readings, 4);
}

TEST_F(Renewal, GivesUpAFileThatKeepsChangingAfterThreeMoreReadingsAndNamesIt) {
  site.PutJet(3);
  int readings = 0;
  const auto change = [&] { site.PutJet(3 + ++readings); };
  EXPECT_THAT(FaultTextOf([&] { Renew(change); }),
              AllOf(HasSubstr(site.File().string()), HasSubstr("keeps changing while it is read")));
  EXPECT_EQ(readings, 4);
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB"));
}

TEST_F(Renewal, ReadsAFileAgainThatLooksDamagedWhileItIsYoung) {
  site.PutJet(300);
  const std::string whole = ReadFileBytes(site.File());
  std::string half = whole;
  half.replace(half.size() - 4096, 4096, std::string(4096, '\0'));
  WriteFileAtomically(site.File(), half);
  int readings = 0;
  // The other program comes to its end behind the second reading.
  Renew([&] {
    if (++readings == 2) WriteFileAtomically(site.File(), whole);
  });
  EXPECT_EQ(readings, 4);
  Database open = Database::Open(site.Copy());
  EXPECT_EQ(site.LinesOf(open), 300);
}

TEST_F(Renewal, SetsAFileAsideThatIsNoCopyAndSaysSo) {
  site.PutJet(3);
  WriteFileAtomically(site.Copy(), "what is this");
  Renew();
  Database open = Database::Open(site.Copy());
  EXPECT_EQ(site.LinesOf(open), 3);
  EXPECT_EQ(ReadFileBytes(site.Data("GENBA001.MDB.work.bad")), "what is this");
  EXPECT_THAT(site.messages,
              ElementsAre(AllOf(HasSubstr(site.Copy().string()), HasSubstr("GENBA001.MDB.work.bad"))));
}

TEST_F(Renewal, SetsADatabaseAsideThatNotesNoJetFileBesideTheOneBefore) {
  site.PutJet(3);
  WriteFileAtomically(site.Data("GENBA001.MDB.work.bad"), "from before");
  Database::CreateDatabase(site.Copy()).Execute("CREATE TABLE 加工テーブル (本数 long)");
  Renew();
  EXPECT_THAT(site.messages, SizeIs(1));
  EXPECT_EQ(ReadFileBytes(site.Data("GENBA001.MDB.work.bad")), "from before");
  EXPECT_NE(Database::Open(site.Data("GENBA001.MDB.work.bad2")).FindTable("加工テーブル"), nullptr);
}

TEST_F(Renewal, SetsADamagedCopyAsideRatherThanLoseWhatWasSavedInIt) {
  site.PutJet(300);
  {
    Database open = site.Open();
    LiveSite::Save(open, {"20261121", "090000", "本館"});
  }
  {
    std::fstream copy(site.Copy(), std::ios::in | std::ios::out | std::ios::binary);
    const auto size = static_cast<std::streamoff>(fs::file_size(site.Copy()));
    copy.seekp(4096);
    copy << std::string(static_cast<std::size_t>(size - 4096), '\x5A');
  }
  const std::string damaged = ReadFileBytes(site.Copy());
  site.PutJet(301);
  Database open = site.Open();
  EXPECT_EQ(site.LinesOf(open), 301);
  EXPECT_THAT(site.messages, SizeIs(1));
  EXPECT_EQ(ReadFileBytes(site.Data("GENBA001.MDB.work.bad")), damaged);
}

TEST_F(Renewal, LetsNoJournalOfAnotherFileComeBesideTheCopy) {
  site.PutJet(3);
  WriteFileAtomically(site.Data("GENBA001.MDB.work-journal"), "of a copy that somebody has deleted");
  Renew();
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.work"));
}

TEST_F(Renewal, GivesTheCopyTheRightsOfTheFileThoughTheOneBeforeHadFewer) {
  site.PutJet(3);
  site.Open();
  fs::permissions(site.Copy(), fs::perms{0640});
  site.PutJet(4);
  fs::permissions(site.File(), fs::perms{0664});
  site.Open();
  EXPECT_EQ(fs::status(site.Copy()).permissions(), fs::perms{0664});
}

TEST_F(Renewal, DoesNotReplaceACopyThatMayOnlyBeReadWhileAnotherUserSavesInIt) {
  site.PutJet(3);
  Database others = site.Open();
  site.PutJet(4);
  fs::permissions(site.Root().Path(), fs::perms{0755});
  fs::permissions(site.File().parent_path(), fs::perms{0777});
  fs::permissions(site.Copy(), fs::perms{0444});
  fs::create_directories(site.Root() / "OTHER");
  const LookingOnly as_another_user({site.Root() / "OTHER"});
  {
    Transaction save(others);
    LiveSite::Save(others, {"20261121", "090000", "本館"});
    EXPECT_THAT(FaultTextOf([&] { Renew(); }), HasSubstr(site.Copy().string() + ": another user's program"));
    save.Commit();
  }
  EXPECT_FALSE(others.HasMoved());
  Renew();
  Database open = Database::OpenReadOnly(site.Copy());
  EXPECT_EQ(site.LinesOf(open), 4);
  EXPECT_THAT(LiveSite::Tallies(open), SizeIs(1));
}

TEST_F(Renewal, TellsOfRowsThatTheStoreDoesNotTake) {
  FieldDef words;
  words.name = "名称";
  words.type = FieldType::text;
  words.size = 10;
  const Value no_text = Bytes{0x81, 0x00, 0x42};
  WriteJetFile(site.File(), jet::JetVersion::jet3, {{"表", {words}, {{Value{"鉄筋"}}, {no_text}}}});
  Renew();
  EXPECT_THAT(site.messages,
              ElementsAre(AllOf(HasSubstr("GENBA001.MDB"), HasSubstr("1 行"), HasSubstr("表"))));
  EXPECT_EQ(LookAtWorkingCopy(site.File()).refused_rows, 1);
}

TEST_F(Renewal, WaitsForNobodyWhoHasTheJetFileOpen) {
  site.PutJet(3);
  const int lock_file = ::open(site.Data("GENBA001.ldb").c_str(), O_RDWR | O_CREAT, 0666);
  ASSERT_EQ(::flock(lock_file, LOCK_EX), 0);
  const int jet = ::open(site.File().c_str(), O_RDWR);
  ASSERT_EQ(::flock(jet, LOCK_EX), 0);
  Renew();
  ::close(jet);
  ::close(lock_file);
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.work", "GENBA001.ldb"));
}

TEST_F(Renewal, OfOneProgramKeepsThatOfAnotherWaiting) {
  site.PutJet(3);
  Services.LockPatience = std::chrono::milliseconds(0);
  const fs::path lock_file = site.Data("GENBA001.MDB.work.lock");
  const int other = ::open(lock_file.c_str(), O_RDWR | O_CREAT, 0666);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  EXPECT_EQ(FaultOf([&] { Renew(); }), FaultKind::locked);
  ::close(other);
  Renew();
  EXPECT_FALSE(fs::exists(lock_file)) << "what a killed program has left goes with the next making";
}

TEST_F(Renewal, WaitsForWhoeverWritesTheCopy) {
  site.PutJet(3);
  site.Open();
  Services.LockPatience = std::chrono::milliseconds(0);
  Database other = Database::Open(site.Copy());
  site.PutJet(4);
  {
    Transaction saving(other);
    EXPECT_EQ(FaultOf([&] { Renew(); }), FaultKind::locked);
    LiveSite::Save(other, {"20261121", "090000", "本館"});
    saving.Commit();
  }
  Database open = site.Open();
  EXPECT_EQ(site.LinesOf(open), 4);
  EXPECT_THAT(site.Tallies(open), ElementsAre("20261121 090000 本館: 1"));
  EXPECT_THAT(site.messages, IsEmpty());
}

TEST_F(Renewal, LetsNobodyWriteIntoTheCopyThatItHasReplaced) {
  site.PutJet(3);
  Database old = site.Open();
  site.PutJet(4);
  Database open = site.Open();
  EXPECT_THROW(LiveSite::Save(old, {"20261121", "090000", "本館"}), Fault);
  EXPECT_EQ(open.FindTable("重量集計"), nullptr);
}

TEST_F(Renewal, GivesTheCopyTheRightsOfTheJetFile) {
  site.PutJet(3);
  fs::permissions(site.File(), fs::perms{0464});
  Renew();
  EXPECT_EQ(fs::status(site.Copy()).permissions(), fs::perms{0664});
}

}  // namespace
}  // namespace rbt::test
