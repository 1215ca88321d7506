// SPDX-License-Identifier: MIT
#include "platform/profile/ini_text.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(IniText, FoldsFullWidthLettersOfUtf8) {
  const IniText text("[Ａz]\nＺ=1\n", IniEncoding::utf8);
  EXPECT_EQ(text.Find("ａZ", "ｚ"), "1");
  EXPECT_EQ(text.Find("Az", "Z"), std::nullopt);
}

TEST(IniText, ReadsBrokenUtf8ByteByByte) {
  const IniText text("[\xE6]\n\xF0\x9F=1\n", IniEncoding::utf8);
  EXPECT_EQ(text.Find("\xE6", "\xF0\x9F"), "1");
}

TEST(Cp932BytesPrefix, EndsWithAWholeCharacter) {
  EXPECT_EQ(Cp932BytesPrefix("\x8D\x48\x8E\x96", 3), "\x8D\x48");
  EXPECT_EQ(Cp932BytesPrefix("\x8D\x48\x8E\x96", 9), "\x8D\x48\x8E\x96");
  EXPECT_EQ(Cp932BytesPrefix("a\x8D", 2), "a\x8D") << "a lead byte at the end stands alone";
  EXPECT_EQ(Cp932BytesPrefix("\xB1\xB2", 1), "\xB1") << "half-width katakana are one byte";
}

}  // namespace
}  // namespace rbt
