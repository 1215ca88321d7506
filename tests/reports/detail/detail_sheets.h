// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "reports/detail/detail_report.h"
#include "support/drawn_page.h"
#include "tally/closing_sums.h"

namespace rbt::test {

/// A table in which the first `diameters` rows have 100 bars of 6.0 m more than the row before, from 100, and
/// welds, couplers, plates and cuts of which the last digit tells the kind.
inline TallyTable TableOf(int diameters) {
  constexpr int kAt6m = 5;
  TallyTable table;
  for (int d = 0; d < diameters; ++d) {
    table.BarCount[d][kAt6m] = 100 * (d + 1);
    table.StockWeight[d][kAt6m] = Currency::FromDouble(table.BarCount[d][kAt6m] * BarWeight(d, kAt6m));
    table.CutLengthM[d][kAt6m] = 500.0 * (d + 1);
    table.WeldCount[d] = 10 * (d + 1) + 1;
    table.ThreadCount[d] = 10 * (d + 1) + 2;
    table.PlateCount[d] = 10 * (d + 1) + 3;
    table.CutCount[d] = 10 * (d + 1) + 4;
  }
  CloseSums(table, {});
  return table;
}

inline ReportSite DetailSite() {
  ReportSite site;
  site.client = "見本建設";
  site.short_name = "見本町住宅";
  return site;
}

inline DetailSheet SheetOf(const TallyTable& table) {
  DetailSheet sheet{.site = DetailSite(), .arguments = {"", "2026", "1", "2", 1, 0}, .table = table};
  sheet.title = "合  計  数  量  表";
  sheet.grades[0] = "SD295A";
  return sheet;
}

/// The four forms, and how many diameters their pages hold.
struct FormOnPaper {
  std::string name;
  const DetailPaper* form;
  int diameters;
  bool landscape;
};
inline const std::vector<FormOnPaper>& DetailForms() {
  static const std::vector<FormOnPaper> forms{{"A4T", &kMeisaiA4T, 3, false},
                                              {"A4T_Count", &kMeisaiA4TCount, 6, false},
                                              {"A4Y", &kMeisaiA4Y, 7, true},
                                              {"A4Y_Count", &kMeisaiA4YCount, 8, true}};
  return forms;
}

/// Y of a row of the table, with its head where no tall block lowers it: 6.6 x 390 + 500 is 3074.
inline float TableY(bool landscape, int row) {
  return 3074.0F + static_cast<float>(row * (landscape ? 280 : 320));
}
inline float TableTextY(bool landscape, int row) {
  return TableY(landscape, row) + (landscape ? 40.0F : 60.0F);
}

}  // namespace rbt::test
