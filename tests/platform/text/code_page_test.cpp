// SPDX-License-Identifier: MIT
#include "platform/text/code_page.h"

#include <gtest/gtest.h>

#include "support/fault_of.h"

namespace rbt {
namespace {

using Direction = CodePageConverter::Direction;

TEST(CodePageConverter, ConvertsToUtf8AndBack) {
  std::string utf8;
  EXPECT_EQ(CodePageConverter(1252, Direction::to_utf8).Convert("\xE4 1\x80", utf8), 4U);
  EXPECT_EQ(utf8, "ä 1€");
  std::string bytes;
  EXPECT_EQ(CodePageConverter(1252, Direction::from_utf8).Convert(utf8, bytes), utf8.size());
  EXPECT_EQ(bytes, "\xE4 1\x80");
}

TEST(CodePageConverter, ConvertsTextsOfAnyLengthAndAppendsThem) {
  const std::string bytes(5000, '\xE4');
  std::string utf8 = "x";
  EXPECT_EQ(CodePageConverter(1252, Direction::to_utf8).Convert(bytes, utf8), 5000U);
  EXPECT_EQ(utf8.size(), 10001U);
}

TEST(CodePageConverter, StopsBeforeWhatIsNoCharacter) {
  CodePageConverter converter(932, Direction::to_utf8);
  std::string utf8;
  EXPECT_EQ(converter.Convert("a\x8A", utf8), 1U) << "half a character";
  EXPECT_EQ(converter.Convert("\x93\x53\x8B\xD8", utf8), 4U) << "nothing stays from the call before";
  EXPECT_EQ(utf8, "a鉄筋");
}

TEST(CodePageConverter, RefusesACodePageThatTheMachineLacks) {
  EXPECT_EQ(test::FaultTextOf([] { CodePageConverter(9, Direction::to_utf8); }),
            "code page 9 is not known on this machine");
}

}  // namespace
}  // namespace rbt
