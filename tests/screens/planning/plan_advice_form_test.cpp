// SPDX-License-Identifier: MIT
#include "screens/planning/plan_advice_form.h"

#include <chrono>
#include <thread>

#include <QLabel>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/grid_control.h"
#include "screens/planning/advice_picture.h"
#include "support/desktop/key_press.h"
#include "support/schedule_site.h"

namespace rbt {
namespace {

using test::Number;
using test::Press;
using test::Settle;
using ::testing::ElementsAre;

/// Ten pieces of 4.0 m and ten of 5.5 m of D16, planned from bars of 4.0 m and 5.5 m.
class AdviceWindow : public ::testing::Test {
 protected:
  AdviceWindow() {
    for (const int cut : {4000, 5500}) {
      site_.AddRow({{"太さ", Number(16)},
                    {"伸定尺", Value{cut / 1000.0}},
                    {"伸切寸", Number(cut)},
                    {"合計", Number(10)},
                    {"伸総計", Number(10)}});
    }
    PlanChoices choices;
    choices.lengths = {4000, 5500};
    form_ = std::make_unique<PlanAdviceForm>(choices);
    form_->show();
    form_->activateWindow();
    for (int wait = 0; wait < 10'000 && form_->Searching(); ++wait) {
      Settle();
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    Settle();
  }

  GridControl& Grid() const { return *form_->findChild<GridControl*>("dbgAdvice"); }
  const AdviceCurve& Curve() const { return form_->findChild<AdvicePicture*>("picture")->Curve(); }

  test::ScheduleSite site_;
  std::unique_ptr<PlanAdviceForm> form_;
};

TEST_F(AdviceWindow, ShowsTheTableAndTheCurveOfItsRow) {
  ASSERT_EQ(form_->findChild<QLabel*>("lblProgress")->text(), "定尺を比べました");
  ASSERT_EQ(Grid().RowCount(), 2);
  EXPECT_EQ(Grid().Cell(0, 4), "15.789");
  EXPECT_EQ(Grid().Cell(1, 4), "0.000");
  EXPECT_EQ(Curve().steel, "D16 異形");
  EXPECT_EQ(Curve().marks.size(), 2U);
  EXPECT_EQ(Curve().current, 0U);
  Press(*form_, Qt::Key_Down);
  EXPECT_EQ(Curve().current, 1U);
  form_->grab();  // the picture is painted
}

TEST_F(AdviceWindow, EnterTakesTheSetOfTheRow) {
  Grid().setCurrentIndex(Grid().model()->index(1, 0));
  EXPECT_TRUE(Press(*form_, Qt::Key_Return));
  EXPECT_FALSE(form_->isVisible());
  ASSERT_TRUE(form_->Taken());
  EXPECT_THAT(form_->Taken()->sets.at({16, 1, false}), ElementsAre(4000, 5500));
}

TEST_F(AdviceWindow, F1TakesAsEnterDoes) {
  Press(*form_, Qt::Key_F1);
  ASSERT_TRUE(form_->Taken());
  EXPECT_THAT(form_->Taken()->sets.at({16, 1, false}), ElementsAre(5500));
}

TEST_F(AdviceWindow, EscLeavesWithoutASet) {
  Press(*form_, Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_FALSE(form_->Taken());
}

}  // namespace
}  // namespace rbt
