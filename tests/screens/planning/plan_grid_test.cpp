// SPDX-License-Identifier: MIT
#include "screens/planning/plan_grid.h"

#include <gtest/gtest.h>

#include "support/desktop/key_press.h"

namespace rbt {
namespace {

using test::Settle;

/// Forty steels and their sum, each of whose cells holds the same text.
PlanScreenView View(const std::string& cell) {
  PlanScreenView view;
  view.rows.assign(41, std::vector<std::string>(PlanCaptions().size(), cell));
  view.totals = {40};
  return view;
}

TEST(PlanGrid, ShowsEveryColumnOfALargeSiteOnANarrowScreen) {
  PlanGrid grid;
  PlanScreenView view = View("1,234");
  for (std::vector<std::string>& row : view.rows) row[0] = "D13 異形 フープ";
  view.rows.back()[20] = "123,456";
  view.rows.back()[21] = "1,234,567";
  grid.Show(view);
  EXPECT_LE(grid.sizeHint().width(), 1280 - 22) << "beside it the window has margins";
}

TEST(PlanGrid, MakesItsColumnsAsWideAsTheirFigures) {
  PlanGrid grid;
  grid.resize(400, 400);
  PlanScreenView view = View("12");
  view.improving = true;
  grid.Show(view);
  const int narrow = grid.columnWidth(5);
  PlanScreenView wider = View("123,456");
  wider.improving = true;
  grid.Show(wider);
  const int wide = grid.columnWidth(5);
  EXPECT_GT(wide, narrow);
  grid.Show(view);
  EXPECT_EQ(grid.columnWidth(5), wide) << "columns do not jump while a search goes on";
  view.improving = false;
  grid.Show(view);
  EXPECT_EQ(grid.columnWidth(5), narrow) << "a plan that stands has the room it needs";
}

TEST(PlanGrid, StripesItsRowsAsTheTallyDoes) {
  PlanGrid grid;
  PlanScreenView view = View("12");
  view.colours = RowColours{0x030201, 0};
  grid.Show(view);
  EXPECT_EQ(grid.model()->index(1, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(1, 2, 3));
  EXPECT_FALSE(grid.model()->index(2, 0).data(Qt::BackgroundRole).isValid());
}

TEST(PlanGrid, KeepsItsCellAndItsSumInSightWhenItGetsLower) {
  PlanGrid grid;
  grid.Show(View("12"));
  grid.resize(1300, 900);
  grid.show();
  Settle();
  grid.setCurrentIndex(grid.model()->index(30, 6));
  grid.resize(1300, 250);
  Settle();
  const QWidget& sum = *grid.findChild<QWidget*>("lastRow");
  ASSERT_TRUE(sum.isVisible());
  const QRect cell = grid.visualRect(grid.currentIndex());
  EXPECT_GE(cell.top(), 0);
  EXPECT_LT(cell.bottom() + grid.viewport()->geometry().top(), sum.geometry().top());
}

}  // namespace
}  // namespace rbt
