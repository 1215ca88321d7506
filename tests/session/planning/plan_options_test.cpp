// SPDX-License-Identifier: MIT
#include "session/planning/plan_options.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/system/services.h"
#include "support/kept_services.h"

namespace rbt {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class PlanOptions : public ::testing::Test {
 protected:
  PlanOptions() {
    Services.Messages = [this](std::string_view text, std::string_view, MessageButtons) {
      messages_.emplace_back(text);
      return MessageAnswer::ok;
    };
  }

  test::KeptServices services_;
  std::vector<std::string> messages_;
};

TEST_F(PlanOptions, ShowTheChoicesInTheirBoxes) {
  PlanChoices choices;
  choices.trim = 10;
  choices.by_money = true;
  const PlanOptionsPresenter screen(choices);
  const PlanOptionsView view = screen.View();
  EXPECT_EQ(view.texts.at("txtTrim"), "10");
  EXPECT_EQ(view.texts.at("txtPlus"), "");
  EXPECT_EQ(view.texts.at("chkMoney"), "1");
  EXPECT_EQ(view.texts.at("chkGreedy"), "0");
  EXPECT_FALSE(view.has_sets);
  EXPECT_FALSE(screen.Taken());
}

TEST_F(PlanOptions, TakeWhatWasTypedAndLeave) {
  PlanOptionsPresenter screen({});
  screen.Type("txtLengths", "12000,6000");
  screen.Type("chkKeepWelded", "1");
  EXPECT_FALSE(screen.View().left);
  screen.Take();
  EXPECT_TRUE(screen.View().left);
  PlanChoices expected;
  expected.lengths = {6000, 12000};
  expected.keep_welded = true;
  EXPECT_EQ(screen.Taken(), expected);
  EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(PlanOptions, StayAtTheFirstBoxThatIsWrongUntilItIsMended) {
  PlanOptionsPresenter screen({});
  screen.Type("txtTrim", "x");
  screen.Type("txtScope", "roof");
  screen.Take();
  EXPECT_FALSE(screen.View().left);
  EXPECT_EQ(screen.View().to_mend, "txtTrim");
  EXPECT_EQ(screen.View().texts.at("txtTrim"), "x");
  ASSERT_THAT(messages_, SizeIs(1));
  EXPECT_THAT(messages_[0], HasSubstr("mm"));
  screen.Type("txtTrim", "5");
  EXPECT_EQ(screen.View().to_mend, "");
  screen.Take();
  EXPECT_EQ(screen.View().to_mend, "txtScope");
  EXPECT_FALSE(screen.Taken());
}

TEST_F(PlanOptions, GiveUpTheSetsOfTheAdviceWhenTheirTickIsTakenAway) {
  PlanChoices choices;
  choices.sets[{16, 1, false}] = {6000};
  PlanOptionsPresenter kept(choices);
  EXPECT_TRUE(kept.View().has_sets);
  EXPECT_EQ(kept.View().sets, "D16 異形 6000");
  kept.Take();
  EXPECT_EQ(kept.Taken(), choices);
  PlanOptionsPresenter given_up(choices);
  given_up.Type("chkSets", "0");
  given_up.Take();
  EXPECT_EQ(given_up.Taken(), PlanChoices());
}

TEST_F(PlanOptions, ComeBackToTheDefaults) {
  PlanChoices choices;
  choices.kerf = 3;
  choices.greedy = true;
  choices.sets[{16, 1, false}] = {6000};
  PlanOptionsPresenter screen(choices);
  screen.TakeDefaults();
  EXPECT_EQ(screen.View().texts.at("txtKerf"), "0");
  screen.Take();
  EXPECT_EQ(screen.Taken(), PlanChoices());
}

TEST_F(PlanOptions, AreLeftAsTheyAreByTurningBack) {
  PlanOptionsPresenter screen({});
  screen.Type("txtTrim", "5");
  screen.TurnBack();
  EXPECT_TRUE(screen.View().left);
  EXPECT_FALSE(screen.Taken());
}

}  // namespace
}  // namespace rbt
