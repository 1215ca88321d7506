// SPDX-License-Identifier: MIT
#include "reports/frame/paper_table.h"

#include <array>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/drawn_page.h"

namespace rbt {
namespace {

using ::testing::ElementsAre;

enum class Field { label, bars, weight, note };

/// Length, bars and weight of one group, as sheets by diameter have them, and a note in the weight's column.
constexpr std::array<TableColumn<Field>, 4> kColumns{{
    {Field::label, {0, 450, 3}, {"ｍ", 150}, {30, 30}},
    {Field::bars, {450, 750, 2}, {"本 数", 0, Align::middle}, {460, 400, {7}}},
    {Field::weight, {1200, 990, 1}, {"重 量", 40, Align::right}, {1210, 1210, {9, kBlankZeroMask}}},
    {Field::note, {1500, 690, 0}, {"備考", 0, Align::short_label}, {1500, 1500, {}, 400}},
}};
constexpr std::span<const TableColumn<Field>> kAll = kColumns;
constexpr TablePlace kPlace{{250, 2000}, 500, 40};

/// In 10 points a full-width character is 200 twips wide, a half-width one 100.
class PaperTable : public ::testing::Test {
 protected:
  PaperTable() { SetReportFont(page_.Printer, 10); }

  void Row(const TableRow& row, std::vector<CellValue> values) {
    DrawRow(pen_, kAll, kPlace, row, [&](Field field) { return values[static_cast<std::size_t>(field)]; });
  }

  test::DrawnPage page_;
  ReportPen pen_{page_.Printer};
};

TEST_F(PaperTable, EachColumnHasItsLeftRuleAndTheLastOneIsClosed) {
  EXPECT_THAT(RulesOf(kAll),
              ElementsAre(FrameRule{0, 3}, FrameRule{450, 2}, FrameRule{1200, 1}, FrameRule{2190, 5}));
  EXPECT_THAT(RulesOf(kAll, 500, 3),
              ElementsAre(FrameRule{500, 3}, FrameRule{950, 2}, FrameRule{1700, 1}, FrameRule{2690, 3}));
  EXPECT_THAT(RulesOf(kAll.first(2)), ElementsAre(FrameRule{0, 3}, FrameRule{450, 2}, FrameRule{1200, 5}));
}

TEST_F(PaperTable, TheFrameIsRuledFromItsFirstRowToTheTopOfItsLast) {
  DrawFrame(page_.Printer, {{500, 5}, {900, 2}, {2000, 5}}, {250, 1000}, {2, 4}, 4);
  page_.Printer.EndDoc();
  EXPECT_THAT(page_.Rules(),
              ElementsAre(PrintedRule{500, 1500, 500, 2000, 5}, PrintedRule{900, 1500, 900, 2000, 2},
                          PrintedRule{2000, 1500, 2000, 2000, 5}, PrintedRule{500, 1500, 2000, 1500, 4},
                          PrintedRule{500, 1750, 2000, 1750, 4}, PrintedRule{500, 2000, 2000, 2000, 4}));
}

TEST_F(PaperTable, CaptionsStandInTheirColumnsByMeasuredWidth) {
  DrawCaptions(pen_, kAll, kPlace, 1);
  page_.Printer.EndDoc();
  constexpr float kHeadingY = 2000 + 250 + 40;
  EXPECT_EQ(page_.TextAt(500 + 150, kHeadingY), "ｍ");
  EXPECT_EQ(page_.TextAt(500 + 450 + (750 - 500) / 2.0F, kHeadingY), "本 数");
  EXPECT_EQ(page_.TextAt(500 + 2190 - 40 - 500, kHeadingY), "重 量");
  EXPECT_EQ(page_.TextAt(500 + 1500 + 450 - 120, kHeadingY), "備考");
}

TEST_F(PaperTable, WideAndHalfWidthCaptionsHaveTheSameMiddleAndTheSameEnd) {
  const ColumnBox box{1000, 1000};
  for (const std::string_view text : {"重量", "kg", "重 量", "ﾄﾝ", "鋼材の重量"}) {
    const float width = page_.Printer.TextWidth(text);
    EXPECT_EQ(CaptionX(page_.Printer, box, {text, 0, Align::middle}) + width / 2, 1500) << text;
    EXPECT_EQ(CaptionX(page_.Printer, box, {text, 30, Align::right}) + width, 1970) << text;
  }
}

TEST_F(PaperTable, FiguresOfAColumnEndBelowEachOther) {
  Row({2, "a"}, {std::string("10.0"), std::int64_t{7}, Currency::FromInteger(12), {}});
  Row({3, "b"}, {std::string("10.5"), std::int64_t{123456}, Currency::FromInteger(1234567), {}});
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextAt(530, 2540), "10.0");
  EXPECT_EQ(page_.TextAt(960, 2540), "      7");
  EXPECT_EQ(page_.TextAt(960, 2790), "123,456");
  EXPECT_EQ(page_.TextAt(1710, 2540), "       12");
  EXPECT_EQ(page_.TextAt(1710, 2790), "1,234,567");
  EXPECT_EQ(page_.Texts().size(), 6U);
}

TEST_F(PaperTable, ATotalRowHasPlacesOfItsOwn) {
  Row({2, "合計", true}, {{}, std::int64_t{7}, {}, {}});
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextAt(900, 2540), "      7");
}

TEST_F(PaperTable, ATextTooWideForItsPlaceShrinksAloneAndFiguresNever) {
  Row({2, "a"}, {std::string("長い長い長い長い"), std::int64_t{12345678}, {}, std::string("大梁受")});
  Row({3, "b"}, {{}, {}, {}, std::string("大梁")});
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextOf("長い長い長い長い").font_size, 10);
  EXPECT_EQ(page_.TextOf("345,678").font_size, 10);
  EXPECT_EQ(page_.TextOf("大梁受").font_size, 6.5F);
  EXPECT_EQ(page_.TextOf("大梁").font_size, 10);
}

TEST_F(PaperTable, AFigureTooWideIsNamedByItsRowAndTheCaptionOfItsColumn) {
  Row({2, "D 10"}, {std::string("D 10"), std::int64_t{12345678}, Currency::FromInteger(1), {}});
  EXPECT_THAT(pen_.cut_figures, ElementsAre(CutFigure{1, "D 10", "本 数", "12,345,678"}));
}

TEST_F(PaperTable, GroupsStandSideBySideAndShareTheRuleBetweenThem) {
  constexpr GroupBand kBand{500, 2190, 2};
  EXPECT_EQ(kBand.Left(1), 2690);
  EXPECT_THAT(RulesOf(kBand, kAll, 3),
              ElementsAre(FrameRule{500, 3}, FrameRule{950, 2}, FrameRule{1700, 1}, FrameRule{2690, 3},
                          FrameRule{3140, 2}, FrameRule{3890, 1}, FrameRule{4880, 3}));
}

}  // namespace
}  // namespace rbt
