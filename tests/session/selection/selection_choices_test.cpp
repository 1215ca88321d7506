// SPDX-License-Identifier: MIT
#include "session/selection/selection_choices.h"

#include <gtest/gtest.h>

#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {

namespace {

std::string Shown(const Ticks& ticks) {
  std::string text;
  for (const bool tick : ticks) text += tick ? '1' : '0';
  return text;
}

void Untick(SelectionChoice& choice) {
  for (std::size_t box = 0; box < Ticks().size(); ++box) choice.Tick(box, false);
}

/// The ticks of a mask 0 to 15, written out: 異形 first.
constexpr std::array kTicksOfMask{"0000", "1000", "0100", "1100", "0010", "1010", "0110", "1110",
                                  "0001", "1001", "0101", "1101", "0011", "1011", "0111", "1111"};

class Choice : public testing::Test {
 protected:
  void ExpectRefusal(SelectionChoice& choice, const std::string& message) const {
    choice.Take();
    ASSERT_EQ(site.Messages().size(), 1U);
    EXPECT_EQ(site.Messages()[0].text, message);
    EXPECT_EQ(site.Messages()[0].title, "未選択");
    const ChoiceView view = choice.View();
    EXPECT_FALSE(view.done);
    EXPECT_TRUE(view.back_to_first);
    EXPECT_FALSE(choice.View().back_to_first) << "asked for once";
  }

  const SiteFixture site;
};

using KindChoiceTest = Choice;
using FloorPartKindChoiceTest = Choice;
using FormChoiceTest = Choice;

}  // namespace

TEST_F(KindChoiceTest, OpensOnEveryMaskAndTakesItBack) {
  for (std::int32_t mask = 1; mask <= 15; ++mask) {
    Selection.MaterialKindMask = KindMask(mask);
    Selection.MaterialFormMask = FormMask(4);
    KindChoice choice;
    EXPECT_EQ(Shown(choice.View().ticks), kTicksOfMask.at(static_cast<std::size_t>(mask)));
    Selection.MaterialKindMask = KindMask(-1);
    choice.Take();
    EXPECT_EQ(Selection.MaterialKindMask, KindMask(mask));
    EXPECT_EQ(Selection.MaterialFormMask, kAllForms) << "other kinds come in other forms";
    EXPECT_TRUE(choice.View().done);
  }
}

TEST_F(KindChoiceTest, RemembersTheKindsBeforeIt) {
  Selection.MaterialKindMask = KindMask(5);
  KindChoice choice;
  choice.Tick(2, false);
  choice.Take();
  EXPECT_EQ(Selection.PrevMaterialKindMask, KindMask(5));
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(1));
}

TEST_F(KindChoiceTest, DecidesOverTheUlbonLinesWhenItIsTaken) {
  for (const bool included : {false, true}) {
    Selection.IncludeUlbon = included;
    KindChoice choice;
    EXPECT_EQ(choice.View().ulbon, included);
    choice.TickUlbon(!included);
    EXPECT_EQ(Selection.IncludeUlbon, included);
    choice.Take();
    EXPECT_EQ(Selection.IncludeUlbon, !included);
  }
}

TEST_F(KindChoiceTest, RefusesNoKindUntilOneIsTicked) {
  KindChoice choice;
  Untick(choice);
  choice.TickUlbon(false);
  ExpectRefusal(choice, "材質が選択されていません");
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(0));
  EXPECT_TRUE(Selection.IncludeUlbon);
  EXPECT_EQ(Shown(choice.View().ticks), "0000");
  choice.Tick(1, true);
  choice.Take();
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(2));
  EXPECT_TRUE(choice.View().done);
}

TEST_F(FloorPartKindChoiceTest, UlbonAloneTakesTheFirstThreeTicksAndTheSightOfAll) {
  FloorPartKindChoice choice;
  EXPECT_TRUE(choice.View().ticks_shown);
  choice.ChooseUlbonAlone(true);
  EXPECT_FALSE(choice.View().ticks_shown);
  EXPECT_TRUE(choice.View().ulbon);
  EXPECT_EQ(Shown(choice.View().ticks), "0001");
  EXPECT_FALSE(Selection.UlbonOnly) << "not before it is taken";
  choice.Take();
  EXPECT_TRUE(Selection.UlbonOnly);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(0)) << "though スリット筋 is ticked";
  EXPECT_TRUE(choice.View().done);
  EXPECT_TRUE(site.Messages().empty());
}

TEST_F(FloorPartKindChoiceTest, OpensOnUlbonAloneAndGoesBackToKinds) {
  Selection.UlbonOnly = true;
  Selection.MaterialKindMask = KindMask(0);
  FloorPartKindChoice choice;
  EXPECT_TRUE(choice.View().ulbon);
  EXPECT_FALSE(choice.View().ticks_shown);
  choice.ChooseUlbonAlone(false);
  EXPECT_TRUE(choice.View().ticks_shown);
  choice.Tick(2, true);
  choice.Take();
  EXPECT_FALSE(Selection.UlbonOnly);
  EXPECT_EQ(Selection.MaterialKindMask, KindMask(4));
  EXPECT_EQ(Selection.MaterialFormMask, kAllForms);
}

TEST_F(FloorPartKindChoiceTest, RefusesNoKind) {
  FloorPartKindChoice choice;
  Untick(choice);
  ExpectRefusal(choice, "材質が選択されていません");
  EXPECT_EQ(Selection.PrevMaterialKindMask, kAllKinds);
}

TEST_F(FormChoiceTest, OpensOnEveryMaskAndTakesItBack) {
  for (std::int16_t mask = 1; mask <= 15; ++mask) {
    Selection.MaterialFormMask = FormMask(mask);
    FormChoice choice;
    EXPECT_EQ(Shown(choice.View().ticks), kTicksOfMask.at(static_cast<std::size_t>(mask)));
    Selection.MaterialFormMask = FormMask(-1);
    choice.Take();
    EXPECT_EQ(Selection.MaterialFormMask, FormMask(mask));
    EXPECT_TRUE(choice.View().done);
  }
  EXPECT_EQ(Selection.MaterialKindMask, kAllKinds);
}

TEST_F(FormChoiceTest, RefusesNoFormAndTicksAllAgain) {
  FormChoice choice;
  Untick(choice);
  ExpectRefusal(choice, "材料が選択されていません");
  EXPECT_EQ(Selection.MaterialFormMask, FormMask(0)) << "until the next press";
  EXPECT_EQ(Shown(choice.View().ticks), "1111");
}

}  // namespace rbt::test
