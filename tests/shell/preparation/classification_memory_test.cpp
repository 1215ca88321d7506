// SPDX-License-Identifier: MIT
#include "shell/preparation/classification_memory.h"

#include <fstream>
#include <iterator>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure_log.h"
#include "platform/files/files.h"
#include "platform/system/paths.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "shell/preparation/preparation.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;
using testing::SizeIs;

const StartModeTraits kUsual = TraitsOfStartMode(kNoStartMode);
const StartModeTraits kOther = TraitsOfStartMode(1);

class Memories : public testing::Test {
 protected:
  Memories() { site_.AddRow({{"太さ", 19}, {"形状No", 1}}); }

  fs::path File() const { return site_.Data(kScheduleFile); }

  static ClassificationMemory Of(Database& schedule, const StartModeTraits& start_mode) {
    schedule.Hold();
    return {schedule, PreparationStatements(schedule, start_mode)};
  }
  bool Holds(const StartModeTraits& start_mode = kUsual) const {
    Database schedule = Database::Open(File());
    return Of(schedule, start_mode).Holds();
  }
  void Note(fs::file_time_type now = Later()) const {
    Database schedule = Database::Open(File());
    Of(schedule, kUsual).Note(now);
  }
  static fs::file_time_type Later() {
    return fs::file_time_type::clock::now() + 2 * ClassificationMemory::kSettlingTime;
  }
  static std::vector<fs::path> Noted() {
    std::error_code none;
    return {fs::directory_iterator(CacheFolder(), none), fs::directory_iterator()};
  }

  SiteFixture site_;
};

TEST_F(Memories, HoldForAFileAsItStands) {
  EXPECT_FALSE(Holds());
  Note();
  EXPECT_TRUE(Holds());
  EXPECT_THAT(Noted(), SizeIs(1));
}

TEST_F(Memories, HoldForTheStatementsAlone) {
  Note();
  EXPECT_FALSE(Holds(kOther));
  site_.LeaveOutColumns({"定着板数"});
  Note();
  EXPECT_TRUE(Holds());
}

TEST_F(Memories, EndWithAChangeOfTheFile) {
  Note();
  site_.AddRow({{"太さ", 22}});
  EXPECT_FALSE(Holds());
}

TEST_F(Memories, EndWithBytesThatWerePutIntoTheFileAsIfNobodyHadWrittenIt) {
  Note();
  const auto written = fs::last_write_time(File());
  constexpr int kUserVersionAt = 63;
  std::fstream(File(), std::ios::binary | std::ios::in | std::ios::out).seekp(kUserVersionAt).put('\1');
  fs::last_write_time(File(), written);
  EXPECT_FALSE(Holds());
}

TEST_F(Memories, EndWhenAnotherFileStandsUnderTheName) {
  Note();
  const auto written = fs::last_write_time(File());
  fs::copy_file(File(), site_.Data("copy"));
  fs::last_write_time(site_.Data("copy"), written);
  fs::rename(site_.Data("copy"), File());
  EXPECT_FALSE(Holds());
}

TEST_F(Memories, OfAFileThatTheNameHasLeftAreNone) {
  Database schedule = Database::Open(File());
  Note();
  fs::copy_file(File(), site_.Data("copy"));
  fs::rename(site_.Data("copy"), File());
  EXPECT_FALSE(Of(schedule, kUsual).Holds());
  Of(schedule, kUsual).Note(Later());
  EXPECT_FALSE(Holds());
}

TEST_F(Memories, OfAFileThatWasJustWrittenAreNone) {
  Note(fs::file_time_type::clock::now());
  EXPECT_FALSE(Holds());
  EXPECT_THAT(Noted(), SizeIs(0));
}

TEST_F(Memories, OfAPrivateCopyAreNone) {
  Note();
  Database schedule = Database::Open(File());
  Database copy = Database::CopyOf(schedule);
  EXPECT_FALSE(Of(copy, kUsual).Holds());
}

TEST_F(Memories, ThatAreNotWholeAreNone) {
  Note();
  const fs::path memory = Noted().front();
  fs::resize_file(memory, fs::file_size(memory) - 1);
  EXPECT_FALSE(Holds());
  fs::resize_file(memory, 0);
  EXPECT_FALSE(Holds());
  Note();
  std::ofstream(memory, std::ios::app) << ' ';
  EXPECT_FALSE(Holds());
}

TEST_F(Memories, ThatCannotBeKeptDoNoHarm) {
  std::ofstream(CacheFolder().parent_path()) << "a file where the folder should be";
  const auto failures = LoggedFailures();
  Note();
  EXPECT_FALSE(Holds());
  EXPECT_EQ(LoggedFailures(), failures);
}

TEST_F(Memories, AreNotLookedForInTheSitesFolder) {
  const auto count = [&] { return std::distance(fs::directory_iterator(site_.Data("")), {}); };
  const auto before = count();
  Note();
  EXPECT_EQ(count(), before);
}

TEST_F(Memories, ThatNobodyWillAskForAreDroppedWhenAnotherIsNoted) {
  Note();
  const fs::path of_file = Noted().front();
  const auto put = [&](const char* name, const std::string& text, std::chrono::days age) {
    const fs::path file = CacheFolder() / name;
    std::ofstream(file) << text;
    fs::last_write_time(file, fs::file_time_type::clock::now() - age);
  };
  const std::string there = fs::canonical(File()).string() + "\nx";
  put("classified-gone", site_.Data("GONE.MDB").string() + "\nx", std::chrono::days(1));
  put("classified-old", there, ClassificationMemory::kKeptFor + std::chrono::days(1));
  put("classified-kept", there, ClassificationMemory::kKeptFor - std::chrono::days(1));
  put("another-programs", "", 2 * ClassificationMemory::kKeptFor);
  Note();
  EXPECT_THAT(Noted(), SizeIs(5)) << "what is noted already is not noted again";
  site_.AddRow({{"太さ", 22}});
  Note();
  std::vector<std::string> names;
  for (const fs::path& file : Noted()) names.push_back(file.filename().string());
  EXPECT_THAT(names, testing::UnorderedElementsAre(of_file.filename().string(), "classified-kept",
                                                   "another-programs"));
}

/// A memory that is wrong shows whether anybody looks through the rows all the same.
TEST_F(Memories, SpareALookAtEachRow) {
  Note();
  const std::string bytes = ReadFileBytes(File());
  SelectSite(kScheduleFile);
  OpenWorkDatabase();
  { const ClassifiedSchedule tally(kUsual); }
  ClassifyAtLoad(kUsual);
  RefreshAtActivation(kUsual);
  EXPECT_EQ(ReadFileBytes(File()), bytes);
  { const ClassifiedSchedule tally(kOther); }
  EXPECT_EQ(ReadFileBytes(File()), bytes) << "within a run the mode is one";
  SiteContext.ClassifiedAt.reset();
  { const ClassifiedSchedule tally(kOther); }
  EXPECT_NE(ReadFileBytes(File()), bytes);
}

TEST_F(Memories, OfFloorsAndPartsAreOfTheirOwn) {
  SelectSite(kScheduleFile);
  OpenWorkDatabase();
  HoldScheduleWithFloors(kUsual);
  SiteContext.WorkDatabase->LetGo();
  site_.AddRow({{"太さ", 19}});
  Note();
  HoldScheduleWithFloors(kUsual);
  EXPECT_EQ(site_.Column("階"), (std::vector<std::string>{"78", "78"}));
}

TEST_F(Memories, AreMadeByTheStartThatChangesNothing) {
  SelectSite(kScheduleFile);
  OpenWorkDatabase();
  ClassifyAtLoad(kUsual);
  EXPECT_THAT(Noted(), SizeIs(0));
  const std::string bytes = ReadFileBytes(File());
  const auto times = fs::last_write_time(File());
  // The file has to settle.
  while (fs::file_time_type::clock::now() < times + ClassificationMemory::kSettlingTime) {
    usleep(20'000);
  }
  SiteContext.ClassifiedAt.reset();
  ClassifyAtLoad(kUsual);
  EXPECT_TRUE(Holds());
  EXPECT_EQ(ReadFileBytes(File()), bytes);
}

}  // namespace
}  // namespace rbt::test
