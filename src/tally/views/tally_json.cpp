// SPDX-License-Identifier: MIT
#include "tally/views/tally_json.h"

#include <fmt/format.h>

#include "data/diameters.h"
#include "tally/views/json_text.h"

namespace rbt {
namespace {

/// The first `count` entries of a table.
template <typename T, int N>
std::string Dense(const CheckedArray<T, N>& cells, int count) {
  std::string text;
  for (int index = 0; index < count; ++index) {
    text += (index > 0 ? ", " : "") + JsonText(cells[index]);
  }
  return '[' + text + ']';
}

template <typename T, int Rows, int Columns>
std::string Sparse(const Checked2D<T, Rows, Columns>& cells) {
  std::string text;
  for (int row = 0; row < Rows; ++row) {
    for (int column = 0; column < Columns; ++column) {
      if (cells[row][column] == T{}) continue;
      text +=
          fmt::format("{}[{}, {}, {}]", text.empty() ? "" : ", ", row, column, JsonText(cells[row][column]));
    }
  }
  return '[' + text + ']';
}

void AddCells(JsonObject& object, const TallyTable& table) {
  object.Add("BarCount", Sparse(table.BarCount));
  object.Add("StockWeight", Sparse(table.StockWeight));
  object.Add("InstalledWeight", Sparse(table.InstalledWeight));
  object.Add("CutLengthM", Sparse(table.CutLengthM));
}

void AddDiameters(JsonObject& object, const TallyTable& table) {
  object.Add("StockWeightByDia", Dense(table.StockWeightByDia, kDeformedRows));
  object.Add("InstalledWeightByDia", Dense(table.InstalledWeightByDia, kDeformedRows));
  object.Add("WeldCount", Dense(table.WeldCount, kDiameterRows));
  object.Add("ThreadCount", Dense(table.ThreadCount, kDiameterRows));
  object.Add("PlateCount", Dense(table.PlateCount, kDiameterRows));
  object.Add("CutCount", Dense(table.CutCount, kDiameterRows));
  object.Add("UlbonLengthM", Dense(table.UlbonLengthM, kDiameterRows));
  object.Add("UlbonWeight", Dense(table.UlbonWeight, kDiameterRows));
  object.Add("UlbonWeldCount", Dense(table.UlbonWeldCount, kDiameterRows));
  object.Add("UlbonThreadCount", Dense(table.UlbonThreadCount, kDiameterRows));
  object.Add("UlbonPlateCount", Dense(table.UlbonPlateCount, kDiameterRows));
  object.Add("SpiralWeight", Dense(table.SpiralWeight, 3));
  object.Add("SpiralUlbonByDia", Dense(table.SpiralUlbonByDia, kDiameterRows));
}

void AddTotals(JsonObject& object, const TallyTable& table) {
  object.Add("SpiralKinds", JsonText(table.SpiralKinds.AsNumber()));
  object.Add("SpiralTotal", JsonText(table.SpiralTotal));
  object.Add("TotalStockWeight", JsonText(table.TotalStockWeight));
  object.Add("TotalInstalledWeight", JsonText(table.TotalInstalledWeight));
  object.Add("TotalWeldCount", JsonText(table.TotalWeldCount));
  object.Add("TotalThreadCount", JsonText(table.TotalThreadCount));
  object.Add("TotalPlateCount", JsonText(table.TotalPlateCount));
  object.Add("TotalCutCount", JsonText(table.TotalCutCount));
  object.Add("LossRatePercent", JsonText(table.LossRatePercent));
  object.Add("HighStrengthRowCount", JsonText(table.HighStrengthRowCount));
  object.Add("StockWarningText", JsonText(std::string_view(table.StockWarningText)));
}

}  // namespace

std::string TallyJson(const TallyTable& table, std::string_view kind, bool has_hoop_rows,
                      bool has_anchor_plate_rows) {
  JsonObject object;
  object.Add("kind", JsonText(kind));
  AddCells(object, table);
  AddDiameters(object, table);
  AddTotals(object, table);
  object.Add("HasHoopRows", JsonText(has_hoop_rows));
  object.Add("HasAnchorPlateRows", JsonText(has_anchor_plate_rows));
  return object.Text();
}

std::string StockJson(const StockResult& stock) {
  return "{ \"StockBars\": " + JsonText(stock.StockBars) +
         ", \"PiecesPerBar\": " + JsonText(stock.PiecesPerBar) +
         ", \"StockLengthM\": " + JsonText(stock.StockLengthM) + " }\n";
}

}  // namespace rbt
