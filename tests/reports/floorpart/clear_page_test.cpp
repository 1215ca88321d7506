// SPDX-License-Identifier: MIT
// On no sheet of floors and parts do texts stand in each other's way or rules run through them, however long
// names and figures are.
#include <functional>

#include "reports/floorpart/all_parts_sheet.h"
#include "reports/floorpart/diameter_lists.h"
#include "reports/floorpart/floor_blocks.h"
#include "reports/floorpart/floorpart_heads.h"
#include "reports/floorpart/floorpart_paper.h"

namespace rbt::test {
namespace {

struct Box {
  float left = 0;
  float top = 0;
  float right = 0;
  float bottom = 0;
  std::string text;

  bool IsClearOf(const Box& other) const {
    return right <= other.left || other.right <= left || bottom <= other.top || other.bottom <= top;
  }
  /// A rule may touch the edge of a text's place.
  bool IsClearOf(const PrintedRule& rule) const {
    const float half = static_cast<float>(rule.draw_width * kTwipsPerDrawWidth) / 2;
    return rule.x2 + half <= left || right <= rule.x1 - half || rule.y2 <= top || bottom <= rule.y1;
  }
};

/// Where the characters of a text stand that are no blanks.
Box BoxOf(const PrintedText& text) {
  const std::size_t first = text.text.find_first_not_of(' ');
  const std::string before = text.text.substr(0, first);
  const std::size_t last = text.text.find_last_not_of(' ');
  const float left = text.x + TextWidthAt(text.font_size, before);
  const float right = text.x + TextWidthAt(text.font_size, text.text.substr(0, last + 1));
  return {left, text.y, right, text.y + LineHeight(text.font_size), text.text};
}

bool IsBlank(const PrintedText& text) {
  return text.text.find_first_not_of(' ') == std::string::npos || text.text == "　　　";
}

class ClearPages : public FloorPartPaper {
 protected:
  ClearPages() {
    for (const char* key : {"会社名", "名称1", "名称2", "住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3",
                            "FAX1", "FAX2", "MAIL1", "MAIL2"}) {
      root_.SetIni(kSteelFile, "自社名", key, "工場");
    }
    site_.site.client = "株式会社見本建設雛形支店例示営業所関東第二工務部";
    site_.parts.fill("地下一階ピット床版の下端筋および上端筋ほか");
    arguments_.Month = "11";
    arguments_.Day = "21";
  }

  static constexpr float kCompanyX = 11100;

  /// The texts of the own company stand in each other's way on purpose: they are one box.
  std::vector<Box> BoxesOf(std::size_t page) const {
    std::vector<Box> boxes;
    Box company{20000, 20000, 0, 0, "own company"};
    for (const PrintedText& text : OnPage<PrintedText>(page)) {
      if (IsBlank(text)) continue;
      const Box box = BoxOf(text);
      if (text.x < kCompanyX || text.y >= kTableTop || text.text.starts_with("page:")) {
        boxes.push_back(box);
        continue;
      }
      company = {std::min(company.left, box.left), std::min(company.top, box.top),
                 std::max(company.right, box.right), std::max(company.bottom, box.bottom), company.text};
    }
    boxes.push_back(company);
    return boxes;
  }

  void ExpectClear(const std::string& sheet) {
    constexpr float kSheetWidth = 16838;
    constexpr float kSheetHeight = 11906;
    for (std::size_t page = 0; page < Pages(); ++page) {
      const std::vector<Box> boxes = BoxesOf(page);
      const std::vector<PrintedRule> rules = OnPage<PrintedRule>(page);
      for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_TRUE(boxes[i].right <= kSheetWidth && boxes[i].bottom <= kSheetHeight && boxes[i].top >= 0)
            << sheet << ": " << boxes[i].text << " leaves the sheet";
        for (std::size_t k = i + 1; k < boxes.size(); ++k) {
          EXPECT_TRUE(boxes[i].IsClearOf(boxes[k]))
              << sheet << ": " << boxes[i].text << " and " << boxes[k].text;
        }
        for (const PrintedRule& rule : rules) {
          EXPECT_TRUE(boxes[i].IsClearOf(rule))
              << sheet << ": a rule from " << rule.x1 << ", " << rule.y1 << " to " << rule.x2 << ", "
              << rule.y2 << " strikes " << boxes[i].text;
        }
      }
    }
  }

  /// Every floor and part with the widest figures that its fields hold.
  static TallyResult FullFloors() {
    FloorBars bars;
    for (const int floor : {-2, 0, 1, 2, 75, 76, 77, 78}) {
      for (int part = 1; part <= kOtherParts; ++part) bars.Add(floor, part, kD32, 1);
    }
    TallyResult result = bars.Result(0, 75, 7);
    auto& tables = std::get<FloorTables>(result.tables);
    for (int f = 0; f < kFloorCount; ++f) {
      if (tables.KaiGoukei[f] == Currency()) continue;
      for (int p = kFirstPart; p < kPartEntries; ++p) tables.KaiBuiGoukei[f][p] = Kilograms(9999999);
      tables.KaiGoukei[f] = Kilograms(999999999);
      for (int r = 0; r < kDiameterRows; ++r) tables.KaiTaisaGoukei[f][r] = Kilograms(9999999);
    }
    tables.SouGoukei = Kilograms(999999999);
    return result;
  }
  static TallyResult FullParts() {
    PartBars bars;
    for (int part = 1; part <= kOtherParts; ++part) bars.Add(part, kD19, 1);
    TallyResult result = bars.Result(-5, 75, 7);
    auto& tables = std::get<PartTables>(result.tables);
    for (int r = 0; r < kDiameterRows; ++r) {
      for (int p = kFirstPart; p < kPartEntries; ++p) {
        tables.BuiTaisaGoukei[r][p] = Kilograms(9999999);
        tables.Assetu.Bui[p][r] = 9999;
      }
      tables.TaisaGoukei[r] = Kilograms(9999999);
      tables.Assetu.Taisa[r] = 9999;
    }
    tables.SouGoukei = Kilograms(999999999);
    return result;
  }
  DiameterSheet FullSheet(const HeadLayout& layout, std::string_view title, bool with_weights) const {
    DiameterSheet sheet{.layout = layout,
                        .head = HeadOf(title, site_.site, arguments_),
                        .thick = true,
                        .with_13m = true,
                        .with_weights = with_weights};
    sheet.head.scope = "［地下一階ピット床版の下端筋および上端筋］分";
    sheet.head.total_weight = 999999999;
    sheet.origins.grades.fill("SD295A特殊鋼");
    sheet.origins.makers.fill("見本製鋼関東第一工場");
    for (int r = 0; r < kDiameterRows; ++r) {
      DiameterFigures& of = sheet.figures[r];
      for (int c = 0; c < kStockColumns; ++c) {
        of.bars[c] = 999999;
        of.weights[c] = Kilograms(9999999);
      }
      of.stock = of.installed = Kilograms(999999999);
      of.welds = of.threads = of.plates = of.cuts = 999999;
    }
    return sheet;
  }

  void DrawAll() {
    const TallyResult floors = FullFloors();
    const TallyResult parts = FullParts();
    const std::vector<std::pair<std::string, std::function<void()>>> sheets{
        {"floor totals", [&] { DrawFloorTotals(page_.Printer, site_, arguments_, floors); }},
        {"floor blocks", [&] { DrawFloorBlocks(page_.Printer, site_, arguments_, floors); }},
        {"part totals", [&] { DrawPartTotals(page_.Printer, site_, arguments_, parts); }},
        {"all parts", [&] { DrawAllParts(page_.Printer, site_, arguments_, parts); }},
        {"one floor",
         [&] { DrawDiameters(page_.Printer, FullSheet(kKakukaiHead, "階 別 合 計 数 量 表", true)); }},
        {"the range",
         [&] { DrawDiameters(page_.Printer, FullSheet(kMeisaiHead, "階 別 合 計 数 量 表", false)); }},
        {"one part",
         [&] { DrawDiameters(page_.Printer, FullSheet(kKakubuiHead, "部 位 別 合 計 数 量 表", true)); }}};
    for (const auto& [name, draw] : sheets) {
      draw();
      ExpectClear(name);
    }
  }
};

TEST_F(ClearPages, WithAShortName) {
  site_.site.short_name = "（仮称）雛形台三丁目地区市街地再開発事業に伴う業務棟及び駐車場棟新築工事";
  DrawAll();
}

TEST_F(ClearPages, WithALongNameOnOneLineAndAnEraDate) {
  site_.site.western_dates = false;
  arguments_.Year = "08";
  site_.site.long_name = "（仮称）雛形台三丁目地区市街地再開発事業に伴う業務棟及び駐車場棟新築工事";
  DrawAll();
}

TEST_F(ClearPages, WithALongNameOnTwoLinesAndTheLowestCompany) {
  site_.site.long_name = "（仮称）雛形台三丁目地区市街地再開発事業に伴う業務棟及び駐車場棟新築工事";
  site_.site.koji_break = 20;
  for (const char* key : {"名称1", "住所1", "住所3"}) root_.SetIni(kSteelFile, "自社名", key, "");
  DrawAll();
}

TEST_F(ClearPages, WithoutAClientAndACompanyOfOneLine) {
  site_.site.client = "";
  for (const char* key : {"名称1", "名称2", "住所1", "住所2", "住所3", "TEL1", "TEL2", "TEL3", "FAX1", "FAX2",
                          "MAIL1", "MAIL2"}) {
    root_.SetIni(kSteelFile, "自社名", key, "");
  }
  DrawAll();
}

}  // namespace
}  // namespace rbt::test
