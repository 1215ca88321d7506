// SPDX-License-Identifier: MIT
// One system call of a start and a tally fails, whichever: the figure is right, or there is a fault with a
// text, and the site is whole.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "session/startup/startup.h"
#include "shell/context/site_context.h"
#include "support/child_process.h"
#include "support/site_fixture.h"
#include "tally/groups/shape_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {
namespace {

class AFailingCall : public testing::Test {
 protected:
  void SetUp() override {
    if (!CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
    site_.AddRow({{"太さ", 19},
                  {"形状No", 138},
                  {"伸切寸", 7000},
                  {"伸本定", 1},
                  {"伸定尺", 7.0},
                  {"合計", 6},
                  {"伸総計", 6},
                  {"本数", 2},
                  {"ヶ所", 3}});
    // An archive that is to be made anew, and names that are to be marked.
    site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
    site_.Add(kCompanionFile, "登録名", {{"登録AN", 1}, {"表示番号", 0}});
    std::filesystem::copy(site_.Root() / "DATA", fresh_);
  }

  void Restore() const {
    std::filesystem::remove_all(site_.Root() / "DATA");
    std::filesystem::copy(fresh_, site_.Root() / "DATA");
  }
  static TallyTable Tally() {
    SiteFixture::ResetGlobalState();
    StartOptions options;
    options.command_line = true;
    LoadSite(options);
    ActivateMenu(options);
    Selection.MaterialKindMask = KindMask(15);
    Selection.IncludeUlbon = true;
    Jyuuryo_Syukei();
    return TallyGrid;
  }
  bool IsWhole() const {
    return site_.Column("予備3") == std::vector<std::string>{"null"} ||
           (site_.Column("予備3") == std::vector<std::string>{"1"} &&
            site_.Column("定着板数") == std::vector<std::string>{"6"});
  }

  SiteFixture site_;
  std::filesystem::path fresh_ = site_.Root() / "fresh";
};

TEST_F(AFailingCall, OfAStartAndATallyIsAFaultOrNoMatter) {
  const TallyTable right = Tally();
  ASSERT_EQ(right.TotalPlateCount, 6);
  SiteContext = {};
  std::map<Ending, int> endings;
  int n = 1;
  for (;; n += FailingCallStep(23)) {
    SCOPED_TRACE(n);
    Restore();
    const Ending ending = WithFailingCall(n, [&] { return Tally() == right; });
    if (ending == Ending::too_few_calls) break;
    ++endings[ending];
    EXPECT_NE(ending, Ending::wrong);
    EXPECT_NE(ending, Ending::crash);
    EXPECT_TRUE(IsWhole());
    EXPECT_EQ(Tally(), right) << "the next one";
    SiteContext = {};
  }
  EXPECT_GT(n, 100);
  EXPECT_GT(endings[Ending::fault], 0);
}

}  // namespace
}  // namespace rbt::test
