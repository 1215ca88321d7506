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
#include "tally/detail/detail_change.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/rows/bulk_tally.h"
#include "tally/site_sum.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
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
      if (at_choice_) at_choice_();
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
  SiteChoice choice_;
  std::function<void()> at_choice_;  ///< what happens while the dialog is open
  std::int32_t flag_at_choice_ = -1;
  TallyTable stored_at_choice_;
};

/// A row behind those that the fixture has numbered.
Cells Numbered(Cells bar) {
  bar.emplace_back("行No", std::int64_t{99});
  return bar;
}

/// What a site's own start tallies.
TallyResult OwnTally(const std::string& site) {
  StartOptions options;
  options.site = site;
  LoadSite(options);
  ActivateMenu(options);
  return CountTally(TallyKind::bulk);
}

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
  choice_ = {};
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
  const std::string alone = js_.Row("U 9");
  Add(2);
  const std::string of_both = js_.Row("U 9");
  EXPECT_NE(of_both, alone);
  js_.Open();
  at_choice_ = [] {
    Selection.IncludeUlbon = false;
    Selection.MaterialCalcChoice = CalcChoice::high_strength_alone;
  };
  Add(2);
  EXPECT_EQ(js_.Row("U 9"), of_both) << "the thin bars of the other site are among them";
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

TEST_F(AddedSites, ASavedTallyIsNotAddedTo) {
  js_.detail = [](TallyResult result) {
    result.origin = ResultOrigin::loaded;
    result.was_saved = true;
    return result;
  };
  js_.presenter->ShowDetail();
  EXPECT_THAT(MainButtons(js_.View()), Not(HasSubstr("add")));
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("print"));
  js_.calls.clear();
  Add(2);
  EXPECT_THAT(js_.calls, ElementsAre());
  EXPECT_EQ(js_.View().notice, "");
  ExpectOver();
  js_.presenter->Recalculate();
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("add"));
}

TEST_F(AddedSites, ATallyWithoutUlbonIsNotAddedTo) {
  js_.kinds = [] { Selection.IncludeUlbon = false; };
  js_.presenter->ChooseKinds();
  EXPECT_THAT(MainButtons(js_.View()), Not(HasSubstr("add")));
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("print")) << "all other kinds are whole";
  js_.calls.clear();
  Add(2);
  EXPECT_THAT(js_.calls, ElementsAre());
  ExpectOver();
  js_.kinds = [] { Selection.IncludeUlbon = true; };
  js_.presenter->ChooseKinds();
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("add"));
}

TEST_F(AddedSites, BarsThatWereRaisedInTheListAreAddedAsTheyAreShown) {
  js_.detail = [](TallyResult result) { return RaiseBars(std::move(result), 100.0, kStockColumns); };
  js_.presenter->ShowDetail();
  ASSERT_THAT(js_.Row("D19"), StartsWith("270 |"));
  Add(2);
  EXPECT_EQ(stored_at_choice_.BarCount[3][5], 20);
  EXPECT_THAT(js_.Row("D19"), StartsWith("405 |270 |")) << "installed weights are not raised";
  ExpectOver();
}

TEST_F(AddedSites, AStoredSumThatWasDeletedByHandAddsNothing) {
  at_choice_ = [this] { std::filesystem::remove(js_.site.Data("hozon.MDB")); };
  Add(2);
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  ExpectOver();
}

TEST_F(AddedSites, ADialogThatFaultsLeavesNothingStoredAndTheScreenAsItIs) {
  Add(2);
  at_choice_ = [] { throw Fault(FaultKind::database, "SORANO.MDB"); };
  EXPECT_EQ(FaultOf([this] { Add(3); }), FaultKind::database);
  EXPECT_THAT(js_.Row("D19"), StartsWith("270 |"));
  EXPECT_EQ(js_.View().notice, "加算した現場：002　工事2");
  EXPECT_FALSE(js_.View().left);
  EXPECT_FALSE(js_.View().busy);
  ExpectOver();
}

TEST_F(AddedSites, WhereAStoredSumCannotBeDeletedTheSiteIsShownAloneAllTheSame) {
  Add(2);
  choice_ = {};
  at_choice_ = [this] { PutFolderInPlaceOfTheFile(js_.site); };
  EXPECT_EQ(FaultOf([this] { js_.presenter->ToggleAccumulation(); }), FaultKind::file);
  EXPECT_EQ(RunState.AccumulateFlag, 0);
  EXPECT_EQ(ReadSetting(kAccumulateFlagKey), 0);
  EXPECT_THAT(js_.Row("D19"), StartsWith("135 |"));
  EXPECT_FALSE(js_.View().filters.accumulating);
  EXPECT_THAT(MainButtons(js_.View()), HasSubstr("print"));
}

TEST_F(AddedSites, WhereTheProgramEndsNothingStaysStoredAndTheScreenIsLeft) {
  choice_ = ProgramEnds();
  at_choice_ = [this] { std::filesystem::remove(js_.site.Data(kScheduleFile)); };
  EXPECT_NO_THROW(js_.presenter->ToggleAccumulation()) << "the site is not opened again";
  EXPECT_TRUE(js_.View().left);
  ExpectOver();
}

TEST_F(AddedSites, AChainOnTheScreenIsTheSumThatTheCommandLineMakes) {
  js_.site.Add("GENBA002.MDB", "加工テーブル", Numbered(At(TenBars(9, 2, 5), 9, 1)));
  js_.site.Add("GENBA003.MDB", "加工テーブル", Numbered(At(TenBars(29, 1, 7), 9, 1)));
  for (const int number : {2, 3, 2}) Add(number);
  const TallyTable shown = TallyGrid;
  EXPECT_EQ(shown.BarCount[6][5], 10);

  TallyResult sum = OwnTally(kScheduleFile);
  for (const char* site : {"GENBA002.MDB", "GENBA003.MDB", "GENBA002.MDB"}) {
    sum = SumOfSites(KeptForSum(sum.Grid()), OwnTally(site), BulkClosingRules());
  }
  EXPECT_EQ(shown, sum.Grid());
  EXPECT_GT(shown.UlbonWeldCount[14], 0);
}

}  // namespace rbt::test
