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
  std::span<const ComparisonColumn> Names() const { return Form().columns.first(kNameColumns); }
  std::span<const ComparisonColumn> Figures() const { return Form().columns.subspan(kNameColumns); }
  /// Width of a text in the size of the table.
  static float Width(std::string_view text) { return TextWidthAt(12, text); }
  static bool IsWeight(Figure figure) { return figure != Figure::welds && figure != Figure::cuts; }
};

INSTANTIATE_TEST_SUITE_P(ComparisonLayout, EveryForm, ::testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param.name); });

TEST_P(EveryForm, TheColumnsStandSideBySideWithoutAGap) {
  EXPECT_EQ(Names().front().box.Right(), Names().back().box.Right());
  float left = Names().front().box.Right();
  for (const ComparisonColumn& column : Figures()) {
    EXPECT_EQ(column.box.x, left) << column.caption.text;
    EXPECT_GT(column.box.width, 0) << column.caption.text;
    left = column.box.Right();
  }
}

TEST_P(EveryForm, TheFrameHasARuleOnBothSidesOfEachColumn) {
  const FrameRules rules = RulesOf(Form().columns);
  ASSERT_EQ(rules.size(), Figures().size() + 2);
  for (const FrameRule& rule : rules) EXPECT_EQ(rule.draw_width, 5);
  for (std::size_t i = 1; i < rules.size(); ++i) EXPECT_LT(rules[i - 1].x, rules[i].x);
}

/// The weight of the low forms starts where it does on all their sheets, a little left of the middle.
TEST_P(EveryForm, HeadingsStandNearTheMiddleOfTheirColumns) {
  constexpr float kNear = 250;
  for (const ComparisonColumn& column : Form().columns) {
    if (column.caption.text.empty()) continue;
    const float middle = column.box.x + column.box.width / 2;
    EXPECT_LE(std::abs(column.caption.x + Width(column.caption.text) / 2 - middle), kNear)
        << column.caption.text;
  }
}

TEST_P(EveryForm, NumbersOfFullLengthStayBetweenTheirRules) {
  for (const ComparisonColumn& column : Figures()) {
    const NumberField& field = column.cell.number;
    const std::string number = std::string(field.characters, '9') + std::string(field.suffix);
    for (const float x : {column.cell.x, column.cell.total_x}) {
      EXPECT_GT(x, column.box.x) << column.caption.text;
      EXPECT_LT(x + Width(number), column.box.Right()) << column.caption.text;
    }
  }
}

TEST_P(EveryForm, LabelsStayInTheFirstColumn) {
  const ComparisonColumn& diameter = Names().front();
  const ComparisonColumn& grade = Names().back();
  EXPECT_GT(diameter.cell.x, diameter.box.x);
  EXPECT_LT(diameter.cell.x + Width("スパイラル合計"), diameter.box.Right());
  EXPECT_EQ(grade.cell.x, diameter.cell.x + 1000);
  EXPECT_LT(grade.cell.x + Width("SD295A"), grade.box.Right());
  EXPECT_EQ(diameter.cell.total_x, diameter.caption.x);
  EXPECT_LT(diameter.cell.total_x + Width(Form().total_label), diameter.box.Right());
}

TEST_P(EveryForm, FieldsHaveTheirCharacters) {
  for (const ComparisonColumn& column : Figures()) {
    const bool narrow = column.shows == Figure::difference && Form().kind == 'A' && Form().own_company;
    const std::size_t weight = narrow ? 9 : 11;
    EXPECT_EQ(column.cell.number.characters, IsWeight(column.shows) ? weight : 7U) << column.caption.text;
    EXPECT_EQ(column.cell.number.suffix, IsWeight(column.shows) ? " Kg" : "") << column.caption.text;
  }
}

TEST_P(EveryForm, ShowsTheFiguresOfItsKind) {
  std::vector<Figure> figures;
  for (const ComparisonColumn& column : Figures()) figures.push_back(column.shows);
  using enum Figure;
  const std::vector<Figure> expected =
      Form().kind == 'A'   ? std::vector{stock_weight, installed_weight, difference, welds, cuts}
      : Form().kind == 'B' ? std::vector{stock_weight, welds, cuts}
                           : std::vector{installed_weight, welds, cuts};
  EXPECT_EQ(figures, expected);
}

TEST_P(EveryForm, StaysOnItsSheet) {
  const SheetSize sheet = SheetOf(GetParam().paper, GetParam().orientation);
  EXPECT_LT(Form().columns.back().box.Right(), sheet.width);
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
    ASSERT_EQ(b.columns.size(), c.columns.size());
    for (std::size_t i = 0; i < b.columns.size(); ++i) {
      EXPECT_EQ(b.columns[i].box.x, c.columns[i].box.x);
      EXPECT_EQ(b.columns[i].box.width, c.columns[i].box.width);
      EXPECT_EQ(b.columns[i].caption.x, c.columns[i].caption.x);
      EXPECT_EQ(b.columns[i].cell.x, c.columns[i].cell.x);
      const bool weight = i == kNameColumns;
      EXPECT_EQ(b.columns[i].shows == c.columns[i].shows, !weight);
      EXPECT_EQ(b.columns[i].caption.text == c.columns[i].caption.text, !weight);
    }
  };
  same(kTaihiBA4T, kTaihiCA4T);
  same(kTaihiBA4Y, kTaihiCA4Y);
  same(kTaihiBB5Y, kTaihiCB5Y);
}

}  // namespace
}  // namespace rbt
