// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "support/site_fixture.h"
#include "support/stopped_work.h"

namespace rbt::test {
namespace {

const StartModeTraits kStartInWork = TraitsOfStartMode(kNoStartMode);

class StoppedPreparation : public testing::Test {
 protected:
  StoppedPreparation() {
    std::vector<Cells> rows;
    for (std::int64_t i = 0; i < 40; ++i) rows.push_back({{"太さ", 10 + i % 9 * 3}, {"形状No", i % 12}});
    site_.AddRows(rows);
    std::filesystem::copy_file(File(), fresh_);
    bytes_ = BytesOf(fresh_);
  }

  std::filesystem::path File() const { return site_.Data(kScheduleFile); }
  void OpenFresh() const {
    SiteContext.WorkDatabase.reset();
    SiteContext.ClassifiedAt.reset();
    std::filesystem::copy_file(fresh_, File(), std::filesystem::copy_options::overwrite_existing);
    SelectSite(kScheduleFile);
    OpenWorkDatabase();
  }
  void ExpectFresh() const {
    EXPECT_TRUE(BytesOf(File()) == bytes_) << "the schedule has changed";
    EXPECT_FALSE(std::filesystem::exists(File().string() + "-journal"));
    EXPECT_FALSE(SiteContext.ClassifiedAt) << "it is taken for classified";
  }

  SiteFixture site_;
  std::filesystem::path fresh_ = site_.Data("FRESH.MDB");
  std::string bytes_;
  WorkStopper stopper_;
};

TEST_F(StoppedPreparation, AtLoadLeavesTheFileByteForByte) {
  StopEverywhere(
      stopper_, [this] { OpenFresh(); }, [] { ClassifyAtLoad(kStartInWork); }, [this] { ExpectFresh(); });
}

TEST_F(StoppedPreparation, BeforeATallyLeavesTheFileByteForByte) {
  StopEverywhere(
      stopper_, [this] { OpenFresh(); }, [] { const ClassifiedSchedule held(kStartInWork); },
      [this] { ExpectFresh(); });
}

TEST_F(StoppedPreparation, IsDoneByTheNextOne) {
  OpenFresh();
  stopper_.StopAt(5);
  EXPECT_EQ(FaultOf([] { ClassifyAtLoad(kStartInWork); }), FaultKind::stopped);
  stopper_.StopAt(0);
  ClassifyAtLoad(kStartInWork);
  const std::string prepared = BytesOf(File());
  OpenFresh();
  ClassifyAtLoad(kStartInWork);
  EXPECT_TRUE(BytesOf(File()) == prepared);
}

}  // namespace
}  // namespace rbt::test
