// SPDX-License-Identifier: MIT
// Sites that are added up on the bulk screen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/accumulation/hozon.h"
#include "platform/fault.h"
#include "session/accumulation/more_sites.h"
#include "session/result/result_presenter_driver.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"
#include "tally/site_sum.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// The bulk screen of site 1, with the like sites 2 and 3 to add.
class AddedSites : public testing::Test {
 protected:
  AddedSites() : js_(kBulkScreen) {
    for (const int number : {2, 3}) AddSiteLikeTheFirst(js_.site, number);
    js_.parts.choose_site = [this] {
      js_.calls.emplace_back("choose");
      flag_at_choice_ = RunState.AccumulateFlag;
      stored_at_choice_ = Load_Hozon();
      return choice_;
    };
    js_.Open();
  }
  void Add(int number) {
    choice_ = AddedSite{number, "工事" + std::to_string(number), "GENBA00" + std::to_string(number) + ".MDB"};
    js_.presenter->ToggleAccumulation();
  }
  void ExpectOver() const {
    EXPECT_EQ(RunState.AccumulateFlag, 0);
    EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
    EXPECT_FALSE(std::filesystem::exists(js_.site.Data("hozon.MDB")));
  }

  Presented js_;
  std::optional<AddedSite> choice_;
  std::int32_t flag_at_choice_ = -1;
  TallyTable stored_at_choice_;
};

}  // namespace

TEST_F(AddedSites, TheTallyIsStoredThenTheSiteChosenThenTheSumShown) {
  Add(2);
  EXPECT_EQ(flag_at_choice_, 1);
  EXPECT_EQ(stored_at_choice_.BarCount[3][5], 10);
  EXPECT_THAT(js_.Row("D19"), StartsWith("270 |270 |"));
  EXPECT_EQ(js_.View().notice, "加算した現場：002　工事2");
  EXPECT_EQ(js_.View().head.site_number, "001");
  ExpectOver();
}

TEST_F(AddedSites, AnyNumberIsChained) {
  Add(2);
  Add(3);
  Add(3);
  EXPECT_THAT(js_.Row("D19"), StartsWith("540 |540 |"));
  EXPECT_EQ(js_.View().notice, "加算した現場：002　工事2、003　工事3、003　工事3");
  EXPECT_EQ(stored_at_choice_.BarCount[3][5], 30);
  ExpectOver();
}

TEST_F(AddedSites, ASumIsNeitherPrintedNorShownInDetailButAddedTo) {
  Add(2);
  const std::string buttons = MainButtons(js_.View());
  EXPECT_EQ(buttons, "ulbon-view ulbon restore add leave");
}

TEST_F(AddedSites, TellsThatSitesAreBeingAddedWhileTheOtherIsTalliedOnly) {
  js_.meanwhile.clear();
  Add(2);
  ASSERT_FALSE(js_.meanwhile.empty());
  EXPECT_TRUE(js_.meanwhile.front().filters.accumulating);
  EXPECT_TRUE(js_.meanwhile.front().busy);
  EXPECT_FALSE(js_.View().filters.accumulating);
  EXPECT_FALSE(js_.View().busy);
}

TEST_F(AddedSites, WithoutAChoiceTheSumIsDroppedAndTheSiteShownAlone) {
  Add(2);
  choice_.reset();
  js_.presenter->ToggleAccumulation();
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  EXPECT_EQ(js_.View().notice, "");
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("print"));
  ExpectOver();
}

TEST_F(AddedSites, AFilterTalliesTheSiteAloneAndSaysSo) {
  Add(2);
  js_.presenter->Recalculate();
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  EXPECT_EQ(js_.View().notice, "加算した集計を離れ、この現場だけを集計しました。");
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("print"));
  js_.presenter->Recalculate();
  EXPECT_EQ(js_.View().notice, "");
}

TEST_F(AddedSites, AFilterThatFaultsLeavesTheSumAndItsLine) {
  Add(2);
  SiteContext.WorkDatabase->Execute("UPDATE 加工テーブル SET 太さ=14 WHERE 太さ=19");
  EXPECT_THROW(js_.presenter->Recalculate(), Fault);
  EXPECT_THAT(js_.Row("D19"), StartsWith("270 |"));
  EXPECT_EQ(js_.View().notice, "加算した現場：002　工事2");
}

TEST_F(AddedSites, UpliftAndUlbonViewAreOfTheSum) {
  Add(2);
  const std::string thin = js_.Row("U 9");
  js_.presenter->ShowUlbonView();
  EXPECT_EQ(js_.Row("U 9"), thin);
  js_.presenter->TurnBack();
  js_.presenter->BeginUplift();
  js_.presenter->TypeUplift("10");
  js_.presenter->TakeUplift();
  EXPECT_NE(js_.Row("U 9"), thin);
  js_.presenter->RestoreValues();
  EXPECT_EQ(js_.Row("U 9"), thin);
  EXPECT_THAT(js_.Row("D19"), StartsWith("270 |"));
}

TEST_F(AddedSites, ASiteThatCannotBeTalliedLeavesWhatWasShown) {
  Add(2);
  std::filesystem::remove(js_.site.Data("HIROI003.mdb"));
  EXPECT_THROW(Add(3), Fault);
  EXPECT_THAT(js_.Row("D19"), StartsWith("270 |"));
  EXPECT_EQ(js_.View().notice, "加算した現場：002　工事2");
  EXPECT_FALSE(js_.View().busy);
  EXPECT_FALSE(js_.View().left);
  ExpectOver();
  Add(2);
  EXPECT_THAT(js_.Row("D19"), StartsWith("405 |"));
}

TEST_F(AddedSites, EverySiteIsTalliedByTheDefaultsOfTheSelection) {
  Selection.IncludeUlbon = false;
  js_.presenter->Recalculate();
  Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
  Add(2);
  EXPECT_TRUE(Selection.IncludeUlbon);
  EXPECT_EQ(Selection.MaterialCalcChoice, CalcChoice::high_strength_alone) << "kept while sites are added";
}

TEST_F(AddedSites, WithTheFlagOnTheSwitchTurnsItOffAndTheSiteIsShownAlone) {
  RunState.AccumulateFlag = 1;
  Add(2);
  EXPECT_EQ(flag_at_choice_, 0);
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  ExpectOver();
}

TEST_F(AddedSites, AScreenThatCannotOpenAgainIsLeft) {
  std::filesystem::remove(js_.site.Data("HIROI001.mdb"));
  EXPECT_THROW(js_.presenter->ToggleAccumulation(), Fault);
  EXPECT_TRUE(js_.View().left);
  ExpectOver();
}

TEST_F(AddedSites, AStoreThatCannotBeWrittenLeavesTheScreenAsItIsAndAsksForNoSite) {
  std::filesystem::create_directory(js_.site.Data("hozon.MDB"));
  EXPECT_THROW(Add(2), Fault);
  EXPECT_THAT(js_.calls, ElementsAre());
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  EXPECT_EQ(RunState.AccumulateFlag, 0);
}

}  // namespace rbt::test
