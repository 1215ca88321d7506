// SPDX-License-Identifier: MIT
#include "reports/frame/ruled_text.h"

#include <gtest/gtest.h>

#include "reports/frame/report_pen.h"
#include "support/drawn_page.h"

namespace rbt {
namespace {

/// In 10 points a full-width character is 200 twips wide, a half-width one 100.
class RuledTexts : public ::testing::Test {
 protected:
  RuledTexts() { SetReportFont(page_.Printer, 10); }
  float End(const RuleEnd& end, std::string_view text) {
    return RuleEndX(page_.Printer, {1000, 900, end}, text);
  }

  test::DrawnPage page_;
};

TEST_F(RuledTexts, ARuleEndsAtItsPlaceWhateverTheText) {
  EXPECT_EQ(End(EndsAt(5000), ""), 5000);
  EXPECT_EQ(End(EndsAt(5000), "見本町再開発ビル"), 5000);
}

TEST_F(RuledTexts, ARuleEndsBehindWideAndHalfWidthCharacters) {
  EXPECT_EQ(End(EndsBehindText(), "見本ab"), 1000 + 2 * 200 + 2 * 100);
  EXPECT_EQ(End(EndsBehindText(200), "見本ab"), 1000 + 600 + 200);
}

TEST_F(RuledTexts, ARuleByCharactersOrBytesCountsFromItsOwnStart) {
  EXPECT_EQ(End({RuleBy::characters, 264, 1600}, "見本ab"), 900 + 4 * 264 + 1600);
  EXPECT_EQ(End({RuleBy::bytes, 141.5, 100}, "見本ab"), 900 + 6 * 141.5F + 100);
}

TEST_F(RuledTexts, ARuleUnderANameGoesByItsSize) {
  EXPECT_FLOAT_EQ(End({RuleBy::name_size, 20.1, 1060}, "見本ab"), 900 + 3 * 10 * 20.1F + 1060);
}

TEST_F(RuledTexts, ARuleStopsAtItsLimit) {
  EXPECT_EQ(End(EndsBehindText(0, 1500), "見本ab"), 1500);
  EXPECT_EQ(End(EndsBehindText(0, 1700), "見本ab"), 1600);
}

TEST_F(RuledTexts, TheRuleStandsUnderTheTextAndMayGoByAnother) {
  page_.Printer.DrawWidth = 3;
  PrintRuled(page_.Printer, {1000, 900, EndsBehindText()}, 400, "取引先 見本", "見本");
  page_.Printer.EndDoc();
  EXPECT_EQ(page_.TextAt(1000, 400), "取引先 見本");
  EXPECT_EQ(page_.RuleAt(600, 900).x2, 1400);
  EXPECT_EQ(page_.RuleAt(600, 900).draw_width, 3);
}

}  // namespace
}  // namespace rbt
