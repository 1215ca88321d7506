// SPDX-License-Identifier: MIT
#include "shell/live/free_place.h"

#include <gtest/gtest.h>

#include "platform/text/characters.h"

namespace rbt {
namespace {

class FreePlaces : public testing::Test {
 protected:
  FreePlaces() {
    places.NoteMoment("20261121", "090000");
    places.NoteName("本館", "1");
  }

  FreePlace places{0};
};

TEST_F(FreePlaces, KeepMomentAndNameWhereBothAreFree) {
  const TallyPlace wanted{"20261121", "090001", "別館"};
  EXPECT_EQ(places.Take(wanted, "1"), wanted);
}

TEST_F(FreePlaces, OfATakenNameAreUnderItsKeptName) {
  EXPECT_EQ(places.Take({"20261122", "100000", " 本館 "}, "1"),
            (TallyPlace{"20261122", "100000", "本館(控え)"}));
  EXPECT_EQ(places.Take({"20261123", "100000", "本館"}, "1"),
            (TallyPlace{"20261123", "100000", "本館(控え)2"}));
  EXPECT_EQ(places.Take({"20261124", "100000", "本館"}, "1").name, "本館(控え)3");
}

TEST_F(FreePlaces, TakeNoNoticeOfNamesOfOtherKinds) {
  EXPECT_EQ(places.Take({"20261122", "100000", "本館"}, "2").name, "本館");
}

TEST_F(FreePlaces, OfATakenMomentAreTheNextFreeSecondUnderAKeptName) {
  places.NoteMoment("20261121", "090001");
  EXPECT_EQ(places.Take({"20261121", "090000", "別館"}, "1"),
            (TallyPlace{"20261121", "090002", "別館(控え)"}));
  EXPECT_EQ(places.Take({"20261121", "090000", "新館"}, "1").time, "090003");
}

TEST_F(FreePlaces, GoOnBehindMidnightAndBehindWhatIsNoTime) {
  places.NoteMoment("20261121", "235959");
  places.NoteMoment("20261121", "いつか");
  EXPECT_EQ(places.Take({"20261121", "235959", "a"}, "1").time, "000000");
  EXPECT_EQ(places.Take({"20261121", "いつか", "b"}, "1").time, "000001");
}

TEST_F(FreePlaces, CutNamesThatWouldBecomeTooLong) {
  std::string longest;
  for (int i = 0; i < 60; ++i) longest += "鉄";
  places.NoteName(longest, "1");
  const std::string kept = places.Take({"20261122", "100000", longest}, "1").name;
  EXPECT_EQ(CharacterCount(kept), 60U);
  EXPECT_TRUE(kept.ends_with("鉄(控え)"));
  FreePlace narrow(10);
  narrow.NoteName("0123456789", "1");
  EXPECT_EQ(narrow.Take({"20261122", "100000", "0123456789"}, "1").name, "012345(控え)");
}

}  // namespace
}  // namespace rbt
