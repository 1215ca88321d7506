// SPDX-License-Identifier: MIT
#include "planning/input/scopes.h"

#include <gtest/gtest.h>

#include "data/floors.h"

namespace rbt::planning {
namespace {

std::string NameOf(std::string_view scopes, int floor) {
  const auto scope = Scopes::Of(scopes).value().ScopeOf(floor);
  return scope ? std::to_string(scope->place) + " " + scope->name : "none";
}

TEST(Scopes, AreTheWholeSite) {
  EXPECT_EQ(NameOf("site", -5), "0 site");
  EXPECT_EQ(NameOf("site", kNoFloor), "0 site");
}

TEST(Scopes, AreEachFloor) {
  EXPECT_EQ(NameOf("floor", -2), "-2 -2");
  EXPECT_EQ(NameOf("floor", kNoFloor), "78 78");
}

TEST(Scopes, AreRangesInTheOrderGiven) {
  EXPECT_EQ(NameOf("3..5/-1..2/78", 4), "0 3..5");
  EXPECT_EQ(NameOf("3..5/-1..2/78", -1), "1 -1..2");
  EXPECT_EQ(NameOf("3..5/-1..2/78", 78), "2 78");
  EXPECT_EQ(NameOf("3..5/-1..2/78", 6), "none");
}

TEST(Scopes, RefuseOtherTexts) {
  for (const std::string_view text :
       {"", "sites", "1..", "..2", "2..1", "1..3/3..4", "1..2/", "a", "1-2", "1..2..3", "1 ..2"}) {
    EXPECT_FALSE(Scopes::Of(text)) << text;
  }
}

}  // namespace
}  // namespace rbt::planning
