// SPDX-License-Identifier: MIT
#include "archive/store/saved_cells.h"

#include "data/diameters.h"
#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "tally/floorpart/row_share.h"
#include "tally/list_row.h"

namespace rbt {

namespace {

/// "3500mm" to "12000mm", "13000mm".
std::string CountField(int stock_column) {
  return std::to_string(ToInt32(StockMetres(stock_column) * 1000.0, "mm")) + "mm";
}
std::string WeightField(int stock_column) { return CountField(stock_column) + "重量"; }

}  // namespace

bool HasFigures(const DiameterFigures& cells, bool with_13m) {
  DiameterFigures kept = cells;
  if (!with_13m) {
    kept.bars[kColumn13m] = 0;
    kept.weights[kColumn13m] = Currency();
  }
  return kept != DiameterFigures();
}

void PutCells(ArchiveRow& row, const DiameterFigures& cells, bool with_13m) {
  const int columns = StockColumnsInUse(with_13m);
  for (int c = 0; c < columns; ++c) row.Put(CountField(c), cells.bars[c]);
  for (int c = 0; c < columns; ++c) row.Put(WeightField(c), cells.weights[c]);
  row.Put("定尺重量", cells.stock).Put("取付重量", cells.installed);
  row.Put("圧接", cells.welds).Put("ネジ数", cells.threads);
  row.Put("定着板数", cells.plates).Put("切断", cells.cuts);
}

CellReader::CellReader(const Recordset& rows, bool with_13m)
    : stock_(rows, "定尺重量"),
      installed_(rows, "取付重量"),
      welds_(rows, "圧接"),
      threads_(rows, "ネジ数"),
      plates_(rows, "定着板数"),
      cuts_(rows, "切断") {
  const int columns = StockColumnsInUse(with_13m);
  bars_.reserve(static_cast<std::size_t>(columns));
  weights_.reserve(static_cast<std::size_t>(columns));
  for (int c = 0; c < columns; ++c) {
    bars_.emplace_back(rows, CountField(c));
    weights_.emplace_back(rows, WeightField(c));
  }
}

DiameterFigures CellReader::Read() const {
  DiameterFigures cells;
  for (std::size_t c = 0; c < bars_.size(); ++c) {
    cells.bars[static_cast<int>(c)] = bars_[c].Count();
    cells.weights[static_cast<int>(c)] = weights_[c].Weight();
  }
  cells.stock = stock_.Weight();
  cells.installed = installed_.Weight();
  cells.welds = welds_.Count();
  cells.threads = threads_.Count();
  cells.plates = plates_.Count();
  cells.cuts = cuts_.Count();
  return cells;
}

void PutDiameter(ArchiveRow& row, int diameter_row, const BarOrigins& supply, const RowMasks& masks) {
  const bool thin = IsThinRow(diameter_row);
  const auto named = static_cast<std::size_t>(diameter_row);
  row.Put("太さ", DiameterCode(diameter_row));
  row.Put("SD", thin ? std::string_view() : std::string_view(supply.grades.at(named)));
  row.Put("メーカー", thin ? std::string_view() : std::string_view(supply.makers.at(named)));
  row.Put("材質", masks.kinds).Put("材質タイプ", thin ? kThinType : kDeformedType);
  row.Put("材料", masks.forms);
}

MaterialReader::MaterialReader(const Recordset& rows)
    : diameter_(rows, "太さ"), type_(rows, "材質タイプ"), kinds_(rows, "材質"), forms_(rows, "材料") {}

int MaterialReader::DiameterRow() const {
  const std::int32_t code = diameter_.Count();
  const int row = type_.Count() == kThinType ? UlbonIndex(code) : DiameterIndex(code);
  if (row < 0) throw Fault(FaultKind::subscript_out_of_range, "太さ " + std::to_string(code));
  return row;
}

std::string PartField(int part) { return "部位" + ToFullWidth(std::to_string(part)); }

int PartIn(const ArchiveField& field) {
  const std::int32_t part = field.Count();
  if (part < kFirstPart || part > kOtherParts) {
    throw Fault(FaultKind::subscript_out_of_range, "部位 " + std::to_string(part));
  }
  return part;
}

}  // namespace rbt
