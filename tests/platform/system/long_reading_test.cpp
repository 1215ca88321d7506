// SPDX-License-Identifier: MIT
#include "platform/system/long_reading.h"

#include <gtest/gtest.h>

#include "support/kept_services.h"

namespace rbt {
namespace {

TEST(LongReading, WithoutAWindowIsOneLineOnStandardError) {
  testing::internal::CaptureStderr();
  TellOfLongReading("/rbk/DATA/GENBA001.MDB");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "rbtally: reading /rbk/DATA/GENBA001.MDB, which has changed or is new here\n");
}

TEST(LongReading, GoesToWhoeverTellsTheUser) {
  const test::KeptServices services;
  std::filesystem::path told;
  Services.OnLongReading = [&](const std::filesystem::path& file) { told = file; };
  TellOfLongReading("/rbk/DATA/SORANO.MDB");
  EXPECT_EQ(told, "/rbk/DATA/SORANO.MDB");
}

}  // namespace
}  // namespace rbt
