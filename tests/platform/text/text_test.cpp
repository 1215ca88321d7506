// SPDX-License-Identifier: MIT
#include <ios>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "platform/text/csv.h"

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

TEST(Cp932, MarksWhatItLacksWhereATextIsWrittenAllTheSame) {
  const Cp932Text text = ToCp932Lenient("柱😀a한😀～");
  EXPECT_EQ(FromCp932(text.bytes), "柱?a??～");
  EXPECT_EQ(text.lacking, "😀한");
  EXPECT_EQ(FromCp932(ToCp932Lenient("a\xE6柱").bytes), "a?柱");
  EXPECT_EQ(ToCp932Lenient("柱").lacking, "");
  EXPECT_EQ(ToCp932Lenient("").bytes, "");
}

TEST(Cp932, ConvertsTheEdgesOfTheCodePageWhereATextIsWrittenAllTheSame) {
  EXPECT_EQ(ToCp932Lenient("\u301C").bytes, "\x81\x60") << "the wave dash, as the full-width tilde";
  EXPECT_EQ(ToCp932Lenient("ｱﾞ").bytes, "\xB1\xDE");
  EXPECT_EQ(ToCp932Lenient("①㈱髙").bytes, "\x87\x40\x87\x8A\xFB\xFC");
  EXPECT_EQ(ToCp932Lenient("\u301Cｱﾞ①㈱髙").lacking, "");
  const Cp932Text beyond = ToCp932Lenient("𠮟る");
  EXPECT_EQ(beyond.bytes, "?\x82\xE9") << "one character, one mark";
  EXPECT_EQ(beyond.lacking, "𠮟");
  const Cp932Text combined = ToCp932Lenient("か\u3099");
  EXPECT_EQ(combined.bytes, "\x82\xA9?") << "a sound mark of its own has no code";
  EXPECT_EQ(combined.lacking, "\u3099");
}

TEST(Cp932, CountsBytesAndNeverCutsACharacterInHalf) {
  EXPECT_EQ(Cp932Length("柱ｱa"), 4U);
  EXPECT_EQ(Cp932Prefix("柱梁", 3), "柱");
  EXPECT_EQ(Cp932Prefix("柱梁", 4), "柱梁");
  EXPECT_EQ(Cp932Prefix("a柱", 2), "a");
  EXPECT_EQ(Cp932Prefix("柱", 0), "");
}

TEST(Cp932, TakesLookAlikesForTheirWindowsCharacters) {
  EXPECT_EQ(FromCp932(ToCp932("〜−‖—¢£¬\u00A5\u203E")), "～－∥―￠￡￢\\~");
}

TEST(Cp932, RefusesTheBytesThatNoCharacterHas) {
  for (const char* bytes : {"\x80", "\xA0", "\xFD", "\xFE", "\xFF", "\x81", "\x81 ", "\x85\x40"}) {
    EXPECT_THROW(FromCp932(bytes), Fault);
  }
  try {
    FromCp932("ab\xFF");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::type_mismatch);
    EXPECT_NE(std::string(fault.what()).find("byte FF at offset 2"), std::string::npos) << fault.what();
  }
}

TEST(Cp932, RefusesTextThatIsNotUtf8) {
  EXPECT_THROW(ToCp932("a\xE6\x9F"), Fault);
  EXPECT_THROW(ToCp932("\xC0\x80"), Fault);
}

TEST(Cp932, TheLengthIsThatOfTheBytesForEveryCharacterItHolds) {
  int held = 0;
  for (char32_t c = 0; c < 0x10000; ++c) {
    if (c >= 0xD800 && c < 0xE000) continue;
    const std::string text = Utf8Of(c);
    try {
      const std::string bytes = ToCp932(text);
      ++held;
      ASSERT_EQ(Cp932Length(text), bytes.size()) << std::hex << static_cast<unsigned>(c);
    } catch (const Fault&) {
      ASSERT_EQ(Cp932Length(text), 2U) << std::hex << static_cast<unsigned>(c);
    }
  }
  // 128 of ASCII, 63 half-width katakana, 7,070 + 1,880 full-width at least (rows 1 to 94, NEC, IBM; own
  // ones).
  EXPECT_GT(held, 128 + 63 + 7070 + 1880);
}

TEST(Cp932, EveryCodeReadsBackAsItsCharacter) {
  int codes = 0;
  for (int lead = 0x81; lead <= 0xFC; ++lead) {
    if (lead >= 0xA0 && lead < 0xE0) continue;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      const std::string bytes{static_cast<char>(lead), static_cast<char>(trail)};
      const std::string text = FromCp932Lenient(bytes);
      if (CharacterCount(text) != 1 || text == "\uFFFD") continue;
      ++codes;
      ASSERT_EQ(FromCp932(ToCp932(text)), text) << std::hex << lead << trail;
    }
  }
  EXPECT_GT(codes, 7070 + 1880);
}

TEST(Cp932, ALongTextConvertsWhole) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "鉄a筋";
  const std::string bytes = ToCp932(text);
  EXPECT_EQ(bytes.size(), 5000U * 5);
  EXPECT_EQ(FromCp932(bytes), text);
  EXPECT_EQ(FromCp932Lenient("\xFF" + bytes + "\xFF"), "\uFFFD" + text + "\uFFFD");
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

TEST(Characters, BytesThatAreNoUtf8AreOneReplacementCharacterEach) {
  const std::vector<char32_t> two{0xFFFD, 0xFFFD};
  EXPECT_EQ(CharactersOf("\xE6\x9F"), two);                                       // cut short
  EXPECT_EQ(CharactersOf("\xC0\x80"), two);                                       // longer than needed
  EXPECT_EQ(CharactersOf("\xED\xA0\x80"), std::vector<char32_t>(3, 0xFFFD));      // half a pair
  EXPECT_EQ(CharactersOf("\xF4\x90\x80\x80"), std::vector<char32_t>(4, 0xFFFD));  // beyond U+10FFFF
  EXPECT_EQ(CharactersOf("\xF0\x9F\x98\x80"), std::vector<char32_t>{0x1F600});
  EXPECT_EQ(Utf8Of(0xD800), "\uFFFD");
  EXPECT_EQ(Utf8Of(0x1F600), "\xF0\x9F\x98\x80");
  EXPECT_EQ(Utf8Of(U'é') + Utf8Of(U'柱') + Utf8Of(U'a'), "é柱a");
}

TEST(Characters, MidLeftAndRightStopAtTheEnds) {
  EXPECT_EQ(Mid("柱梁", 3), "");
  EXPECT_EQ(Mid("柱梁", 9, 1), "");
  EXPECT_EQ(Mid("柱梁", 1, 0), "");
  EXPECT_EQ(Mid("柱梁", 2, 9), "梁");
  EXPECT_EQ(Left("柱梁", 0), "");
  EXPECT_EQ(Left("柱梁", 9), "柱梁");
  EXPECT_EQ(Right("柱梁", 0), "");
  EXPECT_EQ(Right("", 3), "");
}

TEST(Characters, ReplaceAllDoesNotReadItsOwnReplacements) {
  EXPECT_EQ(ReplaceAll("aaa", "aa", "a"), "aa");
  EXPECT_EQ(ReplaceAll("a.b.c", ".", ".."), "a..b..c");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(ReplaceAll("abc", "abc", ""), "");
}

TEST(Csv, QuotesACellOnlyWhereItMust) {
  EXPECT_EQ(CsvCell("柱 1.5"), "柱 1.5");
  EXPECT_EQ(CsvCell(""), "");
  EXPECT_EQ(CsvCell("1,200"), "\"1,200\"");
  EXPECT_EQ(CsvCell("D\"10\""), "\"D\"\"10\"\"\"");
  EXPECT_EQ(CsvCell("上\r\n下"), "\"上\r\n下\"");
}

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
