// SPDX-License-Identifier: MIT
#include "platform/system/clock.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/environment_variable.h"
#include "support/kept_services.h"

namespace rbt {
namespace {

using test::EnvironmentVariable;

TEST(Clock, StandsWhereTheEnvironmentFixesIt) {
  const EnvironmentVariable fixed("RBK_CLOCK", "2026-11-21T09:08:07");
  EXPECT_EQ(Now(), (DateTime{2026, 11, 21, 9, 8, 7}));
}

TEST(Clock, IsAService) {
  const EnvironmentVariable fixed("RBK_CLOCK", "2026-11-21T09:00:00");
  {
    const test::KeptServices services;
    Services.Clock = test::StandingClock({2019, 5, 1, 0, 0, 0});
    EXPECT_EQ(Now(), (DateTime{2019, 5, 1, 0, 0, 0}));
  }
  EXPECT_EQ(Now().year, 2026);
}

TEST(Clock, RunsWithoutBeingFixed) {
  const EnvironmentVariable unset("RBK_CLOCK", std::nullopt);
  EXPECT_GE(Now().year, 2024);
}

TEST(Clock, RefusesAnUnreadableTimeOfTheEnvironment) {
  for (const char* text : {"2026-11-21", "2026-02-29T00:00:00", "2026-11-21T24:00:00", "2026-11-21 09:00:00",
                           "2026-11-21T09:00:00Z", "202x-11-21T09:00:00"}) {
    const EnvironmentVariable fixed("RBK_CLOCK", text);
    EXPECT_THROW(Now(), Fault) << text;
  }
}

}  // namespace
}  // namespace rbt
