// SPDX-License-Identifier: MIT
#include "tally/views/tally_json.h"

#include "data/diameters.h"
#include "platform/json/json_writer.h"

namespace rbt {
namespace {

/// The first `count` entries of a table.
template <typename T, int N>
void AddDense(JsonWriter& json, std::string_view name, const CheckedArray<T, N>& cells, int count) {
  json.Name(name).BeginArray();
  for (int index = 0; index < count; ++index) json.Value(cells[index]);
  json.EndArray();
}

template <typename T, int Rows, int Columns>
void AddSparse(JsonWriter& json, std::string_view name, const Checked2D<T, Rows, Columns>& cells) {
  json.Name(name).BeginArray();
  for (int row = 0; row < Rows; ++row) {
    for (int column = 0; column < Columns; ++column) {
      if (cells[row][column] != T{}) json.Row(row, column, cells[row][column]);
    }
  }
  json.EndArray();
}

void AddCells(JsonWriter& json, const TallyTable& table) {
  AddSparse(json, "BarCount", table.BarCount);
  AddSparse(json, "StockWeight", table.StockWeight);
  AddSparse(json, "InstalledWeight", table.InstalledWeight);
  AddSparse(json, "CutLengthM", table.CutLengthM);
}

void AddDiameters(JsonWriter& json, const TallyTable& table) {
  AddDense(json, "StockWeightByDia", table.StockWeightByDia, kDeformedRows);
  AddDense(json, "InstalledWeightByDia", table.InstalledWeightByDia, kDeformedRows);
  AddDense(json, "WeldCount", table.WeldCount, kDiameterRows);
  AddDense(json, "ThreadCount", table.ThreadCount, kDiameterRows);
  AddDense(json, "PlateCount", table.PlateCount, kDiameterRows);
  AddDense(json, "CutCount", table.CutCount, kDiameterRows);
  AddDense(json, "UlbonLengthM", table.UlbonLengthM, kDiameterRows);
  AddDense(json, "UlbonWeight", table.UlbonWeight, kDiameterRows);
  AddDense(json, "UlbonWeldCount", table.UlbonWeldCount, kDiameterRows);
  AddDense(json, "UlbonThreadCount", table.UlbonThreadCount, kDiameterRows);
  AddDense(json, "UlbonPlateCount", table.UlbonPlateCount, kDiameterRows);
  AddDense(json, "SpiralWeight", table.SpiralWeight, 3);
  AddDense(json, "SpiralUlbonByDia", table.SpiralUlbonByDia, kDiameterRows);
}

void AddTotals(JsonWriter& json, const TallyTable& table) {
  json.Field("SpiralKinds", table.SpiralKinds.AsNumber());
  json.Field("SpiralTotal", table.SpiralTotal);
  json.Field("TotalStockWeight", table.TotalStockWeight);
  json.Field("TotalInstalledWeight", table.TotalInstalledWeight);
  json.Field("TotalWeldCount", table.TotalWeldCount);
  json.Field("TotalThreadCount", table.TotalThreadCount);
  json.Field("TotalPlateCount", table.TotalPlateCount);
  json.Field("TotalCutCount", table.TotalCutCount);
  json.Field("LossRatePercent", table.LossRatePercent);
  json.Field("HighStrengthRowCount", table.HighStrengthRowCount);
  json.Field("StockWarningText", table.StockWarningText);
}

}  // namespace

std::string TallyJson(const TallyTable& table, std::string_view kind, bool has_hoop_rows,
                      bool has_anchor_plate_rows) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginObject().Field("kind", kind);
  AddCells(json, table);
  AddDiameters(json, table);
  AddTotals(json, table);
  json.Field("HasHoopRows", has_hoop_rows).Field("HasAnchorPlateRows", has_anchor_plate_rows);
  return json.EndObject().Text();
}

std::string StockJson(const StockResult& stock) {
  JsonWriter json(JsonWriter::Layout::one_line);
  json.BeginObject().Field("StockBars", stock.StockBars).Field("PiecesPerBar", stock.PiecesPerBar);
  return json.Field("StockLengthM", stock.StockLengthM).EndObject().Text();
}

}  // namespace rbt
