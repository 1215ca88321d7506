// SPDX-License-Identifier: MIT
#include "archive/store/saved_name.h"

#include <string>

#include <gtest/gtest.h>

namespace rbt::test {

namespace {

constexpr DateTime kNow{2026, 11, 21, 9, 5, 7};

std::string Proposed(TallyKind kind, int kinds, bool ulbon = false, const char* subproject = "") {
  TallyResult result;
  result.kind = kind;
  result.selection.MaterialKindMask = KindMask(kinds);
  result.selection.IncludeUlbon = ulbon;
  result.selection.StartPage = 2;
  result.selection.StartLine = 3;
  result.selection.EndPage = 14;
  result.selection.EndLine = 25;
  return ProposedName(result, kNow, subproject);
}

std::string Repeated(const char* character, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += character;
  return text;
}

/// The words of every mask; those of all kinds, without and with Ulbon, and of none stand apart.
constexpr const char* kWords[] = {"",           "異形",       "ネジ",           "異形ネジ",   "高強度",
                                  "異形高強度", "ネジ高強度", "異形ネジ高強度", "",           "異形",
                                  "ネジ",       "異形ネジ",   "高強度",         "異形高強度", "ネジ高強度"};

}  // namespace

TEST(ProposedName, TellsTheKindsOfEveryMask) {
  for (int kinds = 1; kinds < 15; ++kinds) {
    for (const bool ulbon : {false, true}) {
      for (const TallyKind kind : {TallyKind::bulk, TallyKind::shape, TallyKind::floor, TallyKind::part}) {
        EXPECT_EQ(Proposed(kind, kinds, ulbon), std::string(kWords[kinds]) + "  2026/11/21 09:05:07")
            << kinds << " of kind " << static_cast<int>(kind);
      }
    }
  }
}

TEST(ProposedName, OfAllKindsTellsWhetherUlbonIsAmongThem) {
  EXPECT_EQ(Proposed(TallyKind::bulk, 15, true), "異ネジ高強度  2026/11/21 09:05:07");
  EXPECT_EQ(Proposed(TallyKind::bulk, 15, false), "異形ネジ高強度  2026/11/21 09:05:07");
  EXPECT_EQ(Proposed(TallyKind::floor, 15, true), "異形ネジ高強度  2026/11/21 09:05:07");
  EXPECT_EQ(Proposed(TallyKind::part, 15, false), "異形ネジ高強度  2026/11/21 09:05:07");
}

TEST(ProposedName, OfNoKindIsUlbonForFloorsAndPartsAlone) {
  EXPECT_EQ(Proposed(TallyKind::floor, 0), "ウルボン  2026/11/21 09:05:07");
  EXPECT_EQ(Proposed(TallyKind::part, 0), "ウルボン  2026/11/21 09:05:07");
  EXPECT_EQ(Proposed(TallyKind::bulk, 0), "  2026/11/21 09:05:07");
}

TEST(ProposedName, OfPagesHasTheRange) {
  EXPECT_EQ(Proposed(TallyKind::page, 1), "異形  2026/11/21 09:05:07   2/3～14/25");
  EXPECT_EQ(Proposed(TallyKind::page_shape, 2), "ネジ  2026/11/21 09:05:07   2/3～14/25");
}

TEST(ProposedName, EndsWithTheSubprojectTextWhereThereIsOne) {
  EXPECT_EQ(Proposed(TallyKind::bulk, 1, false, "Ａ棟"), "異形  2026/11/21 09:05:07  ( Ａ棟 )");
  EXPECT_EQ(Proposed(TallyKind::page, 1, false, "Ａ棟"), "異形  2026/11/21 09:05:07   2/3～14/25  ( Ａ棟 )");
  EXPECT_EQ(Proposed(TallyKind::floor, 1, false, "Ａ棟"), "異形  2026/11/21 09:05:07");
}

TEST(SavedName, OfExactlySixtyFullWidthCharactersPassesAndOneMoreIsRefused) {
  EXPECT_FALSE(RefusedLength(Repeated("あ", 60)));
  const auto refusal = RefusedLength(Repeated("あ", 61));
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, "名前が長すぎます\n全角６０文字までとしてください");
  EXPECT_EQ(refusal->title, "入力確認");
}

TEST(SavedName, CountsEveryCharacterAsTwoBytesAndItsBlanksToo) {
  EXPECT_FALSE(RefusedLength(Repeated("a", 60)));
  EXPECT_TRUE(RefusedLength(Repeated("a", 61)));
  EXPECT_TRUE(RefusedLength(" " + Repeated("a", 60)));
  EXPECT_FALSE(RefusedLength(Repeated("𠮷", 30)));
  EXPECT_TRUE(RefusedLength(Repeated("𠮷", 31)));
}

TEST(SavedName, OfBlanksAloneIsEmpty) {
  for (const char* name : {"", " ", "   "}) {
    const auto refusal = RefusedEmptiness(name);
    ASSERT_TRUE(refusal) << name;
    EXPECT_EQ(refusal->text, "何も入力されていません\n名前を入力してください");
  }
  EXPECT_FALSE(RefusedEmptiness(" a "));
  EXPECT_FALSE(RefusedEmptiness("　")) << "an ideographic blank is a character";
}

TEST(SavedName, TwelveCharactersAreRefusedByTheirName) {
  for (const char character : std::string(",!\"#&%;:*|$'")) {
    const auto refusal = RefusedCharacter(std::string("名前") + character);
    ASSERT_TRUE(refusal) << character;
    EXPECT_EQ(refusal->text, std::string("「 ") + character + " 」は使えません。他の文字に変えてください");
    EXPECT_EQ(refusal->title, "注意");
  }
  EXPECT_FALSE(RefusedCharacter("名前 a-b_c/d(e)[f]{g}?<>=+~^@`\\.，：＊"));
}

TEST(SavedName, WhatWasTypedStandsBetweenTheCommonEnds) {
  EXPECT_EQ(InsertedText("09:00", "09:00x"), "x");
  EXPECT_EQ(InsertedText("09:00", "09::00"), ":");
  EXPECT_EQ(InsertedText("", "a,b"), "a,b");
  EXPECT_EQ(InsertedText("ab", "a"), "");
  EXPECT_EQ(InsertedText("09:00", "a:b"), "a:b");
  EXPECT_EQ(InsertedText("aa", "aaa"), "a");
  EXPECT_EQ(InsertedText("あ", "あ,"), ",");
}

}  // namespace rbt::test
