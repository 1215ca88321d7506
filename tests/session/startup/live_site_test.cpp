// SPDX-License-Identifier: MIT
// Starts on real Jet files that are read where they are: what was interrupted, what has no room or no rights,
// and what other programs change meanwhile.
#include <algorithm>
#include <chrono>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/jet_file.h"
#include "platform/files/files.h"
#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "shell/live/jet_folder.h"
#include "shell/preparation/classified_schedule.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/jet_site.h"
#include "support/looking_only.h"
#include "support/sample.h"
#include "support/site_fixture.h"
#include "tally/rows/bulk_tally.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kDatabases[] = {kScheduleFile, kCompanionFile, kMasterFile, kFixedStockFile,
                                      kTemplateFile};

/// A site of real Jet files throughout; its schedule has one row of six D19 whose form is found by a start.
class LiveSite : public ::testing::Test {
 protected:
  LiveSite() {
    Add(6);
    site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
    fs::copy(site_.Root() / "DATA", Stores());
    for (const char* name : kDatabases) TurnIntoJet(site_.Data(name));
    TurnIntoJet(site_.Data("MTTeijyaku_ORG.mdb"));
    RememberJetChoice(site_.Root() / "DATA", JetChoice::read_in_place);
    NoteToldOfReading(site_.Data(kScheduleFile));
    originals_ = Originals();
  }

  fs::path Stores() const { return site_.Root() / "stores"; }
  void Add(std::int64_t bars) {
    site_.AddRow({{"太さ", 19},
                  {"形状No", 138},
                  {"伸切寸", 7000},
                  {"伸本定", 1},
                  {"伸定尺", 7.0},
                  {"合計", bars},
                  {"伸総計", bars},
                  {"本数", bars},
                  {"ヶ所", 1}});
  }
  /// As another program changes the schedule: it counts so many bars by now.
  void ChangeOriginal(std::int64_t bars) {
    const fs::path store = Stores() / kScheduleFile;
    {
      Database database = Database::Open(store);
      database.Execute("UPDATE 加工テーブル SET 本数 = " + std::to_string(bars));
    }
    const fs::path copy = Stores() / "as-jet";
    fs::copy_file(store, copy, fs::copy_options::overwrite_existing);
    TurnIntoJet(copy);
    fs::rename(copy, site_.Data(kScheduleFile));
    originals_ = Originals();
  }

  std::map<std::string, std::string> Originals() const {
    std::map<std::string, std::string> bytes;
    for (const auto& entry : fs::directory_iterator(site_.Root() / "DATA")) {
      const std::string name = entry.path().filename().string();
      if (name.find(".work") == std::string::npos && !name.starts_with(".")) {
        bytes[name] = ReadFileBytes(entry.path());
      }
    }
    return bytes;
  }
  /// What stands beside the originals while no start runs: copies, one for each, and nothing in work.
  std::vector<std::string> Beside() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(site_.Root() / "DATA")) {
      const std::string name = entry.path().filename().string();
      if (!originals_.contains(name)) names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
  }

  /// A start of the command line and its tally of anchor plates, one a bar, which the classification finds.
  static std::int64_t Tally(bool prepare = true) {
    SiteFixture::ResetGlobalState();
    StartOptions options;
    options.command_line = true;
    options.prepare = prepare;
    LoadSite(options);
    ActivateMenu(options);
    return Count();
  }
  static std::int64_t Count() {
    Selection.MaterialKindMask = KindMask(15);
    Selection.IncludeUlbon = true;
    Jyuuryo_Syukei();
    return TallyGrid.TotalPlateCount;
  }
  /// As a screen counts.
  static std::int64_t CountHeld() {
    const ClassifiedSchedule held(Selection.StartMode);
    return Count();
  }
  static void End() { SiteFixture::ResetGlobalState(); }
  void RemoveCopies() const {
    End();
    for (const std::string& name : Beside()) fs::remove_all(site_.Data(name));
  }

  SiteFixture site_;
  std::map<std::string, std::string> originals_;
};

TEST_F(LiveSite, IsTalliedAndStaysAsItIs) {
  EXPECT_EQ(Tally(), 6);
  End();
  EXPECT_EQ(Originals(), originals_);
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(LiveSite, OfAWindowIsReadyToTallyAfterLoadAndActivation) {
  LoadSite({});
  ActivateMenu({});
  EXPECT_EQ(CountHeld(), 6);
  EXPECT_THAT(site_.Messages(), IsEmpty());
  End();
  EXPECT_EQ(Originals(), originals_);
}

TEST_F(LiveSite, IsToldOfOnceWhateverTheAgeOfItsMasterFile) {
  fs::remove(site_.Data(kTemplateFile));
  fs::last_write_time(site_.Data(kMasterFile), fs::file_time_type::clock::now());
  EXPECT_EQ(Tally(), 6);
  EXPECT_THAT(site_.Messages(), ::testing::SizeIs(1));
}

TEST_F(LiveSite, OfAWindowIsTakenInAnewAtAnActivation) {
  LoadSite({});
  ActivateMenu({});
  ChangeOriginal(8);
  ActivateMenu({});
  EXPECT_EQ(CountHeld(), 8);
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(LiveSite, OfAWindowIsTakenInAnewBeforeATally) {
  LoadSite({});
  ActivateMenu({});
  ChangeOriginal(8);
  EXPECT_EQ(CountHeld(), 8);
  ChangeOriginal(10);
  EXPECT_EQ(CountHeld(), 10);
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(LiveSite, ThatHasNotChangedIsReadyWithoutAChangeOfAnyFile) {
  // Times that are this young do not tell for sure; the next start notes that they do by now.
  constexpr std::chrono::milliseconds kSettled{2'200};
  EXPECT_TRUE(InChild([] { return Tally() == 6; }));
  std::this_thread::sleep_for(kSettled);
  EXPECT_TRUE(InChild([] { return Tally() == 6; }));
  std::this_thread::sleep_for(kSettled);
  EXPECT_TRUE(InChild([] { return Tally() == 6; }));
  EXPECT_FALSE(KilledBeforeChange(1, [] { Tally(); }));
}

TEST_F(LiveSite, KilledAtAnyMomentOfTheFirstReadingStartsRightTheNextTime) {
  int moments = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    RemoveCopies();
    const bool killed = KilledBeforeChange(n, [] { Tally(); });
    EXPECT_EQ(Originals(), originals_);
    EXPECT_TRUE(InChild([] { return Tally() == 6; }));
    EXPECT_EQ(Originals(), originals_);
    moments += killed ? 1 : 0;
    return killed;
  });
  EXPECT_GT(moments, 20 / SampleStep(8));
}

TEST_F(LiveSite, KilledAtAnyMomentOverAChangedOriginalStartsRightAndKeepsWhatWasSaved) {
  Tally();
  SiteContext.WorkDatabase->LetGo();
  SiteContext.WorkDatabase->Execute(
      "INSERT INTO 重量集計名称 (作成日, 作成時間, 重量集計名称) VALUES ('20261121', '090000', '保存')");
  End();
  const auto saved = [] {
    return SiteContext.WorkDatabase->HasRows("SELECT * FROM 重量集計名称 WHERE 重量集計名称 = '保存'");
  };
  std::int64_t bars = 6;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    bars += 2;
    ChangeOriginal(bars);
    const bool killed = KilledBeforeChange(n, [] { Tally(); });
    EXPECT_EQ(Originals(), originals_);
    EXPECT_TRUE(InChild([&] { return Tally() == bars && saved(); }));
    return killed;
  });
}

TEST_F(LiveSite, WithASystemCallThatFailsIsAFaultOrRightAndStartsRightTheNextTime) {
  if (!CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
  std::map<Ending, int> endings;
  for (int n = 1;; n += FailingCallStep(29)) {
    SCOPED_TRACE(n);
    RemoveCopies();
    const Ending ending = WithFailingCall(n, [] { return Tally() == 6; });
    if (ending == Ending::too_few_calls) break;
    ++endings[ending];
    EXPECT_NE(ending, Ending::wrong);
    EXPECT_NE(ending, Ending::crash);
    EXPECT_EQ(Originals(), originals_);
    EXPECT_TRUE(InChild([] { return Tally() == 6; }));
  }
  EXPECT_GT(endings[Ending::fault], 0);
}

TEST_F(LiveSite, WithoutRoomIsAFaultThatNamesTheOriginal) {
  for (const std::uint64_t room : {std::uint64_t{4096}, std::uint64_t{40000}}) {
    EXPECT_TRUE(WithFilesOfAtMost(room, [] {
      EXPECT_THAT(FaultTextOf([] { Tally(); }), AllOf(HasSubstr(".MDB"), HasSubstr("the working copy of")));
    })) << room;
    EXPECT_EQ(Originals(), originals_);
  }
  EXPECT_EQ(Tally(), 6);
}

TEST_F(LiveSite, ThatChangesWhileItIsReadIsReadAgain) {
  const fs::path schedule = site_.Data(kScheduleFile);
  const fs::path next = Stores() / "next";
  ChangeOriginal(8);
  const std::string eight = ReadFileBytes(schedule);
  ChangeOriginal(6);
  // How far the start has come when the other program comes in.
  int met = 0;
  for (int n = 1; met < 5 && n < 400; n += 7) {
    SCOPED_TRACE(n);
    RemoveCopies();
    ChangeOriginal(6);
    std::int64_t bars = 0;
    try {
      MeddleBeforeChange(
          n,
          [] {
            const std::int64_t counted = Tally();
            if (counted != 6 && counted != 8) throw std::runtime_error("neither of the two states");
          },
          [&] {
            WriteFileAtomically(next, eight);
            fs::rename(next, schedule);
          });
      bars = Tally();
    } catch (const std::runtime_error& error) {
      EXPECT_THAT(error.what(), testing::Not(HasSubstr("neither"))) << n;
      break;
    }
    EXPECT_EQ(bars, 8) << "the next start";
    ++met;
  }
  EXPECT_GT(met, 0);
}

TEST_F(LiveSite, InAFolderThatMayNotBeWrittenIsReadBelowTheUsersCache) {
  const fs::path settings = site_.Root().SettingsFile().parent_path();
  fs::create_directories(settings / "cache");
  fs::permissions(settings, fs::perms{0755});
  fs::permissions(settings / "cache", fs::perms{0777});
  {
    const LookingOnly looking{site_.Root().Path()};
    EXPECT_EQ(Tally(), 6);
    End();
    EXPECT_THAT(Beside(), IsEmpty());
  }
  EXPECT_EQ(Originals(), originals_);
  EXPECT_FALSE(fs::is_empty(settings / "cache"));
}

TEST_F(LiveSite, WithoutPreparationPutsNothingBesideTheOriginal) {
  EXPECT_EQ(Tally(false), 6);
  End();
  EXPECT_THAT(Beside(), IsEmpty());
  EXPECT_EQ(Originals(), originals_);
}

TEST_F(LiveSite, OneDatabaseOfTheStoreAmongThemIsWorkedOnItself) {
  fs::copy_file(Stores() / kCompanionFile, site_.Data(kCompanionFile), fs::copy_options::overwrite_existing);
  EXPECT_EQ(Tally(), 6);
  End();
  EXPECT_FALSE(fs::exists(site_.Data(std::string(kCompanionFile) + ".work")));
}

TEST_F(LiveSite, WithoutItsTableOfFixedStockReadsTheOneThatIsDelivered) {
  fs::remove(site_.Data(kFixedStockFile));
  originals_ = Originals();
  EXPECT_EQ(Tally(), 6);
  End();
  EXPECT_EQ(Originals(), originals_) << "no store is put among real Jet files";
}

}  // namespace
}  // namespace rbt::test
