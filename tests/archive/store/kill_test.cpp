// SPDX-License-Identifier: MIT
// A program that ends in the midst of a change leaves all of it or nothing.
#include <filesystem>

#include <gtest/gtest.h>

#include "archive/store/archive_site.h"
#include "archive/store/manage_tallies.h"
#include "archive/store/random_tallies.h"
#include "support/child_process.h"
#include "support/sample.h"

namespace rbt::test {

namespace {

class KilledChange : public testing::Test {
 protected:
  void SetUp() override {
    RandomTallies random(1);
    floors_ = random.Floors({});
    ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("一括", 1)));
    ASSERT_TRUE(site_.Save(floors_, ArchiveSite::Order("全階", 2)));
    std::filesystem::copy_file(site_.Data(kScheduleFile), fresh_);
  }

  void Restore() const {
    const auto file = site_.Data(kScheduleFile);
    std::filesystem::remove(file.string() + "-journal");
    std::filesystem::copy_file(fresh_, file, std::filesystem::copy_options::overwrite_existing);
  }

  /// Lets a change be killed at each of its moments.
  void ExpectAllOrNothing(const std::function<void()>& change) const {
    const auto before = site_.Dump();
    change();
    const auto after = site_.Dump();
    ASSERT_NE(before, after);
    int untouched = 0;
    int done = 0;
    TryMoments([&](int n) {
      SCOPED_TRACE(n);
      Restore();
      const bool killed = KilledBeforeChange(n, change);
      const auto now = site_.Dump();
      EXPECT_TRUE(now == before || now == after);
      (now == after ? done : untouched) += 1;
      return killed;
    });
    EXPECT_GT(untouched, 2);
    EXPECT_GT(done, 0);
  }

  ArchiveSite site_;
  TallyResult floors_;
  std::filesystem::path fresh_ = site_.Root() / "fresh";
};

}  // namespace

TEST_F(KilledChange, ASaveOfFloorsIsWholeOrNot) {
  ExpectAllOrNothing([&] { site_.Save(floors_, ArchiveSite::Order("新しい", 9)); });
}

TEST_F(KilledChange, AnOverwriteIsWholeOrNot) {
  ExpectAllOrNothing([&] {
    TallyResult other = SmallTally();
    other.Grid().BarCount[3][5] = 20;
    Database site = site_.Open();
    SaveTally(site, other, ArchiveSite::Order("一括", 9), SavedTallies(site, TallyKind::bulk, false));
  });
}

TEST_F(KilledChange, AnOverwriteOfFloorsIsWholeOrNot) {
  ExpectAllOrNothing([&] {
    Database site = site_.Open();
    SaveTally(site, floors_, ArchiveSite::Order("全階", 9), SavedTallies(site, TallyKind::floor, false));
  });
}

TEST_F(KilledChange, ADeleteIsWholeOrNot) {
  ExpectAllOrNothing([&] {
    Database site = site_.Open();
    DeleteTally(site, SavedTallies(site, TallyKind::floor, false).front());
  });
}

TEST_F(KilledChange, ARenameIsWholeOrNot) {
  ExpectAllOrNothing([&] {
    Database site = site_.Open();
    RenameTally(site, SavedTallies(site, TallyKind::floor, false).front(), "別名");
  });
}

TEST_F(KilledChange, ASaveWhoseSystemCallFailsIsWholeOrAFaultThatLeavesNothing) {
  if (!CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
  const auto save = [&] { return site_.Save(floors_, ArchiveSite::Order("新しい", 9)); };
  const auto before = site_.Dump();
  ASSERT_TRUE(save());
  const auto after = site_.Dump();
  int faults = 0;
  for (int n = 1;; n += FailingCallStep(5)) {
    SCOPED_TRACE(n);
    Restore();
    const Ending ending = WithFailingCall(n, save);
    if (ending == Ending::too_few_calls) break;
    EXPECT_NE(ending, Ending::wrong);
    EXPECT_NE(ending, Ending::crash);
    const auto now = site_.Dump();
    EXPECT_TRUE(now == before || now == after);
    if (ending == Ending::well) {
      EXPECT_TRUE(now == after);
    } else {
      ++faults;
    }
  }
  EXPECT_GT(faults, 0);
}

}  // namespace rbt::test
