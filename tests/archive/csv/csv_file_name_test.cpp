// SPDX-License-Identifier: MIT
#include "archive/csv/csv_file_name.h"

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

constexpr DateTime kMoment{2026, 1, 2, 3, 4, 5};

CsvSubject OfKind(TallyKind kind) {
  CsvOfTally tally;
  tally.result.kind = kind;
  return tally;
}

}  // namespace

TEST(CreanFileName, DropsEveryCharacterThatANameCannotHold) {
  EXPECT_EQ(CreanFileName("a\\b/c：d*e?f\"g<h>i|j"), "abcdefghij");
  EXPECT_EQ(CreanFileName("：：甲：乙//"), "甲乙");
  EXPECT_EQ(CreanFileName("a\nb\tc\x7F"), "abc");
}

TEST(CreanFileName, LeavesAHalfWidthColonAndEverythingElse) {
  EXPECT_EQ(CreanFileName("a:b 見本　町（１）～.csv"), "a:b 見本　町（１）～.csv");
  EXPECT_EQ(CreanFileName(""), "");
}

TEST(CsvFileName, NamesProjectKindAndMoment) {
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::bulk), "町", kMoment), "町一括集計20260102030405.csv");
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::shape), "町", kMoment), "町形状別20260102030405.csv");
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::page), "町", kMoment), "町頁行別20260102030405.csv");
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::page_shape), "町", kMoment), "町形状別頁行別20260102030405.csv");
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::floor), "町", kMoment), "町階別集計20260102030405.csv");
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::part), "町", kMoment), "町部位別集計20260102030405.csv");
  EXPECT_EQ(CsvFileName(CsvOfNames(), "町", kMoment), "町登録名集計20260102030405.csv");
}

TEST(CsvFileName, LacksWhatTheProjectNameHasAndAFileNameCannotHold) {
  EXPECT_EQ(CsvFileName(OfKind(TallyKind::bulk), "甲/乙：丙", {2026, 11, 21, 9, 0, 0}),
            "甲乙丙一括集計20261121090000.csv");
}

}  // namespace rbt::test
