// SPDX-License-Identifier: MIT
#include "tally/site_sum.h"

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "tally/count_cells.h"

namespace rbt {

namespace {

void KeepCell(TallyTable& kept, const TallyTable& table, int d, int l) {
  if (!HoldsSomething(table, d, l)) return;
  kept.StockWeight[d][l] = table.StockWeight[d][l];
  kept.InstalledWeight[d][l] = table.InstalledWeight[d][l];
  kept.BarCount[d][l] = table.BarCount[d][l];
}

void AddFittings(TallyTable& table, const TallyTable& before, int d) {
  AddCount(table.WeldCount, d, before.WeldCount[d], "WeldCount");
  AddCount(table.ThreadCount, d, before.ThreadCount[d], "ThreadCount");
  AddCount(table.PlateCount, d, before.PlateCount[d], "PlateCount");
  AddCount(table.CutCount, d, before.CutCount[d], "CutCount");
}

void AddCells(TallyTable& table, const TallyTable& before, int d) {
  for (int l = 0; l < kStockColumns; ++l) {
    table.StockWeight[d][l] += before.StockWeight[d][l];
    table.InstalledWeight[d][l] += before.InstalledWeight[d][l];
    AddCount(table.BarCount[d], l, before.BarCount[d][l], "BarCount");
  }
}

void AddUlbon(TallyTable& table, const TallyTable& before, int d) {
  const bool site_has_metres = table.UlbonLengthM[d] != 0.0;
  table.UlbonLengthM[d] += before.UlbonLengthM[d];
  table.UlbonWeight[d] = site_has_metres ? table.UlbonLengthM[d] * UnitWeight(d) : before.UlbonWeight[d];
  AddCount(table.UlbonWeldCount, d, before.UlbonWeldCount[d], "UlbonWeldCount");
}

}  // namespace

bool HoldsSomething(const TallyTable& table, int d, int l) {
  return table.StockWeight[d][l] > Currency() || table.InstalledWeight[d][l] > Currency() ||
         table.BarCount[d][l] > 0;
}

TallyTable KeptForSum(const TallyTable& table) {
  TallyTable kept;
  for (int d = 0; d < kDeformedRows; ++d) {
    kept.WeldCount[d] = table.WeldCount[d];
    kept.ThreadCount[d] = table.ThreadCount[d];
    kept.PlateCount[d] = table.PlateCount[d];
    kept.CutCount[d] = table.CutCount[d];
    for (int l = 0; l < kStockColumns; ++l) KeepCell(kept, table, d, l);
  }
  for (int d = kDeformedRows; d < kDiameterRows; ++d) {
    kept.UlbonLengthM[d] = Currency::FromDouble(table.UlbonLengthM[d]).ToDouble();
    kept.UlbonWeight[d] = Currency::FromDouble(table.UlbonWeight[d]).ToDouble();
    kept.UlbonWeldCount[d] = table.UlbonWeldCount[d];
  }
  return kept;
}

TallyResult SumOfSites(const TallyTable& before, TallyResult site, const ClosingRules& rules) {
  TallyTable& table = site.Grid();
  for (int d = 0; d < kDeformedRows; ++d) {
    AddFittings(table, before, d);
    AddCells(table, before, d);
  }
  for (int d = kDeformedRows; d < kDiameterRows; ++d) AddUlbon(table, before, d);
  CloseWeighedCells(table, rules);
  site.origin = ResultOrigin::accumulated;
  return site;
}

}  // namespace rbt
