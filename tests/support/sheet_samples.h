// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "reports/comparison/comparison_head.h"

namespace rbt::test {

/// A tally with figures in D10 and D51, Ulbon and spirals.
inline TallyTable SampleTable() {
  TallyTable table;
  table.StockWeightByDia[0] = Currency::FromInteger(12345);
  table.InstalledWeightByDia[0] = Currency::FromDouble(12000.5);
  table.StockWeightByDia[11] = Currency::FromInteger(100);
  table.InstalledWeightByDia[11] = Currency::FromInteger(130);
  table.WeldCount[0] = 1234;
  table.CutCount[11] = 56;
  table.TotalStockWeight = Currency::FromInteger(12445);
  table.TotalInstalledWeight = Currency::FromInteger(12131);
  table.TotalWeldCount = 1234;
  table.TotalCutCount = 56;
  table.LossRatePercent = 2.588;
  table.UlbonWeight[12] = 10.4;
  table.UlbonWeldCount[12] = 7;
  table.SpiralUlbonByDia[12] = Currency::FromDouble(0.2);
  table.SpiralTotal = Currency::FromInteger(33);
  return table;
}

inline ReportSite SampleSite() {
  ReportSite site;
  site.client = "見本建設";
  site.short_name = "見本町住宅";
  return site;
}

inline ReportArguments SampleArguments() { return {"", "2026", "1", "2", 1, 0}; }

/// A sheet of that table with its Ulbon sums: 10.6 kg are 11.
inline ComparisonSheet SampleSheet(const TallyTable& table) {
  return {SampleSite(), SampleArguments(), table, {"SD295A"}, 11, 7, false};
}

/// A text so many times, for one that is too long for its place.
inline std::string Repeated(std::string_view text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

}  // namespace rbt::test
