// SPDX-License-Identifier: MIT
#include "tally/detail/detail_change.h"

#include <string>
#include <utility>

#include "data/diameters.h"
#include "platform/numbers/number_words.h"
#include "tally/closing_sums.h"
#include "tally/floorpart/cell_weights.h"

namespace rbt {

namespace {

std::int32_t Raised(std::int32_t count, double percent, int d, int l) {
  const double raised = count + Fix(percent / 100.0 * count + 0.5);
  return ToInt32(raised, std::string(DiameterLabel(d)) + " " +
                             std::string(kStockLengthTexts.at(static_cast<std::size_t>(l))));
}

void PutBars(TallyTable& table, const BarCell& cell, std::int32_t bars) {
  table.BarCount[cell.d][cell.l] = bars;
  table.StockWeight[cell.d][cell.l] = StockKilograms(cell.d, cell.l, bars);
}

}  // namespace

TallyTable WithBarsRaised(TallyTable table, double percent, int columns) {
  for (int d = 0; d < kDeformedRows; ++d) {
    for (int l = 0; l < columns; ++l) PutBars(table, {d, l}, Raised(table.BarCount[d][l], percent, d, l));
    table.StockWeightByDia[d] = StockWeightOfCells(table, d, columns);
  }
  SumStockAndFittings(table);
  return table;
}

TallyTable WithCellCorrected(TallyTable table, const DetailCell& cell, std::int32_t count, int columns) {
  if (const auto* bars = std::get_if<BarCell>(&cell)) {
    PutBars(table, *bars, count);
    table.StockWeightByDia[bars->d] = StockWeightOfCells(table, bars->d, columns);
  } else {
    const auto& fitting = std::get<FittingCell>(cell);
    FittingCount(table, fitting.d, fitting.fitting) = count;
  }
  SumStockAndFittings(table);
  return table;
}

TallyResult RaiseBars(TallyResult result, double percent, int columns) {
  result.Grid() = WithBarsRaised(std::move(result.Grid()), percent, columns);
  result.bars_raised = true;
  if (result.origin == ResultOrigin::counted) result.origin = ResultOrigin::raised;
  return result;
}

TallyResult CorrectCell(TallyResult result, const DetailCell& cell, std::int32_t count, int columns) {
  result.Grid() = WithCellCorrected(std::move(result.Grid()), cell, count, columns);
  result.origin = ResultOrigin::corrected;
  return result;
}

}  // namespace rbt
