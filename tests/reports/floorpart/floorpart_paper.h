// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "reports/floorpart/part_lists.h"
#include "support/drawn_page.h"
#include "support/site_fixture.h"
#include "tally/floorpart/cell_weights.h"
#include "tally/floorpart/floor_sums.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_sums.h"

namespace rbt::test {

inline constexpr int kD10 = 0;
inline constexpr int kD19 = 3;
inline constexpr int kD29 = 6;
inline constexpr int kD32 = 7;
inline constexpr int kU6 = 12;
inline constexpr int kU12 = 16;
inline constexpr int kAt3m5 = 0;
inline constexpr int kAt6m = 5;

inline Currency Kilograms(std::int64_t kilograms) { return Currency::FromInteger(kilograms); }

/// A floor tally put together by hand; bars are of 6.0 m where nothing else is said.
struct FloorBars {
  FloorTables tables;
  bool installed = false;  ///< installed weight is shown, a kilogram less than stock in every cell
  bool with_13m = false;

  FloorBars& Add(int floor, int part, int r, std::int32_t bars, int column = kAt6m) {
    const int f = FloorIndex(floor);
    tables.KaiBuiHonsu[part][f][r][column] += bars;
    const Currency stock = StockKilograms(r, column, tables.KaiBuiHonsu[part][f][r][column]);
    if (r >= kDeformedRows || installed) {
      tables.KaiBuiJyuuryo[f][part][r][column] = installed ? stock - Kilograms(1) : stock;
    }
    return *this;
  }

  TallyResult Result(std::int16_t start, std::int16_t end, std::int16_t specials = 0) {
    TallyResult result;
    result.kind = TallyKind::floor;
    result.selection.KaiStart = start;
    result.selection.KaiEnd = end;
    result.selection.KaiMin = start;
    result.selection.TokubetuMask = SpecialMask(specials);
    SumFloorBars(tables);
    CloseFloorSums(
        tables,
        {.installed_cells = installed, .installed_sums = installed, .columns = ColumnsInUse(with_13m)});
    ListFloors(tables, ListedFloors(FloorScopeOf(result.selection)));
    result.tables = tables;
    return result;
  }
};

/// A part tally, likewise.
struct PartBars {
  PartTables tables;
  bool thin = false;

  PartBars& Add(int part, int r, std::int32_t bars, int column = kAt6m) {
    tables.BuiHonsu[part][r][column] += bars;
    if (r >= kDeformedRows) tables.BuiJyuuryo[part][r][column] += Kilograms(bars);
    return *this;
  }
  TallyResult Result(std::int16_t start = 1, std::int16_t end = 3, std::int16_t specials = 0) {
    TallyResult result;
    result.kind = TallyKind::part;
    result.selection.KaiStart = start;
    result.selection.KaiEnd = end;
    result.selection.TokubetuMask = SpecialMask(specials);
    result.selection.UlbonOnly = thin;
    ClosePartSums(tables, {});
    ListParts(tables, thin);
    result.tables = tables;
    return result;
  }
};

/// Sheets of floors and parts on a surface that keeps them.
class FloorPartPaper : public ::testing::Test {
 protected:
  FloorPartPaper() {
    site_.site.client = "見本建設";
    site_.site.short_name = "見本町住宅";
    site_.parts = {"基礎", "柱", "大梁", "小梁", "スラブ", "壁", "階段", "雑", "杭", "外構"};
    root_.SetIni(kSteelFile, "自社名", "会社名", "みほん鉄筋");
  }

  std::size_t Pages() const { return page_.documents.back().pages.size(); }

  template <typename Operation>
  std::vector<Operation> OnPage(std::size_t page) const {
    std::vector<Operation> found;
    for (const auto& operation : page_.documents.back().pages.at(page)) {
      if (const auto* one = std::get_if<Operation>(&operation)) found.push_back(*one);
    }
    return found;
  }

  /// How many texts of a page read so.
  std::ptrdiff_t Count(std::string_view text, std::size_t page = 0) const {
    const std::vector<PrintedText> texts = OnPage<PrintedText>(page);
    return std::count_if(texts.begin(), texts.end(),
                         [&](const PrintedText& one) { return one.text == text; });
  }

  /// The texts whose tops lie within a row of a page, from left to right, without the blanks around them,
  /// parted by "|".
  std::string Row(float top, float height, std::size_t page = 0, float from = 0, float to = 20000) const {
    std::vector<PrintedText> texts = OnPage<PrintedText>(page);
    std::erase_if(texts, [&](const PrintedText& text) {
      return text.y < top || text.y >= top + height || text.x < from || text.x >= to;
    });
    std::stable_sort(texts.begin(), texts.end(),
                     [](const PrintedText& a, const PrintedText& b) { return a.x < b.x; });
    std::string row;
    for (const PrintedText& text : texts) {
      const std::size_t first = text.text.find_first_not_of(' ');
      row += (row.empty() ? "" : "|") + (first == std::string::npos ? "" : text.text.substr(first));
    }
    return row;
  }

  SiteFixture root_;
  SheetSite site_;
  ReportArguments arguments_{.SubProject = "", .Year = "2026", .Month = "1", .Day = "2"};
  DrawnPage page_;
  CutFigures cut_;
};

/// Y of the table's top: row 6.25 of a page.
inline constexpr float kTableTop = 2937.5F;

}  // namespace rbt::test
