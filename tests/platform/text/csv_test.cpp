// SPDX-License-Identifier: MIT
#include "platform/text/csv.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(CsvRecord, PutsCommasBetweenItsCellsAndEndsItsLine) {
  EXPECT_EQ(CsvRecord().Add("太さ").Add("").Add("1").Text(), "太さ,,1\r\n");
  EXPECT_EQ(CsvRecord().Add("").Add("").Text(), ",\r\n");
  EXPECT_EQ(CsvRecord().Text(), "\r\n");
}

TEST(CsvRecord, QuotesACellThatNeedsItAndLeavesAWrittenOneAsItIs) {
  EXPECT_EQ(CsvRecord().Add("a,\"b\"").AddWritten("\"\"").AddWritten("").Text(), "\"a,\"\"b\"\"\",\"\",\r\n");
}

TEST(QuotedCsvCell, QuotesEveryText) {
  EXPECT_EQ(QuotedCsvCell(""), "\"\"");
  EXPECT_EQ(QuotedCsvCell("柱"), "\"柱\"");
  EXPECT_EQ(QuotedCsvCell("a\"b,\r\n"), "\"a\"\"b,\r\n\"");
}

}  // namespace
}  // namespace rbt
