// SPDX-License-Identifier: MIT
#include "reports/frame/page_flow.h"

#include <array>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/frame/draw_head.h"
#include "reports/frame/paper_table.h"
#include "support/drawn_page.h"

namespace rbt {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr FlowBlock kTotal{.rows = 1, .closes = true};

/// Rows of one line and the total behind them.
std::vector<FlowBlock> RowsAndTotal(std::size_t rows) {
  std::vector<FlowBlock> blocks(rows);
  blocks.push_back(kTotal);
  return blocks;
}

TEST(Paginate, ATableWithoutRowsHasOnePage) { EXPECT_THAT(PaginateRows(0, 3), ElementsAre(IsEmpty())); }

TEST(Paginate, OneRowStandsAtTheTopOfOnePage) {
  EXPECT_THAT(PaginateRows(1, 3), ElementsAre(ElementsAre(PlacedBlock{0, 0})));
}

TEST(Paginate, AsManyRowsAsAPageHoldsFillOnePage) {
  EXPECT_THAT(PaginateRows(3, 3),
              ElementsAre(ElementsAre(PlacedBlock{0, 0}, PlacedBlock{1, 1}, PlacedBlock{2, 2})));
}

TEST(Paginate, ARowMoreCarriesOverToTheTopOfTheNextPage) {
  const auto pages = PaginateRows(4, 3);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(pages[1], ElementsAre(PlacedBlock{3, 0}));
}

TEST(Paginate, ABlockIsNeverDivided) {
  const std::array<FlowBlock, 3> blocks{{{3}, {4}, {4}}};
  EXPECT_THAT(Paginate(blocks, {10, 10}),
              ElementsAre(ElementsAre(PlacedBlock{0, 0}, PlacedBlock{1, 3}), ElementsAre(PlacedBlock{2, 0})));
  EXPECT_THAT(Paginate(blocks, {11, 11}),
              ElementsAre(ElementsAre(PlacedBlock{0, 0}, PlacedBlock{1, 3}, PlacedBlock{2, 7})));
}

TEST(Paginate, ABlockLargerThanAPageHasOneToItself) {
  const std::array<FlowBlock, 3> blocks{{{1}, {12}, {1}}};
  EXPECT_THAT(Paginate(blocks, {10, 10}),
              ElementsAre(ElementsAre(PlacedBlock{0, 0}), ElementsAre(PlacedBlock{1, 0}),
                          ElementsAre(PlacedBlock{2, 0})));
}

// A form that only asks whether the page has been filled so far, and has room for a whole block below that.
TEST(Paginate, ABlockStartsOnAPageUntilItsLimitIsReached) {
  const std::array<FlowBlock, 4> blocks{{{12}, {11}, {12}, {2}}};
  EXPECT_THAT(Paginate(blocks, {24, 36}),
              ElementsAre(ElementsAre(PlacedBlock{0, 0}, PlacedBlock{1, 12}, PlacedBlock{2, 23}),
                          ElementsAre(PlacedBlock{3, 0})));
  const std::array<FlowBlock, 3> full{{{12}, {12}, {2}}};
  EXPECT_EQ(Paginate(full, {24, 36}).size(), 2U);
}

TEST(Paginate, ATotalTakesTheRowThatIsKeptForIt) {
  EXPECT_THAT(Paginate(RowsAndTotal(19), {19, 20}).size(), 1U);
  EXPECT_EQ(Paginate(RowsAndTotal(19), {19, 20}).back().back(), (PlacedBlock{19, 19}));
  const auto pages = Paginate(RowsAndTotal(20), {19, 20});
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_THAT(pages[1], ElementsAre(PlacedBlock{19, 0}, PlacedBlock{20, 1}));
}

TEST(Paginate, ATotalStandsOnAPageOfItsOwnWhereNoRowIsKeptForIt) {
  EXPECT_EQ(Paginate(RowsAndTotal(18), {19, 19}).size(), 1U);
  const auto pages = Paginate(RowsAndTotal(19), {19, 19});
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0].size(), 19U);
  EXPECT_THAT(pages[1], ElementsAre(PlacedBlock{19, 0}));
}

TEST(Paginate, ATotalAloneStandsOnTheFirstPage) {
  EXPECT_THAT(Paginate(RowsAndTotal(0), {19, 20}), ElementsAre(ElementsAre(PlacedBlock{0, 0})));
}

TEST(Paginate, APageTakesTheRowsOfItsBlocks) {
  const std::array<FlowBlock, 3> blocks{{{3}, {4}, {4}}};
  const auto pages = Paginate(blocks, {10, 10});
  EXPECT_EQ(RowsOn(pages[0], blocks), 7);
  EXPECT_EQ(RowsOn(pages[1], blocks), 4);
  EXPECT_EQ(RowsOn({}, blocks), 0);
}

// What holds for every table: each block once and in order, close behind the one before, and no page
// overfull.
TEST(Paginate, EveryBlockOfEveryTableStandsOnceInItsOrderOnAPageThatHoldsIt) {
  std::mt19937 random(20261);  // NOLINT(bugprone-random-generator-seed): the same tables in each run
  const auto upto = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)) + 1; };
  for (int table = 0; table < 2000; ++table) {
    std::vector<FlowBlock> blocks(static_cast<std::size_t>(upto(40)));
    for (FlowBlock& block : blocks) block.rows = upto(8);
    blocks.back().closes = upto(2) == 1;
    const int starts = upto(20);
    const PageRoom room{starts, starts + upto(5) - 1};
    std::size_t next = 0;
    for (const PageOfBlocks& page : Paginate(blocks, room)) {
      ASSERT_FALSE(page.empty());
      int taken = 0;
      for (const PlacedBlock& placed : page) {
        ASSERT_EQ(placed.block, next++);
        ASSERT_EQ(placed.row, taken);
        taken += blocks[placed.block].rows;
        ASSERT_TRUE(placed.row == 0 ||
                    (taken <= room.rows && (placed.row < starts || blocks[placed.block].closes)));
      }
    }
    ASSERT_EQ(next, blocks.size());
  }
}

enum class FlowField { floor, weight };
constexpr std::array<TableColumn<FlowField>, 2> kFlowColumns{{
    {FlowField::floor, {500, 800}, {"階", 700}, {600, 600}},
    {FlowField::weight, {1300, 1150, 2}, {"重量", 1500}, {1400, 1400, {5, kBlankZeroMask}}},
}};

/// A table of floors on pages of three rows, with the head, the page number and a block at the foot of each.
class PagedTable : public ::testing::Test {
 protected:
  static constexpr int kRows = 3;
  static constexpr HeadLayout kHead{{5900, 5700, EndsBehindText()}, 500, {18, 30}, {}};
  static constexpr HeadPart kPageText = PagePart{9600, {0, 120}};

  void Draw(std::vector<std::int64_t> weights) {
    const std::span<const TableColumn<FlowField>> columns = kFlowColumns;
    const ReportHead head{.title = "階 別 数 量 表", .document_title = "階別数量表"};
    const std::vector<FlowBlock> blocks = RowsAndTotal(weights.size());
    TablePlace place;
    DrawPages(pen_, Paginate(blocks, {kRows, kRows + 1}),
              {.head =
                   [&](ReportPen& pen, const PageOfBlocks& page) {
                     place.rows = DrawHead(pen, kHead, head);
                     DrawHeadPart(pen, kPageText, place.rows, head);
                     DrawCaptions(pen, columns, place, 6);
                     DrawFrame(pen.Printer, RulesOf(columns), place.rows, {6, 7 + RowsOn(page, blocks)});
                   },
               .block =
                   [&](ReportPen& pen, const PlacedBlock& at) {
                     const bool total = at.block == weights.size();
                     const std::string label = total ? "合計" : std::to_string(at.block + 1) + "階";
                     DrawRow(pen, columns, place, {7 + at.row, label}, [&](FlowField field) {
                       if (field == FlowField::floor) return CellValue(label);
                       return total ? CellValue() : CellValue(weights[at.block]);
                     });
                   },
               .foot = [](ReportPen& pen) { pen.Printer.Print({"foot"}); }});
  }

  /// The texts of a page of the one document, counted from 0.
  std::vector<std::string> TextsOf(std::size_t page) {
    std::vector<std::string> texts;
    for (const auto& operation : page_.documents.at(0).pages.at(page)) {
      if (const auto* text = std::get_if<PrintedText>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  test::DrawnPage page_;
  ReportPen pen_{page_.Printer};
};

TEST_F(PagedTable, WithoutRowsHeadFrameAndTotalStandOnOnePage) {
  Draw({});
  ASSERT_EQ(page_.documents.size(), 1U);
  ASSERT_EQ(page_.documents[0].pages.size(), 1U);
  EXPECT_THAT(TextsOf(0), ElementsAre("階 別 数 量 表", "page:1", "階", "重量", "合計", "foot"));
}

TEST_F(PagedTable, HeadPageNumberCaptionsAndFootStandOnEachPage) {
  Draw({10, 20, 30, 40});
  ASSERT_EQ(page_.documents[0].pages.size(), 2U);
  EXPECT_THAT(TextsOf(0), ElementsAre("階 別 数 量 表", "page:1", "階", "重量", "1階", "   10", "2階",
                                      "   20", "3階", "   30", "foot"));
  EXPECT_THAT(TextsOf(1),
              ElementsAre("階 別 数 量 表", "page:2", "階", "重量", "4階", "   40", "合計", "foot"));
}

TEST_F(PagedTable, EachPageStartsAtTheTop) {
  Draw({10, 20, 30, 40});
  std::vector<float> titles;
  std::vector<float> first_rows;
  for (const PrintedPage& page : page_.documents[0].pages) {
    for (const auto& operation : page) {
      const auto* text = std::get_if<PrintedText>(&operation);
      if (text != nullptr && text->text == "階 別 数 量 表") titles.push_back(text->y);
      if (text != nullptr && (text->text == "1階" || text->text == "4階")) first_rows.push_back(text->y);
    }
  }
  EXPECT_THAT(titles, ElementsAre(500, 500));
  EXPECT_THAT(first_rows, ElementsAre(500 + 7 * 390 + 50, 500 + 7 * 390 + 50));
}

TEST_F(PagedTable, AFullPageTakesItsTotalAndLeavesNoEmptyPageBehind) {
  Draw({10, 20, 30});
  ASSERT_EQ(page_.documents.size(), 1U);
  EXPECT_EQ(page_.documents[0].pages.size(), 1U);
  EXPECT_EQ(page_.documents[0].title, "階別数量表");
}

TEST_F(PagedTable, AFigureCutOnTheSecondPageIsNotedForThatPage) {
  Draw({1, 2, 3, 1234567});
  EXPECT_THAT(pen_.cut_figures, ElementsAre(CutFigure{2, "4階", "重量", "1,234,567"}));
}

// Diameters in groups side by side: two groups a page, and those without a diameter show their frame.
TEST_F(PagedTable, GroupsCarryOverLikeRowsAndEmptyOnesShowTheFrame) {
  constexpr GroupBand kBand{500, 2000, 2};
  const std::span<const TableColumn<FlowField>> columns = kFlowColumns;
  const std::vector<std::string> diameters{"D 10", "D 13", "D 16"};
  DrawPages(pen_, PaginateRows(diameters.size(), kBand.count),
            {.head =
                 [&](ReportPen& pen, const PageOfBlocks&) {
                   DrawVerticals(pen.Printer, RulesOf(kBand, columns, 3), {250, 0}, {9, 10});
                 },
             .block =
                 [&](ReportPen& pen, const PlacedBlock& at) {
                   DrawRow(pen, columns.first(1), {{250, 0}, kBand.Left(at.row)}, {9, diameters[at.block]},
                           [&](FlowField) { return CellValue(diameters[at.block]); });
                 },
             .foot = {}});
  ASSERT_EQ(page_.documents[0].pages.size(), 2U);
  EXPECT_THAT(TextsOf(0), ElementsAre("D 10", "D 13"));
  EXPECT_THAT(TextsOf(1), ElementsAre("D 16"));
  // Five rules and the text of each group that has one.
  EXPECT_EQ(page_.documents[0].pages[0].size(), 5U + 2U);
  EXPECT_EQ(page_.documents[0].pages[1].size(), 5U + 1U);
  EXPECT_EQ(page_.TextOf("D 13").x, 500 + 2000 + 600);
}

}  // namespace
}  // namespace rbt
