// SPDX-License-Identifier: MIT
#include <chrono>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"
#include "shell/live/renewal.h"
#include "shell/live/working_copy.h"

namespace rbt::test {
namespace {

TEST(LongReading, IsToldOnceWithTheNameOfTheJetFile) {
  const LiveSite site;
  site.PutJet(1000);
  std::vector<std::filesystem::path> told;
  Services.OnLongReading = [&](const std::filesystem::path& file) { told.push_back(file); };
  constexpr std::chrono::milliseconds kLong{310};
  RenewWorkingCopy(site.File(), site.Copy(), {}, [&] { std::this_thread::sleep_for(kLong); });
  EXPECT_THAT(told, testing::ElementsAre(site.File()));
  EXPECT_TRUE(std::filesystem::exists(site.Copy()));
}

}  // namespace
}  // namespace rbt::test
