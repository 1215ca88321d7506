// SPDX-License-Identifier: MIT
#include "reports/floorpart/diameter_lists.h"

#include "tally/floorpart/floor_marginals.h"

namespace rbt {

namespace {

/// The second set of sums is filled where installed weight is shown.
bool ShowsInstalled(const FloorTables& tables) { return tables.SouTorituke != Currency(); }

}  // namespace

FiguresByDiameter FiguresOfFloor(const FloorTables& tables, int floor_code, ColumnRun columns) {
  const int f = FloorIndex(floor_code);
  FiguresByDiameter figures;
  for (int r = 0; r < kDiameterRows; ++r) {
    DiameterFigures& of = figures[r];
    of.bars = tables.KaiHonsu[f][r];
    for (int c = columns.first; c <= columns.last; ++c) of.weights[c] = StockOfFloor(tables, f, r, c);
    of.stock = StockOfFloor(tables, f, r, columns);
    if (ShowsInstalled(tables)) of.installed = tables.KaiTaisaGoukei[f][r];
    of.welds = tables.Assetu.Kai[f][r];
    of.threads = tables.Neji.Kai[f][r];
    of.plates = tables.Teichaku.Kai[f][r];
    of.cuts = tables.Setsudan.Kai[f][r];
  }
  return figures;
}

FiguresByDiameter FiguresOfRange(const FloorTables& tables) {
  FiguresByDiameter figures;
  for (int r = 0; r < kDiameterRows; ++r) {
    figures[r] = {.bars = tables.SouHonsu[r],
                  .weights = tables.TaisaTeiGoukei[r],
                  .stock = tables.TaisaGoukei[r],
                  .installed = tables.TaisaTorituke[r],
                  .welds = tables.Assetu.Taisa[r],
                  .threads = tables.Neji.Taisa[r],
                  .plates = tables.Teichaku.Taisa[r],
                  .cuts = tables.Setsudan.Taisa[r]};
  }
  return figures;
}

FiguresByDiameter FiguresOfPart(const PartTables& tables, int part) {
  FiguresByDiameter figures;
  for (int r = 0; r < kDiameterRows; ++r) {
    figures[r] = {.bars = tables.BuiHonsu[part][r],
                  .weights = tables.BuiJyuuryo[part][r],
                  .stock = tables.BuiTaisaGoukei[r][part],
                  .installed = {},
                  .welds = tables.Assetu.Bui[part][r],
                  .threads = tables.Neji.Bui[part][r],
                  .plates = tables.Teichaku.Bui[part][r],
                  .cuts = tables.Setsudan.Bui[part][r]};
  }
  return figures;
}

}  // namespace rbt
