// SPDX-License-Identifier: MIT
// Working copies whose making is killed, or for which the disk has no room: the old one or the whole new one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/sample.h"

namespace rbt::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class StoppedRenewal : public testing::Test {
 protected:
  LiveSite site;
};

TEST_F(StoppedRenewal, KilledAtAnyMomentLeavesWhatWasSaved) {
  int old = 0;
  int fresh = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    site.PutJet(3);
    {
      Database open = site.Open();
      LiveSite::Save(open, {"20261121", "090000", "別館"});
    }
    site.PutJet(4);
    const std::string jet = ReadFileBytes(site.File());
    const bool killed = KilledBeforeChange(n, [&] { site.Open(); });
    {
      Database left = Database::Open(site.Copy());
      (LiveSite::LinesOf(left) == 3 ? old : fresh) += 1;
    }
    EXPECT_EQ(ReadFileBytes(site.File()), jet);
    Database open = site.Open();
    EXPECT_EQ(LiveSite::LinesOf(open), 4);
    EXPECT_THAT(LiveSite::Tallies(open), ElementsAre("20261121 090000 別館: 1"));
    EXPECT_THAT(site.messages, IsEmpty());
    std::filesystem::remove(site.Copy());
    return killed;
  });
  EXPECT_GT(old, 5);
  EXPECT_GT(fresh, 0);
}

TEST_F(StoppedRenewal, WithoutRoomNamesCopyAndJetFileAndLeavesTheOldCopy) {
  site.PutJet(3);
  site.Open();
  const std::string copy = ReadFileBytes(site.Copy());
  site.PutJet(300);
  EXPECT_TRUE(WithFilesOfAtMost(8192, [&] {
    EXPECT_THAT(FaultTextOf([&] { site.Open(); }),
                AllOf(HasSubstr(site.Copy().string() + ":"),
                      HasSubstr("the working copy of " + site.File().string())));
  }));
  EXPECT_EQ(ReadFileBytes(site.Copy()), copy);
  EXPECT_THAT(site.Names(), ElementsAre("GENBA001.MDB", "GENBA001.MDB.work"));
}

}  // namespace
}  // namespace rbt::test
