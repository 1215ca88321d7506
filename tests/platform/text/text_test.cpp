// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace rbt {
namespace {

TEST(Cp932, KeepsTheWindowsCharactersBothWays) {
  // Codes of the Windows table: ① 8740, ㈱ 878A, 髙 FBFC, ～ 8160, ∥ 8161, － 817C, ㎏ 8773, ｱ B1, Ⅰ 8754.
  EXPECT_EQ(ToCp932("①㈱髙～∥－㎏ｱⅠ"),
            "\x87\x40\x87\x8A\xFB\xFC\x81\x60\x81\x61\x81\x7C\x87\x73\xB1\x87\x54");
  for (const char* text : {"①㈱髙～∥－￠￡￢―㎏ｱⅠ", "鉄筋ソ能表", "縦ｽﾘｯﾄ筋　", "abc\\~"}) {
    EXPECT_EQ(FromCp932(ToCp932(text)), text);
  }
}

TEST(Cp932, NamesTheCharacterThatItLacks) {
  try {
    ToCp932("柱😀");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
    EXPECT_NE(std::string(fault.what()).find("U+1F600 (character 2"), std::string::npos) << fault.what();
  }
}

TEST(Cp932, RefusesOrReplacesHalfACharacter) {
  EXPECT_THROW(FromCp932("a\x83"), Fault);
  EXPECT_EQ(FromCp932Lenient("a\x83"), "a\xEF\xBF\xBD");
  EXPECT_EQ(FromCp932Lenient("\xFF"
                             "b"),
            "\xEF\xBF\xBD"
            "b");
}

TEST(Cp932, CountsBytesAndNeverCutsACharacterInHalf) {
  EXPECT_EQ(Cp932Length("柱ｱa"), 4U);
  EXPECT_EQ(Cp932Prefix("柱梁", 3), "柱");
  EXPECT_EQ(Cp932Prefix("柱梁", 4), "柱梁");
  EXPECT_EQ(Cp932Prefix("a柱", 2), "a");
  EXPECT_EQ(Cp932Prefix("柱", 0), "");
}

TEST(Characters, AreCountedAndCutAsCodePoints) {
  EXPECT_EQ(CharacterCount("GENBA００１"), 8U);
  EXPECT_EQ(Mid("GENBA001.MDB", 6, 3), "001");
  EXPECT_EQ(Mid("GENBA", 6, 3), "");
  EXPECT_EQ(Mid("柱梁床", 2), "梁床");
  EXPECT_EQ(Left("柱梁床", 2), "柱梁");
  EXPECT_EQ(Right("柱梁床", 2), "梁床");
  EXPECT_EQ(Right("柱", 5), "柱");
  EXPECT_EQ(CharactersOf("a\xFF"), (std::vector<char32_t>{U'a', 0xFFFD}));
}

TEST(Characters, TrimTakesHalfWidthBlanksOnly) { EXPECT_EQ(Trim("  SD345　 "), "SD345　"); }

TEST(Characters, WidthsAndForms) {
  EXPECT_EQ(ToFullWidth("B12 F"), "Ｂ１２　Ｆ");
  EXPECT_EQ(DisplayWidth("ｳﾙﾎﾞﾝ合計(F1)"), 5U + 4U + 4U);
  EXPECT_TRUE(EqualIgnoringCase("Data柱", "dATA柱"));
  EXPECT_FALSE(EqualIgnoringCase("Ａ", "A"));
  EXPECT_EQ(FoldIdentifier("ＳＤ１０形状NO"), "sd10形状no");
  EXPECT_EQ(ReplaceAll("ロスロス", "ロス", "x"), "xx");
}

}  // namespace
}  // namespace rbt
