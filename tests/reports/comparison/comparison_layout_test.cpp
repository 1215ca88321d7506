// SPDX-License-Identifier: MIT
#include "reports/comparison/comparison_layout.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/print/printer_surface.h"

namespace rbt {
namespace {

struct NamedForm {
  const char* name;
  const ComparisonForm& form;
  std::int32_t paper;
  std::int32_t orientation;
};

const NamedForm kForms[] = {
    {"A_A4T", kTaihiAA4T, kPaperA4, kPortrait},  {"B_A4T", kTaihiBA4T, kPaperA4, kPortrait},
    {"C_A4T", kTaihiCA4T, kPaperA4, kPortrait},  {"A_A4Y", kTaihiAA4Y, kPaperA4, kLandscape},
    {"B_A4Y", kTaihiBA4Y, kPaperA4, kLandscape}, {"C_A4Y", kTaihiCA4Y, kPaperA4, kLandscape},
    {"A_B5Y", kTaihiAB5Y, kPaperB5, kLandscape}, {"B_B5Y", kTaihiBB5Y, kPaperB5, kLandscape},
    {"C_B5Y", kTaihiCB5Y, kPaperB5, kLandscape},
};

class EveryForm : public ::testing::TestWithParam<NamedForm> {
 protected:
  const ComparisonForm& Form() const { return GetParam().form; }
  /// Width of a text in the size of the table.
  static float Width(std::string_view text) { return TextWidthAt(12, text); }
  static bool IsWeight(Figure figure) { return figure != Figure::welds && figure != Figure::cuts; }
};

INSTANTIATE_TEST_SUITE_P(ComparisonLayout, EveryForm, ::testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param.name); });

TEST_P(EveryForm, HasARuleOnBothSidesOfEachColumn) {
  ASSERT_EQ(Form().rules.size(), Form().columns.size() + 2);
  for (std::size_t i = 1; i < Form().rules.size(); ++i) EXPECT_LT(Form().rules[i - 1], Form().rules[i]);
}

TEST_P(EveryForm, HeadingsStandNearTheMiddleOfTheirColumns) {
  const auto off_middle = [&](std::size_t column, float x, std::string_view text) {
    const float middle = (Form().rules[column] + Form().rules[column + 1]) / 2;
    return std::abs(x + Width(text) / 2 - middle);
  };
  EXPECT_LE(off_middle(0, Form().diameter_heading_x, Form().diameter_heading), 120);
  for (std::size_t i = 0; i < Form().columns.size(); ++i) {
    EXPECT_LE(off_middle(i + 1, Form().columns[i].heading_x, Form().columns[i].heading), 130)
        << Form().columns[i].heading;
  }
}

TEST_P(EveryForm, NumbersOfFullLengthStayBetweenTheirRules) {
  for (std::size_t i = 0; i < Form().columns.size(); ++i) {
    const ComparisonColumn& column = Form().columns[i];
    const std::string number = std::string(column.characters, '9') + (IsWeight(column.figure) ? " Kg" : "");
    for (const float x : {column.value_x, column.total_x}) {
      EXPECT_GT(x, Form().rules[i + 1]) << column.heading;
      EXPECT_LT(x + Width(number), Form().rules[i + 2]) << column.heading;
    }
  }
}

TEST_P(EveryForm, LabelsStayInTheFirstColumn) {
  EXPECT_GT(Form().label_x, Form().rules[0]);
  EXPECT_LT(Form().label_x + Width("スパイラル合計"), Form().rules[1]);
  EXPECT_LT(Form().label_x + kGradeShift + Width("SD295A"), Form().rules[1]);
  EXPECT_LT(Form().diameter_heading_x + Width(Form().total_label), Form().rules[1]);
}

TEST_P(EveryForm, FieldsHaveTheirCharacters) {
  for (const ComparisonColumn& column : Form().columns) {
    const bool narrow = column.figure == Figure::difference && Form().kind == 'A' && Form().own_company;
    const std::size_t weight = narrow ? 9 : 11;
    EXPECT_EQ(column.characters, IsWeight(column.figure) ? weight : 7U) << column.heading;
  }
}

TEST_P(EveryForm, ShowsTheFiguresOfItsKind) {
  std::vector<Figure> figures;
  for (const ComparisonColumn& column : Form().columns) figures.push_back(column.figure);
  using enum Figure;
  const std::vector<Figure> expected =
      Form().kind == 'A'   ? std::vector{stock_weight, installed_weight, difference, welds, cuts}
      : Form().kind == 'B' ? std::vector{stock_weight, welds, cuts}
                           : std::vector{installed_weight, welds, cuts};
  EXPECT_EQ(figures, expected);
}

TEST_P(EveryForm, StaysOnItsSheet) {
  const SheetSize sheet = SheetOf(GetParam().paper, GetParam().orientation);
  EXPECT_LT(Form().rules.back(), sheet.width);
  if (Form().loss_rate) {
    EXPECT_LT(Form().loss_rate->place.rule_to.more, sheet.width);
    const std::string text =
        "ロス率" + std::string(Form().loss_rate->gap) + std::string(Form().loss_rate->characters, '9') + " %";
    EXPECT_LT(Form().loss_rate->place.x + Width(text), sheet.width);
  }
}

TEST_P(EveryForm, OnlyPortraitPaperCarriesTheOwnCompanyAndLeavesTheTotalToItsHead) {
  const bool portrait = GetParam().orientation == kPortrait;
  EXPECT_EQ(Form().own_company.has_value(), portrait);
  EXPECT_EQ(Form().total_line.has_value(), !portrait);
  if (portrait) {
    EXPECT_EQ(Form().own_company->x, 6600);
    EXPECT_EQ(Form().own_company->y, 2200);
  }
}

TEST(ComparisonLayout, TheLossRateStandsOnFormsAOnB5AndNowhereElse) {
  for (const NamedForm& named : kForms) {
    EXPECT_EQ(named.form.loss_rate.has_value(), named.form.kind == 'A' || named.paper == kPaperB5)
        << named.name;
  }
  EXPECT_EQ(kTaihiAA4Y.loss_rate->place.x, 9000);
  EXPECT_EQ(kTaihiAB5Y.loss_rate->place.x, 10400);
  EXPECT_EQ(kTaihiBB5Y.loss_rate->place.x, 10700);
  EXPECT_EQ(kTaihiBB5Y.loss_rate->characters, 12U);
}

// What kinds B and C share: everything but the weight itself.
TEST(ComparisonLayout, KindsBAndCDifferInTheirWeightAlone) {
  const auto same = [](const ComparisonForm& b, const ComparisonForm& c) {
    EXPECT_EQ(b.rules.data(), c.rules.data());
    EXPECT_EQ(b.label_x, c.label_x);
    for (std::size_t i = 0; i < b.columns.size(); ++i) {
      EXPECT_EQ(b.columns[i].heading_x, c.columns[i].heading_x);
      EXPECT_EQ(b.columns[i].value_x, c.columns[i].value_x);
    }
  };
  same(kTaihiBA4T, kTaihiCA4T);
  same(kTaihiBA4Y, kTaihiCA4Y);
  same(kTaihiBB5Y, kTaihiCB5Y);
}

}  // namespace
}  // namespace rbt
