// SPDX-License-Identifier: MIT
#include "reports/frame/cut_figure_message.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(CutFigureMessage, NamesPageRowColumnAndTheWholeFigure) {
  EXPECT_EQ(
      CutFigureMessage({{1, "D 38", "圧　　接", "12,345,678"}, {2, "総重量", "", "1234567890 t 000 Kg"}}),
      "欄に入りきらない数字があり、左の桁が印字されません。\n\n"
      "1頁 D38 圧接：12,345,678\n"
      "2頁 総重量：1234567890 t 000 Kg");
}

TEST(CutFigureMessage, NamesTenAndCountsTheOthers) {
  const std::string text = CutFigureMessage(CutFigures(13, {1, "D 10", "切　　断", "1,000,000"}));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 12);  // two behind the first line, ten figures
  EXPECT_TRUE(text.ends_with("\nほか 3 個")) << text;
}

}  // namespace
}  // namespace rbt
