// SPDX-License-Identifier: MIT
#include "platform/system/clock.h"

#include <cmath>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/environment_variable.h"

namespace rbt {
namespace {

using test::EnvironmentVariable;

TEST(Clock, StandsWhereTheEnvironmentFixesIt) {
  const EnvironmentVariable fixed("RBK_CLOCK", "2026-11-21T09:08:07");
  EXPECT_EQ(Now(), (DateTime{2026, 11, 21, 9, 8, 7}));
}

TEST(Clock, StandsWhereACallerFixesItUntilReleased) {
  const EnvironmentVariable fixed("RBK_CLOCK", "2026-11-21T09:00:00");
  SetClock(DateTime{2019, 5, 1, 0, 0, 0});
  EXPECT_EQ(Now(), (DateTime{2019, 5, 1, 0, 0, 0}));
  SetClock(std::nullopt);
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

TEST(DayNumber, CountsFromTheLastDayButOneOf1899) {
  EXPECT_EQ(DayNumber({1899, 12, 30, 0, 0, 0}), 0.0);
  EXPECT_EQ(DayNumber({1900, 1, 1, 12, 0, 0}), 2.5);
  // 1970-01-01 is day 25569 of that count, 2026-11-21 lies 20778 days later.
  EXPECT_EQ(DayNumber({2026, 11, 21, 6, 0, 0}), 46347.25);
}

TEST(DayNumber, CountsTheTimeForwardOnDaysBeforeItsStart) {
  EXPECT_EQ(DayNumber({1899, 12, 29, 6, 0, 0}), -1.25);
  EXPECT_EQ(FromDayNumber(-1.25), (DateTime{1899, 12, 29, 6, 0, 0}));
}

TEST(DayNumber, ComesBackToTheSecond) {
  for (const DateTime at : {DateTime{2026, 11, 21, 23, 59, 59}, DateTime{2000, 2, 29, 0, 0, 1},
                            DateTime{1899, 12, 30, 12, 34, 56}, DateTime{1850, 3, 1, 23, 59, 59},
                            DateTime{100, 1, 1, 0, 0, 0}, DateTime{9999, 12, 31, 23, 59, 59}}) {
    EXPECT_EQ(FromDayNumber(DayNumber(at)), at) << at.year;
  }
}

TEST(DayNumber, CarriesARoundedUpSecondIntoTheNextDay) {
  EXPECT_EQ(FromDayNumber(1.9999999), (DateTime{1900, 1, 1, 0, 0, 0}));
}

TEST(DayNumber, OutsideTheYears100To9999Overflows) {
  EXPECT_THROW(FromDayNumber(2958466.0), Fault);
  EXPECT_THROW(FromDayNumber(-657435.5), Fault);
  EXPECT_THROW(FromDayNumber(std::nan("")), Fault);
}

}  // namespace
}  // namespace rbt
