// SPDX-License-Identifier: MIT
#include "planning/outcome/plan_text.h"

#include <gtest/gtest.h>

#include "planning/outcome/outcome_sample.h"

namespace rbt::planning {
namespace {

TEST(PlanCsv, HasALineAPattern) {
  EXPECT_EQ(PlanCsv(Describe(test::SampleProblem(), test::SamplePlan())),
            "scope,diameter,kind,hoop,stock,rest,bars,pieces,used,left,cuts\r\n"
            "site,16,1,0,6000,1,1,1200x2,2400,3600,2\r\n"
            "site,16,1,0,12000,0,1,2340x5,11700,300,5\r\n");
}

TEST(PlanTable, TellsPurchaseFiguresAndBound) {
  const std::string table = PlanTable(Describe(test::SampleProblem(), test::SamplePlan()));
  EXPECT_EQ(table.substr(0, table.find("下限")),
            "鋼材  種別  形状  定尺 mm  計画  加工帳  本数    ㎏     円\n"
            "D16   異形         12,000     1       4     5  93.5  9,350\n"
            "\n"
            "        本数  鋼材 ㎏  表 ㎏   ロス %  切断\n"
            "行ごと     2     28.1   28.1   27.660     7\n"
            "計画       1     18.7   18.7  -14.894     7\n"
            "\n");
}

TEST(PiecesText, JoinsLengthsAndNumbers) {
  EXPECT_EQ(PiecesText({12000, false, 1, {{2340, 5}, {1200, 1}}}), "2340x5+1200x1");
}

TEST(SteelText, NamesDiameterKindAndHoop) {
  EXPECT_EQ(SteelText({16, 1, false}), "D16 異形");
  EXPECT_EQ(SteelText({13, 4, true}), "D13 ネジ フープ");
  EXPECT_EQ(SteelText({0, 9, false}), "- 9");
}

TEST(PlaceText, IsPageAndLineOrTheLineOfAFile) {
  EXPECT_EQ(PlaceText({1, 4, 5, ""}), "1頁4行x5");
  EXPECT_EQ(PlaceText({std::nullopt, 9, 2, ""}), "-頁9行x2");
  EXPECT_EQ(PlaceText({0, 4, 5, "A1"}), "4行[A1]x5");
}

TEST(KindText, IsTheKindsWordOrItsNumber) {
  EXPECT_EQ(KindText(4), "ネジ");
  EXPECT_EQ(KindText(9), "9");
  EXPECT_EQ(DiameterText(0), "-");
}

}  // namespace
}  // namespace rbt::planning
