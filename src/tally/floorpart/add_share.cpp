// SPDX-License-Identifier: MIT
#include "tally/floorpart/add_share.h"

#include <string_view>

#include "tally/count_cells.h"

namespace rbt {
namespace {

/// Product and sum are doubles; only the sum is brought to Currency, with every row.
void AddKilograms(Currency& cell, double kilograms) {
  cell = Currency::FromDouble(cell.ToDouble() + kilograms);
}

CellWeight WeightOf(const RowShare& share, CellWeight deformed) {
  return IsThinRow(share.row) ? CellWeight::installed : deformed;
}

void AddWeight(Currency& cell, const RowShare& share, CellWeight weight) {
  if (weight == CellWeight::stock) {
    cell += Currency::FromDouble(BarWeight(share.row, share.column) * share.bars.value_or(0));
  } else if (share.installed_kilograms) {
    AddKilograms(cell, *share.installed_kilograms);
  }
}

void AddFitting(FloorFitting& fitting, int f, int p, const FittingShare& share, std::string_view column) {
  if (!share.count) return;
  AddCount(fitting.Taisa, share.row, *share.count, column);
  AddCount(fitting.Kai[f], share.row, *share.count, column);
  AddCount(fitting.KaiBui[p][f], share.row, *share.count, column);
  AddCount(fitting.KaiSou, f, *share.count, column);
}

void AddFitting(PartFitting& fitting, int p, const FittingShare& share, std::string_view column) {
  if (!share.count) return;
  AddCount(fitting.Bui[p], share.row, *share.count, column);
  AddCount(fitting.Taisa, share.row, *share.count, column);
}

constexpr std::string_view kBars = "伸総計";
constexpr std::string_view kWelds = "圧接";
constexpr std::string_view kThreads = "ネジ数";
constexpr std::string_view kPlates = "定着板数";
constexpr std::string_view kCuts = "切断";

}  // namespace

void AddShare(FloorTables& tables, int f, const RowShare& share, CellWeight deformed) {
  const int p = share.part;
  const int r = share.row;
  const int c = share.column;
  if (share.bars) {
    AddCount(tables.KaiHonsu[f][r], c, *share.bars, kBars);
    AddCount(tables.SouHonsu[r], c, *share.bars, kBars);
    AddCount(tables.KaiBuiHonsu[p][f][r], c, *share.bars, kBars);
  }
  const CellWeight weight = WeightOf(share, deformed);
  if (weight != CellWeight::none) AddWeight(tables.KaiBuiJyuuryo[f][p][r][c], share, weight);
  AddFitting(tables.Assetu, f, p, share.welds, kWelds);
  AddFitting(tables.Neji, f, p, share.threads, kThreads);
  AddFitting(tables.Teichaku, f, p, share.plates, kPlates);
  AddFitting(tables.Setsudan, f, p, share.cuts, kCuts);
}

void AddShare(PartTables& tables, const RowShare& share, CellWeight deformed) {
  const int p = share.part;
  const int r = share.row;
  const int c = share.column;
  if (share.bars) AddCount(tables.BuiHonsu[p][r], c, *share.bars, kBars);
  const CellWeight weight = WeightOf(share, deformed);
  if (weight != CellWeight::none) AddWeight(tables.BuiJyuuryo[p][r][c], share, weight);
  AddFitting(tables.Assetu, p, share.welds, kWelds);
  AddFitting(tables.Neji, p, share.threads, kThreads);
  AddFitting(tables.Teichaku, p, share.plates, kPlates);
  AddFitting(tables.Setsudan, p, share.cuts, kCuts);
}

}  // namespace rbt
