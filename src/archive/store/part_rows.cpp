// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "archive/store/saved_rows.h"
#include "platform/numbers/number_words.h"
#include "tally/count_cells.h"
#include "tally/floorpart/column_run.h"

namespace rbt {

namespace {

DiameterFigures CellsOf(const PartTables& tables, int p, int r, ColumnRun columns) {
  DiameterFigures cells{.bars = tables.BuiHonsu[p][r],
                        .weights = tables.BuiJyuuryo[p][r],
                        .stock = {},
                        .installed = {},
                        .welds = tables.Assetu.Bui[p][r],
                        .threads = tables.Neji.Bui[p][r],
                        .plates = tables.Teichaku.Bui[p][r],
                        .cuts = tables.Setsudan.Bui[p][r]};
  for (int c = columns.first; c <= columns.last; ++c) cells.stock += cells.weights[c];
  return cells;
}

void AddPartRows(const TallyResult& result, const RowOrder& order, std::vector<std::string>& statements) {
  const RowMasks masks = MasksOf(result.selection);
  std::int32_t number = 0;
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    for (int r = 0; r < kDiameterRows; ++r) {
      const DiameterFigures cells = CellsOf(result.Parts(), p, r, ColumnsInUse(order.with_13m));
      if (!HasFigures(cells, order.with_13m)) continue;
      ArchiveRow row("部位別本重集計");
      row.Put("行No", ++number).Put("部位", p);
      PutDiameter(row, r, order.supply, masks);
      PutCells(row, cells, order.with_13m);
      statements.push_back(row.Put(order.key).Statement());
    }
  }
}

std::string DiameterStatement(const TallyResult& result, int r, const RowOrder& order) {
  const PartTables& tables = result.Parts();
  const SelectionData& selection = result.selection;
  ArchiveRow row("部位別重量集計");
  PutDiameter(row, r, order.supply, MasksOf(selection));
  for (int p = kFirstPart; p < kPartEntries; ++p) row.Put(PartField(p), tables.BuiTaisaGoukei[r][p]);
  row.Put("圧接", tables.Assetu.Taisa[r]).Put("定尺合計", tables.TaisaGoukei[r]);
  row.Put("取付合計", Currency()).Put(order.key);
  row.Put("開始階", selection.KaiStart).Put("終了階", selection.KaiEnd);
  return row.Put("特別階", selection.TokubetuMask.AsNumber()).Statement();
}

// Reading.

void AddFitting(PartFitting& fitting, int p, int r, std::int32_t count, std::string_view field) {
  AddCount(fitting.Bui[p], r, count, field);
  AddCount(fitting.Taisa, r, count, field);
}

void TakeCells(PartTables& tables, int p, int r, const DiameterFigures& cells) {
  tables.BuiHonsu[p][r] = cells.bars;
  tables.BuiJyuuryo[p][r] = cells.weights;
  AddFitting(tables.Assetu, p, r, cells.welds, "圧接");
  AddFitting(tables.Neji, p, r, cells.threads, "ネジ数");
  AddFitting(tables.Teichaku, p, r, cells.plates, "定着板数");
  AddFitting(tables.Setsudan, p, r, cells.cuts, "切断");
}

/// Fittings alone have no row there: the range then stays the one that is selected.
void ReadPartRange(Database& site, const SavedKey& key, SelectionData& selection) {
  Recordset rows = site.OpenSnapshot(
      fmt::format("SELECT * FROM 部位別重量集計 WHERE {} ORDER BY 太さ", KeyCondition(key)));
  if (rows.Eof()) return;
  selection.KaiStart = ToInt16(ArchiveField(rows, "開始階").Count(), "開始階");
  selection.KaiEnd = ToInt16(ArchiveField(rows, "終了階").Count(), "終了階");
  selection.TokubetuMask = SpecialMask(ToInt16(ArchiveField(rows, "特別階").Count(), "特別階"));
}

}  // namespace

std::vector<std::string> PartStatements(const TallyResult& result, const RowOrder& order) {
  std::vector<std::string> statements;
  AddPartRows(result, order, statements);
  for (int r = 0; r < kDiameterRows; ++r) {
    if (result.Parts().TaisaGoukei[r] != Currency()) {
      statements.push_back(DiameterStatement(result, r, order));
    }
  }
  return statements;
}

bool ReadPartRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result) {
  Recordset rows = site.OpenSnapshot(
      fmt::format("SELECT * FROM 部位別本重集計 WHERE {} ORDER BY 行No", KeyCondition(key)));
  if (rows.Eof()) return false;
  const ArchiveField part(rows, "部位");
  const MaterialReader material(rows);
  const CellReader cells(rows, with_13m);
  PartTables tables;
  for (; !rows.Eof(); rows.MoveNext()) {
    TakeMasks(result.selection, material.Masks());
    TakeCells(tables, PartIn(part), material.DiameterRow(), cells.Read());
  }
  result.tables = std::move(tables);
  ReadPartRange(site, key, result.selection);
  return true;
}

}  // namespace rbt
