// SPDX-License-Identifier: MIT
#include "screens/planning/plan_form.h"

#include <optional>
#include <thread>

#include <QLabel>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/grid_control.h"
#include "screens/planning/plan_picture.h"
#include "screens/result/result_form.h"
#include "session/result/result_screen.h"
#include "support/desktop/key_press.h"
#include "support/schedule_site.h"
#include "support/site_fixture.h"
#include "support/site_plan_of.h"

namespace rbt {
namespace {

using test::Number;
using test::ScheduleSite;
using test::Settle;
using ::testing::ElementsAre;
using ::testing::StartsWith;

/// Two pieces of 4.0 m and two of 2.0 m of D16 out of bars of 6.0 m, planned in a window.
class PlanWindow : public ::testing::Test {
 protected:
  PlanWindow() {
    for (const auto& [cut, bars] : {std::pair{4000, 2}, std::pair{2000, 1}}) {
      site_.AddRow({{"太さ", Number(16)},
                    {"伸定尺", Value{6.0}},
                    {"伸切寸", Number(cut)},
                    {"合計", Number(2)},
                    {"伸総計", Number(bars)}});
    }
    PlanParts parts;
    parts.ask_choices = [this](const PlanChoices& choices) { return Answer("options", choices); };
    parts.advise = [this](const PlanChoices& choices) { return Answer("advice", choices); };
    parts.print = [this](PlanSheet sheet, const planning::Outcome&) {
      sheets_.push_back(sheet);
      return std::string();
    };
    PlanChoices choices;
    choices.lengths = {6000, 11000};
    form_ = std::make_unique<PlanForm>(std::move(parts), test::SitePlanOf(choices));
    form_->show();
    form_->activateWindow();
    WaitForEnd();
  }

  /// Until the search has ended, whose news come as events.
  void WaitForEnd() {
    for (int wait = 0; wait < 10'000 && Text("lblProgress") != "計画ができました"; ++wait) {
      Settle();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ASSERT_EQ(Text("lblProgress"), "計画ができました");
  }

  std::optional<PlanChoices> Answer(const char* window, PlanChoices choices) {
    asked_.emplace_back(window);
    choices.lengths = {12000};
    return choices;
  }

  void Key(int key) {
    test::Press(*form_, key);
    Settle();
  }
  std::string Text(const char* label) const { return form_->findChild<QLabel*>(label)->text().toStdString(); }
  GridControl& Grid() const { return *form_->findChild<GridControl*>("dbgPlan"); }
  bool ShowsPatterns() const { return form_->findChild<PlanPicture*>("picture")->isVisible(); }

  ScheduleSite site_;
  std::vector<PlanSheet> sheets_;
  std::vector<std::string> asked_;
  std::unique_ptr<PlanForm> form_;
};

TEST_F(PlanWindow, ShowsBarsToBuyLossesAndBound) {
  EXPECT_EQ(Grid().Cell(0, 0), "D16 異形");
  EXPECT_EQ(Grid().Cell(0, 6), "2");
  EXPECT_EQ(Grid().Cell(1, 0), "合計");
  EXPECT_EQ(Text("lblLosses"),
            "ロス　加工帳 50.000 %（集計 47.37 %）　→　行ごと 41.667 %（集計 36.84 %）　→　計画 0.000 "
            "%（集計 0.00 %）");
  EXPECT_THAT(Text("lblBound"), StartsWith("下限 0.000 %"));
  EXPECT_THAT(Text("lblCounts"), StartsWith("切断 2"));
}

TEST_F(PlanWindow, EnterOnACellShowsItsPatternsAndEscPutsThemAway) {
  EXPECT_FALSE(ShowsPatterns());
  Grid().setCurrentIndex(Grid().model()->index(0, 6));
  Key(Qt::Key_Return);
  EXPECT_TRUE(ShowsPatterns());
  EXPECT_EQ(Text("lblPatterns"), "D16 異形 6.0 m");
  form_->grab();  // the picture is painted
  Key(Qt::Key_Escape);
  EXPECT_FALSE(ShowsPatterns());
  EXPECT_TRUE(form_->isVisible());
}

TEST_F(PlanWindow, EnterOnAnEmptyCellShowsNothing) {
  Grid().setCurrentIndex(Grid().model()->index(0, 5));
  Key(Qt::Key_Enter);
  EXPECT_FALSE(ShowsPatterns());
}

TEST(PlanPicture, DrawsTheEndThatIsCutOff) {
  PlanPicture picture;
  picture.resize(600, 200);
  PlanBarView bar;
  bar.stock_mm = 12000;
  bar.marks = {8000};
  bar.cuts = {6000};
  picture.Show({bar}, 12000);
  const QImage without = picture.grab().toImage();
  bar.trim_mm = 2000;
  picture.Show({bar}, 12000);
  EXPECT_NE(picture.grab().toImage(), without);
}

TEST_F(PlanWindow, PrintsItsSheetsByTheirKeys) {
  Key(Qt::Key_F1);
  Key(Qt::Key_F3);
  EXPECT_THAT(sheets_, ElementsAre(PlanSheet::purchase, PlanSheet::shop));
}

TEST_F(PlanWindow, OpensOptionsAndAdviceByTheirKeysAndPlansByTheirAnswers) {
  EXPECT_FALSE(form_->findChild<QLabel*>("lblChoices")->text().isEmpty()) << "the lengths are chosen ones";
  Key(Qt::Key_F2);
  EXPECT_THAT(asked_, ElementsAre("options"));
  EXPECT_EQ(Text("lblChoices"), "定尺 12000");
  WaitForEnd();
  EXPECT_EQ(Grid().Cell(0, 18), "1");
  Key(Qt::Key_F5);
  EXPECT_THAT(asked_, ElementsAre("options", "advice"));
  WaitForEnd();
}

TEST_F(PlanWindow, EscLeavesWhenTheSearchIsOver) {
  Key(Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
}

TEST(BulkScreen, OpensThePlanByF8) {
  const test::SiteFixture site;
  int opened = 0;
  ResultParts parts;
  parts.open_plan = [&] { ++opened; };
  ResultForm form(kBulkScreen, std::move(parts));
  form.show();
  form.activateWindow();
  Settle();
  EXPECT_TRUE(form.findChild<QPushButton*>("cmdPlan")->isVisible());
  test::Press(form, Qt::Key_F8);
  EXPECT_EQ(opened, 1);
}

TEST(PageScreen, HasNoPlan) {
  const test::SiteFixture site;
  ResultForm form(kPageScreen, {});
  form.show();
  Settle();
  EXPECT_FALSE(form.findChild<QPushButton*>("cmdPlan")->isVisible());
}

}  // namespace
}  // namespace rbt
