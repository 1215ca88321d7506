// SPDX-License-Identifier: MIT
#include "platform/date_time.h"

#include <cmath>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt {
namespace {

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

TEST(DayNumber, OfADamagedFileIsADateAllTheSame) {
  EXPECT_EQ(DateOfDayNumber(2958466.5), (DateTime{10000, 1, 1, 12, 0, 0}));
  EXPECT_EQ(DateOfDayNumber(-657435.0), (DateTime{99, 12, 31, 0, 0, 0}));
}

TEST(DayNumber, OutsideTheYears100To9999Overflows) {
  EXPECT_THROW(FromDayNumber(2958466.0), Fault);
  EXPECT_THROW(FromDayNumber(-657435.5), Fault);
  EXPECT_THROW(FromDayNumber(std::nan("")), Fault);
}

}  // namespace
}  // namespace rbt
