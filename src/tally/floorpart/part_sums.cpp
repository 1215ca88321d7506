// SPDX-License-Identifier: MIT
#include "tally/floorpart/part_sums.h"

#include "tally/count_cells.h"
#include "tally/floorpart/cell_weights.h"
#include "tally/floorpart/row_share.h"

namespace rbt {
namespace {

void RaiseCells(PartTables& tables, int p, double ratio, ColumnRun columns) {
  for (int r = 0; r < kDiameterRows; ++r) {
    for (int c = columns.first; c <= columns.last; ++c) {
      std::int32_t& bars = tables.BuiHonsu[p][r][c];
      bars = RaisedCount(bars, ratio);
      Currency& weight = tables.BuiJyuuryo[p][r][c];
      if (IsThinRow(r)) weight = Currency::FromDouble(weight.ToDouble() * (ratio + 1.0));
    }
  }
}

void RaiseFitting(PartFitting& fitting, double ratio) {
  for (int r = 0; r < kDiameterRows; ++r) {
    fitting.Taisa[r] = RaisedCount(fitting.Taisa[r], ratio);
    for (int p = kFirstPart; p < kPartEntries; ++p) fitting.Bui[p][r] = RaisedCount(fitting.Bui[p][r], ratio);
  }
}

void EraseSums(PartTables& tables) {
  tables.TaisaHonsu = {};
  tables.BuiTaisaGoukei = {};
  tables.BuiGoukei = {};
  tables.TaisaGoukei = {};
  tables.SouGoukei = {};
}

void CloseCells(PartTables& tables, int p, int r, ColumnRun columns) {
  for (int c = columns.first; c <= columns.last; ++c) {
    const std::int32_t bars = tables.BuiHonsu[p][r][c];
    Currency& weight = tables.BuiJyuuryo[p][r][c];
    weight = IsThinRow(r) ? WholeKilograms(weight) : StockKilograms(r, c, bars);
    tables.BuiTaisaGoukei[r][p] += weight;
    AddCount(tables.TaisaHonsu[r], c, bars, "伸総計");
  }
}

}  // namespace

void RaiseParts(PartTables& tables, double ratio, ColumnRun columns) {
  for (int p = kFirstPart; p < kPartEntries; ++p) RaiseCells(tables, p, ratio, columns);
  for (const PartFittingName& fitting : kPartFittings) RaiseFitting(tables.*fitting.tables, ratio);
}

void ClosePartSums(PartTables& tables, ColumnRun columns) {
  EraseSums(tables);
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    for (int r = 0; r < kDiameterRows; ++r) {
      CloseCells(tables, p, r, columns);
      const Currency kilograms = tables.BuiTaisaGoukei[r][p];
      tables.BuiGoukei[p] += kilograms;
      tables.TaisaGoukei[r] += kilograms;
      tables.SouGoukei += kilograms;
    }
  }
}

}  // namespace rbt
