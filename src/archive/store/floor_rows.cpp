// SPDX-License-Identifier: MIT
#include <algorithm>
#include <limits>
#include <utility>

#include <fmt/format.h>

#include "archive/store/saved_rows.h"
#include "data/quoted_text.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "tally/count_cells.h"
#include "tally/floorpart/column_run.h"
#include "tally/floorpart/floor_list.h"
#include "tally/floorpart/row_share.h"

namespace rbt {

namespace {

constexpr std::string_view kFloorRows = "階別重量集計";

/// A floor as the rows name it: "12", "2-" of a basement; those with names of their own keep them.
std::string FloorTextOf(int floor_code) {
  std::string label = FloorListLabel(floor_code);
  if (floor_code == kFoundationFloor || IsSpecialFloor(floor_code)) return label;
  return ReplaceAll(ReplaceAll(label, "階", ""), "Ｂ", "-");
}

/// The floors of the list, without the total row.
std::vector<std::int16_t> ListedFloorsOf(const FloorTables& tables) {
  if (tables.KaiGyouKai.empty()) return {};
  return {tables.KaiGyouKai.begin(), tables.KaiGyouKai.end() - 1};
}

/// Installed weight is shown: the second set of sums is filled.
bool ShowsInstalled(const FloorTables& tables) { return tables.SouTorituke != Currency(); }

Currency SumOf(const FloorTables::Weights& weights, int r, ColumnRun columns) {
  Currency sum;
  for (int c = columns.first; c <= columns.last; ++c) sum += weights[r][c];
  return sum;
}

std::int32_t FittingOf(const FloorFitting& fitting, int p, int f, int r) {
  return std::as_const(fitting.KaiBui[p])[f][r];
}

DiameterFigures CellsOf(const FloorTables& tables, int f, int p, int r, ColumnRun columns) {
  const FloorTables::Weights& shown = tables.KaiBuiJyuuryo[f][p];
  return {.bars = tables.KaiBuiHonsu[p][f][r],
          .weights = shown[r],
          .stock = SumOf(tables.KaiBuiTeiJyuuryo[f][p], r, columns),
          .installed = ShowsInstalled(tables) ? SumOf(shown, r, columns) : Currency(),
          .welds = FittingOf(tables.Assetu, p, f, r),
          .threads = FittingOf(tables.Neji, p, f, r),
          .plates = FittingOf(tables.Teichaku, p, f, r),
          .cuts = FittingOf(tables.Setsudan, p, f, r)};
}

/// 階部位重量集計.
class PartRowWriter {
 public:
  PartRowWriter(const TallyResult& result, const RowOrder& order)
      : tables_(result.Floors()), masks_(MasksOf(result.selection)), order_(order) {}

  void Add(int floor_code, int p, int r, std::vector<std::string>& statements) {
    const DiameterFigures cells =
        CellsOf(tables_, FloorIndex(floor_code), p, r, ColumnsInUse(order_.with_13m));
    if (!HasFigures(cells, order_.with_13m)) return;
    ArchiveRow row("階部位重量集計");
    row.Put("行No", ++rows_).Put("階", std::string_view(FloorTextOf(floor_code))).Put("部位", p);
    PutDiameter(row, r, order_.supply, masks_);
    PutCells(row, cells, order_.with_13m);
    statements.push_back(row.Put(order_.key).Statement());
  }

 private:
  const FloorTables& tables_;
  RowMasks masks_;
  const RowOrder& order_;
  std::int32_t rows_ = 0;
};

/// A floor's row with its parts at 0.
std::string FloorStatement(const TallyResult& result, std::int32_t number, int floor_code,
                           const RowOrder& order) {
  const FloorTables& tables = result.Floors();
  const SelectionData& selection = result.selection;
  const RowMasks masks = MasksOf(selection);
  const int f = FloorIndex(floor_code);
  ArchiveRow row(kFloorRows);
  row.Put("行No", number).Put("階", std::string_view(FloorTextOf(floor_code))).Put("太さ", 0);
  row.Put("SD", std::string_view()).Put("メーカー", std::string_view()).Put("材質", masks.kinds);
  row.Put("材質タイプ", masks.kinds == 0 ? kThinType : kDeformedType).Put("材料", masks.forms);
  for (int p = kFirstPart; p < kPartEntries; ++p) row.Put(PartField(p), Currency());
  row.Put("圧接", tables.Assetu.KaiSou[f]).Put("ネジ数", tables.Neji.KaiSou[f]);
  row.Put("定着板数", tables.Teichaku.KaiSou[f]).Put("切断", tables.Setsudan.KaiSou[f]);
  row.Put("定尺合計", tables.KaiGoukei[f]).Put("取付合計", tables.KaiTorituke[f]);
  row.Put("開始階", selection.KaiStart).Put("終了階", selection.KaiEnd);
  row.Put("特別階", selection.TokubetuMask.AsNumber());
  return row.Put(order.key).Statement();
}

/// Puts the weight of a part into it.
std::string PartWeightStatement(const FloorTables& tables, int floor_code, int p, const SavedKey& key) {
  return fmt::format("UPDATE {} SET {}={} WHERE 階={} AND {}", kFloorRows, PartField(p),
                     tables.KaiBuiGoukei[FloorIndex(floor_code)][p].ToText(),
                     QuotedText(FloorTextOf(floor_code), '\''), KeyCondition(key));
}

// Reading.

void AddFitting(FloorFitting& fitting, int f, int p, int r, std::int32_t count, std::string_view field) {
  if (count == 0) return;
  AddCount(fitting.KaiBui[p][f], r, count, field);
  AddCount(fitting.Kai[f], r, count, field);
  AddCount(fitting.Taisa, r, count, field);
  AddCount(fitting.KaiSou, f, count, field);
}

void TakeCells(FloorTables& tables, int f, int p, int r, const DiameterFigures& cells) {
  tables.KaiBuiHonsu[p][f][r] = cells.bars;
  tables.KaiBuiJyuuryo[f][p][r] = cells.weights;
  AddFitting(tables.Assetu, f, p, r, cells.welds, "圧接");
  AddFitting(tables.Neji, f, p, r, cells.threads, "ネジ数");
  AddFitting(tables.Teichaku, f, p, r, cells.plates, "定着板数");
  AddFitting(tables.Setsudan, f, p, r, cells.cuts, "切断");
}

bool ReadParts(Database& site, const SavedKey& key, bool with_13m, TallyResult& result) {
  Recordset rows = site.OpenSnapshot(
      fmt::format("SELECT * FROM 階部位重量集計 WHERE {} ORDER BY 行No", KeyCondition(key)));
  if (rows.Eof()) return false;
  const ArchiveField floor(rows, "階");
  const ArchiveField part(rows, "部位");
  const MaterialReader material(rows);
  const CellReader cells(rows, with_13m);
  FloorTables tables;
  for (; !rows.Eof(); rows.MoveNext()) {
    TakeMasks(result.selection, material.Masks());
    TakeCells(tables, FloorIndex(Trim_FloorName(floor.Text())), PartIn(part), material.DiameterRow(),
              cells.Read());
  }
  result.tables = std::move(tables);
  return true;
}

/// Where the list of a range from 0 goes on behind the foundation; behind its end when it does not. The boxes
/// do not tell it.
std::int16_t LowestListed(const std::vector<std::int16_t>& listed, std::int16_t end) {
  constexpr int kMost = std::numeric_limits<std::int16_t>::max();
  int lowest = std::min(end + 1, kMost);
  for (const std::int16_t floor : listed) {
    if (floor != kFoundationFloor && floor < lowest) lowest = floor;
  }
  return static_cast<std::int16_t>(lowest);
}

bool ReadFloorRange(Database& site, const SavedKey& key, SelectionData& selection) {
  Recordset rows = site.OpenSnapshot(
      fmt::format("SELECT * FROM {} WHERE {} ORDER BY 行No", kFloorRows, KeyCondition(key)));
  if (rows.Eof()) return false;
  const ArchiveField floor(rows, "階");
  const ArchiveField start(rows, "開始階");
  const ArchiveField end(rows, "終了階");
  const ArchiveField specials(rows, "特別階");
  std::vector<std::int16_t> listed;
  for (; !rows.Eof(); rows.MoveNext()) {
    listed.push_back(Trim_FloorName(floor.Text()));
    selection.KaiStart = ToInt16(start.Count(), "開始階");
    selection.KaiEnd = ToInt16(end.Count(), "終了階");
    selection.TokubetuMask = SpecialMask(ToInt16(specials.Count(), "特別階"));
  }
  selection.KaiMin = LowestListed(listed, selection.KaiEnd);
  return true;
}

}  // namespace

std::vector<std::string> FloorStatements(const TallyResult& result, const RowOrder& order) {
  const std::vector<std::int16_t> floors = ListedFloorsOf(result.Floors());
  std::vector<std::string> statements;
  PartRowWriter parts(result, order);
  for (const std::int16_t floor : floors) {
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      for (int r = 0; r < kDiameterRows; ++r) parts.Add(floor, p, r, statements);
    }
  }
  if (statements.empty()) return {};
  std::int32_t number = 0;
  for (const std::int16_t floor : floors) {
    statements.push_back(FloorStatement(result, ++number, floor, order));
    for (int p = kFirstPart; p < kPartEntries; ++p) {
      statements.push_back(PartWeightStatement(result.Floors(), floor, p, order.key));
    }
  }
  return statements;
}

bool ReadFloorRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result) {
  return ReadParts(site, key, with_13m, result) && ReadFloorRange(site, key, result.selection);
}

}  // namespace rbt
