// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_sums.h"

#include <utility>

#include "platform/numbers/number_words.h"
#include "tally/count_cells.h"
#include "tally/floorpart/cell_weights.h"
#include "tally/floorpart/row_share.h"

namespace rbt {
namespace {

constexpr std::string_view kBarCount = "伸総計";

void RaiseCells(FloorTables::Counts& cells, int r, double ratio, ColumnRun columns) {
  for (int c = columns.first; c <= columns.last; ++c) cells[r][c] = RaisedCount(cells[r][c], ratio);
}

/// The sum over the parts of a floor.
std::int32_t SumOfParts(const FloorTables& tables, int f, int r, int c) {
  std::int32_t sum = 0;
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    const FloorTables::Counts* const cells = tables.KaiBuiHonsu[p].Find(f);
    if (cells != nullptr) sum = AddInt32(sum, (*cells)[r][c], kBarCount);
  }
  return sum;
}

void RaiseFloor(FloorTables& tables, int f, double ratio, ColumnRun columns) {
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    if (tables.KaiBuiHonsu[p].Find(f) == nullptr) continue;
    for (int r = 0; r < kDiameterRows; ++r) RaiseCells(tables.KaiBuiHonsu[p][f], r, ratio, columns);
  }
  FloorTables::Counts& floor = tables.KaiHonsu[f];
  for (int r = 0; r < kDiameterRows; ++r) {
    if (IsThinRow(r)) RaiseCells(floor, r, ratio, columns);
    for (int c = columns.first; c <= columns.last; ++c) {
      if (!IsThinRow(r)) floor[r][c] = SumOfParts(tables, f, r, c);
      AddCount(tables.SouHonsu[r], c, floor[r][c], kBarCount);
    }
  }
}

void EraseSums(FloorTables& tables) {
  tables.KaiBuiTeiJyuuryo = {};
  tables.KaiBuiGoukei = {};
  tables.KaiGoukei = {};
  tables.BuiGoukei = {};
  tables.KaiTaisaGoukei = {};
  tables.TaisaTeiGoukei = {};
  tables.TaisaGoukei = {};
  tables.SouGoukei = {};
  tables.SouTeiGoukei = {};
  tables.KaiBuiTorituke = {};
  tables.KaiTorituke = {};
  tables.BuiTorituke = {};
  tables.TaisaTorituke = {};
  tables.SouTorituke = {};
}

void AddToSums(FloorTables& tables, int f, int p, int r, Currency kilograms, bool installed_sums) {
  tables.KaiTaisaGoukei[f][r] += kilograms;
  tables.KaiBuiGoukei[f][p] += kilograms;
  tables.BuiGoukei[p] += kilograms;
  tables.KaiGoukei[f] += kilograms;
  tables.SouGoukei += kilograms;
  if (!installed_sums) return;
  tables.TaisaTorituke[r] += kilograms;
  tables.KaiBuiTorituke[f][p] += kilograms;
  tables.BuiTorituke[p] += kilograms;
  tables.KaiTorituke[f] += kilograms;
  tables.SouTorituke += kilograms;
}

Currency RaisedWholeKilograms(Currency cell, double ratio) {
  return Currency::FromDouble(Fix(cell.ToDouble() * (ratio + 1.0) + 0.5));
}

/// The cells of a floor's part.
void CloseCells(FloorTables& tables, int f, int p, const FloorClosing& closing) {
  const FloorTables::Counts& bars = std::as_const(tables.KaiBuiHonsu[p])[f];
  FloorTables::Weights& shown = tables.KaiBuiJyuuryo[f][p];
  FloorTables::Weights& stock = tables.KaiBuiTeiJyuuryo[f][p];
  for (int r = 0; r < kDiameterRows; ++r) {
    Currency sum;
    for (int c = closing.columns.first; c <= closing.columns.last; ++c) {
      if (IsThinRow(r)) {
        stock[r][c] = shown[r][c] = RaisedWholeKilograms(shown[r][c], closing.uplift);
        tables.TaisaTeiGoukei[r][c] += stock[r][c];
      } else {
        stock[r][c] = StockKilograms(r, c, bars[r][c]);
        shown[r][c] = closing.installed_cells ? WholeKilograms(shown[r][c]) : stock[r][c];
      }
      sum += shown[r][c];
    }
    if (sum != Currency()) AddToSums(tables, f, p, r, sum, closing.installed_sums);
  }
}

void CloseDiameters(FloorTables& tables, ColumnRun columns) {
  for (int r = 0; r < kDiameterRows; ++r) {
    for (int c = columns.first; c <= columns.last; ++c) {
      if (!IsThinRow(r)) tables.TaisaTeiGoukei[r][c] = StockKilograms(r, c, tables.SouHonsu[r][c]);
      tables.TaisaGoukei[r] += tables.TaisaTeiGoukei[r][c];
    }
    tables.SouTeiGoukei += tables.TaisaGoukei[r];
  }
}

}  // namespace

void RaiseFloorBars(FloorTables& tables, double ratio, ColumnRun columns) {
  tables.SouHonsu.Clear();
  for (int f = 0; f < kFloorCount; ++f) {
    if (tables.KaiHonsu.Find(f) != nullptr) RaiseFloor(tables, f, ratio, columns);
  }
}

void SumFloorBars(FloorTables& tables) {
  tables.KaiHonsu = {};
  tables.SouHonsu = {};
  for (int f = 0; f < kFloorCount; ++f) {
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      const FloorTables::Counts* const bars = std::as_const(tables.KaiBuiHonsu[p]).Find(f);
      if (bars == nullptr) continue;
      for (int r = 0; r < kDiameterRows; ++r) {
        for (int c = 0; c < kStockColumns; ++c) {
          AddCount(tables.KaiHonsu[f][r], c, (*bars)[r][c], kBarCount);
          AddCount(tables.SouHonsu[r], c, (*bars)[r][c], kBarCount);
        }
      }
    }
  }
}

void CloseFloorSums(FloorTables& tables, const FloorClosing& closing) {
  EraseSums(tables);
  for (int f = 0; f < kFloorCount; ++f) {
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      const bool touched =
          tables.KaiBuiHonsu[p].Find(f) != nullptr || tables.KaiBuiJyuuryo[f].Find(p) != nullptr;
      if (touched) CloseCells(tables, f, p, closing);
    }
  }
  CloseDiameters(tables, closing.columns);
}

}  // namespace rbt
