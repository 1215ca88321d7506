// SPDX-License-Identifier: MIT
#include "session/planning/plan_presenter.h"

#include <atomic>
#include <functional>
#include <latch>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/schedule_site.h"
#include "support/site_plan_of.h"

namespace rbt {
namespace {

using test::Fields;
using test::kNull;
using test::Number;
using test::ScheduleSite;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Two pieces of 4.0 m and two of 2.0 m of D16, each row from bars of 6.0 m of its own.
class PlanScreen : public ::testing::Test {
 protected:
  PlanScreen() {
    site_.AddRow(Row(4000, 2));
    site_.AddRow(Row(2000, 1));
  }

  static Fields Row(int cut, int bars) {
    return {{"太さ", Number(16)},
            {"伸定尺", Value{6.0}},
            {"伸切寸", Number(cut)},
            {"合計", Number(2)},
            {"伸総計", Number(bars)}};
  }

  static PlanChoices Choices() {
    PlanChoices choices;
    choices.lengths = {6000, 11000};
    return choices;
  }
  /// The screen as it opens.
  static PlanPresenter Screen(PlanParts parts = {}) {
    return {std::move(parts), test::SitePlanOf(Choices())};
  }

  using MakeGroup = std::function<planning::Plan(const planning::Problem& problem)>;
  /// A plan of these patterns, with the bound that is proven at first.
  static MakeGroup PlanOf(std::vector<planning::Pattern> patterns) {
    return [patterns = std::move(patterns)](const planning::Problem& problem) {
      planning::Plan plan = planning::MakeFirstPlan(problem);
      plan.groups[0].patterns = patterns;
      return plan;
    };
  }
  /// A search that finds that plan alone, and goes on until it is stopped.
  static PlanSearch::Work UntilItIsStopped(MakeGroup make) {
    return [make = std::move(make)](const planning::Problem& problem, const planning::StopSignal& signal,
                                    const planning::PlanListener& listener) {
      planning::Plan plan = make(problem);
      listener(plan, 0, 1);
      while (signal() == planning::Stopped::no) std::this_thread::yield();
      plan.stopped = signal();
      return plan;
    };
  }

  /// Until the search has ended.
  static void WaitForEnd(PlanPresenter& screen) {
    while (screen.View().improving) {
      screen.TakeNews();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  ScheduleSite site_;
};

TEST_F(PlanScreen, ShowsTheGreedyPlanAtOnce) {
  const PlanPresenter screen = Screen();
  const PlanScreenView view = screen.View();
  ASSERT_THAT(view.rows, SizeIs(2));
  EXPECT_EQ(view.rows[0][0], "D16 異形");
  EXPECT_EQ(view.rows[0][6], "2");  // 6.0 m
  EXPECT_EQ(view.rows[0][20], "2");
  EXPECT_EQ(view.rows[0][21], "19");
  EXPECT_EQ(view.rows[1][0], "合計");
  EXPECT_THAT(view.totals, ElementsAre(1));
  // The tally has whole kilograms of each length: three bars of 6.0 m are 28, two 19, one of 11.0 m is 17.
  EXPECT_THAT(view.losses, ElementsAre("加工帳 50.000 %（集計 47.37 %）", "行ごと 41.667 %（集計 36.84 %）",
                                       "計画 0.000 %（集計 0.00 %）"));
  EXPECT_EQ(view.bound, "下限 0.000 %   差 0.000 %");
  EXPECT_EQ(view.counts, "切断 2   パターン 1   定尺 1 種類");
  EXPECT_FALSE(view.improving);
}

TEST_F(PlanScreen, HasACaptionForEveryColumnOfItsRows) {
  const PlanPresenter screen = Screen();
  EXPECT_EQ(PlanCaptions().size(), screen.View().rows[0].size());
  EXPECT_EQ(PlanCaptions()[6], "6.0");
}

TEST_F(PlanScreen, ImprovesUntilItIsDoneAndTellsTheNews) {
  PlanPresenter screen = Screen();
  std::atomic<int> news = 0;
  screen.Improve([&] { ++news; });
  EXPECT_TRUE(screen.View().improving);
  WaitForEnd(screen);
  EXPECT_GE(news, 1);
  EXPECT_EQ(screen.View().progress, "計画ができました");
  EXPECT_EQ(screen.Outcome().stopped, planning::Stopped::no);
}

TEST_F(PlanScreen, StopsTheSearchBeforeItIsLeftAndKeepsThePlanThatCostsLess) {
  PlanParts parts;
  parts.make_plan = UntilItIsStopped(PlanOf({{11000, false, 1, {{4000, 2}, {2000, 1}}},  //
                                             {11000, false, 1, {{2000, 1}}}}));
  PlanPresenter screen = Screen(std::move(parts));
  screen.Improve([] {});
  screen.TurnBack();
  EXPECT_FALSE(screen.View().left);
  WaitForEnd(screen);
  PlanScreenView view = screen.View();
  EXPECT_EQ(view.rows[0][6], "2") << "two bars of 6.0 m are 12 m, two of 11.0 m are 22 m";
  EXPECT_EQ(view.rows[0][16], "");
  EXPECT_EQ(view.progress, "途中までの最良の計画です");
  EXPECT_EQ(screen.Outcome().stopped, planning::Stopped::cancel);
  screen.TurnBack();
  EXPECT_TRUE(screen.View().left);
}

TEST_F(PlanScreen, TakesAPlanThatCostsLessAndKeepsItFromAFault) {
  SitePlan dear = test::SitePlanOf(Choices());
  const planning::Plan two_long = PlanOf({{11000, false, 1, {{4000, 2}, {2000, 1}}},  //
                                          {11000, false, 1, {{2000, 1}}}})(dear.problem);
  dear.outcome = planning::Describe(dear.problem, two_long);
  PlanParts parts;
  parts.make_plan = [](const planning::Problem& problem, const planning::StopSignal&,
                       const planning::PlanListener& listener) -> planning::Plan {
    listener(PlanOf({{6000, false, 2, {{4000, 1}, {2000, 1}}}})(problem), 1, 2);
    throw std::runtime_error("out of memory");
  };
  PlanPresenter screen(std::move(parts), std::move(dear));
  EXPECT_EQ(screen.View().rows[0][16], "2");  // 11.0 m
  std::latch both(2);
  screen.Improve([&] { both.count_down(); });
  both.wait();  // the plan is not taken when the fault comes
  EXPECT_THROW(screen.TakeNews(), std::runtime_error);
  const PlanScreenView view = screen.View();
  EXPECT_EQ(view.rows[0][6], "2");
  EXPECT_EQ(view.rows[0][16], "");
  EXPECT_FALSE(view.improving);
  EXPECT_EQ(view.progress, "途中までの最良の計画です");
  EXPECT_EQ(screen.Outcome().stopped, planning::Stopped::cancel);
}

TEST_F(PlanScreen, KeepsThePlanThatStoodAtOnceWhereAFaultComesFirst) {
  PlanParts parts;
  parts.make_plan = [](const planning::Problem&, const planning::StopSignal&,
                       const planning::PlanListener&) -> planning::Plan {
    throw std::runtime_error("out of memory");
  };
  PlanPresenter screen = Screen(std::move(parts));
  std::latch one(1);
  screen.Improve([&] { one.count_down(); });
  one.wait();
  EXPECT_THROW(screen.TakeNews(), std::runtime_error);
  EXPECT_EQ(screen.View().rows[0][6], "2");
  EXPECT_FALSE(screen.View().improving);
}

TEST_F(PlanScreen, EndsItsSearchWhenItGoes) {
  std::atomic<bool> ended = false;
  std::latch begun(1);
  PlanParts parts;
  parts.make_plan = [&](const planning::Problem& problem, const planning::StopSignal& signal,
                        const planning::PlanListener&) {
    begun.count_down();
    while (signal() == planning::Stopped::no) std::this_thread::yield();
    ended = true;
    return planning::MakeFirstPlan(problem);
  };
  {
    PlanPresenter screen = Screen(std::move(parts));
    screen.Improve([] {});
    begun.wait();
    EXPECT_FALSE(ended);
  }
  EXPECT_TRUE(ended);
}

TEST_F(PlanScreen, PrintsAllSheetsOfTheOnePlanThatASearchEndsWith) {
  std::vector<planning::Stopped> stopped;
  std::vector<std::int64_t> bars;
  PlanParts parts;
  parts.make_plan = UntilItIsStopped(PlanOf({{11000, false, 1, {{4000, 2}, {2000, 1}}},  //
                                             {11000, false, 1, {{2000, 1}}}}));
  parts.print = [&](PlanSheet, const planning::Outcome& outcome) {
    stopped.push_back(outcome.stopped);
    bars.push_back(outcome.purchase.front().stock_mm);
    return std::string();
  };
  PlanPresenter screen = Screen(std::move(parts));
  screen.Improve([] {});
  screen.Print(PlanSheet::purchase);
  EXPECT_FALSE(screen.View().improving);
  EXPECT_EQ(screen.View().progress, "印字のために改善をやめました。途中までの最良の計画です");
  screen.TakeNews();
  screen.Print(PlanSheet::shop);
  EXPECT_THAT(stopped, ElementsAre(planning::Stopped::cancel, planning::Stopped::cancel));
  EXPECT_THAT(bars, ElementsAre(6000, 6000));
}

TEST_F(PlanScreen, TellsOfTheBarsThatStayAsScheduledWhereNoPatternsAre) {
  site_.AddRow({{"太さ", Number(16)}, {"伸定尺", Value{9.0}}, {"伸切寸", kNull}, {"伸総計", Number(76)}});
  PlanPresenter screen = Screen();
  ASSERT_EQ(screen.View().rows[0][12], "76");
  screen.OpenCell(0, 12);
  const PlanScreenView view = screen.View();
  EXPECT_EQ(view.patterns_of, "D16 異形 9.0 m   加工帳のまま 76 本");
  EXPECT_THAT(view.bars, IsEmpty());
  EXPECT_THAT(view.counts, HasSubstr("   計画外 1 行"));
  EXPECT_THAT(view.losses[0], HasSubstr("加工帳 50.000 %（集計 "));
}

TEST_F(PlanScreen, PutsThePatternsOfACellAwayThatHoldsNoBarsAnyMore) {
  SitePlan dear = test::SitePlanOf(Choices());
  const planning::Plan two_long = PlanOf({{11000, false, 1, {{4000, 2}, {2000, 1}}},  //
                                          {11000, false, 1, {{2000, 1}}}})(dear.problem);
  dear.outcome = planning::Describe(dear.problem, two_long);
  PlanPresenter screen({}, std::move(dear));
  screen.OpenCell(0, 16);
  ASSERT_THAT(screen.View().bars, SizeIs(2));
  screen.Improve([] {});
  WaitForEnd(screen);
  EXPECT_EQ(screen.View().rows[0][16], "");
  EXPECT_EQ(screen.View().patterns_of, "");
}

TEST_F(PlanScreen, TellsBoundAndCostInYenWhereMoneyIsMadeLeast) {
  PlanChoices choices = Choices();
  choices.by_money = true;
  // A bar of 6.0 m of D16 weighs 9.36 kg, which are 936 yen; the other length costs far more.
  choices.lengths_file =
      site_.Folder()
          .Put("l.csv", "diameter,length,price,min_kg\n16,6000,100000,\n16,11000,900000,\n")
          .string();
  const PlanPresenter screen({}, test::SitePlanOf(choices));
  EXPECT_EQ(screen.View().bound, "下限 1,872 円   計画 1,872 円   差 0.000 %");
}

TEST_F(PlanScreen, NamesItsSubjectInTheTitle) {
  EXPECT_EQ(Screen().View().title, "切断・購買計画");
  PlanParts parts;
  parts.subject = "見本町集合住宅（溶接フープ 含まず）";
  EXPECT_EQ(Screen(std::move(parts)).View().title, "切断・購買計画　見本町集合住宅（溶接フープ 含まず）");
}

TEST_F(PlanScreen, OpensThePatternsOfACellAndTurnsBackFromThem) {
  PlanPresenter screen = Screen();
  screen.OpenCell(0, 6);
  PlanScreenView view = screen.View();
  EXPECT_EQ(view.patterns_of, "D16 異形 6.0 m");
  ASSERT_THAT(view.bars, SizeIs(1));
  EXPECT_THAT(view.bars[0].marks, ElementsAre(4000, 6000));
  EXPECT_THAT(view.bars[0].cuts, ElementsAre(4000, 2000));
  EXPECT_THAT(view.bars[0].head, HasSubstr("6000 x 2 本   4000x1+2000x1"));
  EXPECT_THAT(view.bars[0].rows, HasSubstr("4000: 1頁1行x2  2000: 1頁2行x2"));
  EXPECT_EQ(view.longest_mm, 6000);
  screen.TurnBack();
  view = screen.View();
  EXPECT_EQ(view.patterns_of, "");
  EXPECT_FALSE(view.left);
}

TEST_F(PlanScreen, OpensNothingWhereNoBarsStand) {
  PlanPresenter screen = Screen();
  for (const auto& [row, column] :
       {std::pair<std::size_t, std::size_t>{0, 5}, {0, 0}, {0, 20}, {1, 6}, {9, 6}}) {
    screen.OpenCell(row, column);
    EXPECT_THAT(screen.View().bars, IsEmpty()) << row << " " << column;
  }
}

TEST_F(PlanScreen, PrintsWhatItShowsAndTellsThePrinter) {
  PlanParts parts;
  std::vector<PlanSheet> sheets;
  parts.print = [&](PlanSheet sheet, const planning::Outcome& outcome) {
    sheets.push_back(sheet);
    EXPECT_EQ(outcome.plan.common.bars, 2);
    return std::string("LP-1");
  };
  PlanPresenter screen = Screen(std::move(parts));
  screen.Print(PlanSheet::shop);
  screen.Print(PlanSheet::purchase);
  EXPECT_THAT(sheets, ElementsAre(PlanSheet::shop, PlanSheet::purchase));
  EXPECT_EQ(screen.View().notice, "「LP-1」に送りました。");
}

TEST_F(PlanScreen, HasASumAloneWhereNothingIsToPlan) {
  ScheduleSite empty;
  PlanPresenter screen = Screen();
  screen.Improve([] {});
  EXPECT_FALSE(screen.View().improving);
  ASSERT_THAT(screen.View().rows, SizeIs(1));
}

TEST_F(PlanScreen, PlansAnewByOtherChoicesAndRemembersThem) {
  PlanParts parts;
  parts.ask_choices = [](const PlanChoices& choices) {
    PlanChoices other = choices;
    other.lengths = {12000};
    return std::optional(other);
  };
  PlanPresenter screen = Screen(std::move(parts));
  screen.Improve([] {});
  screen.OpenCell(0, 6);
  screen.ChangeChoices();
  const PlanScreenView view = screen.View();
  EXPECT_EQ(view.rows[0][6], "");
  EXPECT_EQ(view.rows[0][18], "1");  // 12.0 m
  EXPECT_EQ(view.choices, "定尺 12000");
  EXPECT_EQ(view.patterns_of, "");
  EXPECT_TRUE(view.improving) << "the search has begun again";
  WaitForEnd(screen);
  EXPECT_EQ(screen.View().rows[0][18], "1");
  EXPECT_EQ(RememberedChoices().choices.lengths, std::vector<int>{12000});
}

TEST_F(PlanScreen, StaysAsItIsWhenNothingElseIsChosen) {
  PlanParts parts;
  parts.ask_choices = [](const PlanChoices&) { return std::nullopt; };
  PlanPresenter screen = Screen(std::move(parts));
  screen.ChangeChoices();
  EXPECT_EQ(screen.View().rows[0][6], "2");
  EXPECT_EQ(screen.Choices(), Choices());
}

TEST_F(PlanScreen, BuysTheSetThatWasTakenFromTheAdvice) {
  PlanParts parts;
  parts.advise = [](const PlanChoices& choices) {
    PlanChoices other = choices;
    other.sets[{16, 1, false}] = {11000};
    return std::optional(other);
  };
  PlanPresenter screen = Screen(std::move(parts));
  screen.Advise();
  EXPECT_EQ(screen.View().rows[0][16], "2");  // 11.0 m
  EXPECT_EQ(screen.View().choices, "定尺 6000,11000   助言の定尺 D16 異形 11000");
}

TEST_F(PlanScreen, CutsRestBarsFirstAndShowsTheirPatterns) {
  site_.Folder().Put("rests.csv", "diameter,kind,length,count\n16,1,6100,1\n");
  PlanChoices choices = Choices();
  choices.rests_file = (site_.Folder() / "rests.csv").string();
  PlanPresenter screen({}, test::SitePlanOf(choices));
  PlanScreenView view = screen.View();
  EXPECT_EQ(view.rows[0][6], "1");
  EXPECT_EQ(view.rows[0][22], "1");
  screen.OpenCell(0, 22);
  view = screen.View();
  EXPECT_EQ(view.patterns_of, "D16 異形 残材");
  ASSERT_THAT(view.bars, SizeIs(1));
  EXPECT_EQ(view.bars[0].stock_mm, 6100);
  EXPECT_EQ(view.bars[0].left_mm, 100);
}

}  // namespace
}  // namespace rbt
