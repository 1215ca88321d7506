// SPDX-License-Identifier: MIT
#include "shell/live/jet_original.h"

#include <gtest/gtest.h>

#include "shell/live/live_site.h"

namespace rbt::test {
namespace {

TEST(FileStamps, AreOneForAllMachinesThatShareAFolder) {
  const LiveSite site;
  site.PutJet(1);
  struct stat here {};
  ASSERT_EQ(::stat(site.File().c_str(), &here), 0);
  struct stat elsewhere = here;
  ++elsewhere.st_dev;
  EXPECT_EQ(StampOfStatus(elsewhere).text, StampOfStatus(here).text);
  struct stat another_file = here;
  ++another_file.st_ino;
  EXPECT_NE(StampOfStatus(another_file).text, StampOfStatus(here).text);
}

}  // namespace
}  // namespace rbt::test
