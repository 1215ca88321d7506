// SPDX-License-Identifier: MIT
#include "tally/closing_sums.h"

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "platform/numbers/number_words.h"

namespace rbt {
namespace {

void WeighCells(TallyTable& table, int d, const ClosingRules& rules) {
  const int columns = StockColumnsInUse(rules.sum_13m_column);
  for (int l = 0; l < columns; ++l) {
    table.InstalledWeight[d][l] += Currency::FromDouble(table.CutLengthM[d][l] * UnitWeight(d));
  }
}

void SumDiameter(TallyTable& table, int d, const ClosingRules& rules) {
  const int columns = StockColumnsInUse(rules.sum_13m_column);
  for (int l = 0; l < columns; ++l) table.InstalledWeightByDia[d] += table.InstalledWeight[d][l];
  table.StockWeightByDia[d] += StockWeightOfCells(table, d, columns);
  table.InstalledWeightByDia[d] += Currency::FromDouble(table.LengthWithoutColumnM[d] * UnitWeight(d));
  if (rules.cap_installed_weight && table.InstalledWeightByDia[d] > table.StockWeightByDia[d]) {
    table.InstalledWeightByDia[d] = table.StockWeightByDia[d];
  }
}

void AddStockAndFittings(TallyTable& table, int d) {
  table.TotalStockWeight += WholeKilograms(table.StockWeightByDia[d]);
  table.TotalWeldCount = AddInt32(table.TotalWeldCount, table.WeldCount[d], "TotalWeldCount");
  table.TotalThreadCount = AddInt32(table.TotalThreadCount, table.ThreadCount[d], "TotalThreadCount");
  table.TotalPlateCount = AddInt32(table.TotalPlateCount, table.PlateCount[d], "TotalPlateCount");
  table.TotalCutCount = AddInt32(table.TotalCutCount, table.CutCount[d], "TotalCutCount");
}

double LossRate(Currency stock, Currency installed) {
  if (stock == Currency() || installed == Currency()) return 0.0;
  return (stock - installed).ToDouble() / installed.ToDouble() * 100.0;
}

/// From weighed cells, on top of nothing.
void SumAll(TallyTable& table, const ClosingRules& rules) {
  for (int d = 0; d < kDeformedRows; ++d) {
    SumDiameter(table, d, rules);
    AddStockAndFittings(table, d);
    table.TotalInstalledWeight += WholeKilograms(table.InstalledWeightByDia[d]);
  }
  table.LossRatePercent = LossRate(table.TotalStockWeight, table.TotalInstalledWeight);
}

void ClearTotalsOfStockAndFittings(TallyTable& table) {
  table.TotalStockWeight = Currency();
  table.TotalWeldCount = 0;
  table.TotalThreadCount = 0;
  table.TotalPlateCount = 0;
  table.TotalCutCount = 0;
}

}  // namespace

void CloseSums(TallyTable& table, const ClosingRules& rules) {
  for (int d = 0; d < kDeformedRows; ++d) WeighCells(table, d, rules);
  SumAll(table, rules);
}

void CloseWeighedCells(TallyTable& table, const ClosingRules& rules) {
  table.StockWeightByDia.Clear();
  table.InstalledWeightByDia.Clear();
  ClearTotalsOfStockAndFittings(table);
  table.TotalInstalledWeight = Currency();
  SumAll(table, rules);
}

Currency StockWeightOfCells(const TallyTable& table, int d, int columns) {
  Currency sum;
  for (int l = 0; l < columns; ++l) sum += WholeKilograms(table.StockWeight[d][l]);
  return sum;
}

void SumStockAndFittings(TallyTable& table) {
  ClearTotalsOfStockAndFittings(table);
  for (int d = 0; d < kDeformedRows; ++d) AddStockAndFittings(table, d);
}

}  // namespace rbt
