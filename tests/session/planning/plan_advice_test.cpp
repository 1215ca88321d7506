// SPDX-License-Identifier: MIT
#include "session/planning/plan_advice.h"

#include <chrono>
#include <latch>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::Number;
using test::ScheduleSite;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Ten pieces of 4.0 m and ten of 5.5 m of D16, out of bars of 4.0 m and 5.5 m; ten of 3.0 m of D19.
class PlanAdvice : public ::testing::Test {
 protected:
  PlanAdvice() {
    Add(16, 4000, 4.0);
    Add(16, 5500, 5.5);
    Add(19, 3000, 6.0);
  }

  void Add(int diameter, int cut, double stock) {
    site_.AddRow({{"太さ", Number(diameter)},
                  {"伸定尺", Value{stock}},
                  {"伸切寸", Number(cut)},
                  {"合計", Number(10)},
                  {"伸総計", Number(10)}});
  }

  static PlanChoices Choices() {
    PlanChoices choices;
    choices.lengths = {4000, 5500, 6000};
    return choices;
  }

  static void Search(PlanAdvicePresenter& screen) {
    screen.Search([] {});
    while (screen.View().searching) {
      screen.TakeNews();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  ScheduleSite site_;
};

TEST_F(PlanAdvice, ShowsWhatFewerLengthsWouldLoseOfEachSteel) {
  PlanAdvicePresenter screen(Choices());
  EXPECT_THAT(screen.View().rows, IsEmpty());
  Search(screen);
  const PlanAdviceView view = screen.View();
  EXPECT_EQ(view.progress, "定尺を比べました");
  ASSERT_GE(view.rows.size(), 3u);
  EXPECT_THAT(view.rows[0], SizeIs(AdviceCaptions().size()));
  // One length must hold the 5.5 m pieces: 20 bars of 5.5 m for 95 m of pieces.
  EXPECT_EQ(view.rows[0][1], "D16 異形");
  EXPECT_EQ(view.rows[0][2], "1");
  EXPECT_EQ(view.rows[0][4], "15.789");
  EXPECT_EQ(view.rows[0][5], "5500");
  EXPECT_EQ(view.rows[1][2], "2");
  EXPECT_EQ(view.rows[1][4], "0.000");
  EXPECT_EQ(view.rows[1][5], "4000 5500");
}

TEST_F(PlanAdvice, DrawsTheCurveOfTheSteelOfARow) {
  PlanAdvicePresenter screen(Choices());
  Search(screen);
  const AdviceCurve first = screen.CurveOf(1);
  EXPECT_EQ(first.steel, "D16 異形");
  EXPECT_EQ(first.current, 1u);
  ASSERT_GE(first.marks.size(), 2u);
  EXPECT_EQ(first.marks[0].count, 1);
  EXPECT_DOUBLE_EQ(first.marks[1].loss_percent, 0.0);
  const AdviceCurve second = screen.CurveOf(first.marks.size());
  EXPECT_EQ(second.steel, "D19 異形");
  EXPECT_EQ(second.current, 0u);
  EXPECT_THAT(screen.CurveOf(screen.View().rows.size()).marks, IsEmpty());
}

TEST_F(PlanAdvice, GivesTheChoicesWithTheSetThatWasTaken) {
  PlanAdvicePresenter screen(Choices());
  Search(screen);
  screen.Take(1);
  EXPECT_TRUE(screen.View().left);
  PlanChoices expected = Choices();
  expected.sets[{16, 1, false}] = {4000, 5500};
  EXPECT_EQ(screen.Taken(), expected);
}

TEST_F(PlanAdvice, ComparesAllLengthsAgainAndMarksTheSetThatWasTakenBefore) {
  PlanChoices choices = Choices();
  choices.sets[{16, 1, false}] = {5500};
  PlanAdvicePresenter screen(choices);
  Search(screen);
  const PlanAdviceView view = screen.View();
  EXPECT_EQ(view.rows[0][0], "○");
  EXPECT_EQ(view.rows[1][0], "");
  EXPECT_EQ(view.rows[1][5], "4000 5500");
  screen.Take(1);
  EXPECT_THAT(screen.Taken()->sets.at({16, 1, false}), ElementsAre(4000, 5500));
}

TEST_F(PlanAdvice, ComparesNoMoreLengthsThanThePlanMayBuy) {
  PlanChoices choices = Choices();
  choices.max_lengths = 1;
  PlanAdvicePresenter screen(choices);
  Search(screen);
  EXPECT_THAT(screen.CurveOf(0).marks, SizeIs(1));
  EXPECT_EQ(screen.View().rows.at(1).at(1), "D19 異形");
}

TEST_F(PlanAdvice, TakesNothingWhereNoRowStands) {
  PlanAdvicePresenter screen(Choices());
  screen.Take(0);
  EXPECT_FALSE(screen.View().left);
  EXPECT_FALSE(screen.Taken());
}

TEST_F(PlanAdvice, StopsTheSearchBeforeItIsLeft) {
  PlanAdvicePresenter screen(Choices());
  screen.Search([] {});
  screen.TurnBack();
  EXPECT_FALSE(screen.View().left);
  while (screen.View().searching) screen.TakeNews();
  screen.TurnBack();
  EXPECT_TRUE(screen.View().left);
  EXPECT_FALSE(screen.Taken());
}

TEST_F(PlanAdvice, ShowsEachCurveAsItComes) {
  PlanAdvicePresenter screen(Choices(),
                             [](const planning::Problem& problem, const planning::StopSignal& signal,
                                const planning::PlanListener& listener) {
                               planning::Plan plan = planning::MakeFirstPlan(problem);
                               plan.advice = {{{16, 1, false}, {{1, {5500}, 110'000}}}};
                               listener(plan, 2, 4);
                               while (signal() == planning::Stopped::no) std::this_thread::yield();
                               return plan;
                             });
  std::latch news(1);
  screen.Search([&] {
    if (!news.try_wait()) news.count_down();
  });
  news.wait();
  screen.TakeNews();
  EXPECT_TRUE(screen.View().searching);
  ASSERT_THAT(screen.View().rows, SizeIs(1));
  EXPECT_EQ(screen.View().rows[0][4], "15.789") << "110 m for 95 m of pieces";
  screen.TurnBack();
  while (screen.View().searching) screen.TakeNews();
  EXPECT_EQ(screen.View().progress, "途中まで比べました");
  EXPECT_THAT(screen.View().rows, SizeIs(1));
}

TEST_F(PlanAdvice, HasNothingToCompareWhereNothingIsToPlan) {
  const ScheduleSite empty;
  PlanAdvicePresenter screen(Choices());
  screen.Search([] {});
  EXPECT_FALSE(screen.View().searching);
  EXPECT_EQ(screen.View().progress, "計画する部材がありません");
}

}  // namespace
}  // namespace rbt
