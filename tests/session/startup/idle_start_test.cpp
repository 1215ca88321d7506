// SPDX-License-Identifier: MIT
// A start on a site that is ready, and a tally of it, make no system call that changes a file or waits for
// the disk.
#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>

#include "session/startup/startup.h"
#include "support/child_process.h"
#include "support/site_fixture.h"
#include "tally/groups/shape_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/selection.h"

namespace rbt::test {
namespace {

class IdleStart : public testing::Test {
 protected:
  void SetUp() override {
    site_.AddRow(
        {{"太さ", 19}, {"形状No", 138}, {"伸切寸", 7000}, {"伸本定", 1}, {"伸定尺", 7.0}, {"合計", 6}});
    site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
  }

  static void StartAndTally() {
    SiteFixture::ResetGlobalState();
    StartOptions options;
    options.command_line = true;
    LoadSite(options);
    ActivateMenu(options);
    Jyuuryo_Syukei();
    Selection.ShapeStart = 138;
    Selection.ShapeEnd = 138;
    Keijou_Jyuuryo_Syukei();
  }
  /// As if nobody had come to the site for long: what is remembered of a file leans on its time.
  void Age() const {
    const auto schedule = site_.Data(kScheduleFile);
    std::filesystem::last_write_time(schedule,
                                     std::filesystem::last_write_time(schedule) - std::chrono::hours(1));
  }

  SiteFixture site_;
};

TEST_F(IdleStart, OnAFreshSiteChangesIt) { EXPECT_TRUE(KilledBeforeChange(1, StartAndTally)); }

TEST_F(IdleStart, OnASiteThatIsReadyChangesNoFile) {
  EXPECT_TRUE(InChild([&] {
    StartAndTally();
    return true;
  }));
  Age();
  EXPECT_TRUE(InChild([&] {
    StartAndTally();
    return true;
  }));
  EXPECT_FALSE(KilledBeforeChange(1, StartAndTally));
}

}  // namespace
}  // namespace rbt::test
