// SPDX-License-Identifier: MIT
#include "shell/live/jet_original.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"
#include "support/fault_of.h"

namespace rbt::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

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

TEST(JetOriginals, LargerThanTheirFormatAllowsAreNamedAndNotRead) {
  const LiveSite site;
  constexpr std::uintmax_t kGigabyte = std::uintmax_t{1} << 30;
  bool was_read = false;
  const auto fault_of_size = [&](jet::JetVersion version, std::uintmax_t size) {
    site.PutJet(1, 1, {}, version);
    std::filesystem::resize_file(site.File(), size);
    return FaultTextOf([&] { ReadOriginal(site.File(), [&] { was_read = true; }); });
  };
  EXPECT_THAT(fault_of_size(jet::JetVersion::jet3, kGigabyte + 1),
              AllOf(HasSubstr(site.File().string()), HasSubstr("1 GB"), HasSubstr("Jet 3")));
  EXPECT_THAT(fault_of_size(jet::JetVersion::jet4, 2 * kGigabyte + 1),
              AllOf(HasSubstr(site.File().string()), HasSubstr("2 GB"), HasSubstr("Jet 4")));
  EXPECT_FALSE(was_read);
}

}  // namespace
}  // namespace rbt::test
