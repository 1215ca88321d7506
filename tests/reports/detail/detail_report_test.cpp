// SPDX-License-Identifier: MIT
#include "reports/detail/detail_report.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <tuple>
#include <variant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/system/services.h"
#include "reports/detail/detail_sheets.h"
#include "support/site_fixture.h"

namespace rbt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DetailReport : public ::testing::Test {
 protected:
  DetailReport() {
    Services.Messages = [this](std::string_view text, std::string_view, MessageButtons) {
      messages_.emplace_back(text);
      return MessageAnswer::ok;
    };
    root_.SetIni(test::kSteelFile, "自社名", "会社名", "みほん鉄筋");
  }

  void Draw(const DetailPaper& form) { cut_ = DrawDetail(page_.Printer, form, sheet_); }

  template <typename Operation>
  std::vector<Operation> OnPage(std::size_t page) const {
    std::vector<Operation> found;
    for (const auto& operation : page_.documents.back().pages.at(page)) {
      if (const auto* one = std::get_if<Operation>(&operation)) found.push_back(*one);
    }
    return found;
  }
  std::size_t Pages() const { return page_.documents.back().pages.size(); }

  /// The texts of the page that start so, in the order of drawing.
  std::vector<std::string> Starting(std::string_view start, std::size_t page = 0) const {
    std::vector<std::string> found;
    for (const PrintedText& text : OnPage<PrintedText>(page)) {
      if (std::string_view(text.text).starts_with(start)) found.push_back(text.text);
    }
    return found;
  }
  /// X of the vertical rules below the heading, each once.
  std::vector<float> Verticals() const {
    std::set<float> found;
    for (const PrintedRule& rule : page_.Rules()) {
      if (rule.x1 == rule.x2) found.insert(rule.x1);
    }
    return {found.begin(), found.end()};
  }

  test::SiteFixture root_;
  TallyTable table_ = test::TableOf(1);
  DetailSheet sheet_ = test::SheetOf(table_);
  test::DrawnPage page_;
  CutFigures cut_;
  std::vector<std::string> messages_;
};

// Which diameters.

TEST_F(DetailReport, ListsDiametersWithStockWeightUnlessAllAreWanted) {
  table_.BarCount[3][0] = 1;  // without weight it is none
  table_.StockWeightByDia[7] = Currency::FromInteger(1);
  EXPECT_THAT(ListedDiameters(table_, false), ElementsAre(0, 7));
  EXPECT_THAT(ListedDiameters(table_, true), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST_F(DetailReport, APageHoldsItsDiametersAndTheRestCarriesOver) {
  for (const test::FormOnPaper& each : test::DetailForms()) {
    for (const int diameters : {1, 3, 4, 6, 7, 8, 9, 12}) {
      table_ = test::TableOf(diameters);
      Draw(*each.form);
      const int pages = (diameters + each.diameters - 1) / each.diameters;
      ASSERT_EQ(Pages(), static_cast<std::size_t>(pages)) << each.name << " " << diameters;
      std::vector<std::string> names;
      for (std::size_t page = 0; page < Pages(); ++page) {
        const std::vector<std::string> on_page = Starting("D ", page);
        EXPECT_LE(on_page.size(), static_cast<std::size_t>(each.diameters)) << each.name;
        names.insert(names.end(), on_page.begin(), on_page.end());
      }
      ASSERT_EQ(names.size(), static_cast<std::size_t>(diameters)) << each.name;
      for (int d = 0; d < diameters; ++d) {
        EXPECT_EQ(names[static_cast<std::size_t>(d)], "D " + std::to_string(DiameterCode(d)));
      }
    }
  }
}

TEST_F(DetailReport, HeadFrameOwnCompanyAndMemosStandOnEveryPage) {
  table_ = test::TableOf(12);
  sheet_.arguments.Detail.Memos = {"一", "二", "三"};
  for (const test::FormOnPaper& each : test::DetailForms()) {
    Draw(*each.form);
    ASSERT_GT(Pages(), 1U);
    for (std::size_t page = 0; page < Pages(); ++page) {
      EXPECT_THAT(Starting("合  計", page), ElementsAre(sheet_.title)) << each.name;
      EXPECT_EQ(Starting("総重量", page).size(), 1U) << each.name;
      EXPECT_EQ(Starting("み", page).size(), 1U) << each.name;  // the first letter of the company
      EXPECT_EQ(Starting("二", page).size(), 1U) << each.name;
      EXPECT_EQ(OnPage<PrintedRule>(page).size(), OnPage<PrintedRule>(0).size()) << each.name;
    }
  }
}

TEST_F(DetailReport, WithoutADiameterThereIsOnePageWithAnEmptyFrame) {
  table_ = {};
  for (const test::FormOnPaper& each : test::DetailForms()) {
    Draw(*each.form);
    EXPECT_EQ(Pages(), 1U) << each.name;
    EXPECT_THAT(Starting("D "), IsEmpty()) << each.name;
    EXPECT_THAT(Starting("ｍ"), IsEmpty()) << each.name;
    EXPECT_THAT(Starting("重量"), IsEmpty()) << each.name;
    EXPECT_THAT(Starting("総重量"), ElementsAre("総重量            0 Kg")) << each.name;
    EXPECT_EQ(page_.RuleAt(test::TableY(each.landscape, 0), 500).draw_width, 3) << each.name;
  }
}

// The frame.

TEST_F(DetailReport, FramesHaveTheirRulesInEveryRepeat) {
  Draw(kMeisaiA4Y);
  EXPECT_THAT(Verticals(), ElementsAre(500, 950, 1700, 2690, 3140, 3890, 4880, 5330, 6080, 7070, 7520, 8270,
                                       9260, 9710, 10460, 11450, 11900, 12650, 13640, 14090, 14840, 15830));
  Draw(kMeisaiA4YCount);
  EXPECT_THAT(Verticals(), ElementsAre(500, 950, 2410, 2860, 4320, 4770, 6230, 6680, 8140, 8590, 10050, 10500,
                                       11960, 12410, 13870, 14320, 15780));
  Draw(kMeisaiA4TCount);
  EXPECT_THAT(Verticals(),
              ElementsAre(500, 1200, 2225, 2725, 3950, 4650, 5675, 6175, 7400, 8100, 9125, 9625, 10850));
}

TEST_F(DetailReport, OnA4PortraitTheFirstRepeatHasOneMoreRule) {
  Draw(kMeisaiA4T);
  EXPECT_THAT(Verticals(), ElementsAre(500, 1200, 2225, 2450, 2725, 3950, 4650, 5900, 6175, 7400, 8100, 9350,
                                       9625, 10850));
}

TEST_F(DetailReport, RulesHaveTheirWidthsAndSpareTheRowOfNames) {
  Draw(kMeisaiA4Y);
  std::map<float, std::tuple<int, float, float>> rules;
  for (const PrintedRule& rule : page_.Rules()) {
    if (rule.x1 == rule.x2) rules[rule.x1] = {rule.draw_width, rule.y1, rule.y2};
  }
  // 18 lengths and 5 sums: the table ends at row 25, its sums begin at row 20.
  const auto y = [](int row) { return test::TableY(true, row); };
  EXPECT_EQ(rules[500], std::tuple(3, y(0), y(25)));
  EXPECT_EQ(rules[950], std::tuple(2, y(1), y(25)));
  EXPECT_EQ(rules[1700], std::tuple(1, y(1), y(20)));
  EXPECT_EQ(rules[15830], std::tuple(3, y(0), y(25)));
}

// Cells. 100 bars of D10 by 6.0 m weigh 336 kg.

TEST_F(DetailReport, OnA4LandscapeLabelsStandAt530AndNumbersEndInTheirColumns) {
  table_ = test::TableOf(7);
  Draw(kMeisaiA4Y);
  for (int b = 0; b < 7; ++b) {
    const auto x = static_cast<float>(b * 2190);
    EXPECT_EQ(page_.TextAt(650 + x, test::TableTextY(true, 1)), "ｍ");
    EXPECT_EQ(page_.TextAt(2000 + x, test::TableTextY(true, 1)), "重 量");
    EXPECT_EQ(page_.TextAt(530 + x, test::TableTextY(true, 2)), " 3.5");
    EXPECT_EQ(page_.TextAt(530 + x, test::TableTextY(true, 15)), "10.0");
    EXPECT_EQ(page_.TextAt(530 + x, test::TableTextY(true, 20)), "重量");
  }
  EXPECT_EQ(page_.TextAt(950, test::TableTextY(true, 7)), "    100");
  EXPECT_EQ(page_.TextAt(1750, test::TableTextY(true, 7)), "      336");
  EXPECT_EQ(page_.TextAt(1550, test::TableTextY(true, 20)), "        336");
  EXPECT_EQ(page_.TextOf(" 3.5").font_size, 9);
  EXPECT_EQ(page_.TextOf("    100").font_size, 10);
}

TEST_F(DetailReport, TheCountsAloneHaveNoWeightsByLength) {
  for (const DetailPaper* form : {&kMeisaiA4YCount, &kMeisaiA4TCount}) {
    Draw(*form);
    EXPECT_TRUE(page_.Has("    100"));
    EXPECT_FALSE(page_.Has("重 量"));
    EXPECT_FALSE(page_.Has("重　量"));
    EXPECT_TRUE(page_.Has("        336"));  // the sum
    EXPECT_FALSE(page_.TextOf("        336").text == "      336");
  }
}

TEST_F(DetailReport, OnA4PortraitCountsTwoDiametersShareARepeat) {
  table_ = test::TableOf(4);
  Draw(kMeisaiA4TCount);
  std::vector<float> captions;
  for (const PrintedText& text : page_.Texts()) {
    if (text.text == "本　数") captions.push_back(text.x);
  }
  // In the middle of 700 to 1725 and of 2225 to 3450: 600 wide.
  EXPECT_THAT(captions, ElementsAre(1412.5, 3037.5, 4862.5, 6487.5));
  EXPECT_EQ(page_.TextAt(500 + 1005, test::TableTextY(false, 7)), "    100");
  EXPECT_EQ(page_.TextAt(500 + 2700, test::TableTextY(false, 7)), "    200");
  EXPECT_EQ(page_.TextAt(3950 + 1005, test::TableTextY(false, 7)), "    300");
}

TEST_F(DetailReport, RowsStandInTheirOrder) {
  table_ = test::TableOf(1);
  sheet_.arguments.Detail.Installed = true;
  sheet_.with_13m = true;
  const std::vector<std::string> lengths{" 3.5", " 4.0", " 4.5", " 5.0", " 5.5", " 6.0", " 6.5",
                                         " 7.0", " 7.5", " 8.0", " 8.5", " 9.0", " 9.5", "10.0",
                                         "10.5", "11.0", "11.5", "12.0", "13.0"};
  for (const test::FormOnPaper& each : test::DetailForms()) {
    std::vector<std::string> expected = lengths;
    if (each.landscape) {
      expected.insert(expected.end(), {"重量", "取重", "圧接", "ｶﾌﾟﾗ", "ＤＢ", "切断"});
    } else {
      expected.insert(expected.end(), {"重量", "圧接", "切断"});
    }
    Draw(*each.form);
    std::vector<std::string> labels;
    for (const PrintedText& text : page_.Texts()) {
      if (text.font_size != 9) continue;
      EXPECT_EQ(text.y, test::TableTextY(each.landscape, 2 + static_cast<int>(labels.size()))) << text.text;
      labels.push_back(text.text);
    }
    EXPECT_EQ(labels, expected) << each.name;
  }
}

TEST_F(DetailReport, SumsShowWhatTheirRowSays) {
  sheet_.arguments.Detail.Installed = true;
  Draw(kMeisaiA4Y);
  const auto sum = [&](int row, float x) { return page_.TextAt(500 + x, test::TableTextY(true, row)); };
  EXPECT_EQ(sum(20, 1050), "        336");
  EXPECT_EQ(sum(21, 1050), "        280");  // 500 m of 0.56 kg
  EXPECT_EQ(sum(22, 1450), "     11");
  EXPECT_EQ(sum(23, 1450), "     12");
  EXPECT_EQ(sum(24, 1450), "     13");
  EXPECT_EQ(sum(25, 1450), "     14");
}

TEST_F(DetailReport, WithoutThe13MetreColumnThereIsNoRowOfIt) {
  Draw(kMeisaiA4Y);
  EXPECT_FALSE(page_.Has("13.0"));
  EXPECT_EQ(page_.TextOf("重量").y, test::TableTextY(true, 20));
  sheet_.with_13m = true;
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextOf("13.0").y, test::TableTextY(true, 20));
  EXPECT_EQ(page_.TextOf("重量").y, test::TableTextY(true, 21));
}

TEST_F(DetailReport, InstalledWeightsStandOnA4LandscapeWhereTheyAreWanted) {
  for (const test::FormOnPaper& each : test::DetailForms()) {
    for (const bool installed : {false, true}) {
      sheet_.arguments.Detail.Installed = installed;
      Draw(*each.form);
      EXPECT_EQ(page_.Has("取重"), installed && each.landscape) << each.name;
      EXPECT_EQ(page_.Has("取付総重量"), installed && each.landscape) << each.name;
    }
  }
}

TEST_F(DetailReport, AZeroPrintsNothing) {
  table_.WeldCount[0] = 0;
  Draw(kMeisaiA4Y);
  const float welds = page_.TextOf("圧接").y;
  std::vector<std::string> beside;
  for (const PrintedText& text : page_.Texts()) {
    if (text.y == welds) beside.push_back(text.text);
  }
  EXPECT_THAT(beside, ElementsAre("圧接"));
}

TEST_F(DetailReport, TheGradeStandsBehindTheDiameterAndShrinksIntoItsBlock) {
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextAt(600, test::TableTextY(true, 0)), "D 10");
  EXPECT_EQ(page_.TextAt(1100, test::TableTextY(true, 0)), "SD295A");
  sheet_.grades[0] = "ＳＤ３４５特殊鋼材指定品";
  Draw(kMeisaiA4Y);
  const PrintedText grade = page_.TextOf(sheet_.grades[0]);
  EXPECT_LE(grade.x + TextWidthAt(grade.font_size, grade.text), 500 + 2190);
  EXPECT_LT(grade.font_size, 10);
}

TEST_F(DetailReport, AFigureTooWideForItsFieldIsNamed) {
  table_.BarCount[0][5] = 1234567;  // nine characters in seven
  Draw(kMeisaiA4YCount);
  EXPECT_THAT(cut_, ElementsAre(CutFigure{1, "D 10  6.0", "本 数", "1,234,567"}));
}

// The head.

TEST_F(DetailReport, OnA4LandscapeTheHeadStandsAtItsPlaces) {
  sheet_.arguments.Detail.Installed = true;
  Draw(kMeisaiA4Y);
  const PrintedText title = page_.TextOf("合  計  数  量  表");
  EXPECT_EQ(std::tuple(title.x, title.y, title.font_size, title.font_bold),
            std::tuple(6500.0F, 500.0F, 18.0F, true));
  EXPECT_EQ(page_.RuleAt(860, 6300).x2, 6500 + 3240 + 200);
  EXPECT_EQ(page_.RuleAt(860, 6300).draw_width, 4);
  EXPECT_EQ(page_.TextAt(500, 1085), "見本建設　御中");
  EXPECT_EQ(page_.TextOf("見本建設　御中").font_size, 14);
  EXPECT_EQ(page_.RuleAt(1085 + 280, 500).x2, 500 + 7 * 280 + 100);
  EXPECT_EQ(page_.TextAt(500, 1865), "工事名  ");
  EXPECT_EQ(page_.TextAt(1620, 1865), "見本町住宅");
  EXPECT_EQ(page_.RuleAt(1865 + 280, 500).x2, 1620 + 5 * 280 + 100);
  EXPECT_EQ(page_.TextAt(700, 2450), "総重量          336 Kg");
  EXPECT_EQ(page_.RuleAt(2450 + 280, 500).x2, 4400);
  EXPECT_EQ(page_.TextAt(7000, 2450), "取付総重量          280 Kg");
  EXPECT_EQ(page_.RuleAt(2450 + 280, 6800).x2, 10700);
}

TEST_F(DetailReport, OnA4PortraitTheTitleStandsAt2800) {
  Draw(kMeisaiA4T);
  EXPECT_EQ(page_.TextOf("合  計  数  量  表").x, 2800);
  EXPECT_EQ(page_.RuleAt(860, 2600).x2, 2800 + 3240 + 200);
}

TEST_F(DetailReport, FromATonneOnTheTotalIsOfTonnesAndKilograms) {
  table_.TotalStockWeight = Currency::FromInteger(1000);
  Draw(kMeisaiA4T);
  EXPECT_TRUE(page_.Has("総重量      1 t 000 Kg"));
  table_.TotalStockWeight = Currency::FromInteger(999);
  Draw(kMeisaiA4T);
  EXPECT_TRUE(page_.Has("総重量          999 Kg"));
}

TEST_F(DetailReport, ALongNameStandsOnOneLineOrTwo) {
  sheet_.site.long_name = "見本町再開発業務棟新築工事";
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextAt(500, 1865), "工事名　");
  EXPECT_EQ(page_.TextAt(1620, 1865), "見本町再開発業務棟新築工事");
  sheet_.site.koji_break = 6;
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextAt(500, 1475), "工事名　");
  EXPECT_EQ(page_.TextAt(1620, 1475), "見本町再開発");
  EXPECT_EQ(page_.TextAt(500, 1865), "　　　  ");
  EXPECT_EQ(page_.TextAt(1620, 1865), "業務棟新築工事");
  EXPECT_EQ(page_.RuleAt(1865 + 280, 500).x2, 1620 + 7 * 280 + 100);
}

TEST_F(DetailReport, WithoutAClientThereIsNoLineOfOneAndTheRestStays) {
  sheet_.site.client = "";
  Draw(kMeisaiA4Y);
  EXPECT_FALSE(page_.Has("御中"));
  EXPECT_EQ(page_.TextOf("工事名  ").y, 1865);
}

TEST_F(DetailReport, TheDateStandsInTheMiddleOrAtTheRight) {
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextAt(7000, 2157.5), "2026 年  1 月  2 日");
  EXPECT_EQ(page_.TextThatStarts("2026").font_size, 10);
  Draw(kMeisaiA4T);
  EXPECT_EQ(page_.TextAt(4300, 2157.5), "2026 年  1 月  2 日");
  sheet_.arguments.Detail.DatePosition = DatePlace::right;
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextThatStarts("2026").x, 13600);
  Draw(kMeisaiA4T);
  EXPECT_EQ(page_.TextThatStarts("2026").x, 8500);
}

TEST_F(DetailReport, AnEraDateStands200FurtherLeft) {
  sheet_.site.western_dates = false;
  sheet_.arguments.Year = "08";
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextAt(6800, 2157.5), "令和 08 年  1 月  2 日");
  Draw(kMeisaiA4T);
  EXPECT_EQ(page_.TextThatStarts("令和").x, 4100);
  sheet_.arguments.Detail.DatePosition = DatePlace::right;
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextThatStarts("令和").x, 13400);
}

TEST_F(DetailReport, TheUsersOwnTitleIsSpreadOver3500LetterByLetter) {
  sheet_.title = "数量";
  sheet_.own_title = true;
  Draw(kMeisaiA4Y);
  // 2 letters of 360 leave 2780 between them.
  EXPECT_EQ(page_.TextAt(6500, 500), "数");
  EXPECT_EQ(page_.TextAt(6500 + 360 + 2780, 500), "量");
  EXPECT_TRUE(page_.TextOf("量").font_bold);
  EXPECT_EQ(page_.TextOf("量").font_size, 18);
  EXPECT_EQ(page_.RuleAt(860, 6300).x2, 6500 + 3500 + 200);
  EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(DetailReport, AnOwnTitleOfOneLetterOrNoneIsToldAndTheSheetIsPrinted) {
  sheet_.own_title = true;
  for (const char* title : {"表", ""}) {
    messages_.clear();
    sheet_.title = title;
    Draw(kMeisaiA4Y);
    EXPECT_THAT(messages_, ElementsAre("会社名・住所など自社名情報を全角で２文字以上入れてください"));
    EXPECT_EQ(page_.RuleAt(860, 6300).x2, 6500 + 3500 + 200);
    EXPECT_TRUE(page_.Has("    100"));
  }
}

// Memos and own company.

TEST_F(DetailReport, OnA4LandscapeMemosStandSideBySideBelowTheTableOrAboveIt) {
  sheet_.arguments.Detail.Memos = {"一", "二", "三"};
  for (const DetailPaper* form : {&kMeisaiA4Y, &kMeisaiA4YCount}) {
    sheet_.arguments.Detail.MemoPosition = MemoPlace::below;
    Draw(*form);
    const float below = test::TableY(true, 25) + 60;  // 18 lengths, 5 sums
    EXPECT_EQ(page_.TextAt(530, below), "一");
    EXPECT_EQ(page_.TextAt(5530, below), "二");
    EXPECT_EQ(page_.TextAt(10530, below), "三");
    EXPECT_EQ(page_.TextOf("三").font_size, 12);
    EXPECT_TRUE(page_.TextOf("三").font_bold);
    sheet_.arguments.Detail.MemoPosition = MemoPlace::above;
    Draw(*form);
    EXPECT_EQ(page_.TextAt(530, 2801), "一");
    EXPECT_EQ(page_.TextAt(5530, 2801), "二");
    EXPECT_EQ(page_.TextAt(10530, 2801), "三");
  }
}

TEST_F(DetailReport, OnA4PortraitMemosStandBelowEachOtherUnderTheTableWhateverTheirPosition) {
  sheet_.arguments.Detail.Memos = {"一", "", "三"};
  for (const MemoPlace place : {MemoPlace::below, MemoPlace::above}) {
    sheet_.arguments.Detail.MemoPosition = place;
    for (const DetailPaper* form : {&kMeisaiA4T, &kMeisaiA4TCount}) {
      Draw(*form);
      const float below = test::TableY(false, 23) + 60;  // 18 lengths, 3 sums
      EXPECT_EQ(page_.TextAt(530, below), "一");
      EXPECT_EQ(page_.TextAt(530, below + 600), "三");
      EXPECT_EQ(page_.TextOf("三").font_size, 13);
    }
  }
}

// 4900 twips: 20 characters of 12 points, 30 of 8.
TEST_F(DetailReport, AMemoTooWideShrinksByHalfPointsDownTo8AndIsThenCut) {
  const auto memo_of = [](int characters) {
    std::string memo;
    for (int i = 0; i < characters; ++i) memo += "あ";
    return memo;
  };
  const auto drawn = [&](int characters) {
    sheet_.arguments.Detail.Memos[0] = memo_of(characters);
    Draw(kMeisaiA4Y);
    return page_.TextThatStarts("あ");
  };
  EXPECT_EQ(drawn(20).font_size, 12);
  EXPECT_EQ(drawn(21).font_size, 11.5);  // 4830 wide; 5040 in 12
  EXPECT_EQ(drawn(30).font_size, 8);
  EXPECT_EQ(drawn(30).text, memo_of(30));
  EXPECT_EQ(drawn(31).font_size, 8);
  EXPECT_EQ(drawn(31).text, memo_of(30));
}

TEST_F(DetailReport, A4PortraitTakes30CharactersOfAMemo) {
  std::string memo;
  for (int i = 0; i < 31; ++i) memo += i < 30 ? "あ" : "い";
  sheet_.arguments.Detail.Memos[0] = memo;
  Draw(kMeisaiA4T);
  const PrintedText drawn = page_.TextThatStarts("あ");
  EXPECT_EQ(drawn.font_size, 13);
  EXPECT_EQ(drawn.text.size(), 30 * std::string_view("あ").size());
}

TEST_F(DetailReport, TheOwnCompanyStandsAtTheRightOfItsPaper) {
  root_.SetIni(test::kSteelFile, "自社名", "会社名", "鉄筋");
  Draw(kMeisaiA4Y);
  EXPECT_EQ(std::tuple(page_.TextOf("鉄").x, page_.TextOf("鉄").y), std::tuple(11200.0F + 960, 1700.0F));
  Draw(kMeisaiA4TCount);
  EXPECT_EQ(std::tuple(page_.TextOf("鉄").x, page_.TextOf("鉄").y), std::tuple(6550.0F + 960, 1800.0F));
}

/// A page on which something may collide: every line of the own company, long names, memos.
class FullDetailPage : public DetailReport {
 protected:
  struct Box {
    float left, top, right, bottom;
    std::string text;
    bool IsClearOf(const Box& other) const {
      return right <= other.left || other.right <= left || bottom <= other.top || other.bottom <= top;
    }
  };

  FullDetailPage() {
    table_ = test::TableOf(12);
    for (int d = 0; d < kDeformedRows; ++d) {
      table_.BarCount[d][0] = 999999;
      table_.StockWeight[d][0] = table_.StockWeightByDia[d] = Currency::FromInteger(9999999);
      table_.WeldCount[d] = 999999;
      sheet_.grades[static_cast<std::size_t>(d)] = "SD295A特殊鋼";
    }
    table_.TotalStockWeight = table_.TotalInstalledWeight = Currency::FromInteger(99999999);
    sheet_.with_13m = true;
    sheet_.arguments.Detail.Installed = true;
    const std::string thirty = "第一工区南側地下躯体および外構擁壁ならびに仮設材を含む追加分";
    sheet_.arguments.Detail.Memos = {thirty, thirty + thirty, thirty};
    sheet_.site.client = "株式会社見本建設雛形支店例示営業所関東第二工務部";
  }

  /// Every line of the own company, or the nine whose block reaches lowest.
  void FillCompany(const std::string& text) {
    for (const char* key : {"会社名", "名称1", "名称2", "住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3",
                            "FAX1", "FAX2", "MAIL1", "MAIL2"}) {
      root_.SetIni(test::kSteelFile, "自社名", key, text);
    }
  }
  void FillLowestCompany() {
    FillCompany("工場");
    for (const char* key : {"名称1", "住所1", "住所3"}) root_.SetIni(test::kSteelFile, "自社名", key, "");
  }
  void FillNameAlone() {
    FillCompany("");
    root_.SetIni(test::kSteelFile, "自社名", "会社名", "みほん鉄筋");
  }

  static bool IsBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos || text.starts_with("　　　  ");
  }

  /// The texts of a page; those of the own company, which stand in each other's way on purpose, as one box.
  std::vector<Box> BoxesOf(std::size_t page, const OwnCompanyPart& company) const {
    std::vector<Box> boxes;
    Box block{company.x, 1e6F, company.x, 0, "own company"};
    for (const PrintedText& text : OnPage<PrintedText>(page)) {
      if (IsBlank(text.text)) continue;
      const Box box{text.x, text.y, text.x + TextWidthAt(text.font_size, text.text),
                    text.y + LineHeight(text.font_size), text.text};
      const bool of_block = text.x >= company.x - 100 && text.y >= company.y - 300 &&
                            text.y < company.y + 1900 && !text.text.starts_with("第一工区");
      if (!of_block) {
        boxes.push_back(box);
        continue;
      }
      block.left = std::min(block.left, box.left);
      block.top = std::min(block.top, box.top);
      block.right = std::max(block.right, box.right);
      block.bottom = std::max(block.bottom, box.bottom);
    }
    boxes.push_back(block);
    return boxes;
  }

  void ExpectClear(const test::FormOnPaper& form) {
    const float width = form.landscape ? 16838.0F : 11906.0F;
    const float height = form.landscape ? 11906.0F : 16838.0F;
    for (std::size_t page = 0; page < Pages(); ++page) {
      const std::vector<Box> boxes = BoxesOf(page, form.form->own_company);
      for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_LE(boxes[i].right, width) << form.name << " " << boxes[i].text;
        EXPECT_LE(boxes[i].bottom, height) << form.name << " " << boxes[i].text;
        EXPECT_GE(boxes[i].top, 0) << form.name << " " << boxes[i].text;
        for (std::size_t k = i + 1; k < boxes.size(); ++k) {
          EXPECT_TRUE(boxes[i].IsClearOf(boxes[k]))
              << form.name << ": " << boxes[i].text << " and " << boxes[k].text;
        }
      }
    }
  }
};

TEST_F(FullDetailPage, NoTwoTextsStandInEachOthersWay) {
  const std::string name = "（仮称）雛形台三丁目地区市街地再開発事業に伴う業務棟及び駐車場棟新築工事";
  const std::vector<std::function<void()>> companies{
      [this] { FillNameAlone(); }, [this] { FillLowestCompany(); }, [this] { FillCompany("工場"); },
      [this] { FillCompany("見本県例示市本町一丁目２番３号"); }};
  for (const std::function<void()>& fill : companies) {
    fill();
    for (const int variant : {0, 1, 2, 3, 4, 5}) {
      sheet_.arguments.Detail.MemoPosition = variant % 2 == 0 ? MemoPlace::below : MemoPlace::above;
      sheet_.arguments.Detail.DatePosition = variant / 2 % 2 == 0 ? DatePlace::centre : DatePlace::right;
      sheet_.site.western_dates = variant < 3;
      sheet_.site.short_name = name + name;
      sheet_.site.long_name = variant % 3 == 0 ? "" : name;
      sheet_.site.koji_break = variant % 3 == 1 ? 50 : 20;
      for (const test::FormOnPaper& form : test::DetailForms()) {
        Draw(*form.form);
        ExpectClear(form);
      }
    }
  }
}

TEST_F(FullDetailPage, ATallBlockOfTheOwnCompanyLowersMemosAndTableByALine) {
  sheet_.arguments.Detail.MemoPosition = MemoPlace::above;
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextOf("D 10").y, test::TableTextY(true, 0));
  FillLowestCompany();
  Draw(kMeisaiA4Y);
  EXPECT_EQ(page_.TextOf("D 10").y, test::TableTextY(true, 0) + 390);
  EXPECT_EQ(page_.TextOf(sheet_.arguments.Detail.Memos[0]).y, 2801 + 390);
}

}  // namespace
}  // namespace rbt
