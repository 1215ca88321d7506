// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "archive/store/saved_rows.h"
#include "data/diameters.h"
#include "platform/numbers/number_words.h"
#include "tally/count_cells.h"

namespace rbt {

namespace {

DiameterFigures CellsOf(const TallyTable& table, int d) {
  return {.bars = table.BarCount[d],
          .weights = table.StockWeight[d],
          .stock = table.StockWeightByDia[d],
          .installed = table.InstalledWeightByDia[d],
          .welds = table.WeldCount[d],
          .threads = table.ThreadCount[d],
          .plates = table.PlateCount[d],
          .cuts = table.CutCount[d]};
}

void AddTotals(TallyTable& table, const DiameterFigures& cells) {
  table.TotalStockWeight += cells.stock;
  table.TotalInstalledWeight += cells.installed;
  table.TotalWeldCount = AddInt32(table.TotalWeldCount, cells.welds, "圧接");
  table.TotalThreadCount = AddInt32(table.TotalThreadCount, cells.threads, "ネジ数");
  table.TotalPlateCount = AddInt32(table.TotalPlateCount, cells.plates, "定着板数");
  table.TotalCutCount = AddInt32(table.TotalCutCount, cells.cuts, "切断");
}

void TakeCells(TallyTable& table, int d, const DiameterFigures& cells) {
  table.BarCount[d] = cells.bars;
  table.StockWeight[d] = cells.weights;
  table.StockWeightByDia[d] = cells.stock;
  table.InstalledWeightByDia[d] = cells.installed;
  table.WeldCount[d] = cells.welds;
  table.ThreadCount[d] = cells.threads;
  table.PlateCount[d] = cells.plates;
  table.CutCount[d] = cells.cuts;
  AddTotals(table, cells);
}

/// A tally asks for stock weight too; what was saved goes by the installed weight alone.
double LossRateOf(const TallyTable& table) {
  if (table.TotalInstalledWeight == Currency()) return 0.0;
  const Currency loss = table.TotalStockWeight - table.TotalInstalledWeight;
  return loss.ToDouble() / table.TotalInstalledWeight.ToDouble() * 100.0;
}

}  // namespace

RowMasks MasksOf(const SelectionData& selection) {
  return {selection.MaterialKindMask.AsNumber(), selection.MaterialFormMask.AsNumber()};
}

void TakeMasks(SelectionData& selection, const RowMasks& masks) {
  selection.MaterialKindMask = KindMask(masks.kinds);
  selection.MaterialFormMask = FormMask(ToInt16(masks.forms, "材料"));
}

std::vector<std::string> GridStatements(const TallyResult& result, const RowOrder& order) {
  const RowMasks masks = MasksOf(result.selection);
  std::vector<std::string> statements;
  for (int d = 0; d < kDeformedRows; ++d) {
    const DiameterFigures cells = CellsOf(result.Grid(), d);
    if (!HasFigures(cells, order.with_13m)) continue;
    const auto named = static_cast<std::size_t>(d);
    ArchiveRow row("重量集計");
    row.Put("列番号", d).Put("太さ", DiameterCode(d));
    row.Put("ＳＤ", std::string_view(order.supply.grades.at(named)));
    row.Put("メーカー", std::string_view(order.supply.makers.at(named)));
    row.Put("材質", masks.kinds).Put("材料", masks.forms);
    PutCells(row, cells, order.with_13m);
    statements.push_back(row.Put(order.key).Statement());
  }
  return statements;
}

bool ReadGridRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result) {
  Recordset rows =
      site.OpenSnapshot(fmt::format("SELECT * FROM 重量集計 WHERE {} ORDER BY 列番号", KeyCondition(key)));
  if (rows.Eof()) return false;
  const ArchiveField number(rows, "列番号");
  const MaterialReader material(rows);
  const CellReader cells(rows, with_13m);
  TallyTable table;
  for (; !rows.Eof(); rows.MoveNext()) {
    const int d = static_cast<int>(CheckedIndex(number.Count(), kDeformedRows));
    TakeMasks(result.selection, material.Masks());
    TakeCells(table, d, cells.Read());
  }
  table.LossRatePercent = LossRateOf(table);
  result.tables = std::move(table);
  return true;
}

}  // namespace rbt
